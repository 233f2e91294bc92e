// SPDX-License-Identifier: GPL-3.0-or-later
// The label that wraps its text. What it paints is read from an SVG drawing.
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

class WrappedLabel_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theLabelNeedsNoMoreSpace()
    {
        WrappedLabel wrapped;
        prepare(wrapped, QString(4000, u'm'), 18, {600, 80});
        QCOMPARE(wrapped.minimumSizeHint(), QSize(1, 1));
    }

    void anEmptyTextPaintsNothing()
    {
        WrappedLabel wrapped;
        prepare(wrapped, QString(), 18, {600, 80});
        QCOMPARE(joined(paintedLines(wrapped)), QString());
    }

    void textsArePaintedAsTheyAre()
    {
        const QString text = u"<b>R&D</b> &amp; &x"_s;
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

QTEST_MAIN(WrappedLabel_test)

#include "WrappedLabel_test.moc"
