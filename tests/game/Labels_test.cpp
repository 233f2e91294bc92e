// SPDX-License-Identifier: GPL-3.0-or-later
// The labels whose texts always fit. What they paint is read from an SVG drawing.
#include "game/FittedLabel.h"
#include "platform/WrappedLabel.h"
#include "support/PaintedLines.h"

#include <QTest>

using namespace PaintedLines;
using namespace Qt::StringLiterals;

namespace {

template <class Label> void prepare(Label &label, const QString &text, int points, QSize size)
{
    QFont type = label.font();
    type.setPointSize(points);
    label.setFont(type);
    label.setText(text);
    label.resize(size);
}

} // namespace

class Labels_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aTextThatFitsKeepsItsType()
    {
        FittedLabel label;
        prepare(label, u"cat"_s, 34, {600, 80});
        const QList<Line> lines = paintedLines(label);
        QCOMPARE(lines.size(), 1);
        QCOMPARE(lines[0].text, u"cat"_s);
        QVERIFY(std::abs(lines[0].points - 34) < 0.5);
    }

    void aTextTooWideIsDrawnSmallerAndWhole_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("points");
        QTest::newRow("16 wide letters") << u"MWMWMWMWMWMWMWMW"_s << 34;
        QTest::newRow("16 letters") << u"tnemhsilbatsesid"_s << 34;
        QTest::newRow("25 letters") << u"yllacihpargotohporteclehp"_s << 18;
        QTest::newRow("30 letters") << u"msidipohtorapoduespoduespxxxxx"_s << 16;
    }

    void aTextTooWideIsDrawnSmallerAndWhole()
    {
        QFETCH(QString, text);
        QFETCH(int, points);
        FittedLabel label;
        prepare(label, text, points, {100, 80});
        const double smallest = widthOf(label.font(), 9, text);
        int shrunk = 0;
        for (int width = int(smallest * 1.1) + 1; width <= 900; width += 7) {
            label.resize(width, 80);
            const QList<Line> lines = paintedLines(label);
            QCOMPARE(lines.size(), 1);
            QVERIFY2(lines[0].text == text,
                     qPrintable(u"%1 pixels: %2"_s.arg(width).arg(lines[0].text)));
            QVERIFY(lines[0].points >= 8.5 && lines[0].points < points + 0.5);
            QVERIFY(widthOf(label.font(), lines[0].points, text) <= width * 1.05);
            shrunk += lines[0].points < points - 1 ? 1 : 0;
        }
        QVERIFY(shrunk > 0);
    }

    void aTextTooHighIsDrawnSmaller()
    {
        FittedLabel label;
        prepare(label, u"cat"_s, 34, {600, 30});
        const QList<Line> lines = paintedLines(label);
        QCOMPARE(lines[0].text, u"cat"_s);
        QVERIFY(lines[0].points < 25 && lines[0].points > 10);
    }

    void aTextThatIsLongerStillEndsInAnEllipsis()
    {
        FittedLabel label;
        prepare(label, QString(400, u'm'), 14, {600, 80});
        const QList<Line> lines = paintedLines(label);
        QVERIFY(lines[0].text.endsWith(u'…'));
        QVERIFY(lines[0].text.size() > 30);
        QVERIFY(std::abs(lines[0].points - 9) < 0.5);
        QVERIFY(widthOf(label.font(), lines[0].points, lines[0].text) <= 600 * 1.02);
    }

    void noLabelNeedsMoreSpace()
    {
        FittedLabel fitted;
        prepare(fitted, QString(400, u'm'), 34, {600, 80});
        QCOMPARE(fitted.minimumSizeHint(), QSize(1, 1));
        WrappedLabel wrapped;
        prepare(wrapped, QString(4000, u'm'), 18, {600, 80});
        QCOMPARE(wrapped.minimumSizeHint(), QSize(1, 1));
    }

    void anEmptyTextPaintsNothing()
    {
        FittedLabel fitted;
        prepare(fitted, QString(), 34, {600, 80});
        QCOMPARE(joined(paintedLines(fitted)), QString());
        WrappedLabel wrapped;
        prepare(wrapped, QString(), 18, {600, 80});
        QCOMPARE(joined(paintedLines(wrapped)), QString());
    }

    void textsArePaintedAsTheyAre()
    {
        const QString text = u"<b>R&D</b> &amp; &x"_s;
        FittedLabel fitted;
        prepare(fitted, text, 18, {600, 80});
        QCOMPARE(joined(paintedLines(fitted)), text);
        WrappedLabel wrapped;
        prepare(wrapped, text, 18, {600, 80});
        QCOMPARE(joined(paintedLines(wrapped)), text);
    }

    void linesBreakAtWords()
    {
        const QString text = u"a small animal with soft fur that people keep as a companion"_s;
        WrappedLabel label;
        prepare(label, text, 18, {300, 300});
        const QList<Line> lines = paintedLines(label);
        QVERIFY(lines.size() >= 2);
        QStringList words;
        for (const Line &line : lines) {
            words += line.text.split(u' ', Qt::SkipEmptyParts);
            QVERIFY(widthOf(label.font(), 18, line.text.trimmed()) <= 300 * 1.02);
        }
        QCOMPARE(words, text.split(u' '));
    }

    void anEndlessWordIsBrokenInside()
    {
        const QString word(300, u'm');
        WrappedLabel label;
        prepare(label, word, 18, {300, 600});
        const QList<Line> lines = paintedLines(label);
        QVERIFY(lines.size() > 5);
        for (const Line &line : lines)
            QVERIFY(widthOf(label.font(), 18, line.text) <= 300 * 1.02);
        QCOMPARE(joined(lines), word);
    }

    void lineBreaksInTheTextAreKept_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("carriage return and line feed") << u"one\r\ntwo"_s;
        QTest::newRow("line feed") << u"one\ntwo"_s;
        QTest::newRow("carriage return") << u"one\rtwo"_s;
    }

    void lineBreaksInTheTextAreKept()
    {
        QFETCH(QString, text);
        WrappedLabel label;
        prepare(label, text, 18, {600, 200});
        const QList<Line> lines = paintedLines(label);
        QCOMPARE(lines.size(), 2);
        QCOMPARE(lines[0].text, u"one"_s);
        QCOMPARE(lines[1].text, u"two"_s);
        QVERIFY(lines[0].top < lines[1].top);
    }

    void theLabelIsAsHighAsItsLines()
    {
        WrappedLabel label;
        prepare(label, u"cat"_s, 18, {300, 600});
        const int oneLine = label.heightForWidth(300);
        QVERIFY(oneLine >= QFontMetrics(label.font()).ascent());
        label.setText(u"1\n2\n3\n4\n5"_s);
        QVERIFY(std::abs(label.heightForWidth(300) - 5 * oneLine) <= 5);
        label.setText(QString(1000, u'm'));
        int last = label.heightForWidth(100);
        for (const int width : {200, 400, 800}) {
            const int height = label.heightForWidth(width);
            QVERIFY(height < last);
            label.resize(width, height);
            QCOMPARE(label.sizeHint(), QSize(width, height));
            for (const Line &line : paintedLines(label))
                QVERIFY(line.top > 0 && line.top <= height);
            last = height;
        }
    }

    void fewLinesAreVerticallyCentred()
    {
        WrappedLabel label;
        prepare(label, u"cat"_s, 18, {300, 400});
        const double top = paintedLines(label).at(0).top;
        QVERIFY(top > 150 && top < 250);
    }
};

QTEST_MAIN(Labels_test)

#include "Labels_test.moc"
