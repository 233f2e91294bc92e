// SPDX-License-Identifier: GPL-3.0-or-later
// Whether the texts and signs of the game's windows stand out from what is behind them, measured in
// their pixels, in light and dark palettes.
#include "game/frmTanglewit.h"

#include "game/CountdownRing.h"
#include "game/GameForm.h"
#include "game/LifeHearts.h"
#include "game/LooseTiles.h"
#include "game/TileRack.h"
#include "support/Contrast.h"
#include "support/FormTest.h"
#include "support/MotionStyle.h"

using namespace Contrast;
using namespace Module1;
using namespace Qt::StringLiterals;

namespace {

QRect placeOf(const QWidget &control)
{
    return {control.mapTo(control.window(), QPoint()), control.size()};
}

void verify(QWidget &window, const QRect &place, double least, const QString &what)
{
    const Seen seen(window.grab(place).toImage());
    QVERIFY2(seen.contrastOfInk() >= least, qPrintable(what + u": "_s + seen.text()));
}

void verifyTexts(QWidget &window, std::initializer_list<const char *> names)
{
    for (int i = 0; i < 5; ++i)
        QCoreApplication::processEvents();
    for (const char *name : names) {
        const auto &control = Controls::find<QWidget>(window, name);
        QVERIFY2(control.isVisible(), name);
        // Without the frame of a button or box, and without what a scroll area hides.
        const QRect place = control.visibleRegion().boundingRect();
        const bool isFramed = qobject_cast<const QAbstractButton *>(&control) ||
                              qobject_cast<const QLineEdit *>(&control);
        const int frame = isFramed ? 6 : 0;
        verify(window,
               place.adjusted(frame, frame, -frame, -frame).translated(placeOf(control).topLeft()),
               ReadableText, QLatin1String(name));
    }
}

} // namespace

