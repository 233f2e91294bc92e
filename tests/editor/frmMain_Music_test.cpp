// SPDX-License-Identifier: GPL-3.0-or-later
// The music that the main window's menu chooses. Requests for sound are recorded.
#include "game/Music.h"

#include "core/Module1.h"
#include "editor/MainWindow.h"
#include "game/SoundRequests.h"
#include "platform/Paths.h"
#include "support/FormTest.h"

#include <QDialog>
#include <QPushButton>

#include <memory>

using namespace Module1;
using namespace Qt::StringLiterals;

namespace {

constexpr const char *MenuItems[] = {"mnuUpbeat", "mnuSoothing", "mnuMusicOff"};

QString track(const QString &set, int level)
{
    return u"%1/%2/Track%3.wav"_s.arg(pathOf(Place::Audio), set).arg(level, 2, 10, QChar(u'0'));
}

QString playing(const QString &set, int level)
{
    return track(set, level) + u" 9"_s;
}

QStringList trackNames(const Array<QString> &tracks)
{
    QStringList names;
    for (int level = 1; level <= tracks.size(); ++level)
        names << tracks(level);
    return names;
}

QStringList allTracks(const QString &set)
{
    QStringList names;
    for (int level = 1; level <= 10; ++level)
        names << track(set, level);
    return names;
}

const QString Stop = u"NULL 0"_s;

} // namespace

