// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/QuietTexts.h"

#include <QTest>

using namespace Qt::StringLiterals;

class QuietTexts_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theStateOfTheListIsNamed_data()
    {
        QTest::addColumn<int>("words");
        QTest::addColumn<bool>("isChanged");
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("isInCaption");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("marked");
        const QString path = u"/lists/animals.lwx"_s;
        QTest::newRow("empty") << 0 << false << QString() << false << u"No words"_s << QString();
        QTest::newRow("one") << 1 << true << QString() << false << u"1 word · not saved"_s
                             << QString();
        QTest::newRow("file") << 48 << false << path << true
                              << u"48 words · Save writes animals.lwx"_s << QString();
        QTest::newRow("another file") << 48 << true << path << false << u"48 words · not saved · "_s
                                      << u"Save writes animals.lwx in lists"_s;
        QTest::newRow("a name without a file")
            << 4 << false << QString() << true << u"4 words · "_s << u"Save asks for a name"_s;
    }

    void theStateOfTheListIsNamed()
    {
        QFETCH(int, words);
        QFETCH(bool, isChanged);
        QFETCH(QString, path);
        QFETCH(bool, isInCaption);
        const QuietTexts::Line line = QuietTexts::ofList(words, isChanged, {path, isInCaption});
        QTEST(line.text, "text");
        QTEST(line.marked, "marked");
    }

    void anEntryWithTheSameWordIsShownInOneLine()
    {
        QCOMPARE(QuietTexts::ofSameWord(12, {u"glacier"_s, u"a slow river\r\nof ice"_s, u"x"_s}),
                 u"In the list: 12 glacier - a slow river of ice"_s);
        QCOMPARE(QuietTexts::ofSameWord(1, {u"ice"_s, {}, {}}), u"In the list: 1 ice"_s);
        QCOMPARE(QuietTexts::ofSameWord(1, {u"ice"_s, QString(60'000, u'x'), {}}).size(), 201);
    }

    void commandsAreReported()
    {
        QCOMPARE(QuietTexts::ofImport(0, 0), u"No words added."_s);
        QCOMPARE(QuietTexts::ofImport(1, 0), u"1 word added."_s);
        QCOMPARE(QuietTexts::ofImport(12, 3), u"12 words added, 3 not added: the list is full."_s);
        QCOMPARE(QuietTexts::ofTextFile(u"/home/a/words.txt"_s), u"Written to words.txt."_s);
        QCOMPARE(QuietTexts::ofPrint(u"words.pdf"_s), u"Printed to words.pdf."_s);
        QCOMPARE(QuietTexts::ofHit(2, 3), u"2 of 3 found. Click its row to change it."_s);
    }
};

QTEST_GUILESS_MAIN(QuietTexts_test)
#include "QuietTexts_test.moc"
