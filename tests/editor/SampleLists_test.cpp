// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/SampleLists.h"

#include "core/FreshState.h"
#include "core/Module1.h"
#include "core/cVocabList.h"
#include "runtime/ChildProcess.h"
#include "support/SmallFiles.h"
#include "support/TestFiles.h"

#include <QDir>
#include <QFile>
#include <QSet>
#include <QTest>

#include <algorithm>
#include <csignal>

using namespace Qt::StringLiterals;

namespace {

const QString Folder = u"MyLists"_s;

// Inflected words differ at their ends, so only their beginnings are compared.
bool isMentioned(const QString &word, const QString &sentence)
{
    const QStringList parts = word.split(QLatin1Char(' '));
    return std::all_of(parts.begin(), parts.end(), [&sentence](const QString &part) {
        return sentence.contains(part.left(3), Qt::CaseInsensitive);
    });
}

} // namespace

class SampleLists_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFolderIsMadeAndFilled()
    {
        const FreshState state;
        installSampleLists(state.path(Folder));
        const QDir samples(u":/lists"_s);
        const QDir installed(state.path(Folder));
        QVERIFY(samples.entryList(QDir::Files).size() >= 5);
        QCOMPARE(installed.entryList(QDir::Files), samples.entryList(QDir::Files));
        for (const QString &name : samples.entryList(QDir::Files)) {
            const QString copy = installed.filePath(name);
            QCOMPARE(readFile(copy), readFile(samples.filePath(name)));
            // Resources are read-only, the copies must not be.
            QVERIFY(QFile::permissions(copy).testFlags(QFile::ReadOwner | QFile::WriteOwner));
        }
        // No other folder is left.
        QCOMPARE(QDir(state.home()).entryList(QDir::Dirs | QDir::NoDotAndDotDot),
                 QStringList{Folder});
    }

    void aFolderThatExistsIsLeftAsItIs_data()
    {
        QTest::addColumn<QStringList>("files");
        QTest::newRow("empty") << QStringList();
        QTest::newRow("with a list") << QStringList{u"mine.lwx"_s};
        QTest::newRow("with a sample that was changed")
            << QStringList{u"French - First Words.lwx"_s};
    }

    void aFolderThatExistsIsLeftAsItIs()
    {
        QFETCH(QStringList, files);
        const FreshState state;
        const QDir folder(state.path(Folder));
        QVERIFY(QDir().mkpath(folder.path()));
        for (const QString &name : files)
            writeFile(folder.filePath(name), "mine");
        installSampleLists(folder.path());
        QCOMPARE(folder.entryList(QDir::Files), files);
        for (const QString &name : files)
            QCOMPARE(readFile(folder.filePath(name)), "mine"_ba);
    }

    void aFolderThatCannotBeMadeIsAnError()
    {
        const FreshState state;
        writeFile(state.path(u"file"_s), "in the way");
        try {
            installSampleLists(state.path(u"file/MyLists"_s));
            QFAIL("no error");
        } catch (const RunTimeError &error) {
            QCOMPARE(error.number(), RunTimeError::PathNotFound);
            QVERIFY(
                error.report().contains(QDir::toNativeSeparators(state.path(u"file/MyLists"_s))));
        }
    }

    void aFullDiskIsAnErrorAndNothingIsLeft()
    {
        const FreshState state;
        QCOMPARE(errorNumberInChildProcess([&] {
                     std::signal(SIGXFSZ, SIG_IGN);
                     const SmallFiles small(1000);
                     installSampleLists(state.path(Folder));
                     return 0;
                 }),
                 int(RunTimeError::DiskFull));
        QCOMPARE(QDir(state.home()).entryList(QDir::Dirs | QDir::NoDotAndDotDot), QStringList());
    }

    void aStartFinishesAFolderLeftUnfinished()
    {
        const FreshState state;
        QVERIFY(QDir().mkpath(state.path(u"MyLists.new"_s)));
        writeFile(state.path(u"MyLists.new/French - First Words.lwx"_s), {});
        installSampleLists(state.path(Folder));
        QCOMPARE(QDir(state.path(Folder)).entryList(QDir::Files),
                 QDir(u":/lists"_s).entryList(QDir::Files));
        QCOMPARE(QDir(state.home()).entryList(QDir::Dirs | QDir::NoDotAndDotDot),
                 QStringList{Folder});
    }

    void theFolderHasNoDot()
    {
        // Import finds the extension of a file by the first dot of its path.
        const QStringList names = QDir(u":/lists"_s).entryList(QDir::Files);
        for (const QString &name : names)
            QCOMPARE(name.indexOf(QLatin1Char('.')), name.size() - 4);
    }

    void eachListIsGood_data()
    {
        QTest::addColumn<QString>("name");
        const QStringList names = QDir(u":/lists"_s).entryList(QDir::Files);
        for (const QString &name : names)
            QTest::newRow(qUtf8Printable(name)) << name;
    }

    void eachListIsGood()
    {
        QFETCH(QString, name);
        const FreshState state;
        installSampleLists(state.path(Folder));
        Module1::gFileName = QDir(state.path(Folder)).filePath(name);
        cVocabList &list = Module1::gVocabList();
        QVERIFY(list.OpenFile());
        QVERIFY(list.NumWords() >= 40);

        QSet<QString> words;
        for (Integer item = 1; item <= list.NumWords(); ++item) {
            list.CurrentWord(item);
            const QString word = list.Word();
            const QByteArray what = u"entry %1, \"%2\""_s.arg(item.toText(), word).toUtf8();
            // Longer words have no letter tiles in the game, shorter ones no scramble.
            QVERIFY2(word.size() >= 3 && word.size() <= 30, what);
            QVERIFY2(!words.contains(word.toLower()), what);
            words += word.toLower();
            QVERIFY2(!list.Definition().isEmpty(), what);
            QVERIFY2(!list.Sentence().isEmpty(), what);
            QVERIFY2(isMentioned(word, list.Sentence()), what);
            for (const QString &text : {word, list.Definition(), list.Sentence()}) {
                QCOMPARE(text, text.simplified());
                // Written in place of a character that Windows-1252 lacks.
                QVERIFY2(!text.contains(u"??"_s) && !word.contains(QLatin1Char('?')), what);
            }
        }
    }

    void oneListHasAccentsAndOneTwoWordPhrases()
    {
        int listsWithAccents = 0;
        int listsOfPhrases = 0;
        const QDir samples(u":/lists"_s);
        for (const QString &name : samples.entryList(QDir::Files)) {
            const FreshState state;
            installSampleLists(state.path(Folder));
            Module1::gFileName = QDir(state.path(Folder)).filePath(name);
            cVocabList &list = Module1::gVocabList();
            QVERIFY(list.OpenFile());
            int accents = 0;
            int phrases = 0;
            for (Integer item = 1; item <= list.NumWords(); ++item) {
                list.CurrentWord(item);
                const QString word = list.Word();
                accents += std::any_of(word.begin(), word.end(),
                                       [](QChar letter) { return letter.unicode() > 0x7F; })
                               ? 1
                               : 0;
                phrases += word.count(QLatin1Char(' ')) == 1 ? 1 : 0;
            }
            listsWithAccents += accents >= 5 ? 1 : 0;
            listsOfPhrases += list.NumWords() == phrases ? 1 : 0;
        }
        QVERIFY(listsWithAccents >= 1);
        QVERIFY(listsOfPhrases >= 1);
    }
};

QTEST_GUILESS_MAIN(SampleLists_test)

#include "SampleLists_test.moc"
