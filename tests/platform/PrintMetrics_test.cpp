// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/PrintMetrics.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int Resolution = 1200;

PrintStyle style(bool bold, bool italic)
{
    return {{u"Times New Roman"_s, 10}, bold, italic};
}

QRect inked(const QImage &image)
{
    QRect inked;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qGray(image.pixel(x, y)) < 128)
                inked |= QRect(x, y, 1, 1);
    return inked;
}

} // namespace

class PrintMetrics_test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aTextIsAsWideAsItsCharactersAndAsOnThePrinter_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("letters") << u"The quick brown fox jumps over the lazy dog"_s;
        QTest::newRow("pairs") << u"AVATAR To Wave, Yes. office fluffy"_s;
        QTest::newRow("accents") << u"\u00C9t\u00E9 fran\u00E7ais \u0160koda na\u00EFve"_s;
        QTest::newRow("signs") << u"\u201Cso\u201D \u2013 \u20AC 5 \u2122 \u2026"_s;
    }

    void aTextIsAsWideAsItsCharactersAndAsOnThePrinter()
    {
        QFETCH(QString, text);
        QBuffer file;
        QVERIFY(file.open(QIODevice::WriteOnly));
        QPdfWriter printer(&file);
        printer.setResolution(Resolution);
        const PrintMetrics metrics({8, 11}, {0, 0, 8, 11}, Resolution);
        for (const bool bold : {false, true}) {
            for (const bool italic : {false, true}) {
                double sum = 0;
                for (const QChar c : text)
                    sum += metrics.widthOf(QString(c), style(bold, italic));
                const double width = metrics.widthOf(text, style(bold, italic));
                QVERIFY(qAbs(width - sum) < 1e-9);
                QFont font(u"Times New Roman"_s);
                font.setPointSizeF(10);
                font.setBold(bold);
                font.setItalic(italic);
                font.setKerning(false);
                font.setStyleStrategy(QFont::PreferNoShaping);
                const QFontMetricsF onPrinter(font, &printer);
                QVERIFY(qAbs(width * Resolution - onPrinter.horizontalAdvance(text)) < 0.5);
                QVERIFY(qAbs(metrics.lineHeight(style(bold, italic)) * Resolution -
                             onPrinter.lineSpacing()) < 0.5);
            }
        }
    }

    void aTextThatBeginsLikeAnotherIsNotWider()
    {
        const PrintMetrics metrics({8, 11}, {0, 0, 8, 11}, Resolution);
        const QString text = u"The office \u05E9\u05DC\u05D5\u05DD \u4F60\u597D caf\u00E9"_s;
        double before = 0;
        for (qsizetype n = 1; n <= text.size(); ++n) {
            const double width = metrics.widthOf(text.left(n), style(false, false));
            QVERIFY(width >= before);
            before = width;
        }
    }

    void aControlCharacterIsABlank()
    {
        const PrintMetrics metrics({8, 11}, {0, 0, 8, 11}, Resolution);
        QCOMPARE(metrics.widthOf(u"a\tb"_s, style(false, false)),
                 metrics.widthOf(u"a b"_s, style(false, false)));
    }

    // At a quarter of the printer's resolution a text has a quarter of its size in dots.
    void aTextIsDrawnWhereItIsMeasured()
    {
        const PrintMetrics metrics({8, 11}, {0, 0, 8, 11}, Resolution);
        QImage sheet(8 * Resolution / 4, Resolution / 2, QImage::Format_RGB32);
        sheet.fill(Qt::white);
        QPainter painter(&sheet);
        painter.scale(0.25, 0.25);
        const QString text = u"HAVE A TOAST AT THE OFFICE IN WAVES"_s;
        metrics.draw(painter, {1, 0.5}, text, style(true, false));
        painter.end();
        const QRect ink = inked(sheet);
        const double dots = Resolution / 4.0;
        QVERIFY(qAbs(ink.left() - 1 * dots) < 4);
        QVERIFY(qAbs(ink.right() - (1 + metrics.widthOf(text, style(true, false))) * dots) < 4);
        QVERIFY(ink.top() > 0.5 * dots);
        QVERIFY(ink.bottom() < (0.5 + metrics.lineHeight(style(true, false))) * dots);
    }
};

QTEST_MAIN(PrintMetrics_test)

#include "PrintMetrics_test.moc"
