// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/sound/LoopingSound.h"

#include <QTest>

class LoopingSound_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theBeginningFollowsTheEnd_data()
    {
        QTest::addColumn<int>("piece");
        for (const int piece : {1, 2, 4, 5, 6, 13, 100})
            QTest::addRow("%d bytes at a time", piece) << piece;
    }
    void theBeginningFollowsTheEnd()
    {
        QFETCH(const int, piece);
        LoopingSound sound("abcde");
        QByteArray heard;
        while (heard.size() < 200) {
            const QByteArray read = sound.read(piece);
            QCOMPARE(read.size(), piece);
            heard += read;
        }
        QCOMPARE(heard, QByteArray("abcde").repeated(100).first(heard.size()));
    }

    void itNeverEnds()
    {
        LoopingSound sound("a");
        QCOMPARE(sound.read(1000).size(), 1000);
        QVERIFY(!sound.atEnd());
        QVERIFY(sound.bytesAvailable() > 0);
    }

    void itIsOnlyRead()
    {
        LoopingSound sound("a");
        QVERIFY(sound.isReadable());
        QVERIFY(!sound.isWritable());
    }
};

QTEST_GUILESS_MAIN(LoopingSound_test)
#include "LoopingSound_test.moc"
