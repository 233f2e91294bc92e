// SPDX-License-Identifier: GPL-3.0-or-later
// The program's printer: one of those that are installed, or a PDF file.
//
// Making it asks the system for its printers, which may take a moment.
#pragma once

#include "platform/CommonDialog.h"
#include "platform/Printer.h"

#include <memory>
#include <optional>

class PrintDocument;
class PrintMetrics;
class QPrinter;
class QWidget;

class SystemPrinter final : public Printer
{
public:
    enum class Orientation { Portrait = 1, Landscape = 2 };

    // The default printer, or else the first one.
    SystemPrinter();
    ~SystemPrinter() override;

    // The device name that stands for a PDF file, last of the installed ones.
    [[nodiscard]] static QString printToPdf();
    [[nodiscard]] static QStringList installed();

    [[nodiscard]] QString DeviceName() const { return m_deviceName; }
    // Makes an installed printer the current one; paper, orientation and copies stay.
    void select(const QString &deviceName);

    [[nodiscard]] Orientation orientation() const;
    void setOrientation(Orientation orientation);

    [[nodiscard]] double ScaleWidth() const override;
    [[nodiscard]] double ScaleHeight() const override;
    // How texts come out on the current printer and paper; never null.
    [[nodiscard]] std::shared_ptr<const PrintMetrics> metrics() const { return m_metrics; }

    // The system's dialogs for the current printer, which the first may change for another one.
    // Nothing or false where the person cancelled. The copies are asked for and returned only: the
    // printer's own stay.
    [[nodiscard]] std::optional<Integer> showSetup(QWidget *parent, const QString &title,
                                                   Integer copies);
    [[nodiscard]] bool showPageSetup(QWidget *parent);

    // To be called before a document's first text. False where the person did not say which file
    // to print to. A printer that is gone or stopped throws RunTimeError PrinterFault.
    [[nodiscard]] bool StartDoc(QWidget *parent, const QString &title);

protected:
    [[nodiscard]] double widthOf(QStringView text, const PrintStyle &style) const override;
    [[nodiscard]] double lineHeight(const PrintStyle &style) const override;
    void beginSheet() override;
    void drawText(QPointF topLeft, const QString &text, const PrintStyle &style) override;
    void endDocument() override;
    void dropDocument() override;

private:
    [[nodiscard]] bool printsToFile() const { return m_deviceName == printToPdf(); }
    void measure();
    void checkQueue();
    [[nodiscard]] bool askForFile(QWidget *parent, const QString &title);

    std::unique_ptr<QPrinter> m_device;
    QString m_deviceName;
    std::shared_ptr<const PrintMetrics> m_metrics;
    CommonDialog m_fileDialog;
    std::unique_ptr<PrintDocument> m_document;
};
