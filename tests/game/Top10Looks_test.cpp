// SPDX-License-Identifier: GPL-3.0-or-later
// What the Top 10 dialog paints: columns, medals, the row of the new score, the celebration.
#include "game/Top10Row.h"
#include "game/dlgGameOver.h"

#include "core/FreshState.h"
#include "game/Music.h"
#include "game/Top10Rows.h"
#include "support/Contrast.h"
#include "support/Controls.h"
#include "support/DialogAnswers.h"
#include "support/FormTest.h"
#include "support/MotionStyle.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QStyleFactory>
#include <QVariantAnimation>

#include <memory>

using namespace Contrast;
using namespace Module1;
using namespace Qt::StringLiterals;

namespace {

Top10Entry entryOf(const QString &name, int points = 20)
{
    return {QDate(2020, 1, 1), name, points};
}

// A row of its own, with room for about thirty letters of the name.
struct ShownRow
{
    explicit ShownRow(int rank) : row(rank, nullptr)
    {
        row.resize(500, 36);
        row.setPalette(lightPalette());
    }

    void show(const Top10Entry &entry)
    {
        row.setEntry(entry, Top10Row::Name::Shown);
        row.setColumns({80, 50});
        row.show();
    }
    [[nodiscard]] QImage picture() { return row.grab().toImage(); }
    [[nodiscard]] QLabel &label(int rank)
    {
        return Controls::find<QLabel>(row, "lblTop10_" + QByteArray::number(rank));
    }

    Top10Row row;
};

// The greatest difference in lightness, from 0 to 255, between two pictures of one size.
int differenceInLightness(const QImage &one, const QImage &other, const QRect &part)
{
    int greatest = 0;
    for (int y = part.top(); y <= part.bottom(); ++y)
        for (int x = part.left(); x <= part.right(); ++x)
            greatest =
                std::max(greatest, std::abs(qGray(one.pixel(x, y)) - qGray(other.pixel(x, y))));
    return greatest;
}

} // namespace

