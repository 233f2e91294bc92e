// SPDX-License-Identifier: GPL-3.0-or-later
// Whether every window fits the screen and shows its controls whole, also with large type. CTest
// runs this on screens of several sizes.
#include "editor/EveryWindow.h"
#include "support/FormTest.h"
#include "support/LargeType.h"
#include "support/Layout.h"

class WindowLayout_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data() { Layout::addTypeSizes(); }

    void itFitsTheScreen_data() { EveryWindow::addRows(); }

    void itFitsTheScreen()
    {
        QFETCH_GLOBAL(double, type);
        const LargeType font(type);
        EveryWindow::open([](QWidget &window) { Layout::checkFitsTheScreen(window); });
    }
};

int main(int argc, char *argv[])
{
    return runFormTest<WindowLayout_test>(argc, argv);
}

#include "WindowLayout_test.moc"
