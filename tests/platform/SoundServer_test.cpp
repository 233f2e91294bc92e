// SPDX-License-Identifier: GPL-3.0-or-later
// Plays sounds on a real sound server and records its output.
#include "platform/Paths.h"
#include "platform/sndPlaySoundA.h"

#include "platform/Listening.h"
#include "platform/SoundServer.h"
#include "platform/WaveBytes.h"
#include "support/TestFiles.h"

#include <QProcess>
#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr unsigned Play = SoundFlags::Asynchronous | SoundFlags::Loop;
constexpr std::size_t Second = SoundServer::SampleRate;
constexpr std::size_t TenMilliseconds = Second / 100;
constexpr std::size_t FadedIn = Second / 10; // after this time the fade-in has ended
constexpr double WellHeard = 0.9;            // likeness of a sound and its recording

QString pathOfTrack(const QString &name)
{
    return u"%1/%2.wav"_s.arg(pathOf(Place::Audio), name);
}

Sound soundOf(const QString &path)
{
    const std::optional<WaveFile> wave = readWaveFile(path);
    return wave ? mixed(*wave) : Sound();
}

// The end of a sound followed by its beginning, as in a loop.
Sound join(const Sound &sound, std::size_t each)
{
    Sound joined(sound.end() - std::ptrdiff_t(each), sound.end());
    joined.insert(joined.end(), sound.begin(), sound.begin() + std::ptrdiff_t(each));
    return joined;
}

// Half a second of noise, without the high frequencies that a recording loses.
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
    void initTestCase()
    {
        if (!SoundServer::isInstalled())
            QSKIP("pulseaudio or parec is not installed.");
        QVERIFY(m_server.start());
    }

    void beforeTheFirstRequestNothingIsHeard()
    {
        sndPlaySoundA(u"NULL"_s, 0);
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
        const Match start = playAndListen(pathOfTrack(name), beginningOf(name), Second / 2);
        QVERIFY2(start.likeness > WellHeard, notHeard(start.likeness));
        const Sound heardUpToNow(heard().begin(), heard().end());
        for (const QString &other : allTracks()) {
            const double found = bestMatch(beginningOf(other), heardUpToNow).likeness;
            QVERIFY2(other == name || found < start.likeness - 0.2,
                     qPrintable(u"%1 is heard: %2"_s.arg(other).arg(found)));
        }
    }

    void aTrackGoesOnAtItsBeginningWithoutAGap()
    {
        const QString path = pathOfTrack(u"fastbeat/Track03"_s);
        const Sound track = soundOf(path);
        QVERIFY(track.size() > 15 * Second);
        const Match start = playAndListen(path, track, Second);
        QVERIFY2(start.likeness > WellHeard, notHeard(start.likeness));

        checkJoin(track, start.position);
        if (QTest::currentTestFailed())
            return;
        const PieceOfSound round = heard().subspan(start.position + FadedIn, track.size());
        QVERIFY(longestSilence(round) < TenMilliseconds);
    }

    void theEndOfEachTrackLeadsToItsBeginning_data()
    {
        eachRequestIsHeardInThePlaceOfTheOneBefore_data();
    }
    // Only the beginning and the end of the track are played: where the end is followed by the
    // beginning, they are heard as in the whole track, which would take most of a minute.
    void theEndOfEachTrackLeadsToItsBeginning()
    {
        QFETCH(const QString, name);
        const std::optional<WaveFile> track = readWaveFile(pathOfTrack(name));
        QVERIFY(track);
        QCOMPARE(track->sampleRate, int(Second));
        const qsizetype second = qsizetype(Second) * track->channels * track->bitsPerSample / 8;
        QVERIFY(track->samples.size() > 2 * second);
        // A name for each track: Qt keeps the samples of a file that is playing.
        const QString path = m_folder.filePath(QString(name).replace(u'/', u'-'));
        writeFile(path, waveBytes(track->sampleRate, track->channels, track->bitsPerSample,
                                  track->samples.first(second) + track->samples.last(second)));
        const Sound ends = soundOf(path);
        QCOMPARE(ends.size(), 2 * Second);
        const Match start = playAndListen(path, ends, Second - FadedIn);
        QVERIFY2(start.likeness > WellHeard, notHeard(start.likeness));

        checkJoin(ends, start.position);
    }

    void aShortSoundIsLoopedWithoutAGapOverAndOver()
    {
        const QString path = m_folder.filePath(u"noise.wav"_s);
        writeFile(path, waveBytes(int(Second), 1, 16, noise()));
        const Sound sound = soundOf(path);
        QCOMPARE(sound.size(), Second / 2);
        const Match start = playAndListen(path, sound, sound.size() - FadedIn);
        QVERIFY2(start.likeness > WellHeard, notHeard(start.likeness));

        constexpr std::size_t Rounds = 3;
        QVERIFY(listenFor(start.position + Rounds * sound.size()));
        for (std::size_t round = 1; round < Rounds; ++round) {
            const double found = likeness(
                sound, heard().subspan(start.position + round * sound.size(), sound.size()));
            QVERIFY2(found > WellHeard, qPrintable(QString::number(found)));
        }
        const PieceOfSound rounds =
            heard().subspan(start.position + sound.size() / 2, (Rounds - 1) * sound.size());
        QVERIFY(longestSilence(rounds) < TenMilliseconds);
    }

    void afterTheStopNothingIsHeard()
    {
        sndPlaySoundA(u"NULL"_s, 0);
        QVERIFY(listenUntil([this] { return hasBeenSilentFor(Second / 5); }));
        listenFromNowOn();
        QVERIFY(listenFor(Second / 2));
        QCOMPARE(longestSilence(heard()), heard().size());
    }

    void aFileThatCannotBePlayedStopsWhatIsPlaying_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        const QByteArray whole = waveBytes(int(Second), 1, 16, noise());
        QTest::newRow("missing") << QByteArray();
        QTest::newRow("no wave file") << "This is no sound at all, whatever its length."_ba;
        QTest::newRow("cut off") << whole.first(whole.size() / 2);
        QTest::newRow("compressed") << riff(formatChunk(int(Second), 1, 16, 2) + whole.mid(36));
    }
    void aFileThatCannotBePlayedStopsWhatIsPlaying()
    {
        QFETCH(const QByteArray, bytes);
        const QString path = m_folder.filePath(u"damaged.wav"_s);
        if (!bytes.isEmpty())
            writeFile(path, bytes);
        playUntilHeard(pathOfTrack(u"fastbeat/Track10"_s));
        sndPlaySoundA(path, Play);
        QVERIFY(listenUntil([this] { return hasBeenSilentFor(Second / 5); }));
    }

    // Messages of the server may arrive while the connection is closed.
    void aProgramThatEndsWhileItPlaysDoesNotCrash()
    {
        for (int run = 0; run < 10; ++run) {
            QVERIFY(listenUntil([this] { return hasBeenSilentFor(Second / 5); }));
            QProcess program;
            program.start(QStringLiteral(PLAYING_CHILD), {pathOfTrack(u"fastbeat/Track10"_s)});
            QVERIFY(listenUntil([this] { return !hasBeenSilentFor(Second / 5); }));
            program.write("\n");
            const auto hasEnded = [&program] { return program.state() == QProcess::NotRunning; };
            QVERIFY(listenUntil(hasEnded));
            QCOMPARE(program.exitStatus(), QProcess::NormalExit);
            QCOMPARE(program.exitCode(), 0);
        }
    }

    void aServerThatEndsDuringASoundIsNoError()
    {
        playUntilHeard(pathOfTrack(u"fastbeat/Track10"_s));
        m_server.stop();
        sndPlaySoundA(pathOfTrack(u"fastbeat/Track09"_s), Play);
        sndPlaySoundA(u"NULL"_s, 0);
    }