class Top10Looks_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_state = std::make_unique<FreshState>();
        gTop10 = fullTable();
        gMusicOff = true;
    }

    void cleanup()
    {
        m_dialog.reset();
        QApplication::setStyle(QStyleFactory::create(u"Fusion"_s));
        m_state.reset();
    }

    void everyTextCanBeRead_data()
    {
        QTest::addColumn<QPalette>("palette");
        QTest::newRow("light") << lightPalette();
        QTest::newRow("dark") << darkPalette();
    }

    void everyTextCanBeRead()
    {
        QFETCH(QPalette, palette);
        const Top10Colours colours(palette);
        for (const QColor &background :
             {colours.background, colours.otherBackground, colours.newBackground}) {
            QVERIFY(contrast(colours.text, background) >= ReadableText);
            QVERIFY(contrast(colours.quiet, background) >= ReadableText);
        }
        for (const QColor &medal : colours.medals)
            QVERIFY(contrast(colours.onMedal, medal) >= ReadableText);
        QVERIFY(contrast(colours.newEdge, colours.background) >= ReadableMark);
        QVERIFY(contrast(colours.newEdge, colours.otherBackground) >= ReadableMark);
    }

    void aNameThatIsTooLongIsCutInThePaintingOnly()
    {
        ShownRow row(5);
        const QString longName = u"W"_s.repeated(200);
        row.show(entryOf(longName));
        const QImage cut = row.picture();
        QCOMPARE(row.label(5).text(), dateText(QDate(2020, 1, 1)) + u"   20 :   "_s + longName);
        QVERIFY(row.label(5).toolTip().contains(longName));
        row.show(entryOf(longName + u"WWW"_s));
        QCOMPARE(row.picture(), cut);
        // The ellipsis takes the place of a letter.
        row.show(entryOf(u"W"_s.repeated(20)));
        QVERIFY(row.picture() != cut);
        row.show(entryOf(u"W"_s.repeated(60'000)));
        QCOMPARE(row.picture(), cut);
    }

    void namesBeginInOneColumnWhateverThePoints()
    {
        ShownRow row(5);
        row.show({QDate(2020, 1, 1), u"Ann"_s, 9});
        const QImage few = row.picture();
        row.show({QDate(2020, 12, 31), u"Ann"_s, 1234});
        const QImage many = row.picture();
        const int middle = row.label(5).x() + 80 + 50 + 40;
        QVERIFY(few.copy(0, 0, middle, 36) != many.copy(0, 0, middle, 36));
        QCOMPARE(few.copy(middle, 0, 500 - middle, 36), many.copy(middle, 0, 500 - middle, 36));
    }

    void theFirstThreeHaveMedals()
    {
        const Top10Colours colours(lightPalette());
        for (int rank = 1; rank <= 4; ++rank) {
            ShownRow row(rank);
            row.show(entryOf(u"Ann"_s));
            const QImage picture = row.picture();
            int metal = 0;
            for (int y = 0; y < picture.height(); ++y)
                for (int x = 0; x < row.label(rank).x(); ++x)
                    for (const QColor &medal : colours.medals)
                        metal += picture.pixelColor(x, y) == medal;
            QCOMPARE(metal > 100, rank <= 3);
        }
    }

    void theNewRowStandsOutWithoutItsColour()
    {
        ShownRow row(5);
        row.show(entryOf(u"Ann"_s));
        const QImage usual = row.picture();
        row.row.setNew(1);
        const QImage marked = row.picture();
        // An edge round it, a star at its end, and bold type.
        QVERIFY(differenceInLightness(usual, marked, {2, 0, 480, 3}) > 80);
        QVERIFY(differenceInLightness(usual, marked, {470, 8, 24, 20}) > 60);
        const int name = row.label(5).x() + 80 + 50 + 40;
        QVERIFY(differenceInLightness(usual, marked, {name, 8, 60, 20}) > 80);
        row.row.setNew(0);
        QCOMPARE(row.picture(), usual);
    }

    void theCelebrationIsShort_data()
    {
        QTest::addColumn<int>("motion");
        QTest::addColumn<int>("duration");
        QTest::newRow("usual") << 200 << 400;
        QTest::newRow("quick") << 60 << 120;
        QTest::newRow("slow") << 3000 << 400;
    }

    void theCelebrationIsShort()
    {
        QFETCH(int, motion);
        QFETCH(int, duration);
        open(motion, 45);
        QCOMPARE(celebration().state(), QAbstractAnimation::Running);
        QCOMPARE(celebration().duration(), duration);
        // Everything else is there from the beginning.
        auto &name = Controls::find<QLineEdit>(*m_dialog, "txtName");
        QCOMPARE(m_dialog->focusWidget(), &name);
        QCOMPARE(Controls::find<QLabel>(*m_dialog, "lblTop10_7").text(),
                 dateText(QDate::currentDate()) + u"   45 : "_s);
        QCOMPARE(Controls::find<QLabel>(*m_dialog, "lblHint").text(), u"Place 7 with 45 points!"_s);
        QTest::keyClicks(&name, u"Ann"_s);
        QTest::keyClick(&name, Qt::Key_Return);
        QCOMPARE(gTop10[6].PlayerName, u"Ann"_s);
        QTRY_COMPARE(celebration().state(), QAbstractAnimation::Stopped);
        QCOMPARE(celebration().currentValue().toDouble(), 1.0);
    }

    void withoutAnimationsThePrizeIsThereAtOnce()
    {
        open(200, 45);
        QTRY_COMPARE(celebration().state(), QAbstractAnimation::Stopped);
        const QImage atTheEnd = banner();
        open(0, 45);
        QCOMPARE(celebration().state(), QAbstractAnimation::Stopped);
        QCOMPARE(banner(), atTheEnd);
    }

    void aScoreWithoutAPlaceHasAPlainEnd_data()
    {
        QTest::addColumn<int>("score");
        QTest::addColumn<QString>("note");
        QTest::newRow("no points") << 0 << QString();
        QTest::newRow("too few") << 9 << u"You made 9 points. Place 10 takes 11."_s;
    }

    void aScoreWithoutAPlaceHasAPlainEnd()
    {
        QFETCH(int, score);
        QFETCH(QString, note);
        open(200, score);
        QCOMPARE(celebration().state(), QAbstractAnimation::Stopped);
        const auto &hint = Controls::find<QLabel>(*m_dialog, "lblHint");
        QCOMPARE(hint.text(), note);
        QCOMPARE(hint.isVisible(), !note.isEmpty());
        const QImage picture = banner();
        for (int y = 0; y < picture.height(); ++y)
            QCOMPARE(picture.pixel(40, y), picture.pixel(40, 0)); // no cup
    }

    void aResetTakesTheMarkAway()
    {
        open(0, 45);
        auto &row = *Controls::find<QLabel>(*m_dialog, "lblTop10_7").parentWidget();
        Controls::click(Controls::find<QPushButton>(*m_dialog, "cmdEnter"));
        const QImage marked = row.grab().toImage();
        auto &other = *Controls::find<QLabel>(*m_dialog, "lblTop10_9").parentWidget();
        DialogAnswers answers;
        answers.expectMsgBox(u"Are you sure you want to reset the scores?"_s, QMessageBox::Yes);
        Controls::click(Controls::find<QPushButton>(*m_dialog, "cmdReset"));
        const QRect place(60, 0, 400, row.height());
        QVERIFY(row.grab(place).toImage() != marked.copy(place));
        QCOMPARE(row.grab(place).toImage(), other.grab(place).toImage());
    }

private:
    void open(int motion, int score)
    {
        QApplication::setStyle(new MotionStyle(motion));
        gTop10 = fullTable();
        gScore = score;
        m_dialog = std::make_unique<dlgGameOver>(m_music, nullptr);
        m_dialog->show();
        QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
    }

    [[nodiscard]] QVariantAnimation &celebration()
    {
        return *m_dialog->findChild<QVariantAnimation *>();
    }

    [[nodiscard]] QImage banner()
    {
        return Controls::find<QWidget>(*m_dialog, "banner").grab().toImage();
    }

    QAction m_upbeat;
    QAction m_soothing;
    QAction m_musicOff;
    Music m_music{MusicMenu{m_upbeat, m_soothing, m_musicOff}};
    std::unique_ptr<FreshState> m_state;
    std::unique_ptr<dlgGameOver> m_dialog;
};

int main(int argc, char *argv[])
{
    return runFormTest<Top10Looks_test>(argc, argv);
}

#include "Top10Looks_test.moc"
