// SPDX-License-Identifier: GPL-3.0-or-later
// What is heard of sound requests on a real sound server.
#include "platform/Paths.h"
#include "platform/sndPlaySoundA.h"

#include "platform/Listening.h"
#include "platform/SoundServer.h"
#include "platform/WaveBytes.h"

#include <QFile>
#include <QRandomGenerator>
#include <QTest>

namespace {

constexpr unsigned Play = SoundFlags::Asynchronous | SoundFlags::Loop;
constexpr std::size_t Second = SoundServer::SampleRate;
constexpr std::size_t TenMilliseconds = Second / 100;
constexpr std::size_t FadedIn = Second / 10; // by then a new sound is there in full
constexpr double WellHeard = 0.9;            // likeness of a sound and its recording

QString pathOfTrack(const QString &name)
{
    return QStringLiteral("%1/%2.wav").arg(pathOf(Place::Audio), name);
}

Sound soundOf(const QString &path)
{
    const std::optional<WaveFile> wave = readWaveFile(path);
    return wave ? mixed(*wave) : Sound();
}

// The end of a sound and its beginning, as they follow when it is looped.
Sound join(const Sound &sound, std::size_t each)
{
    Sound joined(sound.end() - std::ptrdiff_t(each), sound.end());
    joined.insert(joined.end(), sound.begin(), sound.begin() + std::ptrdiff_t(each));
    return joined;
}

// Half a second of noise, without what is too high to come through a recording.
QByteArray noise()
{
    QRandomGenerator random(1);
    QByteArray samples;
    double level = 0;
    for (std::size_t i = 0; i < Second / 2; ++i) {
        level = 0.8 * level + random.bounded(4000.0) - 2000.0;
        samples += littleEndian(qint16(level));
    }
    return samples;
}

} // namespace

