// SPDX-License-Identifier: GPL-3.0-or-later
#include "transfer/ImportRun.h"

using namespace ImportTools;
using namespace Module1;
using namespace Qt::StringLiterals;

class Import_Dif_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_run = std::make_unique<ImportRun>();
        gVocabList().ClearList();
        gImportDef = u"old definition"_s;
        gImportSen = u"old sentence"_s;
    }

    void cleanup()
    {
        QVERIFY(m_run->answers.allSeen());
        m_run.reset();
    }

    void twoColumnsAreWordAndDefinition()
    {
        gImportSen.clear();
        gChanged = false;
        m_run->expectAdded(3);
        m_run->dif(
            joined(difLinesOf({u"cat|an animal"_s, u"dog|a pet"_s, u"caf\u00E9|a place"_s})));
        QCOMPARE(openEntries(),
                 (QStringList{u"cat|an animal"_s, u"dog|a pet"_s, u"caf\u00E9|a place"_s}));
        QVERIFY(gChanged);
        QCOMPARE(gImportCount.toInt(), 3);
        QCOMPARE(m_run->changed.size(), 0); // this import does not enable Save
        QCOMPARE(m_run->refreshed.size(), 0);
        QCOMPARE(flags(), u"tasE"_s);
    }

    // Texts that are not read keep the values of the row or import before.
    void theCountSaysWhatIsReadOfARow_data()
    {
        QTest::addColumn<QByteArray>("tuples");
        QTest::addColumn<QStringList>("entries");
        const QStringList wordOnly{u"cat|old definition|old sentence"_s,
                                   u"dog|old definition|old sentence"_s};
        const QStringList definitions{u"cat|2nd of cat|old sentence"_s,
                                      u"dog|2nd of dog|old sentence"_s};
        const QStringList sentences{u"cat|old definition|2nd of cat"_s,
                                    u"dog|old definition|2nd of dog"_s};
        const auto row = [](const QByteArray &tuples, const QStringList &entries) {
            QTest::newRow(tuples.constData()) << tuples << entries;
        };
        row("0,2", definitions);
        row("0,3", sentences);
        for (const char *other :
             {"0,1", "0,0", "0,4", "0,-2", "0,32767", "0,-32768", "0,", "0", "", "TUPLES", ",1"})
            row(other, wordOnly);
        row("0, 2 ", definitions);
        row("9,2", definitions);
        row("2,", wordOnly);
        row("0,2.0", definitions);
        row("0,1.5", definitions); // halves go to the even number
        row("0,2.5", definitions);
        row("0,2.6", sentences);
        row("0,3.4", sentences);
        row("0,3.5", wordOnly);
        row("0,2e0", definitions);
    }

    void theCountSaysWhatIsReadOfARow()
    {
        QFETCH(QByteArray, tuples);
        QFETCH(QStringList, entries);
        m_run->expectAdded(2);
        m_run->dif(joined(
            difLinesOf({u"cat|2nd of cat|3rd of cat"_s, u"dog|2nd of dog|3rd of dog"_s}, tuples)));
        QCOMPARE(openEntries(), entries);
    }

    void theVectorsSayWhetherThereIsData_data()
    {
        QTest::addColumn<QByteArray>("vectors");
        QTest::addColumn<bool>("isRead");
        const auto row = [](const QByteArray &vectors, bool isRead) {
            QTest::newRow(vectors.constData()) << vectors << isRead;
        };
        for (const char *yes : {"0,1", "0,2", "0,1.0", "0,1.5", "0, 1", "0,32767", "0,32768",
                                "0,99999", "0,1e9", "5,1"})
            row(yes, true);
        for (const char *no : {"0,0", "0,-1", "0,0.9", "0,-99999", "0,", "0", "", "1"})
            row(no, false);
    }

    void theVectorsSayWhetherThereIsData()
    {
        QFETCH(QByteArray, vectors);
        QFETCH(bool, isRead);
        m_run->expectAdded(isRead ? 1 : 0);
        m_run->dif(joined(difLinesOf({u"cat|an animal"_s}, "0,2", vectors)));
        QCOMPARE(gVocabList().NumWords().toInt(), isRead ? 1 : 0);
        QCOMPARE(gChanged, isRead);
        // Only the end of the data stops an import.
        QCOMPARE(flags(), isRead ? u"tasE"_s : u"tase"_s);
    }

    void onlyTheCountsOfTheHeaderMatter()
    {
        QByteArrayList lines = difLinesOf({u"cat|an animal"_s});
        for (const int line : {1, 2, 3, 4, 6, 7, 9, 10, 11, 12, 13})
            lines[line - 1] = line % 2 == 0 ? "BOT" : "EOD";
        m_run->expectAdded(1);
        m_run->dif(joined(lines));
        QCOMPARE(gVocabList().NumWords().toInt(), 1);
    }

    void typeLinesAreNotLookedAt()
    {
        QByteArrayList lines = difLinesOf({u"cat|an animal"_s});
        QCOMPARE(lines[14], "1,0"_ba);
        lines[14] = "EOD";
        lines[16] = "BOT";
        m_run->expectAdded(1);
        m_run->dif(joined(lines));
        QCOMPARE(gImportWord, u"cat"_s);
        QCOMPARE(gImportDef, u"an animal"_s);
    }

    // A value of two characters or more loses its first and last, whatever they are.
    void everyValueCountsAsQuoted()
    {
        gImportSen.clear();
        QByteArrayList lines = difLinesOf({u"cat|an animal"_s, u"dog|"_s});
        lines[15] = "TRUE";
        lines[17] = "NA";
        m_run->expectAdded(2);
        m_run->dif(joined(lines));
        QCOMPARE(openEntries(), (QStringList{u"RU"_s, u"dog"_s}));
    }

    void quotesAndBlanksStayAsTheyAre()
    {
        gImportSen.clear();
        m_run->expectAdded(3);
        m_run->dif(
            joined(difLinesOf({u" cat |say \"\"miaow\"\""_s, u"\"\"quoted\"\"|"_s, u"|empty"_s})));
        QCOMPARE(openEntries(),
                 (QStringList{u" cat |say \"\"miaow\"\""_s, u"\"\"quoted\"\""_s, u"|empty"_s}));
    }

    void anEmptyWordConflictsLikeAnyOther()
    {
        expectQuestion(m_run->answers, u"cmdNo"_s);
        m_run->expectAdded(1);
        m_run->dif(joined(difLinesOf({u"|1"_s, u"|2"_s})));
        QCOMPARE(gVocabList().NumWords().toInt(), 1);
    }

    void linesBetweenRowsArePassedOver()
    {
        QByteArrayList lines = difLinesOf({u"cat|1"_s, u"dog|2"_s});
        for (const char *text : {"bot", "BOT ", " BOT", "", "\"BOT\"", "eod", "\"EOD\"", "EOD "})
            lines.insert(13, text);
        m_run->expectAdded(2);
        m_run->dif(joined(lines));
    }

    void valuesBeyondTheCountArePassedOver()
    {
        gImportDef.clear();
        gImportSen.clear();
        m_run->expectAdded(2);
        m_run->dif(joined(difLinesOf({u"cat|1|2|3"_s, u"dog"_s}, "0,1")));
        QCOMPARE(openEntries(), (QStringList{u"cat"_s, u"dog"_s}));
    }

    void nothingBehindTheEndIsRead()
    {
        QByteArrayList lines = difLinesOf({u"cat|1"_s});
        lines += difLinesOf({u"dog|2"_s}).mid(13);
        m_run->expectAdded(1);
        m_run->dif(joined(lines));
        QCOMPARE(gVocabList().NumWords().toInt(), 1);
    }

    void aValueLineThatIsTheEndMarkEndsTheData()
    {
        QByteArrayList lines = difLinesOf({u"cat"_s, u"dog"_s}, "0,1");
        lines[15] = "EOD"; // the word "O"
        m_run->expectAdded(1);
        m_run->dif(joined(lines));
        QCOMPARE(gImportWord, u"O"_s);
    }

    void allThreeLineEndsAreRead_data()
    {
        QTest::addColumn<QByteArray>("lineEnd");
        QTest::newRow("CR LF") << "\r\n"_ba;
        QTest::newRow("CR") << "\r"_ba;
        QTest::newRow("LF") << "\n"_ba;
    }

    void allThreeLineEndsAreRead()
    {
        QFETCH(QByteArray, lineEnd);
        const QByteArray bytes = joined(difLinesOf({u"cat|1"_s, u"dog|2"_s}), lineEnd);
        m_run->expectAdded(2);
        m_run->dif(bytes);
        QCOMPARE(gDifLines.size(), 26);
        QCOMPARE(gDifLines(26), u"EOD"_s);

        gVocabList().ClearList();
        m_run->expectAdded(2);
        m_run->dif(bytes.chopped(lineEnd.size())); // the last line has no end
    }

    void anEmptyFileKeepsTheLinesOfTheOneBefore()
    {
        m_run->expectAdded(1);
        m_run->dif(joined(difLinesOf({u"cat|1"_s})));
        gVocabList().ClearList();
        m_run->expectAdded(1);
        m_run->dif(QByteArray());
        QCOMPARE(gImportWord, u"cat"_s);
        QCOMPARE(gVocabList().NumWords().toInt(), 1);
    }

    // An empty file leaves the lines of the file before, and these are imported again.
    void anEmptyFileKeepsTheLinesThatAnAbortLeftUnread()
    {
        setOpenEntries({u"cat"_s});
        expectQuestion(m_run->answers, u"cmdAbort"_s);
        m_run->expectAdded(0);
        m_run->dif(joined(difLinesOf({u"cat|1"_s, u"dog|2"_s})));
        gVocabList().ClearList();
        m_run->expectAdded(2);
        m_run->dif(QByteArray());
        QCOMPARE(gVocabList().NumWords().toInt(), 2);
    }

    void linesBehindTheEndAreNotKept()
    {
        QByteArray bytes = joined(difLinesOf({u"cat|1"_s}));
        bytes += "more\r\n"_ba.repeated(1'000'000);
        m_run->expectAdded(1);
        m_run->dif(bytes);
        QCOMPARE(gDifLines.size(), 20);
        QCOMPARE(gDifLines(20), u"EOD"_s);
    }

    void threeGigabytesWithoutALineAreASubscriptError()
    {
        gFileName = m_run->path(u"video.dif"_s);
        writeFile(gFileName, {});
        QVERIFY(QFile::resize(gFileName, 3'000'000'000));
        int error = 0;
        try {
            m_run->import.ImportDif();
        } catch (const RunTimeError &caught) {
            error = caught.number();
        }
        QCOMPARE(error, 9);
        QCOMPARE(gDifLines.size(), 0);
    }

    void anEmptyFileAtFirstIsASubscriptError() { QCOMPARE(m_run->difError(QByteArray()), 9); }

    void aShorterFileLeavesNoLineOfALongerOneBefore()
    {
        m_run->expectAdded(2);
        m_run->dif(joined(difLinesOf({u"cat|1"_s, u"dog|2"_s})));
        gVocabList().ClearList();
        QCOMPARE(m_run->difError(joined(difLinesOf({u"cow|3"_s}).mid(0, 18))), 9);
        QCOMPARE(gVocabList().NumWords().toInt(), 1);
        QCOMPARE(gDifLines.size(), 18);
    }

    void onlySkipAllIsKeptFromTheImportBefore()
    {
        gAddThis = gAddAll = gStopImport = true;
        gImportCount = 5;
        gImportList().CurrentWord(9);
        m_run->expectAdded(1);
        m_run->dif(joined(difLinesOf({u"cat|1"_s})));
        QCOMPARE(gVocabList().NumWords().toInt(), 1);
        QCOMPARE(gImportList().CurrentWord().toInt(), 1);
    }

    void aFullListSaysSoAtEachWordAndCountsIt()
    {
        QStringList entries;
        for (int i = 1; i <= 31999; ++i)
            entries += QString::number(i);
        setOpenEntries(entries);
        const QString full = u"Cannot add any more words. Maximum number of words= 32000"_s;
        m_run->answers.expectMsgBox(full);
        m_run->answers.expectMsgBox(full);
        m_run->expectAdded(3);
        m_run->dif(joined(difLinesOf({u"cat|1"_s, u"dog|2"_s, u"cow|3"_s})));
        QCOMPARE(gVocabList().NumWords().toInt(), 32000);
        QCOMPARE(openEntries().constLast(), u"cat|1|old sentence"_s);
        QCOMPARE(gImportCount.toInt(), 3);
        QVERIFY(gChanged);
    }

    void progressIsReportedAtEveryStep()
    {
        m_run->expectAdded(2);
        m_run->dif(joined(difLinesOf({u"cat|1"_s, u"dog|2"_s})));
        QVERIFY(!m_run->progress.isEmpty());
        int before = 13;
        for (const QVariantList &step : std::as_const(m_run->progress)) {
            QVERIFY(step[0].toInt() > before);
            QCOMPARE(step[1].toInt(), 26);
            before = step[0].toInt();
        }
        QCOMPARE(before, 26);
    }

    void filesThatCannotBeReadAreReported_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<int>("error");
        QTest::addColumn<int>("kept"); // number of words added before the error
        const QByteArrayList good = difLinesOf({u"cat|1"_s, u"dog|2"_s});
        const auto changed = [&good](int line, const QByteArray &text) {
            QByteArrayList lines = good;
            lines[line - 1] = text;
            return joined(lines);
        };
        QTest::newRow("four lines") << joined(good.mid(0, 4)) << 9 << 0;
        QTest::newRow("seven lines") << joined(good.mid(0, 7)) << 9 << 0;
        QTest::newRow("the header alone") << joined(good.mid(0, 13)) << 9 << 0;
        QTest::newRow("an end mark at the first line of data")
            << joined(good.mid(0, 13) << "EOD") << 9 << 0;
        QTest::newRow("no end mark") << joined(good.mid(0, 25)) << 9 << 2;
        QTest::newRow("an end mark in small letters") << changed(26, "eod") << 9 << 2;
        QTest::newRow("an end mark with a blank") << changed(26, "EOD ") << 9 << 2;
        QTest::newRow("vectors no number") << changed(5, "0,V") << 13 << 0;
        QTest::newRow("vectors with two commas") << changed(5, "0,1,x") << 13 << 0;
        QTest::newRow("vectors a blank") << changed(5, "0, ") << 13 << 0;
        QTest::newRow("tuples no number") << changed(8, "0,two") << 13 << 0;
        QTest::newRow("tuples too large") << changed(8, "0,32768") << 6 << 0;
        QTest::newRow("tuples too small") << changed(8, "0,-32769") << 6 << 0;
        QTest::newRow("first word an empty line") << changed(16, "") << 5 << 0;
        QTest::newRow("first word one letter") << changed(16, "V") << 5 << 0;
        QTest::newRow("first definition one letter") << changed(18, "V") << 5 << 0;
        QTest::newRow("second word one letter") << changed(22, "V") << 5 << 1;
        QTest::newRow("second definition one letter") << changed(24, "\"") << 5 << 1;
        QTest::newRow("a row without values") << joined(good.mid(0, 19) << "BOT") << 9 << 1;
        QTest::newRow("a row with one value of two") << joined(good.mid(0, 19) << "BOT"
                                                                               << "1,0"
                                                                               << "\"dog\"")
                                                     << 9 << 1;
    }

    void filesThatCannotBeReadAreReported()
    {
        QFETCH(QByteArray, bytes);
        QTEST(m_run->difError(bytes), "error");
        QTEST(gVocabList().NumWords().toInt(), "kept");
        QTEST(gImportCount.toInt(), "kept");
    }

    void aMissingFileIsReported()
    {
        gAddThis = true;
        gFileName = m_run->path(u"lost.dif"_s);
        QVERIFY_THROWS_EXCEPTION(RunTimeError, m_run->import.ImportDif());
        QVERIFY(!QFile::exists(gFileName));
        QVERIFY(gAddThis); // the error comes before the flags are cleared
    }

    void anErrorLeavesTheFlagsAsTheyAre()
    {
        setOpenEntries({u"cat"_s});
        expectQuestion(m_run->answers, u"cmdYes"_s);
        QByteArrayList lines = difLinesOf({u"cat|1"_s, u"dog|2"_s});
        lines[21] = "V";
        QCOMPARE(m_run->difError(joined(lines)), 5);
        QCOMPARE(flags(), u"Tase"_s);
        QCOMPARE(gVocabList().NumWords().toInt(), 2);
    }

private:
    std::unique_ptr<ImportRun> m_run;
};

int main(int argc, char *argv[])
{
    return runFormTest<Import_Dif_test>(argc, argv);
}

#include "Import_Dif_test.moc"
