// SPDX-License-Identifier: GPL-3.0-or-later
// Import of files that other programs wrote, and of files that cannot be imported.
#include "editor/ImportCommand.h"

using namespace Module1;
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

    void filesOfOtherProgramsComeIn_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QStringList>("entries");
        const auto row = [](const char *file, const QStringList &entries) {
            QTest::newRow(file) << QString::fromLatin1(file) << entries;
        };
        // These two give the number of rows where that of the columns is looked for: with three
        // rows the second column is the sentence, with two rows the definition.
        for (const char *file : {"gnumeric-words.dif", "libreoffice-words.dif"})
            row(file,
                {QStringLiteral("harbour||A place where ships are safe."),
                 QStringLiteral("lantern||A light that is carried by hand, with a cover of glass."),
                 QStringLiteral("tidy up||To put things away.")});
        for (const char *file : {"gnumeric-tworows.dif", "libreoffice-tworows.dif"})
            row(file, {QStringLiteral("harbour|A place where ships are safe."),
                       QStringLiteral(
                           "lantern|A light that is carried by hand, with a cover of glass.")});
        row("libreoffice-accents-windows1252.dif",
            {QStringLiteral("cr\u00E8me||The fat part of milk."),
             QStringLiteral("fa\u00E7ade||The front of a building."),
             QStringLiteral(
                 "na\u00EFve||Ready to believe everything \u2013 even \u201Cthis\u201D.")});
        // Written in UTF-8, read as the one encoding of all files.
        for (const char *file : {"gnumeric-accents.dif", "libreoffice-accents.dif"})
            row(file,
                {QStringLiteral("cr\u00C3\u00A8me||The fat part of milk."),
                 QStringLiteral("fa\u00C3\u00A7ade||The front of a building."),
                 QStringLiteral("na\u00C3\u00AFve||Ready to believe everything \u00E2\u20AC\u201C "
                                "even \u00E2\u20AC\u0153this\u00E2\u20AC\u009D.")});
        row("rowsfirst-two-columns.dif",
            {QStringLiteral("harbour|A place where ships are safe."),
             QStringLiteral("fa\u00E7ade|The front of a building."),
             QStringLiteral("tidy up|To put things away."),
             QStringLiteral("lantern|A light that is carried by hand.")});
        // The second of three columns is the sentence.
        row("rowsfirst-three-columns.dif",
            {QStringLiteral("harbour||unread"), QStringLiteral("fa\u00E7ade||unread")});
    }

    void filesOfOtherProgramsComeIn()
    {
        QFETCH(QString, file);
        QFETCH(QStringList, entries);
        const QString source = QStringLiteral(TANGLEWIT_TESTS_FOLDER "/transfer/data/") + file;
        QVERIFY2(QFile::exists(source), qPrintable(file));
        const QString chosen = m_command->main.path(QStringLiteral("table.dif"));
        QVERIFY(QFile::copy(source, chosen));
        m_command->expectMsgBox(QStringLiteral("%1 words added").arg(entries.size()));
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
        const QString subscript = QStringLiteral("Run-time error '9':\n\nSubscript out of range");
        const QString mismatch = QStringLiteral("Run-time error '13':\n\nType mismatch");
        const QString invalid =
            QStringLiteral("Run-time error '5':\n\nInvalid procedure call or argument");
        const QString overflow = QStringLiteral("Run-time error '6':\n\nOverflow");
        const QString cat = QStringLiteral("cat|1");
        const QString dog = QStringLiteral("dog|2");
        const QString cow = QStringLiteral("cow|3");
        QTest::newRow("no end of the data")
            << 32 << QByteArray("END") << subscript << QStringList{cat, dog, cow};
        QTest::newRow("cut off") << 0 << QByteArray() << subscript << QStringList{cat};
        QTest::newRow("no number") << 5 << QByteArray("0,V") << mismatch << QStringList();
        QTest::newRow("no number of values") << 8 << QByteArray("0,T") << mismatch << QStringList();
        QTest::newRow("a number instead of a word")
            << 28 << QByteArray("V") << invalid << QStringList{cat, dog};
        QTest::newRow("too many values") << 8 << QByteArray("0,40000") << overflow << QStringList();
    }

    void aFileThatCannotBeImportedIsReported()
    {
        QFETCH(int, line);
        QFETCH(QByteArray, text);
        QFETCH(QString, report);
        QFETCH(QStringList, cameIn);
        QByteArrayList lines =
            difLinesOf({QStringLiteral("cat|1"), QStringLiteral("dog|2"), QStringLiteral("cow|3")});
        if (line == 0)
            lines = lines.mid(0, 21);
        else
            lines[line - 1] = text;
        MainWindow &main = m_command->main;
        main.fill({QStringLiteral("ox")});
        gVocabList().CurrentWord(1);
        gFileName = QStringLiteral("open list");
        gSkipAll = true;
        m_command->expectMsgBox(report);
        m_command->importDif(lines);

        QCOMPARE(openEntries().mid(1), cameIn);
        QCOMPARE(gImportCount.toInt(), int(cameIn.size()));
        QStringList words{QStringLiteral("ox")};
        for (const QString &entry : std::as_const(cameIn))
            words += entry.section(QLatin1Char('|'), 0, 0);
        QCOMPARE(m_command->words(), words);
        QCOMPARE(gVocabList().CurrentWord().toInt(), 1);
        QCOMPARE(main.grid().Row(), 1);
        QCOMPARE(gFileName, QStringLiteral("open list"));
        QCOMPARE(gChanged, !cameIn.isEmpty());
        QVERIFY(!main.action("mnuSave").isEnabled());
        QCOMPARE(ImportTools::flags(), QStringLiteral("taSe"));
        QCOMPARE(main.window().cursor().shape(), Qt::ArrowCursor);

        // The program goes on.
        gSkipAll = false;
        m_command->expectMsgBox(QStringLiteral("1 words imported"));
        m_command->importList({QStringLiteral("new")});
    }

    void aDifFileThatIsNotThereIsReported()
    {
        MainWindow &main = m_command->main;
        main.fill(2);
        gFileName = QStringLiteral("open list");
        const QString lost = main.path(QStringLiteral("lost.dif"));
        m_command->expectReport(QStringLiteral("Run-time error '53':\n\nFile not found\n"), lost);
        m_command->choose(lost);
        QVERIFY(!QFile::exists(lost));
        QCOMPARE(gVocabList().NumWords().toInt(), 2);
        QCOMPARE(gFileName, QStringLiteral("open list"));
        QVERIFY(!gChanged);
    }

    // As everywhere else, opening a list file makes one that is missing.
    void aWordListThatIsNotThereIsAnEmptyOne()
    {
        MainWindow &main = m_command->main;
        main.fill(2);
        m_command->expectMsgBox(QStringLiteral("0 words imported"));
        m_command->choose(main.path(QStringLiteral("lost.lwx")));
        QCOMPARE(gVocabList().NumWords().toInt(), 2);
    }

    void aWordListThatCannotBeReadIsReported()
    {
        MainWindow &main = m_command->main;
        main.fill(2);
        gFileName = QStringLiteral("open list");
        m_command->expectReport(QStringLiteral("Run-time error '9':\n\nSubscript out of range\n"));
        m_command->import(QStringLiteral("broken.lwx"), QByteArray("\xFE\xFF", 2));
        QCOMPARE(gVocabList().NumWords().toInt(), 2);
        QCOMPARE(gFileName, QStringLiteral("open list"));
        QCOMPARE(gVocabList().CurrentWord().toInt(), 1);
    }

    void aFolderThatIsGoneIsReported_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("word list") << QStringLiteral("gone/words.lwx");
        QTest::newRow("DIF file") << QStringLiteral("gone/words.dif");
    }

    void aFolderThatIsGoneIsReported()
    {
        QFETCH(QString, name);
        m_command->expectReport(QStringLiteral("Run-time error '76':\n\nPath not found\n"), name);
        m_command->choose(m_command->main.path(name));
        QCOMPARE(gVocabList().NumWords().toInt(), 0);
    }

    void theListsOwnMessageComesWhereADifFileExceedsTheMaximum()
    {
        QStringList full;
        for (int i = 1; i <= 32000; ++i)
            full += QString::number(i);
        setOpenEntries(full);
        m_command->expectMsgBox(
            QStringLiteral("Cannot add any more words. Maximum number of words= 32000"));
        m_command->expectMsgBox(QStringLiteral("1 words added"));
        m_command->importDif(difLinesOf({QStringLiteral("cat|1")}));
        QCOMPARE(gVocabList().NumWords().toInt(), 32000);
    }

    void aWordListThatExceedsTheMaximumIsRefused()
    {
        QStringList full;
        for (int i = 1; i <= 32000; ++i)
            full += QString::number(i);
        setOpenEntries(full);
        m_command->expectMsgBox(
            QStringLiteral("Cannot import words because this will exceed maximum number of words. "
                           "Maximum number of words=32000"));
        m_command->importList({QStringLiteral("cat")});
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
