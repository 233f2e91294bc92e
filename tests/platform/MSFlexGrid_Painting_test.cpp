// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/GridPage.h"

#include <QProxyStyle>
#include <QStyleOptionViewItem>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// Counts the characters of the texts that the style lays out and paints in cells.
class LayoutCount final : public QProxyStyle
{
public:
    [[nodiscard]] qsizetype characters() const { return m_characters; }

    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override
    {
        if (const auto *cell = qstyleoption_cast<const QStyleOptionViewItem *>(option))
            m_characters += cell->text.size();
        QProxyStyle::drawControl(element, option, painter, widget);
    }

private:
    mutable qsizetype m_characters = 0;
};

// The first and the last row of a cell's picture that has ink; the lines of the grid are left out.
std::pair<int, int> inkRows(const QImage &cell)
{
    int first = cell.height();
    int last = -1;
    for (int y = 0; y < cell.height() - 1; ++y) {
        for (int x = 2; x < cell.width() - 2; ++x) {
            if (cell.pixelColor(x, y).lightness() > 200)
                continue;
            first = std::min(first, y);
            last = y;
        }
    }
    return {first, last};
}

} // namespace

class MSFlexGrid_Painting_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aYellowCellHasBlackTextInEveryPalette()
    {
        for (const QColor &paper : {QColor(Qt::white), QColor(0x20, 0x20, 0x20)}) {
            GridPage page;
            QPalette palette = page.grid.palette();
            palette.setColor(QPalette::Base, paper);
            palette.setColor(QPalette::Text, paper.lightness() < 128 ? Qt::white : Qt::black);
            page.grid.setPalette(palette);
            page.grid.setText(1, 1, u"IIII"_s);
            page.grid.setCellBold(1, 1, true);
            page.grid.setCellBackColour(1, 1, MSFlexGrid::Yellow);
            QCOMPARE(page.grid.cellBackColour(1, 1), MSFlexGrid::Yellow);
            QVERIFY(page.grid.cellBold(1, 1));

            const QImage image = page.cellImage(1, 1);
            QCOMPARE(image.pixelColor(image.width() - 4, image.height() / 2), QColor(255, 255, 0));
            int darkest = 255;
            for (int x = 2; x < image.width() - 2; ++x)
                darkest = std::min(darkest, image.pixelColor(x, image.height() / 2).lightness());
            QVERIFY2(darkest < 40, qPrintable(QString::number(darkest)));
        }
    }

    void aWhiteCellHasThePalettesOwnBackground()
    {
        for (const QColor &paper : {QColor(Qt::white), QColor(0x20, 0x20, 0x20)}) {
            GridPage page;
            QPalette palette = page.grid.palette();
            palette.setColor(QPalette::Base, paper);
            page.grid.setPalette(palette);
            page.grid.setCellBackColour(1, 1, MSFlexGrid::Yellow);
            page.grid.setCellBackColour(1, 1, MSFlexGrid::White);
            const QImage image = page.cellImage(1, 1);
            QCOMPARE(image.pixelColor(image.width() / 2, image.height() / 2), paper);
        }
    }

    void aTextThatIsCutHasAToolTip_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("cut");
        QTest::newRow("none") << QString() << false;
        QTest::newRow("short") << u"cat"_s << false;
        QTest::newRow("long") << u"a small animal that sleeps in the sun"_s.repeated(3) << true;
        QTest::newRow("two lines") << u"cat\r\ndog"_s << true;
    }

    void aTextThatIsCutHasAToolTip()
    {
        QFETCH(QString, text);
        QFETCH(bool, cut);
        GridPage page;
        page.grid.setText(2, 1, text);
        QCOMPARE(page.toolTip(2, 1), cut ? QString(text).remove(u'\r') : QString());
        QVERIFY(page.toolTip(3, 1).isEmpty());
    }

    void theToolTipShowsMarkupAndLineBreaksAsTheyAre()
    {
        GridPage page;
        const QString text =
            u"<b>bold</b> & so on, in a text that is much wider than its cell\nend"_s;
        page.grid.setText(2, 2, text);
        QCOMPARE(page.toolTip(2, 2), text);
    }

    // Compares pixels: a text that is not cut looks the same in a wider column.
    void theToolTipIsThereWhereTheTextIsCutAndNowhereElse()
    {
        for (const bool bold : {false, true}) {
            GridPage page;
            page.grid.setText(2, 1, u"a small animal W"_s);
            page.grid.setCellBold(2, 1, bold);
            page.grid.setColumnWidth(1, 400);
            const QImage whole = page.cellImage(2, 1);
            int cut = 0;
            int fitting = 0;
            for (int width = 80; width < 200; ++width) {
                page.grid.setColumnWidth(1, width);
                const QRect text(2, 2, width - 4, whole.height() - 4);
                const bool isCut = page.cellImage(2, 1).copy(text) != whole.copy(text);
                (isCut ? cut : fitting) += 1;
                // Near the exact width rounding decides; a tool tip is allowed there.
                if (isCut || fitting > 2)
                    QVERIFY2(page.toolTip(2, 1).isEmpty() != isCut,
                             qPrintable(u"at width %1"_s.arg(width)));
            }
            QVERIFY(cut > 0);
            QVERIFY(fitting > 2);
        }
    }

    // Two headers that differ in their last letter look the same where it is cut.
    void aHeaderIsShownWholeInANarrowColumn()
    {
        GridPage page;
        page.grid.setColumnWidth(1, 90);
        page.grid.setCellBold(0, 1, true);
        page.grid.setText(0, 1, u"Vocabulary Word"_s);
        const QImage word = page.cellImage(0, 1);
        page.grid.setText(0, 1, u"Vocabulary Worm"_s);
        QVERIFY(page.cellImage(0, 1) != word);
    }

    void lettersAreWholeInLowRows()
    {
        for (const int height : {10, 11, 12, 13, 14, 16, 20}) {
            GridPage page;
            page.grid.setFrameShape(QFrame::NoFrame);
            page.grid.resize(page.grid.width(), VisibleRows * height);
            const int row = 2;
            QCOMPARE(page.grid.rowHeight(row), height);
            page.grid.setText(row, 1, u"H"_s);
            const auto [capTop, base] = inkRows(page.cellImage(row, 1));
            page.grid.setText(row, 1, u"g"_s);
            const auto [top, bottom] = inkRows(page.cellImage(row, 1));
            const QFontMetrics metrics(page.grid.font());
            const QString where = QString::number(height);
            QVERIFY2(base - capTop + 1 >= metrics.capHeight() - 1, qPrintable(where));
            QVERIFY2(bottom - base >= metrics.tightBoundingRect(u"g"_s).bottom(),
                     qPrintable(where));
        }
    }

    void aTextOfSeveralLinesIsShownOnOne()
    {
        GridPage page;
        page.grid.setColumnWidth(1, 300);
        page.grid.setText(2, 1, u"cat\r\ndog\n\n cow"_s);
        page.grid.setText(3, 1, u"cat dog cow"_s);
        QCOMPARE(page.cellImage(2, 1), page.cellImage(3, 1));
    }

    void ofAVeryLongTextNoMoreIsLaidOutThanOfALongOne()
    {
        const auto laidOut = [](qsizetype length) {
            LayoutCount count;
            GridPage page;
            page.grid.setStyle(&count);
            for (int row = 1; row < VisibleRows; ++row)
                for (int column = 1; column <= 3; ++column)
                    page.grid.setText(row, column, u"word "_s.repeated(length / 5));
            page.grid.grab();
            return count.characters();
        };
        const qsizetype ofLongTexts = laidOut(2'000);
        QVERIFY(ofLongTexts > 0);
        QCOMPARE(laidOut(20'000), ofLongTexts);
    }
};

QTEST_MAIN(MSFlexGrid_Painting_test)
#include "MSFlexGrid_Painting_test.moc"
