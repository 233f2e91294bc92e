// SPDX-License-Identifier: GPL-3.0-or-later
// The program's printer: an installed printer, or a PDF file.
//
// The constructor asks the system for its printers, which may take a while.
#pragma once

#include "platform/CommonDialog.h"
#include "platform/Printer.h"

#include <memory>
#include <optional>

class PrintDocument;
class PrintMetrics;
class QPageLayout;
class QPrinter;
class QWidget;

class SystemPrinter final : public Printer
{
public:
    enum class Orientation { Portrait = 1, Landscape = 2 };

    // Selects the default printer, or the first one if there is no default.
    SystemPrinter();
    ~SystemPrinter() override;

    // The device name of the PDF file, the last of the installed printers.
    [[nodiscard]] static QString printToPdf();
    [[nodiscard]] static QStringList installed();

    [[nodiscard]] QString DeviceName() const { return m_deviceName; }
    // Where a document goes: the device name, or the name of the PDF file chosen last.
    [[nodiscard]] QString target() const;
    // Selects an installed printer. Paper, orientation and copies stay.
    void select(const QString &deviceName);

    [[nodiscard]] Orientation orientation() const;
    void setOrientation(Orientation orientation);

    [[nodiscard]] double ScaleWidth() const override;
    [[nodiscard]] double ScaleHeight() const override;
    // For the current printer and paper; never null.
    [[nodiscard]] std::shared_ptr<const PrintMetrics> metrics() const { return m_metrics; }

    // Qt's dialogs for the current printer; showSetup also lets the person choose another one.
    // Nothing or false if cancelled. showSetup returns the copies, but does not set them.
    [[nodiscard]] std::optional<Integer> showSetup(QWidget *parent, const QString &title,
                                                   Integer copies);
    [[nodiscard]] bool showPageSetup(QWidget *parent);

    // Call this before the first text of a document. False if the person cancels the choice of a
    // PDF file. Throws RunTimeError PrinterFault if the printer is missing or stopped.
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
    // With the borders that are left empty.
    [[nodiscard]] QPageLayout paper() const;
    void measure();
    void checkQueue();
    [[nodiscard]] bool askForFile(QWidget *parent, const QString &title);

    std::unique_ptr<QPrinter> m_device;
    QString m_deviceName;
    std::shared_ptr<const PrintMetrics> m_metrics;
    CommonDialog m_fileDialog;
    std::unique_ptr<PrintDocument> m_document;
};
