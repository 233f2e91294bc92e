// SPDX-License-Identifier: GPL-3.0-or-later
// The layout of the game's windows. CTest runs this test on screens of several sizes.
#include "game/frmTanglewit.h"

#include "game/GameForm.h"
#include "support/FormTest.h"
#include "support/Layout.h"

#include <QScreen>

using namespace Module1;
using namespace Qt::StringLiterals;

namespace {

void checkNothingIsCut(QWidget &window)
{
    Layout::checkNothingIsCut(window);
    Layout::checkNames(window);
    const QByteArray size =
        u"%1 %2x%3"_s.arg(window.objectName()).arg(window.width()).arg(window.height()).toUtf8();
    QVERIFY2(window.screen()->geometry().contains(window.geometry()), size);
}

// There is room for at least one line of each text.
void checkTextsCanBeRead(GameForm &form)
{
    for (const char *name : {"clueArea", "sentenceArea"}) {
        const auto &area = form.control<QAbstractScrollArea>(name);
        const QFontMetrics type(
            form.control<QLabel>(name == QByteArray("clueArea") ? "lblClue" : "lblSentence")
                .font());
        QVERIFY2(area.viewport()->height() >= type.height(), name);
        QVERIFY2(area.viewport()->width() > form.window().width() / 3, name);
    }
}

} // namespace

