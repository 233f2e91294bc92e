// SPDX-License-Identifier: GPL-3.0-or-later
// Countdown, scrambled word, rack and answer box have one middle, so that the eye only goes up and
// down. CTest runs this test on screens of several sizes.
#include "game/frmTanglewit.h"

#include "game/CountdownRing.h"
#include "game/GameForm.h"
#include "game/LetterTiles.h"
#include "game/LooseTiles.h"
#include "game/TileRack.h"
#include "support/FormTest.h"

using namespace Module1;
using namespace Qt::StringLiterals;

namespace {

double middleOf(const QWidget &control)
{
    return control.mapTo(control.window(), QPoint()).x() + control.width() / 2.0;
}

void settle()
{
    for (int i = 0; i < 5; ++i)
        QCoreApplication::processEvents();
}

} // namespace

class frmTanglewit_Axis_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        if (m_form)
            QVERIFY(m_form->answers.allSeen());
        m_form.reset();
    }

    void oneAxisInEveryState_data()
    {
        QTest::addColumn<int>("letters");
        for (const int letters : {3, 4, 5, 12, 13, 16, 17, 25, 29, 30})
            QTest::addRow("%d letters", letters) << letters;
    }

    void oneAxisInEveryState()
    {
        QFETCH(int, letters);
        QStringList words;
        for (int i = 0; i < 3; ++i)
            words += GameForm::longWord(letters);
        m_form = std::make_unique<GameForm>(words);
        m_form->open();
        const QRect window = m_form->window().geometry();
        verifyAxis("ready");
        m_form->click("cmdStart");
        verifyAxis("playing");
        m_form->passTime(20); // some letters are turned up
        QVERIFY(letters < 4 || !m_form->tiles().isEmpty());
        verifyAxis("letters turned up");
        Controls::type(m_form->answerBox(), QString(60, u'W'));
        verifyAxis("typing");
        m_form->click("cmdHide");
        verifyAxis("word hidden");
        m_form->click("cmdShow");
        m_form->answerRight(2);
        verifyAxis("after hits");
        m_form->expectMiss([this](QDialog &) { verifyAxis("miss"); });
        m_form->answer(QString(60, u'W'));
        verifyAxis("after a miss");
        m_form->timeOut();
        verifyAxis("after a time-out");
        m_form->loseAllLives(u"Ann"_s);
        verifyAxis("over");
        m_form->click("cmdRestart");
        verifyAxis("ready again");
        QCOMPARE(m_form->window().geometry(), window);
    }

    void longNumbersDoNotMoveIt()
    {
        m_form = std::make_unique<GameForm>();
        for (std::size_t i = 0; i < gTop10.size(); ++i)
            gTop10[i] = {QDate(2026, 1, 1), u"Ann"_s, 32000 - int(i)};
        m_form->start();
        verifyAxis("long best line");
        gScore = 22345;
        m_form->answerRight();
        verifyAxis("long score");
    }

    void longWordsInTheListsDoNotMoveIt()
    {
        m_form = std::make_unique<GameForm>(QStringList{GameForm::longWord(30)});
        m_form->start();
        m_form->answerRight(3);
        for (int i = 0; i < 3; ++i)
            m_form->answerWrong(QString(200, u'x'));
        verifyAxis("long lines");
    }

    void showStandsWhereHideStood()
    {
        m_form = std::make_unique<GameForm>();
        m_form->start();
        const auto place = [this](const char *name) {
            settle();
            const QPushButton &button = m_form->button(name);
            return QRect(button.mapTo(&m_form->window(), QPoint()), button.size());
        };
        const QRect hide = place("cmdHide");
        m_form->click("cmdHide");
        QCOMPARE(place("cmdShow"), hide);
        m_form->click("cmdShow");
        QCOMPARE(place("cmdHide"), hide);
    }

    void enterStandsWhereStartStood()
    {
        m_form = std::make_unique<GameForm>();
        m_form->open();
        settle();
        const QPoint start = m_form->button("cmdStart").geometry().topLeft();
        m_form->click("cmdStart");
        settle();
        QCOMPARE(m_form->button("cmdEnter").geometry().topLeft(), start);
    }

private:
    void verifyAxis(const char *state)
    {
        settle();
        std::vector<double> middles;
        for (const char *name :
             {"lblCountDown", "wordArea", "tileRack", "txtUserAnswer", "lblFeedback", "clueArea"})
            middles.push_back(middleOf(m_form->control<QWidget>(name)));
        auto &word = m_form->control<LooseTiles>("lblScrambledWord");
        const LooseTiles::Tiles loose = word.tiles();
        if (!loose.tiles.empty() && word.isVisible()) {
            const auto [left, right] = std::minmax_element(
                loose.tiles.begin(), loose.tiles.end(), [](const auto &one, const auto &other) {
                    return one.middle.x() < other.middle.x();
                });
            middles.push_back(word.mapTo(&m_form->window(), QPoint()).x() +
                              (left->middle.x() + right->middle.x()) / 2);
        }
        if (m_form->answerBox().isEnabled()) {
            // The places of the word's letters, turned up or not.
            const int letters = std::min(int(GameForm::word().size()), 30);
            const int first = tileOffset(letters).toInt() + 1;
            const auto tile = [this](int number) -> QWidget & {
                return m_form->button("cmdLetters_" + QByteArray::number(number));
            };
            middles.push_back((middleOf(tile(first)) + middleOf(tile(first + letters - 1))) / 2);
        }
        const double axis = middles.front();
        for (const double middle : middles)
            QVERIFY2(
                std::abs(middle - axis) <= 1,
                qPrintable(u"%1: %2 and %3"_s.arg(QLatin1String(state)).arg(axis).arg(middle)));
    }

    std::unique_ptr<GameForm> m_form;
};

int main(int argc, char *argv[])
{
    return runFormTest<frmTanglewit_Axis_test>(argc, argv);
}

#include "frmTanglewit_Axis_test.moc"
