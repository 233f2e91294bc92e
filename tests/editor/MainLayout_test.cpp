// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/MainLayout.h"

#include <QTest>

#include <initializer_list>

class MainLayout_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aScreenSizeGivesThesePlaces_data()
    {
        const std::initializer_list<const char *> columns = {
            "width",      "height",        "column1",      "column2",   "column3", "half",
            "frameWidth", "frameDefWidth", "frameSenLeft", "textWidth", "playLeft"};
        for (const char *column : columns)
            QTest::addColumn<int>(column);
        // Twips, 15 to the pixel.
        QTest::newRow("1024x768") << 15360 << 11520 << 2194 << 5120 << 6635 << 5760 << 15160 << 7380
                                  << 7580 << 6880 << 13160;
        QTest::newRow("1366x768") << 20490 << 11520 << 2927 << 6830 << 8851 << 5760 << 20290 << 9945
                                  << 10145 << 9445 << 18290;
        QTest::newRow("1280x1024") << 19200 << 15360 << 2743 << 6400 << 8294 << 7680 << 19000
                                   << 9300 << 9500 << 8800 << 17000;
        QTest::newRow("1920x1080") << 28800 << 16200 << 4114 << 9600 << 12441 << 8100 << 28600
                                   << 14100 << 14300 << 13600 << 26600;
        QTest::newRow("2560x1440") << 38400 << 21600 << 5486 << 12800 << 16587 << 10800 << 38200
                                   << 18900 << 19100 << 18400 << 36200;
    }

    void aScreenSizeGivesThesePlaces()
    {
        QFETCH(int, width);
        QFETCH(int, height);
        const MainLayout layout = mainLayout(width, height);
        QTEST(layout.columnWidths[0], "column1");
        QTEST(layout.columnWidths[1], "column2");
        QTEST(layout.columnWidths[2], "column3");
        QTEST(layout.gridHeight, "half");
        QTEST(layout.frameTop, "half");
        QTEST(layout.frameWidth, "frameWidth");
        QTEST(layout.frameDefWidth, "frameDefWidth");
        QTEST(layout.frameSenLeft, "frameSenLeft");
        QTEST(layout.textWidth, "textWidth");
        QTEST(layout.playLeft, "playLeft");
    }

    void theTwoTextFramesLieSideBySide_data() { aScreenSizeGivesThesePlaces_data(); }

    void theTwoTextFramesLieSideBySide()
    {
        QFETCH(int, width);
        QFETCH(int, height);
        const MainLayout layout = mainLayout(width, height);
        QVERIFY(layout.frameDefWidth < layout.frameSenLeft);
        QVERIFY(layout.frameSenLeft + layout.frameDefWidth <= layout.frameWidth);
        QVERIFY(layout.textWidth < layout.frameDefWidth);
    }
};

QTEST_APPLESS_MAIN(MainLayout_test)

#include "MainLayout_test.moc"