class frmTanglewit_Layout_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_type = QApplication::font(); }

    void cleanup()
    {
        if (m_form)
            QVERIFY(m_form->answers.allSeen());
        m_form.reset();
        QApplication::setFont(m_type);
    }

    void theWindowFitsItsScreen()
    {
        m_form = std::make_unique<GameForm>();
        m_form->open();
        const QRect room = m_form->window().screen()->availableGeometry();
        const QSize size = m_form->window().size();
        if (room.width() <= 800 || room.height() <= 600) {
            QVERIFY(m_form->window().isMaximized());
            QCOMPARE(m_form->window().geometry(), room);
            return;
        }
        QVERIFY(!m_form->window().isMaximized());
        QVERIFY(room.contains(m_form->window().frameGeometry()));
        QVERIFY(size.width() > 800 && size.height() > 600);
        QVERIFY(size.width() <= 1200 && size.height() <= 900);
        QVERIFY(qAbs(double(size.width()) / size.height() - 4.0 / 3) < 0.02);
        const QPoint off = m_form->window().geometry().center() - room.center();
        QVERIFY(qAbs(off.x()) <= 1 && qAbs(off.y()) <= 1);
    }

    void theWindowHasTheSameSizeWhenItComesBack()
    {
        m_form = std::make_unique<GameForm>();
        m_form->open();
        const QRect place = m_form->window().geometry();
        m_form->window().close();
        m_form->open();
        QCOMPARE(m_form->window().geometry(), place);
    }

    void nothingIsCut_data()
    {
        QTest::addColumn<QString>("word");
        QTest::addColumn<QString>("definition");
        QTest::addColumn<QString>("sentence");
        QTest::addColumn<double>("scale");
        const QString endless(600, u'w');
        const QString clue = u"a fruit of a tree "_s.repeated(17).left(300);
        const QString sentence = u"He ate an apple at noon. "_s.repeated(24);
        // A large type needs a screen of at least 800x600.
        const bool isVeryLow = QGuiApplication::primaryScreen()->availableSize().height() < 600;
        for (const double scale : {1.0, 1.5}) {
            if (scale > 1 && isVeryLow)
                break;
            const QByteArray type = scale > 1 ? ", large type" : "";
            QTest::newRow("short" + type) << u"apple"_s << u"fruit"_s << u"An apple."_s << scale;
            QTest::newRow("no texts" + type) << u"apple"_s << QString() << QString() << scale;
            QTest::newRow("long clue" + type) << u"apple"_s << clue << QString() << scale;
            QTest::newRow("long sentence" + type) << u"apple"_s << QString() << sentence << scale;
            QTest::newRow("both" + type) << u"apple"_s << clue << sentence << scale;
            QTest::newRow("endless words" + type) << u"apple"_s << endless << endless << scale;
            QTest::newRow("wide word" + type)
                << QString(16, u'W') + u"abc"_s << clue << sentence << scale;
            QTest::newRow("30 letters" + type)
                << QString(29, u'W') + u"M"_s << clue << sentence << scale;
            QTest::newRow("endless" + type) << endless + u"ab"_s << endless << endless << scale;
        }
    }

    void nothingIsCut()
    {
        QFETCH(QString, word);
        QFETCH(QString, definition);
        QFETCH(QString, sentence);
        QFETCH(double, scale);
        QFont type = m_type;
        type.setPointSizeF(type.pointSizeF() * scale);
        QApplication::setFont(type);
        m_form = std::make_unique<GameForm>();
        gVocabList().ClearList();
        gVocabList().AddVocab(word, definition, sentence);
        m_form->open();
        const QRect place = m_form->window().geometry();
        checkNothingIsCut(m_form->window());

        m_form->click("cmdStart");
        checkNothingIsCut(m_form->window());
        checkTextsCanBeRead(*m_form);
        m_form->click("cmdHide");
        checkNothingIsCut(m_form->window());
        m_form->click("cmdShow");
        m_form->answerRight();
        m_form->expectMiss([](QDialog &dialog) {
            checkNothingIsCut(dialog);
            Controls::click(Controls::find<QPushButton>(dialog, "cmdDown"));
            checkNothingIsCut(dialog);
        });
        m_form->passTime(30);
        m_form->waitForWindow();
        m_form->expectMiss();
        m_form->answer(QString(300, u'x'));
        checkNothingIsCut(m_form->window());

        m_form->loseAllLives(QString(60, u'W'));
        checkNothingIsCut(m_form->window());
        m_form->expectTop10([](QDialog &dialog) { checkNothingIsCut(dialog); });
        m_form->click("cmdViewTop10");
        QCOMPARE(m_form->window().geometry(), place);
    }

    // Where the screen has no room below, the dialog moves up.
    void theWrongAnswerDialogLeavesTheAnswerRowInSight()
    {
        m_form = std::make_unique<GameForm>();
        m_form->start();
        m_form->expectMiss([this](QDialog &dialog) {
            const QRect room = m_form->window().screen()->availableGeometry();
            const auto &feedback = m_form->control<QLabel>("lblFeedback");
            const int top = feedback.mapToGlobal(feedback.rect().bottomLeft()).y();
            QVERIFY(room.contains(dialog.frameGeometry()));
            const int roomBelow = room.bottom() - top - dialog.height();
            if (roomBelow > 50)
                QVERIFY(dialog.frameGeometry().top() >= top);
            else
                QVERIFY(room.bottom() - dialog.frameGeometry().bottom() < 60);
            const QPoint off = dialog.geometry().center() - m_form->window().geometry().center();
            QVERIFY(qAbs(off.x()) <= 1);
        });
        m_form->answer(u"wrong"_s);
    }

    void everyOpenTileLiesOnTheRack_data()
    {
        QTest::addColumn<int>("letters");
        for (const int letters : {3, 4, 5, 15, 16, 29, 30, 40})
            QTest::addRow("%d", letters) << letters;
    }

    void everyOpenTileLiesOnTheRack()
    {
        QFETCH(int, letters);
        m_form = std::make_unique<GameForm>(QStringList{GameForm::longWord(letters)});
        m_form->start();
        m_form->expectMiss([this, letters](QDialog &) {
            QCOMPARE(m_form->tiles().size(), std::min(letters, 30));
            checkNothingIsCut(m_form->window());
        });
        m_form->passTime(30);
    }

    void theTop10WithANameBeingTypedIsWhole_data()
    {
        QTest::addColumn<double>("scale");
        QTest::newRow("usual type") << 1.0;
        if (QGuiApplication::primaryScreen()->availableSize().height() >= 600)
            QTest::newRow("large type") << 1.5;
    }

    void theTop10WithANameBeingTypedIsWhole()
    {
        QFETCH(double, scale);
        QFont type = m_type;
        type.setPointSizeF(type.pointSizeF() * scale);
        QApplication::setFont(type);
        m_form = std::make_unique<GameForm>();
        for (std::size_t i = 0; i < gTop10.size(); ++i)
            gTop10[i] = {QDate(2024, 12, 30), QString(60, u'W'), 30000};
        gTop10[9].Points = 1;
        m_form->start();
        m_form->answerRight();
        m_form->expectTop10Entry(QString(60, u'W'),
                                 [](QDialog &dialog) { checkNothingIsCut(dialog); });
        m_form->click("cmdQuit");
        QCOMPARE(gTop10[9].Points, Integer(4));
    }

private:
    QFont m_type;
    std::unique_ptr<GameForm> m_form;
};

int main(int argc, char *argv[])
{
    return runFormTest<frmTanglewit_Layout_test>(argc, argv);
}

#include "frmTanglewit_Layout_test.moc"