private:
    // Listens until the sound that was heard from this position on has begun again, and compares
    // half a second before and after that.
    void checkJoin(const Sound &sound, std::size_t position)
    {
        constexpr std::size_t Each = Second / 2;
        QVERIFY(listenFastFor(position + sound.size() + Each));
        const PieceOfSound aroundTheJoin =
            heard().subspan(position + sound.size() - Each, 2 * Each);
        const double found = likeness(join(sound, Each), aroundTheJoin);
        QVERIFY2(found > WellHeard, qPrintable(QString::number(found)));
        QVERIFY(longestSilence(aroundTheJoin) < TenMilliseconds);
    }

    static QStringList allTracks()
    {
        QStringList names;
        for (int level = 1; level <= 10; ++level)
            for (const char *set : {"fastbeat", "softbeat"})
                names +=
                    u"%1/Track%2"_s.arg(QLatin1String(set)).arg(level, 2, 10, QLatin1Char('0'));
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

    void listenFromNowOn() { m_from = m_server.heard().size(); }
    [[nodiscard]] PieceOfSound heard() const
    {
        return PieceOfSound(m_server.heard()).subspan(m_from);
    }
    template <class Condition> [[nodiscard]] bool listenUntil(Condition condition, int times = 1)
    {
        const auto listen = [this, &condition, times] {
            for (int i = 0; i < times; ++i)
                m_server.listen();
            return condition();
        };
        return QTest::qWaitFor(listen, 120'000);
    }
    [[nodiscard]] bool listenFor(std::size_t samples)
    {
        return listenUntil([this, samples] { return heard().size() >= samples; });
    }
    // Four times as fast as a person hears it. The program keeps a second of sound in store: a
    // machine that is busy still has a quarter of a second for the next one.
    [[nodiscard]] bool listenFastFor(std::size_t samples)
    {
        return listenUntil([this, samples] { return heard().size() >= samples; }, 4);
    }
    void playUntilHeard(const QString &path)
    {
        sndPlaySoundA(path, Play);
        QVERIFY(listenUntil([this] { return !hasBeenSilentFor(Second / 5); }));
    }
    // Plays the file until this number of samples of its sound has been heard. The result's
    // position is that of the first sample of the sound.
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
    [[nodiscard]] QByteArray notHeard(double likeness) const
    {
        return u"likeness %1, %2 s heard, %3 s of silence"_s.arg(likeness)
            .arg(double(heard().size()) / Second)
            .arg(double(longestSilence(heard())) / Second)
            .toUtf8();
    }
    [[nodiscard]] bool hasBeenSilentFor(std::size_t samples) const
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
