// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Paths.h"

#include "support/TestFiles.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

class Paths_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_home = std::make_unique<QTemporaryDir>();
        QVERIFY(m_home->isValid());
        qputenv("HOME", QFile::encodeName(m_home->path()));
        qputenv("XDG_DATA_HOME", QFile::encodeName(m_home->filePath(u"data"_s)));
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_home->filePath(u"config"_s)));
    }

    void userDataIsAFolderOfThePersonsDataAndIsMade()
    {
        const QString folder = m_home->filePath(u"data/Lexibrook"_s);
        QVERIFY(!QDir(folder).exists());
        QCOMPARE(pathOf(Place::UserData), folder);
        QVERIFY(QDir(folder).exists());
    }

    void withoutADataFolderOfItsOwnTheDataLiesInTheHome()
    {
        qunsetenv("XDG_DATA_HOME");
        const QString folder = m_home->filePath(u".local/share/Lexibrook"_s);
        QCOMPARE(pathOf(Place::UserData), folder);
        QVERIFY(QDir(folder).exists());
    }

    void top10IsAFileOfUserDataWhoseFolderIsMade()
    {
        const QString file = m_home->filePath(u"data/Lexibrook/top10.bin"_s);
        QCOMPARE(pathOf(Place::Top10), file);
        QVERIFY(QDir(m_home->filePath(u"data/Lexibrook"_s)).exists());
        QVERIFY(!QFile::exists(file));
    }

    void wordListsLieInDocumentsAndOnlyTheFolderAroundThemIsMade()
    {
        const QString folder = m_home->filePath(u"Documents/Lexibrook/MyLists"_s);
        QCOMPARE(pathOf(Place::WordLists), folder);
        QVERIFY(QDir(m_home->filePath(u"Documents/Lexibrook"_s)).exists());
        QVERIFY(!QDir(folder).exists());
    }

    void documentsAreWhereTheDesktopSays()
    {
        QVERIFY(QDir().mkpath(m_home->filePath(u"config"_s)));
        writeFile(m_home->filePath(u"config/user-dirs.dirs"_s),
                  "XDG_DOCUMENTS_DIR=\"$HOME/Schriften\"\n");
        QCOMPARE(pathOf(Place::WordLists), m_home->filePath(u"Schriften/Lexibrook/MyLists"_s));
        QVERIFY(QDir(m_home->filePath(u"Schriften/Lexibrook"_s)).exists());
        QVERIFY(!QDir(m_home->filePath(u"Documents"_s)).exists());
    }

    // Import finds the extension by the first dot of the whole path.
    void noFixedFolderHasADot()
    {
        const QString inHome = pathOf(Place::WordLists).mid(m_home->path().size());
        QVERIFY2(!inHome.contains(u'.'), qPrintable(inHome));
    }

    void aFolderThatIsThereKeepsItsFiles()
    {
        const QString path = pathOf(Place::Top10);
        writeFile(path, "scores");
        QCOMPARE(pathOf(Place::Top10), path);
        QCOMPARE(readFile(path), "scores"_ba);
    }

    void whatComesWithTheProgramIsFoundFromItsFolderAndNeverMade()
    {
        const QDir program(QCoreApplication::applicationDirPath());
        QCOMPARE(pathOf(Place::Plugins), QDir::cleanPath(program.filePath(u"../../plugins"_s)));
        QVERIFY(QDir(pathOf(Place::Plugins)).exists());
        QVERIFY(QDir(pathOf(Place::Audio)).isAbsolute());
        QCOMPARE(QDir(pathOf(Place::Audio)).dirName(), u"Audio"_s);
    }

private:
    std::unique_ptr<QTemporaryDir> m_home;
};

QTEST_GUILESS_MAIN(Paths_test)
#include "Paths_test.moc"
