// SPDX-License-Identifier: GPL-3.0-or-later
#include "help/dlgAbout.h"

#include "help/ui_dlgAbout.h"
#include "platform/Application.h"
#include "platform/Paths.h"

#include <QDir>

dlgAbout::dlgAbout(QWidget *parent) : DialogForm(parent), m_ui(std::make_unique<Ui::dlgAbout>())
{
    m_ui->setupUi(this);
    openAsLastClosed();
    onClick(m_ui->cmdOK, &dlgAbout::cmdOK_Click);
}

dlgAbout::~dlgAbout() = default;

void dlgAbout::Form_Load()
{
    m_ui->lblVersion->setText(QStringLiteral("Version ") + Application::applicationVersion());
    m_ui->lblLegalNotice->setText(Application::LegalCopyright());
    m_ui->lblBuiltWith->setText(QStringLiteral("C++20 and Qt ") + QLatin1String(qVersion()));
    m_ui->txtWordLists->setText(QDir::toNativeSeparators(pathOf(Place::WordLists)));
    m_ui->cmdOK->setFocus();
}

void dlgAbout::cmdOK_Click()
{
    close();
}
