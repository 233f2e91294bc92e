// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Screen.h"

#include <QScreen>
#include <QTest>
#include <QWidget>

class Screen_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPixelIsFifteenTwips()
    {
        QCOMPARE(TwipsPerPixel, 15);
        QCOMPARE(1440 / TwipsPerPixel, 96);
    }

    void theScreenIsMeasuredInTwips()
    {
        const QWidget window;
        const QSize screen = window.screen()->size();
        QVERIFY(screen.width() > 0);
        QCOMPARE(screenInTwips(window), QSize(screen.width() * 15, screen.height() * 15));
    }

    void twipsAreRoundedToTheNearestPixel_data()
    {
        QTest::addColumn<int>("twips");
        QTest::addColumn<int>("expected");
        QTest::newRow("none") << 0 << 0;
        QTest::newRow("less than half a pixel") << 7 << 0;
        QTest::newRow("more than half a pixel") << 8 << 1;
        QTest::newRow("a pixel") << 15 << 1;
        QTest::newRow("just below one and a half") << 22 << 1;
        QTest::newRow("just above one and a half") << 23 << 2;
        QTest::newRow("first column at 1024 x 768") << 2194 << 146;
        QTest::newRow("width of 1024 pixels") << 15360 << 1024;
        QTest::newRow("width of 3840 pixels") << 57600 << 3840;
    }

    void twipsAreRoundedToTheNearestPixel()
    {
        QFETCH(int, twips);
        QTEST(pixels(twips), "expected");
    }
};

QTEST_MAIN(Screen_test)
#include "Screen_test.moc"
