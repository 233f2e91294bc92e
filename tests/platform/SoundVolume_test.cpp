// SPDX-License-Identifier: GPL-3.0-or-later
// What is heard of the volume and of muting on a real sound server.
#include "platform/sndPlaySoundA.h"

#include "platform/Listening.h"
#include "platform/SoundServer.h"
#include "platform/WaveBytes.h"
#include "support/TestFiles.h"

#include <QRandomGenerator>
#include <QTest>

namespace {

constexpr unsigned Play = SoundFlags::Asynchronous | SoundFlags::Loop;
constexpr std::size_t Second = SoundServer::SampleRate;
constexpr std::size_t AtOnce = Second / 2;
constexpr double WellHeard = 0.9; // likeness of a sound and its recording

// Two seconds of noise, without what is too high to come through a recording. No piece of it is
// like another.
QByteArray noise()
{
    QRandomGenerator random(1);
    QByteArray samples;
    double level = 0;
    for (std::size_t i = 0; i < 2 * Second; ++i) {
        level = 0.8 * level + random.bounded(4000.0) - 2000.0;
        samples += littleEndian(qint16(level));
    }
    return samples;
}

double loudness(PieceOfSound sound)
{
    double sum = 0;
    for (const double sample : sound)
        sum += sample * sample;
    return std::sqrt(sum / double(sound.size()));
}

} // namespace

class SoundVolume_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (!SoundServer::isInstalled())
            QSKIP("pulseaudio or parec is not installed.");
        const QByteArray wave = waveBytes(int(Second), 1, 16, noise());
        m_path = m_folder.write(QStringLiteral("noise.wav"), wave);
        m_sound = mixed(*waveFileFromBytes(wave));
        QVERIFY(m_server.start());
    }

    void atFirstNothingIsMuted()
    {
        QCOMPARE(soundVolume(), 100);
        QVERIFY(!isSoundMuted());
    }

    // It is muted before the first sound starts the thread that plays.
    void whatIsMutedFromTheBeginningIsNotHeard()
    {
        setSoundMuted(true);
        sndPlaySoundA(m_path, Play);
        listenFromNowOn();
        QVERIFY(listenFor(3 * Second));
        QCOMPARE(longestSilence(heard()), heard().size());
        setSoundMuted(false);
        QVERIFY(listenUntil([this] { return !isSilent(Second / 10); }));
    }

    void mutingIsHeardAtOnceAndTheSoundGoesOn()
    {
        sndPlaySoundA(m_path, Play);
        QVERIFY(listenUntil([this] { return !isSilent(Second / 10); }));
        listenFromNowOn();
        QVERIFY(listenFor(2 * Second));
        const std::size_t before = positionInSound(heard().last(Second / 2));
        const std::size_t then = m_server.heard().size();

        setSoundMuted(true);
        QVERIFY(isSoundMuted());
        QVERIFY(listenUntil([this] { return isSilent(Second / 10); }));
        const std::size_t silentAfter = m_server.heard().size() - then - Second / 10;
        qInfo("silent after %.0f ms", double(silentAfter) * 1000 / Second);
        QVERIFY(silentAfter < AtOnce);
        listenFromNowOn();
        QVERIFY(listenFor(Second));
        QCOMPARE(longestSilence(heard()), heard().size());

        const std::size_t muted = m_server.heard().size();
        setSoundMuted(false);
        QVERIFY(listenUntil([this] { return !isSilent(Second / 100); }));
        const std::size_t backAfter = m_server.heard().size() - muted;
        qInfo("back after %.0f ms", double(backAfter) * 1000 / Second);
        QVERIFY(backAfter < AtOnce);
        listenFromNowOn();
        QVERIFY(listenFor(Second));
        const std::size_t after = positionInSound(heard().last(Second / 2));
        const std::size_t passed = (m_server.heard().size() - then) % m_sound.size();
        const std::size_t moved = (after + m_sound.size() - before) % m_sound.size();
        QVERIFY(std::max(passed, moved) - std::min(passed, moved) < AtOnce);
    }

    void theVolumeIsHeardWithoutARestart()
    {
        sndPlaySoundA(m_path, Play);
        QVERIFY(listenUntil([this] { return !isSilent(Second / 10); }));
        listenFromNowOn();
        QVERIFY(listenFor(3 * Second));
        const double full = loudness(heard().last(Second));
        setSoundVolume(50);
        listenFromNowOn();
        QVERIFY(listenFor(3 * Second));
        const double half = loudness(heard().last(Second));
        QVERIFY(std::abs(half / full - 0.25) < 0.05);
        QVERIFY(longestSilence(heard()) < Second / 100);
        // Also for the next sound.
        sndPlaySoundA(m_path, Play);
        listenFromNowOn();
        QVERIFY(listenFor(4 * Second));
        QVERIFY(std::abs(loudness(heard().last(Second)) / full - 0.25) < 0.05);
        setSoundVolume(100);
    }

    void theVolumeHasLimits()
    {
        setSoundVolume(150);
        QCOMPARE(soundVolume(), 100);
        setSoundVolume(-1);
        QCOMPARE(soundVolume(), 0);
        setSoundVolume(100);
    }

    void afterTheStopMutingStartsNothing()
    {
        sndPlaySoundA(QStringLiteral("NULL"), 0);
        QVERIFY(listenUntil([this] { return isSilent(Second / 5); }));
        setSoundMuted(true);
        setSoundMuted(false);
        listenFromNowOn();
        QVERIFY(listenFor(Second / 2));
        QCOMPARE(longestSilence(heard()), heard().size());
    }

private:
    // Of the piece's first sample.
    [[nodiscard]] std::size_t positionInSound(PieceOfSound piece) const
    {
        Sound twice = m_sound;
        twice.insert(twice.end(), m_sound.begin(), m_sound.end());
        const Match match = bestMatch(piece, twice);
        if (match.likeness < WellHeard)
            qWarning("likeness %f", match.likeness);
        return match.position % m_sound.size();
    }

    void listenFromNowOn() { m_from = m_server.heard().size(); }
    [[nodiscard]] PieceOfSound heard() const
    {
        return PieceOfSound(m_server.heard()).subspan(m_from);
    }
    template <class Condition> [[nodiscard]] bool listenUntil(Condition condition)
    {
        const auto listen = [this, &condition] {
            m_server.listen();
            return condition();
        };
        return QTest::qWaitFor(listen, 60'000);
    }
    [[nodiscard]] bool listenFor(std::size_t samples)
    {
        return listenUntil([this, samples] { return heard().size() >= samples; });
    }
    [[nodiscard]] bool isSilent(std::size_t samples) const
    {
        const std::size_t size = std::min(samples, m_server.heard().size());
        return longestSilence(PieceOfSound(m_server.heard()).last(size)) == size;
    }

    SoundServer m_server;
    std::size_t m_from = 0;
    TestFolder m_folder;
    QString m_path;
    Sound m_sound;
};

QTEST_GUILESS_MAIN(SoundVolume_test)
#include "SoundVolume_test.moc"
