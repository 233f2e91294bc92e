// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Module1.h"
#include "core/cVocabList.h"
#include "platform/SystemPrinter.h"
#include "print/WordListPrint.h"
#include "print/frmPrint.h"
#include "print/ui_frmPrint.h"

#include <QShortcut>

void frmPrint::connectPreview()
{
    PagePreview *preview = m_ui->preview;
    const auto turnsTo = [preview](QAbstractButton *button, PagePreview::Page page) {
        connect(button, &QAbstractButton::clicked, preview,
                [preview, page] { runGuarded([preview, page] { preview->goTo(page); }); });
    };
    turnsTo(m_ui->cmdFirstPage, PagePreview::Page::First);
    turnsTo(m_ui->cmdPreviousPage, PagePreview::Page::Previous);
    turnsTo(m_ui->cmdNextPage, PagePreview::Page::Next);
    turnsTo(m_ui->cmdLastPage, PagePreview::Page::Last);
    connect(m_ui->cmdZoom, &QAbstractButton::clicked, preview,
            guarded(preview, &PagePreview::toggleZoom));
    connect(preview, &PagePreview::changed, this, guarded(this, &frmPrint::showPage));

    const auto onKey = [this](const QKeySequence &keys, QAbstractButton *button) {
        connect(new QShortcut(keys, this), &QShortcut::activated, button, &QAbstractButton::click);
    };
    onKey(Qt::CTRL | Qt::Key_PageUp, m_ui->cmdPreviousPage);
    onKey(Qt::CTRL | Qt::Key_PageDown, m_ui->cmdNextPage);
}

void frmPrint::showPreview()
{
    m_ui->preview->setPages(std::make_unique<PreviewPages>(
        m_printer.metrics(), Module1::gVocabList(), WordListPrint::chosen(), m_printer.Copies));
}

void frmPrint::showPage()
{
    const PagePreview &preview = *m_ui->preview;
    if (const QString text = preview.pageText(); text != m_ui->lblPage->text()) {
        m_ui->lblPage->setText(text);
        m_ui->preview->setAccessibleDescription(text); // for screen readers
    }
    m_ui->cmdFirstPage->setEnabled(!preview.isFirst());
    m_ui->cmdPreviousPage->setEnabled(!preview.isFirst());
    m_ui->cmdNextPage->setEnabled(!preview.isLast());
    m_ui->cmdLastPage->setEnabled(!preview.isLast());
    m_ui->cmdZoom->setText(preview.zoom() == PagePreview::Zoom::WholePage
                               ? QStringLiteral("Actual size")
                               : QStringLiteral("Whole page"));
}
