// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Paths.h"

#include "assets/Loudness.h"
#include "platform/sound/WaveFile.h"

#include <QDir>
#include <QTest>
#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

QString pathOfTrack(const QString &set, int level)
{
    return u"%1/%2/Track%3.wav"_s.arg(pathOf(Place::Audio), set).arg(level, 2, 10, QChar(u'0'));
}

// One channel of a track, from -1 to 1.
std::vector<double> samplesOf(const WaveFile &wave, int channel)
{
    std::vector<double> samples;
    for (qsizetype at = channel * 2; at < wave.samples.size(); at += wave.channels * 2)
        samples.push_back(qFromLittleEndian<qint16>(wave.samples.constData() + at) / 32768.0);
    return samples;
}

// In dB below full scale.
double rootMeanSquare(const std::vector<double> &samples, std::size_t from, std::size_t to)
{
    double squares = 0;
    for (std::size_t i = from; i < to; ++i)
        squares += samples[i] * samples[i];
    return 10 * std::log10(squares / double(to - from) + 1e-12);
}

// 99 % of the steps from one sample to the next are smaller than this.
double usualStep(const std::vector<double> &samples)
{
    std::vector<double> steps;
    for (std::size_t i = 1; i < samples.size(); ++i)
        steps.push_back(std::abs(samples[i] - samples[i - 1]));
    const auto most = steps.begin() + std::ptrdiff_t(steps.size() * 99 / 100);
    std::nth_element(steps.begin(), most, steps.end());
    return *most;
}

} // namespace

class Tracks_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aTrackIsAWaveFileOfFifteenToFortySeconds_data() { everyTrack(); }
    void aTrackIsAWaveFileOfFifteenToFortySeconds()
    {
        const std::optional<WaveFile> wave = track();
        QVERIFY(wave);
        QCOMPARE(wave->bitsPerSample, 16);
        QCOMPARE(wave->sampleRate, 22050);
        const double seconds =
            double(wave->samples.size()) / (wave->channels * 2) / wave->sampleRate;
        QVERIFY2(seconds >= 15 && seconds <= 40, qPrintable(QString::number(seconds)));
    }

    void aTrackEndsWhereItBegins_data() { everyTrack(); }
    void aTrackEndsWhereItBegins()
    {
        const std::optional<WaveFile> wave = track();
        QVERIFY(wave);
        for (int channel = 0; channel < wave->channels; ++channel) {
            const std::vector<double> samples = samplesOf(*wave, channel);
            const double join = std::abs(samples.front() - samples.back());
            QVERIFY2(join <= usualStep(samples), qPrintable(QString::number(join)));
        }
    }

    void aTrackIsNeitherSilentNorCutAtThePeaks_data() { everyTrack(); }
    void aTrackIsNeitherSilentNorCutAtThePeaks()
    {
        const std::optional<WaveFile> wave = track();
        QVERIFY(wave);
        const auto second = std::size_t(wave->sampleRate);
        for (int channel = 0; channel < wave->channels; ++channel) {
            const std::vector<double> samples = samplesOf(*wave, channel);
            const auto [lowest, highest] = std::minmax_element(samples.begin(), samples.end());
            QVERIFY(*lowest > -0.99 && *highest < 0.99);
            for (std::size_t from = 0; from + second <= samples.size(); from += second) {
                const double level = rootMeanSquare(samples, from, from + second);
                QVERIFY2(level > -36, qPrintable(u"%1 dB"_s.arg(level)));
            }
        }
    }

    // The level and the tolerance are those of the standard.
    void aSineOf997HertzOnOneChannelHasMinusThreeLufs_data()
    {
        QTest::addColumn<double>("sampleRate");
        for (const double sampleRate : {22050.0, 48000.0})
            QTest::addRow("%.0f Hz", sampleRate) << sampleRate;
    }

    void aSineOf997HertzOnOneChannelHasMinusThreeLufs()
    {
        QFETCH(double, sampleRate);
        std::vector<double> sine;
        for (int i = 0; i < 20 * sampleRate; ++i)
            sine.push_back(std::sin(2 * std::numbers::pi * 997 * i / sampleRate));
        const double level = Loudness::lufs({sine}, sampleRate);
        QVERIFY2(std::abs(level + 3.01) < 0.1, qPrintable(QString::number(level)));
    }

    void allTracksAreEquallyLoud()
    {
        std::vector<double> levels;
        for (const QString &set : Sets) {
            for (int level = 1; level <= 10; ++level) {
                const std::optional<WaveFile> wave = readWaveFile(pathOfTrack(set, level));
                QVERIFY(wave);
                std::vector<std::vector<double>> channels;
                for (int channel = 0; channel < wave->channels; ++channel)
                    channels.push_back(samplesOf(*wave, channel));
                levels.push_back(Loudness::lufs(channels, wave->sampleRate));
            }
        }
        const auto [quietest, loudest] = std::minmax_element(levels.begin(), levels.end());
        QVERIFY2(*loudest - *quietest <= 0.5,
                 qPrintable(u"%1 to %2 LUFS"_s.arg(*quietest).arg(*loudest)));
    }

    void noTwoTracksAreTheSame()
    {
        QList<QByteArray> seen;
        for (const QString &set : Sets)
            for (int level = 1; level <= 10; ++level) {
                const std::optional<WaveFile> wave = readWaveFile(pathOfTrack(set, level));
                QVERIFY(wave);
                QVERIFY(!seen.contains(wave->samples));
                seen += wave->samples;
            }
        QCOMPARE(seen.size(), 20);
    }

private:
    static void everyTrack()
    {
        QTest::addColumn<QString>("set");
        QTest::addColumn<int>("level");
        for (const QString &set : Sets)
            for (int level = 1; level <= 10; ++level)
                QTest::addRow("%s %d", qPrintable(set), level) << set << level;
    }

    [[nodiscard]] static std::optional<WaveFile> track()
    {
        QFETCH(const QString, set);
        QFETCH(const int, level);
        return readWaveFile(pathOfTrack(set, level));
    }

    static inline const QStringList Sets{u"fastbeat"_s, u"softbeat"_s};
};

QTEST_GUILESS_MAIN(Tracks_test)
#include "Tracks_test.moc"
