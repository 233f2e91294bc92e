// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/sound/LoopedSamples.h"

#include "platform/WaveBytes.h"

#include <QTest>

namespace {

WaveFile wave16(const QList<int> &values, int channels = 1)
{
    QByteArray samples;
    for (const int value : values)
        samples += littleEndian(qint16(value));
    return {22050, channels, 16, samples};
}

QList<int> read16(LoopedSamples &samples, int count)
{
    const QByteArray bytes = samples.read(count * 2);
    QList<int> values;
    for (qsizetype at = 0; at < bytes.size(); at += 2)
        values += qFromLittleEndian<qint16>(bytes.constData() + at);
    return values;
}

} // namespace

class LoopedSamples_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theSoundGoesOnFromItsEndToItsBeginning()
    {
        LoopedSamples samples(wave16({1, 2, 3}));
        QCOMPARE(read16(samples, 2), QList<int>({1, 2}));
        QCOMPARE(read16(samples, 8), QList<int>({3, 1, 2, 3, 1, 2, 3, 1}));
        QVERIFY(samples.isSequential());
    }

    void aSampleIsReadWhole()
    {
        LoopedSamples samples(wave16({0x0102, 0x0304}));
        QCOMPARE(samples.read(3), QByteArray("\x02\x01"));
        QCOMPARE(read16(samples, 1), QList<int>({0x0304}));
    }

    void theGainHoldsForWhatIsReadFromThenOn()
    {
        LoopedSamples samples(wave16({1000, -32768, 32767}));
        QCOMPARE(read16(samples, 3), QList<int>({1000, -32768, 32767}));
        samples.setGain(0.25);
        QCOMPARE(read16(samples, 3), QList<int>({250, -8192, 8192}));
        samples.setGain(0);
        QCOMPARE(read16(samples, 3), QList<int>({0, 0, 0}));
        samples.setGain(1);
        QCOMPARE(read16(samples, 3), QList<int>({1000, -32768, 32767}));
    }

    // Samples of 8 bits have no sign; 128 is silence.
    void samplesOf8BitsAreScaledToo()
    {
        LoopedSamples samples({22050, 1, 8, QByteArray("\x00\x80\xff", 3)});
        samples.setGain(0.5);
        QCOMPARE(samples.read(3), QByteArray("\x40\x80\xc0", 3));
        samples.setGain(0);
        QCOMPARE(samples.read(3), QByteArray("\x80\x80\x80", 3));
    }

    void steppingBackRepeatsWholeFrames_data()
    {
        QTest::addColumn<int>("bytes");
        QTest::addColumn<int>("next");
        QTest::newRow("nothing") << 0 << 3;
        QTest::newRow("one frame") << 4 << 1;
        QTest::newRow("part of a second frame") << 7 << 1;
        QTest::newRow("over the beginning") << 8 << 5;
        QTest::newRow("more than the sound") << 1000 << 3;
        QTest::newRow("forward") << -4 << 3;
    }

    void steppingBackRepeatsWholeFrames()
    {
        QFETCH(int, bytes);
        QFETCH(int, next);
        LoopedSamples samples(wave16({1, 2, 3, 4, 5, 6}, 2));
        QCOMPARE(read16(samples, 2), QList<int>({1, 2}));
        samples.stepBack(bytes);
        QCOMPARE(read16(samples, 1), QList<int>({next}));
    }
};

QTEST_GUILESS_MAIN(LoopedSamples_test)
#include "LoopedSamples_test.moc"
