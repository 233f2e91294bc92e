// SPDX-License-Identifier: GPL-3.0-or-later
// Whether the texts and controls of every window stand out, in a light, a dark and a high-contrast
// palette.
#include "support/WindowContrast.h"

#include "editor/EveryWindow.h"
#include "support/Contrast.h"
#include "support/FormTest.h"

using namespace Contrast;
using namespace Qt::StringLiterals;

class WindowContrast_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data()
    {
        QTest::addColumn<QPalette>("palette");
        QTest::newRow("light") << lightPalette();
        QTest::newRow("dark") << darkPalette();
        QTest::newRow("high contrast") << highContrastPalette();
    }

    void textsBordersAndTheFocusStandOut_data() { EveryWindow::addRows(); }

    void textsBordersAndTheFocusStandOut()
    {
        QFETCH_GLOBAL(QPalette, palette);
        QApplication::setPalette(palette);
        QCoreApplication::processEvents();
        EveryWindow::open([](QWidget &window) {
            const QStringList weak = WindowContrast::weakTexts(window) +
                                     WindowContrast::weakBorders(window) +
                                     WindowContrast::weakFocusFrames(window);
            QVERIFY2(weak.isEmpty(), qPrintable(weak.join(u"; "_s)));
        });
    }
};

int main(int argc, char *argv[])
{
    return runFormTest<WindowContrast_test>(argc, argv);
}

#include "WindowContrast_test.moc"
