// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/sound/WaveFile.h"

#include "platform/WaveBytes.h"
#include "support/TestFiles.h"

#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;

class WaveFile_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFileGivesItsFormatAndItsSamples_data()
    {
        QTest::addColumn<int>("rate");
        QTest::addColumn<int>("channels");
        QTest::addColumn<int>("bits");
        QTest::newRow("8 bits, one channel") << 8000 << 1 << 8;
        QTest::newRow("16 bits, one channel") << 22050 << 1 << 16;
        QTest::newRow("16 bits, two channels") << 44100 << 2 << 16;
    }
    void aFileGivesItsFormatAndItsSamples()
    {
        QFETCH(const int, rate);
        QFETCH(const int, channels);
        QFETCH(const int, bits);
        const std::optional<WaveFile> wave = read(waveBytes(rate, channels, bits, "12345678"));
        QVERIFY(wave);
        QCOMPARE(wave->sampleRate, rate);
        QCOMPARE(wave->channels, channels);
        QCOMPARE(wave->bitsPerSample, bits);
        QCOMPARE(wave->samples, "12345678"_ba);
    }

    void otherChunksArePassedOverWithTheByteAfterAnOddOne()
    {
        const std::optional<WaveFile> wave =
            read(riff(chunk("LIST", "odd") + formatChunk(8000, 1, 8) + chunk("note", "even") +
                      chunk("data", "samples") + chunk("LIST", "more")));
        QVERIFY(wave);
        QCOMPARE(wave->samples, "samples"_ba);
    }

    void whatCannotBePlayedIsNothing_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        const QByteArray data = chunk("data", "12345678");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("text") << "This is no sound at all, however long it may be."_ba;
        QTest::newRow("another kind of RIFF file")
            << chunk("RIFF", "AVI " + formatChunk(8000, 1, 8) + data);
        QTest::newRow("no format") << riff(data);
        QTest::newRow("no samples") << riff(formatChunk(8000, 1, 8));
        QTest::newRow("an empty chunk of samples")
            << riff(formatChunk(8000, 1, 8) + chunk("data", ""));
        QTest::newRow("a frame cut off") << riff(formatChunk(8000, 1, 16) + chunk("data", "123"));
        QTest::newRow("forty samples a second")
            << riff(formatChunk(40, 1, 16) + chunk("data", "12"));
        QTest::newRow("less than a frame") << riff(formatChunk(8000, 2, 16) + chunk("data", "123"));
        QTest::newRow("compressed") << riff(formatChunk(8000, 1, 8, 2) + data);
        QTest::newRow("no channel") << riff(formatChunk(8000, 0, 8) + data);
        QTest::newRow("six channels") << riff(formatChunk(8000, 6, 16) + data);
        QTest::newRow("24 bits") << riff(formatChunk(8000, 1, 24) + data);
        QTest::newRow("no bits") << riff(formatChunk(8000, 1, 0) + data);
        QTest::newRow("no rate") << riff(formatChunk(0, 1, 8) + data);
        QTest::newRow("a rate beyond all") << riff(formatChunk(-1, 1, 8) + data);
        QTest::newRow("a chunk of 4 GB")
            << "RIFF" + QByteArray(4, '\xff') + "WAVEdata" + QByteArray(4, '\xff');
    }
    void whatCannotBePlayedIsNothing()
    {
        QFETCH(const QByteArray, bytes);
        QVERIFY(!read(bytes));
    }

    void aMissingFileIsNothing()
    {
        QVERIFY(!readWaveFile(m_folder.path(u"missing.wav"_s)));
        QVERIFY(!readWaveFile(m_folder.path()));
        QVERIFY(!readWaveFile(QString()));
    }

    void aFileCutOffAnywhereIsNothing()
    {
        const QByteArray whole =
            riff(chunk("LIST", "odd") + formatChunk(8000, 2, 16) + chunk("data", "12345678"));
        for (qsizetype size = 0; size < whole.size(); ++size)
            QVERIFY2(!read(whole.first(size)), qPrintable(QString::number(size)));
        QVERIFY(read(whole));
    }

    void damageGivesWholeFramesOrNothing()
    {
        const QByteArray whole = waveBytes(8000, 2, 16, QByteArray(64, 'x'));
        QRandomGenerator random(7);
        for (int round = 0; round < 2000; ++round) {
            QByteArray damaged = whole;
            for (int i = 0; i < 3; ++i)
                damaged[random.bounded(int(damaged.size()))] = char(random.bounded(256));
            const std::optional<WaveFile> wave = read(damaged);
            if (!wave)
                continue;
            const int frame = wave->channels * wave->bitsPerSample / 8;
            QVERIFY(frame > 0);
            QVERIFY(!wave->samples.isEmpty());
            QCOMPARE(wave->samples.size() % frame, 0);
        }
    }

private:
    [[nodiscard]] std::optional<WaveFile> read(const QByteArray &bytes) const
    {
        return readWaveFile(m_folder.write(u"sound.wav"_s, bytes));
    }

    TestFolder m_folder;
};

QTEST_GUILESS_MAIN(WaveFile_test)
#include "WaveFile_test.moc"
