// SPDX-License-Identifier: GPL-3.0-or-later
#include "help/dlgHandbook.h"

#include "help/ui_dlgHandbook.h"

#include <QScreen>
#include <QUrl>

#include <utility>

dlgHandbook::dlgHandbook(QString file, QWidget *parent)
    : DialogForm(parent), m_ui(std::make_unique<Ui::dlgHandbook>()), m_file(std::move(file))
{
    m_ui->setupUi(this);
    resize(size().boundedTo(screen()->availableSize() * 0.9));
    openAsLastClosed();
    onClick(m_ui->cmdBack, &dlgHandbook::cmdBack_Click);
    onClick(m_ui->cmdContents, &dlgHandbook::cmdContents_Click);
    onClick(m_ui->cmdClose, &dlgHandbook::cmdClose_Click);
    connect(m_ui->text, &QTextBrowser::backwardAvailable, m_ui->cmdBack, &QWidget::setEnabled);
}

dlgHandbook::~dlgHandbook() = default;

void dlgHandbook::Form_Load()
{
    layout()->activate(); // pictures are made as wide as the text
    m_ui->text->setSource(QUrl::fromLocalFile(m_file));
    m_ui->text->setFocus();
}

void dlgHandbook::cmdBack_Click()
{
    m_ui->text->backward();
}

void dlgHandbook::cmdContents_Click()
{
    m_ui->text->setSource(QUrl(QStringLiteral("index.html")));
}

void dlgHandbook::cmdClose_Click()
{
    close();
}