class frmMain_Music_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_window = std::make_unique<MainWindow>();
        m_isPlaying = false;
        m_music = std::make_unique<Music>(MusicMenu{m_window->action("mnuUpbeat"),
                                                    m_window->action("mnuSoothing"),
                                                    m_window->action("mnuMusicOff")},
                                          [this](bool isPlaying) { m_isPlaying = isPlaying; });
        m_requests = std::make_unique<SoundRequests>();
    }

    void cleanup()
    {
        QVERIFY(m_window->answers.allSeen());
        m_music.reset();
        m_window.reset();
        m_requests.reset();
    }

    void musicIsOffAtFirst()
    {
        QCOMPARE(checkedItems(), QStringList{u"mnuMusicOff"_s});
        QVERIFY(gMusicOff);
        QVERIFY(gUpbeatMusic);
        QCOMPARE(gFastBeatTracks.size(), 0);
        QCOMPARE(gSoftBeatTracks.size(), 0);
    }

    void theCaptionsHaveNoMnemonic()
    {
        QCOMPARE(m_window->action("mnuUpbeat").text(), u"Upbeat"_s);
        QCOMPARE(m_window->action("mnuSoothing").text(), u"Soothing"_s);
        QCOMPARE(m_window->action("mnuMusicOff").text(), u"Music Off"_s);
    }

    void aChoiceChecksItsItemAloneAndPlaysNothing_data()
    {
        QTest::addColumn<QByteArray>("item");
        QTest::addColumn<bool>("upbeat");
        QTest::addColumn<bool>("off");
        QTest::newRow("Upbeat") << "mnuUpbeat"_ba << true << false;
        QTest::newRow("Soothing") << "mnuSoothing"_ba << false << false;
        QTest::newRow("Music Off") << "mnuMusicOff"_ba << false << true;
    }

    void aChoiceChecksItsItemAloneAndPlaysNothing()
    {
        QFETCH(QByteArray, item);
        QFETCH(bool, upbeat);
        QFETCH(bool, off);
        for (const char *before : MenuItems) {
            m_window->choose(before);
            // The second time the item is already checked.
            for (int times = 1; times <= 2; ++times) {
                m_window->choose(item.constData());
                QCOMPARE(checkedItems(), QStringList{QString::fromLatin1(item)});
                QCOMPARE(gUpbeatMusic, upbeat);
                QCOMPARE(gMusicOff, off);
            }
        }
        QCOMPARE(m_requests->take(), QStringList());
    }

    void theTracksAreNamedInTheOrderOfTheLevels_data()
    {
        QTest::addColumn<QByteArray>("item");
        QTest::newRow("Upbeat") << "mnuUpbeat"_ba;
        QTest::newRow("Soothing") << "mnuSoothing"_ba;
    }

    void theTracksAreNamedInTheOrderOfTheLevels()
    {
        QFETCH(QByteArray, item);
        m_window->choose(item.constData());
        m_music->fillTracks();
        QCOMPARE(trackNames(gFastBeatTracks), allTracks(u"fastbeat"_s));
        QCOMPARE(trackNames(gSoftBeatTracks), allTracks(u"softbeat"_s));
        QCOMPARE(m_requests->take(), QStringList());
    }

    void withoutMusicTheTrackListsStayAsTheyWere()
    {
        m_music->fillTracks();
        QCOMPARE(gFastBeatTracks.size(), 0);
        QCOMPARE(gSoftBeatTracks.size(), 0);
        gFastBeatTracks = Array<QString>({u"a.wav"_s});
        gSoftBeatTracks = Array<QString>({u"b.wav"_s, u"c.wav"_s});
        m_music->fillTracks();
        QCOMPARE(trackNames(gFastBeatTracks), QStringList{u"a.wav"_s});
        QCOMPARE(trackNames(gSoftBeatTracks), (QStringList{u"b.wav"_s, u"c.wav"_s}));
    }

    void aDisabledMenuLeavesTheTrackListsAsTheyWere_data()
    {
        QTest::addColumn<QByteArray>("disabled");
        for (const char *item : MenuItems)
            QTest::newRow(item) << QByteArray(item);
    }

    void aDisabledMenuLeavesTheTrackListsAsTheyWere()
    {
        QFETCH(QByteArray, disabled);
        m_window->choose("mnuUpbeat");
        m_window->action(disabled.constData()).setEnabled(false);
        m_music->fillTracks();
        QCOMPARE(gFastBeatTracks.size(), 0);
        QCOMPARE(gSoftBeatTracks.size(), 0);
        m_window->action(disabled.constData()).setEnabled(true);
        m_music->fillTracks();
        QCOMPARE(gFastBeatTracks.size(), 10);
        QCOMPARE(gSoftBeatTracks.size(), 10);
    }

    void aGameBeginsWithTheFirstTrackOfTheChosenSet()
    {
        chooseAndFill("mnuUpbeat");
        m_music->startGame();
        QCOMPARE(m_requests->take(), QStringList{playing(u"fastbeat"_s, 1)});
        QVERIFY(!gMusicOff);
        m_window->choose("mnuSoothing");
        m_music->startGame();
        QCOMPARE(m_requests->take(), QStringList{playing(u"softbeat"_s, 1)});
        QVERIFY(!gMusicOff);
    }

    void aGameWithMusicOffPlaysNothing()
    {
        m_music->startGame();
        m_music->changeLevel(2);
        m_music->stop();
        QVERIFY(gMusicOff);
        chooseAndFill("mnuUpbeat");
        m_window->choose("mnuMusicOff");
        m_music->startGame();
        m_music->changeLevel(2);
        m_music->stop();
        QVERIFY(gMusicOff);
        QCOMPARE(m_requests->take(), QStringList());
    }

    void eachLevelHasItsTrack_data()
    {
        QTest::addColumn<QByteArray>("item");
        QTest::addColumn<QString>("set");
        QTest::newRow("Upbeat") << "mnuUpbeat"_ba << u"fastbeat"_s;
        QTest::newRow("Soothing") << "mnuSoothing"_ba << u"softbeat"_s;
    }

    void eachLevelHasItsTrack()
    {
        QFETCH(QByteArray, item);
        QFETCH(QString, set);
        chooseAndFill(item.constData());
        m_music->startGame();
        QCOMPARE(m_requests->take(), QStringList{playing(set, 1)});
        for (int level = 2; level <= 10; ++level) {
            m_music->changeLevel(level);
            QCOMPARE(m_requests->take(), (QStringList{Stop, playing(set, level)}));
        }
    }

    void anotherSetIsHeardFromTheNextLevelOn()
    {
        chooseAndFill("mnuUpbeat");
        m_music->startGame();
        m_music->changeLevel(2);
        m_requests->take();
        m_window->choose("mnuSoothing");
        QCOMPARE(m_requests->take(), QStringList());
        m_music->changeLevel(3);
        QCOMPARE(m_requests->take(), (QStringList{Stop, playing(u"softbeat"_s, 3)}));
    }

    void musicOffInAGameLeavesTheTrackUntilTheEnd()
    {
        chooseAndFill("mnuUpbeat");
        m_music->startGame();
        m_requests->take();
        m_window->choose("mnuMusicOff");
        m_music->changeLevel(2);
        m_music->changeLevel(3);
        QCOMPARE(m_requests->take(), QStringList());
        m_music->stop();
        QCOMPARE(m_requests->take(), QStringList{Stop});
        QVERIFY(gMusicOff);
        m_music->stop();
        QCOMPARE(m_requests->take(), QStringList());
    }

    void theMusicStaysOffUntilTheNextGame()
    {
        chooseAndFill("mnuSoothing");
        m_music->startGame();
        m_requests->take();
        m_music->stop();
        QCOMPARE(m_requests->take(), QStringList{Stop});
        QVERIFY(gMusicOff);
        m_music->changeLevel(2);
        m_music->stop();
        QCOMPARE(m_requests->take(), QStringList());
        QCOMPARE(checkedItems(), QStringList{u"mnuSoothing"_s});
        m_music->startGame();
        QCOMPARE(m_requests->take(), QStringList{playing(u"softbeat"_s, 1)});
        QVERIFY(!gMusicOff);
    }

    void theStopIsRequestedAlsoWithoutATrack()
    {
        m_window->choose("mnuUpbeat");
        m_music->stop();
        QCOMPARE(m_requests->take(), QStringList{Stop});
        QVERIFY(gMusicOff);
    }

    void stoppingTheTrackLeavesTheChoiceAlone()
    {
        m_window->choose("mnuUpbeat");
        m_music->stopTrack();
        QCOMPARE(m_requests->take(), QStringList());
        QVERIFY(!gMusicOff);
        chooseAndFill("mnuUpbeat");
        m_music->startGame();
        m_requests->take();
        QVERIFY(m_isPlaying);
        m_music->stopTrack();
        QVERIFY(!m_isPlaying);
        m_music->stopTrack();
        QCOMPARE(m_requests->take(), QStringList{Stop});
        QVERIFY(!gMusicOff);
    }

    void theSpeakerIsShownWhileATrackPlays_data()
    {
        QTest::addColumn<QString>("item");
        QTest::addColumn<bool>("isShown");
        QTest::newRow("upbeat") << u"mnuUpbeat"_s << true;
        QTest::newRow("off") << u"mnuMusicOff"_s << false;
    }

    void theSpeakerIsShownWhileATrackPlays()
    {
        QFETCH(QString, item);
        QFETCH(bool, isShown);
        openGame(item.toUtf8());
        auto &speaker = Controls::find<QWidget>(game(), "btnSpeaker");
        QVERIFY(!speaker.isVisible());
        const QRect place = Controls::find<QWidget>(game(), "cmdRestart").geometry();
        clickInGame("cmdStart");
        QCOMPARE(speaker.isVisible(), isShown);
        QCOMPARE(Controls::find<QWidget>(game(), "cmdRestart").geometry(), place);
        QTest::keyClick(&game(), Qt::Key_M, Qt::ControlModifier);
        QTRY_COMPARE(isSoundMuted(), isShown);
        setSoundMuted(false);
        QCOMPARE(gMusicOff, !isShown);
        m_window->answers.useForm("dlgGameOver", [](QDialog &dialog) {
            Controls::click(Controls::find<QPushButton>(dialog, "cmdClose"));
        });
        clickInGame("cmdViewTop10"); // its Close stops the music
        QVERIFY(!speaker.isVisible());
    }

    void anEmptyTrackListPlaysNothing()
    {
        m_window->choose("mnuUpbeat");
        m_music->startGame();
        QCOMPARE(m_requests->take(), QStringList());
        m_music->changeLevel(2);
        m_window->choose("mnuSoothing");
        m_music->changeLevel(3);
        QCOMPARE(m_requests->take().filter(u" 9"_s), QStringList());
    }

    // The tests below use the real windows.

    void theTracksAreNamedWhenTheGameOpens()
    {
        openGame("mnuMusicOff");
        QCOMPARE(gFastBeatTracks.size(), 0);
        closeGame();
        openGame("mnuSoothing");
        QCOMPARE(trackNames(gFastBeatTracks), allTracks(u"fastbeat"_s));
        QCOMPARE(trackNames(gSoftBeatTracks), allTracks(u"softbeat"_s));
        QCOMPARE(m_requests->take(), QStringList());
        closeGame();
    }

    void startPlaysAndLookingAtTheTop10Ends()
    {
        openGame("mnuUpbeat");
        clickInGame("cmdStart");
        QCOMPARE(m_requests->take(), QStringList{playing(u"fastbeat"_s, 1)});
        m_window->answers.useForm("dlgGameOver", [](QDialog &dialog) {
            Controls::click(Controls::find<QPushButton>(dialog, "cmdClose"));
        });
        clickInGame("cmdViewTop10");
        QCOMPARE(m_requests->take(), QStringList{Stop});
        QVERIFY(gMusicOff);
        clickInGame("cmdRestart");
        QCOMPARE(m_requests->take(), QStringList());
        clickInGame("cmdStart");
        QCOMPARE(m_requests->take(), QStringList{playing(u"fastbeat"_s, 1)});
        closeGame();
    }

    void theMusicPlaysOnUntilTheGoodByeIsClosed()
    {
        openGame("mnuSoothing");
        clickInGame("cmdStart");
        QCOMPARE(m_requests->take(), QStringList{playing(u"softbeat"_s, 1)});
        m_window->answers.useForm("dlgGameOver", [this](QDialog &dialog) {
            QCOMPARE(m_requests->take(), QStringList());
            dialog.close();
        });
        clickInGame("cmdQuit");
        QCOMPARE(m_requests->take(), QStringList{Stop});
        QVERIFY(gMusicOff);
    }

    void theCloseBoxOfTheGameEndsTheMusic_data()
    {
        QTest::addColumn<bool>("turnedOffBefore");
        QTest::newRow("music on") << false;
        QTest::newRow("Music Off chosen during the game") << true;
    }

    void theCloseBoxOfTheGameEndsTheMusic()
    {
        QFETCH(bool, turnedOffBefore);
        openGame("mnuUpbeat");
        clickInGame("cmdStart");
        m_requests->take();
        if (turnedOffBefore)
            m_window->choose("mnuMusicOff");
        closeGame();
        QCOMPARE(m_requests->take(), QStringList{Stop});
        QCOMPARE(gMusicOff, turnedOffBefore);
    }

