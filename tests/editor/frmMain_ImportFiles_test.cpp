// SPDX-License-Identifier: GPL-3.0-or-later
// Import of files that other programs wrote, and of files that cannot be imported.
#include "editor/ImportCommand.h"

using namespace Module1;
using namespace Qt::StringLiterals;
using ImportTools::difLinesOf;
using ImportTools::openEntries;
using ImportTools::setOpenEntries;

class frmMain_ImportFiles_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_command = std::make_unique<ImportCommand>(); }

    void cleanup()
    {
        QVERIFY(m_command->main.answers.allSeen());
        m_command.reset();
    }

    void filesOfOtherProgramsAreImported_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QStringList>("entries");
        const auto row = [](const char *file, const QStringList &entries) {
            QTest::newRow(file) << QString::fromLatin1(file) << entries;
        };
        // These programs write the number of rows to the line from which an import takes the number
        // of columns: with three rows the second column is the sentence, with two the definition.
        for (const char *file : {"gnumeric-words.dif", "libreoffice-words.dif"})
            row(file, {u"harbour||A place where ships are safe."_s,
                       u"lantern||A light that is carried by hand, with a cover of glass."_s,
                       u"tidy up||To put things away."_s});
        for (const char *file : {"gnumeric-tworows.dif", "libreoffice-tworows.dif"})
            row(file, {u"harbour|A place where ships are safe."_s,
                       u"lantern|A light that is carried by hand, with a cover of glass."_s});
        row("libreoffice-accents-windows1252.dif",
            {u"cr\u00E8me||The fat part of milk."_s, u"fa\u00E7ade||The front of a building."_s,
             u"na\u00EFve||Ready to believe everything \u2013 even \u201Cthis\u201D."_s});
        // These files are in UTF-8, but an import reads every file as Windows-1252.
        for (const char *file : {"gnumeric-accents.dif", "libreoffice-accents.dif"})
            row(file, {u"cr\u00C3\u00A8me||The fat part of milk."_s,
                       u"fa\u00C3\u00A7ade||The front of a building."_s,
                       u"na\u00C3\u00AFve||Ready to believe everything \u00E2\u20AC\u201C "
                       "even \u00E2\u20AC\u0153this\u00E2\u20AC\u009D."_s});
        row("rowsfirst-two-columns.dif",
            {u"harbour|A place where ships are safe."_s, u"fa\u00E7ade|The front of a building."_s,
             u"tidy up|To put things away."_s, u"lantern|A light that is carried by hand."_s});
        // The second of three columns is the sentence.
        row("rowsfirst-three-columns.dif", {u"harbour||unread"_s, u"fa\u00E7ade||unread"_s});
    }

    void filesOfOtherProgramsAreImported()
    {
        QFETCH(QString, file);
        QFETCH(QStringList, entries);
        const QString source = QStringLiteral(TANGLEWIT_TESTS_FOLDER "/transfer/data/") + file;
        QVERIFY2(QFile::exists(source), qPrintable(file));
        const QString chosen = m_command->main.path(u"table.dif"_s);
        QVERIFY(QFile::copy(source, chosen));
        m_command->expectMsgBox(u"%1 words added"_s.arg(entries.size()));
        m_command->choose(chosen);
        QCOMPARE(openEntries(), entries);
        QStringList words;
        for (const QString &entry : std::as_const(entries))
            words += entry.section(QLatin1Char('|'), 0, 0);
        QCOMPARE(m_command->words(), words);
    }

    void aFileThatCannotBeImportedIsReported_data()
    {
        QTest::addColumn<int>("line"); // of the file with rows cat, dog, cow; 0 = cut off instead
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("report");
        QTest::addColumn<QStringList>("cameIn");
        const QString subscript = u"Run-time error '9':\n\nSubscript out of range"_s;
        const QString mismatch = u"Run-time error '13':\n\nType mismatch"_s;
        const QString invalid = u"Run-time error '5':\n\nInvalid procedure call or argument"_s;
        const QString overflow = u"Run-time error '6':\n\nOverflow"_s;
        const QString cat = u"cat|1"_s;
        const QString dog = u"dog|2"_s;
        const QString cow = u"cow|3"_s;
        QTest::newRow("no end of the data")
            << 32 << "END"_ba << subscript << QStringList{cat, dog, cow};
        QTest::newRow("cut off") << 0 << QByteArray() << subscript << QStringList{cat};
        QTest::newRow("no number") << 5 << "0,V"_ba << mismatch << QStringList();
        QTest::newRow("no number of values") << 8 << "0,T"_ba << mismatch << QStringList();
        QTest::newRow("a number instead of a word")
            << 28 << "V"_ba << invalid << QStringList{cat, dog};
        QTest::newRow("too many values") << 8 << "0,40000"_ba << overflow << QStringList();
    }

    void aFileThatCannotBeImportedIsReported()
    {
        QFETCH(int, line);
        QFETCH(QByteArray, text);
        QFETCH(QString, report);
        QFETCH(QStringList, cameIn);
        QByteArrayList lines = difLinesOf({u"cat|1"_s, u"dog|2"_s, u"cow|3"_s});
        if (line == 0)
            lines = lines.mid(0, 21);
        else
            lines[line - 1] = text;
        MainWindow &main = m_command->main;
        main.fill({u"ox"_s});
        gVocabList().CurrentWord(1);
        gFileName = u"open list"_s;
        gSkipAll = true;
        m_command->expectMsgBox(report);
        m_command->importDif(lines);

        QCOMPARE(openEntries().mid(1), cameIn);
        QCOMPARE(gImportCount.toInt(), int(cameIn.size()));
        QStringList words{u"ox"_s};
        for (const QString &entry : std::as_const(cameIn))
            words += entry.section(QLatin1Char('|'), 0, 0);
        QCOMPARE(m_command->words(), words);
        QCOMPARE(gVocabList().CurrentWord().toInt(), 1);
        QCOMPARE(main.grid().Row(), 1);
        QCOMPARE(gFileName, u"open list"_s);
        QCOMPARE(gChanged, !cameIn.isEmpty());
        QVERIFY(!main.action("mnuSave").isEnabled());
        QCOMPARE(ImportTools::flags(), u"taSe"_s);
        QCOMPARE(main.window().cursor().shape(), Qt::ArrowCursor);

        // The program goes on.
        gSkipAll = false;
        m_command->expectMsgBox(u"1 words imported"_s);
        m_command->importList({u"new"_s});
    }

    void aMissingDifFileIsReported()
    {
        MainWindow &main = m_command->main;
        main.fill(2);
        gFileName = u"open list"_s;
        const QString lost = main.path(u"lost.dif"_s);
        m_command->expectReport(u"Run-time error '53':\n\nFile not found\n"_s, lost);
        m_command->choose(lost);
        QVERIFY(!QFile::exists(lost));
        QCOMPARE(gVocabList().NumWords().toInt(), 2);
        QCOMPARE(gFileName, u"open list"_s);
        QVERIFY(!gChanged);
    }

    // Opening a list file creates it if it is missing.
    void aMissingWordListIsAnEmptyOne()
    {
        MainWindow &main = m_command->main;
        main.fill(2);
        m_command->expectMsgBox(u"0 words imported"_s);
        m_command->choose(main.path(u"lost.lwx"_s));
        QCOMPARE(gVocabList().NumWords().toInt(), 2);
    }

    void aWordListThatCannotBeReadIsReported()
    {
        MainWindow &main = m_command->main;
        main.fill(2);
        gFileName = u"open list"_s;
        m_command->expectReport(u"Run-time error '9':\n\nSubscript out of range\n"_s);
        m_command->import(u"broken.lwx"_s, QByteArray("\xFE\xFF", 2));
        QCOMPARE(gVocabList().NumWords().toInt(), 2);
        QCOMPARE(gFileName, u"open list"_s);
        QCOMPARE(gVocabList().CurrentWord().toInt(), 1);
    }

    void aFolderThatIsGoneIsReported_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("word list") << u"gone/words.lwx"_s;
        QTest::newRow("DIF file") << u"gone/words.dif"_s;
    }

    void aFolderThatIsGoneIsReported()
    {
        QFETCH(QString, name);
        m_command->expectReport(u"Run-time error '76':\n\nPath not found\n"_s, name);
        m_command->choose(m_command->main.path(name));
        QCOMPARE(gVocabList().NumWords().toInt(), 0);
    }

    void theListsOwnMessageComesWhereADifFileExceedsTheMaximum()
    {
        QStringList full;
        for (int i = 1; i <= 32000; ++i)
            full += QString::number(i);
        setOpenEntries(full);
        m_command->expectMsgBox(u"Cannot add any more words. Maximum number of words= 32000"_s);
        m_command->expectMsgBox(u"1 words added"_s);
        m_command->importDif(difLinesOf({u"cat|1"_s}));
        QCOMPARE(gVocabList().NumWords().toInt(), 32000);
    }

    void aWordListThatExceedsTheMaximumIsRefused()
    {
        QStringList full;
        for (int i = 1; i <= 32000; ++i)
            full += QString::number(i);
        setOpenEntries(full);
        m_command->expectMsgBox(
            u"Cannot import words because this will exceed maximum number of words. "
            "Maximum number of words=32000"_s);
        m_command->importList({u"cat"_s});
        QCOMPARE(gVocabList().NumWords().toInt(), 32000);
        QVERIFY(!m_command->main.action("mnuSave").isEnabled());
    }

private:
    std::unique_ptr<ImportCommand> m_command;
};

int main(int argc, char *argv[])
{
    return runFormTest<frmMain_ImportFiles_test>(argc, argv);
}

#include "frmMain_ImportFiles_test.moc"
