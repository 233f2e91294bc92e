// SPDX-License-Identifier: GPL-3.0-or-later
// The layout of the export dialog. CTest runs this on screens of several sizes.
#include "support/FormTest.h"
#include "support/LargeType.h"
#include "support/Layout.h"
#include "transfer/ExportForm.h"

class dlgExport_Layout_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itFitsTheScreen_data() { Layout::addTypeSizes(); }

    void itFitsTheScreen()
    {
        QFETCH(double, type);
        const LargeType font(type);
        ExportForm form;
        Layout::checkFitsTheScreen(form.dialog());
        // At least three words are seen.
        const auto &words = form.control<QListWidget>("lstExportWords");
        QVERIFY(words.viewport()->height() >= 3 * words.sizeHintForRow(0));
    }
};

int main(int argc, char *argv[])
{
    return runFormTest<dlgExport_Layout_test>(argc, argv);
}

#include "dlgExport_Layout_test.moc"