class frmTanglewit_Contrast_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QApplication::setStyle(new MotionStyle(0)); }

    void init()
    {
        QFETCH_GLOBAL(QPalette, palette);
        QApplication::setPalette(palette);
        QCoreApplication::processEvents();
        m_form = std::make_unique<GameForm>();
        gTop10[0] = {QDate(2026, 1, 1), u"Ann"_s, 50};
        gTop10[1] = {QDate(2026, 1, 1), u"Bob"_s, 1};
        m_form->open();
    }

    void cleanup()
    {
        QVERIFY(m_form->answers.allSeen());
        m_form.reset();
    }

    void initTestCase_data()
    {
        QTest::addColumn<QPalette>("palette");
        QTest::newRow("of the style") << QApplication::style()->standardPalette();
        QTest::newRow("light") << lightPalette();
        QTest::newRow("dark") << darkPalette();
        QTest::newRow("lighter dark") << QPalette(QColor(0x3A, 0x3A, 0x3A));
        QTest::newRow("high contrast") << highContrastPalette();
    }

    void theWindowCanBeRead()
    {
        verifyTexts(m_form->window(),
                    {"scoreCaption", "lblScore", "lblBest", "levelCaption", "lblLevel",
                     "lblLevelHits", "livesCaption", "lblNumLifes", "cmdHide", "answerCaption",
                     "cmdStart", "lblRules", "clueCaption", "lblClue", "sentenceCaption",
                     "cmdRestart", "cmdViewTop10", "cmdQuit"});
        m_form->click("cmdStart");
        Controls::type(m_form->answerBox(), u"IIIIII"_s);
        verifyTexts(m_form->window(), {"lblWordsLeft", "txtUserAnswer", "cmdEnter", "lblWorth",
                                       "lblClue", "lblSentence"});
        m_form->click("cmdHide");
        verifyTexts(m_form->window(), {"cmdShow"});
    }

    void whatBecameOfAnAnswerCanBeRead()
    {
        m_form->click("cmdStart");
        m_form->answerRight();
        verifyTexts(m_form->window(), {"lblFeedback", "lstHits"});
        m_form->answerWrong();
        verifyTexts(m_form->window(), {"lblFeedback", "lstMisses"});
        m_form->timeOut();
        verifyTexts(m_form->window(), {"lblFeedback", "lstMisses"});
        for (const char *name : {"frmHits", "frmMisses"}) {
            const QRect frame = placeOf(m_form->control<QWidget>(name));
            verify(m_form->window(), {frame.left() + 12, frame.top() + 4, 60, 22}, ReadableText,
                   QLatin1String(name));
        }
    }

    void theWrongAnswerDialogCanBeRead()
    {
        gVocabList().Edit(QString(30, u'm'), u"a definition"_s, {});
        m_form->click("cmdStart");
        while (GameForm::word().size() < 30)
            m_form->answerRight();
        m_form->expectMiss([](QDialog &dialog) {
            auto &box = Controls::find<QLineEdit>(dialog, "txtUserAnswer");
            Controls::type(box, u"IIIIII"_s);
            QTest::keyClick(&dialog, Qt::Key_Return);
            verifyTexts(dialog, {"lblAnswerIs", "lblDefinition", "answerCaption", "txtUserAnswer",
                                 "lblTypingHint", "cmdDown", "cmdOK"});
            // The words before the right answer have a line of their own here.
            const QRect answer = placeOf(Controls::find<QWidget>(dialog, "lblAnswerIs"));
            verify(dialog, {answer.left(), answer.top(), answer.width(), 14}, ReadableText,
                   u"The correct answer is"_s);
            Controls::click(Controls::find<QPushButton>(dialog, "cmdDown"));
            verifyTexts(dialog, {"cmdUp", "cmdOK"});
        });
        m_form->answer(u"wrong"_s);
    }

    void theTop10CanBeRead()
    {
        m_form->click("cmdStart");
        m_form->answerRight();
        m_form->answers.useForm("dlgGameOver", [](QDialog &dialog) {
            verifyTexts(dialog, {"lblTitle", "lblHint", "lblTop10_1", "lblTop10_2", "txtName",
                                 "lblTop10_3", "cmdEnter"});
            Controls::click(Controls::find<QPushButton>(dialog, "cmdEnter"));
            // Dates and points, of which the dates are quieter.
            for (const char *name : {"lblTop10_1", "lblTop10_2", "lblTop10_3"}) {
                const QRect row = placeOf(Controls::find<QWidget>(dialog, name));
                for (const int left : {0, 60})
                    verify(dialog, {row.left() + left, row.top(), 60, row.height()}, ReadableText,
                           QLatin1String(name));
            }
            // Ranks, with medals and without.
            for (const char *name : {"lblTop10_1", "lblTop10_3", "lblTop10_4", "lblTop10_10"}) {
                const QRect row = placeOf(*Controls::find<QWidget>(dialog, name).parentWidget());
                verify(dialog, {row.left() + 16, row.center().y() - 8, 18, 14}, ReadableText,
                       QLatin1String(name));
            }
            verifyTexts(dialog, {"cmdReset", "cmdClose"});
            Controls::click(Controls::find<QPushButton>(dialog, "cmdClose"));
        });
        m_form->click("cmdQuit");
    }

    void tilesCanBeRead()
    {
        m_form->click("cmdStart");
        m_form->passTime(8);
        const QString number = m_form->tiles().value(0).section(u' ', 0, 0);
        auto &tile = m_form->button("cmdLetters_" + number.toLatin1());
        verify(m_form->window(), placeOf(tile).adjusted(8, 8, -8, -12), ReadableText,
               u"turned-up tile"_s);
        Controls::type(m_form->answerBox(), GameForm::word().left(2));
        auto &scrambled = m_form->control<LooseTiles>("lblScrambledWord");
        const LooseTiles::Tiles shown = scrambled.tiles();
        for (const LooseTiles::Tile &each : shown.tiles) {
            const double reach = shown.side / 3;
            const QRectF letter(each.middle.x() - reach, each.middle.y() - reach, 2 * reach,
                                2 * reach);
            verify(m_form->window(), letter.toRect().translated(placeOf(scrambled).topLeft()),
                   ReadableText, each.isTaken ? u"taken tile"_s : u"loose tile"_s);
        }
    }

    void freePlacesOfTheRackStandOut()
    {
        m_form->click("cmdStart");
        const QRect slot = placeOf(m_form->button("cmdLetters_15"));
        verify(m_form->window(), slot.adjusted(-1, 10, 1, -10), ReadableMark, u"slot"_s);
    }

    void theCountdownCanBeReadAtEachLevel()
    {
        QFETCH_GLOBAL(QPalette, palette);
        CountdownRing ring;
        ring.setPalette(palette);
        const int middle = ring.width() / 2;
        for (int level = 1; level <= 10; ++level) {
            ring.setLevel(level);
            for (const int left : {20, 5, 1}) {
                ring.setSeconds(left, 30);
                const QString what = u"level %1, %2 seconds"_s.arg(level).arg(left);
                verify(ring, {middle - 22, middle - 16, 44, 32}, ReadableText, what);
                // What is left of the ring, and what is gone.
                const QImage image = ring.grab().toImage();
                const QColor share = image.pixelColor(middle + 3, 4);
                const QColor track = image.pixelColor(middle - 8, 4);
                QVERIFY2(contrast(share, track) >= ReadableMark, qPrintable(what));
                QVERIFY2(contrast(share, palette.color(QPalette::Window)) >= ReadableMark,
                         qPrintable(what));
            }
        }
    }

    void heartsStandOut()
    {
        QFETCH_GLOBAL(QPalette, palette);
        LifeHearts hearts;
        hearts.setPalette(palette);
        hearts.setLives(4);
        verify(hearts, {0, 0, 28, 24}, ReadableMark, u"life"_s);
        verify(hearts, {4 * 28, 0, 28, 24}, ReadableMark, u"lost life"_s);
    }

private:
    std::unique_ptr<GameForm> m_form;
};

int main(int argc, char *argv[])
{
    return runFormTest<frmTanglewit_Contrast_test>(argc, argv);
}

#include "frmTanglewit_Contrast_test.moc"
