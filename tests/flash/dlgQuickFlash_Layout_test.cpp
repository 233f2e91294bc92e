// SPDX-License-Identifier: GPL-3.0-or-later
// The layout of the flash cards. CTest runs this on screens of several sizes.
#include "flash/FlashForm.h"
#include "support/FormTest.h"
#include "support/LargeType.h"
#include "support/Layout.h"

#include <QScreen>

class dlgQuickFlash_Layout_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theyFitTheScreen_data() { Layout::addTypeSizes(); }

    void theyFitTheScreen()
    {
        QFETCH(double, type);
        const LargeType font(type);
        FlashForm form(1000);
        Layout::checkFitsTheScreen(form.dialog());
        form.click("cmdPrevious");
        form.click("cmdNext");
        Layout::checkFitsTheScreen(form.dialog());
        form.click("cmdAutoFlash");
        Layout::checkFitsTheScreen(form.dialog());
    }

    void theyUseMostOfASmallScreenAndEnoughOfALargeOne()
    {
        FlashForm form;
        const QSize room = form.dialog().screen()->availableSize();
        const QSize size = form.dialog().size();
        const QString text = u"%1x%2"_s.arg(size.width()).arg(size.height());
        QVERIFY2(size.width() >= std::min(room.width() * 4 / 5, 1200), qPrintable(text));
        QVERIFY2(size.height() >= std::min(room.height() * 7 / 10, 600), qPrintable(text));
    }
};

int main(int argc, char *argv[])
{
    return runFormTest<dlgQuickFlash_Layout_test>(argc, argv);
}

#include "dlgQuickFlash_Layout_test.moc"
