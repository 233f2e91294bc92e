// SPDX-License-Identifier: GPL-3.0-or-later
#include "help/dlgAbout.h"

#include "help/ui_dlgAbout.h"
#include "platform/Application.h"
#include "platform/Paths.h"
#include "platform/Screen.h"

#include <QDir>
#include <QLayout>

#include <algorithm>

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
    fitToTexts();
    m_ui->cmdOK->setFocus();
}

// A layout does not keep a window as high as wrapped texts need.
void dlgAbout::fitToTexts()
{
    for (QWidget *control : findChildren<QWidget *>())
        control->ensurePolished(); // the style sheet makes some of them larger
    const int wanted = 32 * fontMetrics().height();
    const int least = std::min(wanted, roomOnScreen(*this).width());
    layout()->invalidate();
    setMinimumSize(least, layout()->totalHeightForWidth(least));
}

void dlgAbout::cmdOK_Click()
{
    close();
}
