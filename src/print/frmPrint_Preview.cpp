// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Module1.h"
#include "core/cVocabList.h"
#include "platform/SystemPrinter.h"
#include "print/WordListPrint.h"
#include "print/frmPrint.h"
#include "print/ui_frmPrint.h"

void frmPrint::cmdFirstPage_Click()
{
    m_ui->preview->goTo(1);
}

void frmPrint::cmdPreviousPage_Click()
{
    m_ui->preview->goTo(m_ui->preview->page() - 1);
}

void frmPrint::cmdNextPage_Click()
{
    m_ui->preview->goTo(m_ui->preview->page() + 1);
}

void frmPrint::cmdLastPage_Click()
{
    m_ui->preview->goToLast();
}

void frmPrint::cmdZoom_Click()
{
    PagePreview &preview = *m_ui->preview;
    preview.setZoom(preview.zoom() == PagePreview::Zoom::WholePage ? PagePreview::Zoom::ActualSize
                                                                   : PagePreview::Zoom::WholePage);
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
        m_ui->preview->setAccessibleDescription(text); // is told to who does not see it, each time
    }
    m_ui->cmdFirstPage->setEnabled(!preview.isFirst());
    m_ui->cmdPreviousPage->setEnabled(!preview.isFirst());
    m_ui->cmdNextPage->setEnabled(!preview.isLast());
    m_ui->cmdLastPage->setEnabled(!preview.isLast());
    m_ui->cmdZoom->setText(preview.zoom() == PagePreview::Zoom::WholePage
                               ? QStringLiteral("Actual size")
                               : QStringLiteral("Whole page"));
}