class SoundServer_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(m_server.start()); }

    void beforeTheFirstRequestNothingIsHeard()
    {
        sndPlaySoundA(QStringLiteral("NULL"), 0);
        QVERIFY(listenFor(Second / 5));
        QCOMPARE(longestSilence(m_server.heard()), m_server.heard().size());
    }

    void eachRequestIsHeardInThePlaceOfTheOneBefore_data()
    {
        QTest::addColumn<QString>("name");
        for (const QString &name : allTracks())
            QTest::newRow(qPrintable(name)) << name;
    }
    void eachRequestIsHeardInThePlaceOfTheOneBefore()
    {
        QFETCH(const QString, name);
        const QString wrong = wrongThreeTimes([&] {
            const Match start = playAndListen(pathOfTrack(name), beginningOf(name), Second / 2);
            if (start.likeness <= WellHeard)
                return notHeard(start.likeness);
            const Sound heardUpToNow(heard().begin(), heard().end());
            for (const QString &other : allTracks()) {
                const double likeness = bestMatch(beginningOf(other), heardUpToNow).likeness;
                if (other != name && likeness >= start.likeness - 0.2)
                    return QStringLiteral("%1 is heard: %2").arg(other).arg(likeness);
            }
            return QString();
        });
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
    }

    void aTrackGoesOnAtItsBeginningWithoutAGap()
    {
        const QString path = pathOfTrack(QStringLiteral("fastbeat/Track03"));
        const Sound track = soundOf(path);
        QVERIFY(track.size() > 15 * Second);
        const QString wrong = wrongThreeTimes([&] {
            const Match start = playAndListen(path, track, Second);
            if (start.likeness <= WellHeard)
                return notHeard(start.likeness);

            constexpr std::size_t Each = Second / 2;
            if (!listenFor(start.position + track.size() + Each))
                return QStringLiteral("the recording ends");
            const PieceOfSound aroundTheJoin =
                heard().subspan(start.position + track.size() - Each, 2 * Each);
            const double found = likeness(join(track, Each), aroundTheJoin);
            if (found <= WellHeard)
                return QStringLiteral("the join is not heard: %1").arg(found);
            return gapIn(heard().subspan(start.position + FadedIn, track.size()));
        });
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
    }

    void aShortSoundIsLoopedWithoutAGapOverAndOver()
    {
        const QString path = m_folder.filePath(QStringLiteral("noise.wav"));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(waveBytes(int(Second), 1, 16, noise()));
        file.close();
        const Sound sound = soundOf(path);
        QCOMPARE(sound.size(), Second / 2);

        const QString wrong = wrongThreeTimes([&] {
            const Match start = playAndListen(path, sound, sound.size() - FadedIn);
            if (start.likeness <= WellHeard)
                return notHeard(start.likeness);

            constexpr std::size_t Rounds = 3;
            if (!listenFor(start.position + Rounds * sound.size()))
                return QStringLiteral("the recording ends");
            for (std::size_t round = 1; round < Rounds; ++round) {
                const double found = likeness(
                    sound, heard().subspan(start.position + round * sound.size(), sound.size()));
                if (found <= WellHeard)
                    return QStringLiteral("round %1 is not heard: %2").arg(round).arg(found);
            }
            return gapIn(
                heard().subspan(start.position + sound.size() / 2, (Rounds - 1) * sound.size()));
        });
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
    }

    void afterTheStopNothingIsHeard()
    {
        sndPlaySoundA(QStringLiteral("NULL"), 0);
        QTRY_VERIFY_WITH_TIMEOUT(hasBeenSilentFor(Second / 5), 10'000);
        listenFromNowOn();
        QVERIFY(listenFor(Second / 2));
        QCOMPARE(longestSilence(heard()), heard().size());
    }

    void aMissingFileStopsWhatIsPlaying()
    {
        sndPlaySoundA(pathOfTrack(QStringLiteral("fastbeat/Track10")), Play);
        QTRY_VERIFY_WITH_TIMEOUT(!hasBeenSilentFor(Second / 5), 10'000);
        sndPlaySoundA(pathOfTrack(QStringLiteral("fastbeat/Track11")), Play);
        QTRY_VERIFY_WITH_TIMEOUT(hasBeenSilentFor(Second / 5), 10'000);
    }

    void aServerThatEndsInTheMiddleIsNoFault()
    {
        sndPlaySoundA(pathOfTrack(QStringLiteral("fastbeat/Track10")), Play);
        QTRY_VERIFY_WITH_TIMEOUT(!hasBeenSilentFor(Second / 5), 10'000);
        m_server.stop();
        sndPlaySoundA(pathOfTrack(QStringLiteral("fastbeat/Track09")), Play);
        sndPlaySoundA(QStringLiteral("NULL"), 0);
    }

private:
    static QStringList allTracks()
    {
        QStringList names;
        for (int level = 1; level <= 10; ++level)
            for (const char *set : {"fastbeat", "softbeat"})
                names += QStringLiteral("%1/Track%2")
                             .arg(QLatin1String(set))
                             .arg(level, 2, 10, QLatin1Char('0'));
        return names;
    }

    Sound beginningOf(const QString &name)
    {
        if (!m_beginnings.contains(name)) {
            Sound sound = soundOf(pathOfTrack(name));
            sound.resize(Second * 3 / 4);
            m_beginnings.insert(name, sound);
        }
        return m_beginnings.value(name);
    }

    // What is wrong with what is heard, empty if nothing is. A machine that is busy may break a
    // sound off for a moment: what is wrong in one recording is listened for in another.
    template <class Listening> static QString wrongThreeTimes(Listening listening)
    {
        QString wrong = listening();
        for (int again = 0; again < 2 && !wrong.isEmpty(); ++again) {
            qInfo() << "heard once more, since" << wrong;
            wrong = listening();
        }
        return wrong;
    }

    void listenFromNowOn() { m_from = m_server.heard().size(); }
    [[nodiscard]] PieceOfSound heard() { return PieceOfSound(m_server.heard()).subspan(m_from); }
    // Until so many samples have been heard.
    [[nodiscard]] bool listenFor(std::size_t samples)
    {
        return QTest::qWaitFor([this, samples] { return heard().size() >= samples; }, 60'000);
    }
    // Plays the file until so much of the beginning of its sound has been heard, which may take a
    // while on a machine that is busy. The position is that of the sound's first sample.
    [[nodiscard]] Match playAndListen(const QString &path, PieceOfSound sound, std::size_t samples)
    {
        listenFromNowOn();
        sndPlaySoundA(path, Play);
        const PieceOfSound piece = sound.subspan(FadedIn, samples);
        Match match;
        for (std::size_t length = Second; length < 10 * Second; length += Second / 2) {
            if (!listenFor(length))
                break;
            match = bestMatch(piece, heard().first(length));
            if (match.likeness > WellHeard && match.position >= FadedIn)
                return {match.likeness, match.position - FadedIn};
        }
        return {std::min(match.likeness, WellHeard), 0};
    }
    [[nodiscard]] QString notHeard(double likeness)
    {
        return QStringLiteral("likeness %1, %2 s heard, %3 s of silence")
            .arg(likeness)
            .arg(double(heard().size()) / Second)
            .arg(double(longestSilence(heard())) / Second);
    }
    [[nodiscard]] static QString gapIn(PieceOfSound sound)
    {
        const std::size_t gap = longestSilence(sound);
        return gap < TenMilliseconds ? QString() : QStringLiteral("a gap of %1 samples").arg(gap);
    }
    [[nodiscard]] bool hasBeenSilentFor(std::size_t samples)
    {
        const PieceOfSound last = PieceOfSound(m_server.heard()).last(samples);
        return longestSilence(last) == samples;
    }

    SoundServer m_server;
    std::size_t m_from = 0;
    QTemporaryDir m_folder;
    QHash<QString, Sound> m_beginnings;
};

QTEST_GUILESS_MAIN(SoundServer_test)
#include "SoundServer_test.moc"