private:
    [[nodiscard]] QStringList checkedItems()
    {
        QStringList checked;
        for (const char *item : MenuItems)
            if (m_window->action(item).isChecked())
                checked << QString::fromLatin1(item);
        return checked;
    }

    void chooseAndFill(const char *item)
    {
        m_window->choose(item);
        m_music->fillTracks();
    }

    [[nodiscard]] static QWidget &game()
    {
        for (QWidget *window : QApplication::topLevelWidgets())
            if (window->objectName() == u"frmTanglewit"_s)
                return *window;
        failTest(u"there is no game window"_s);
        return Controls::missing<QWidget>();
    }

    void openGame(const char *item)
    {
        m_window->fill(3);
        m_window->choose(item);
        m_window->click("cmdPlayScramble");
        QVERIFY(QTest::qWaitForWindowActive(&game()));
    }

    static void clickInGame(const char *button)
    {
        Controls::click(Controls::find<QPushButton>(game(), button));
    }

    void closeGame()
    {
        game().close();
        QVERIFY(m_window->window().isVisible());
    }

    std::unique_ptr<MainWindow> m_window;
    std::unique_ptr<Music> m_music;
    bool m_isPlaying = false;
    std::unique_ptr<SoundRequests> m_requests;
};

int main(int argc, char *argv[])
{
    return runFormTest<frmMain_Music_test>(argc, argv);
}

#include "frmMain_Music_test.moc"
