// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Paths.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

class Paths_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_home = std::make_unique<QTemporaryDir>();
        QVERIFY(m_home->isValid());
        qputenv("HOME", QFile::encodeName(m_home->path()));
        qputenv("XDG_DATA_HOME", QFile::encodeName(m_home->filePath(QStringLiteral("data"))));
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_home->filePath(QStringLiteral("config"))));
    }

    void userDataIsAFolderOfThePersonsDataAndIsMade()
    {
        const QString folder = m_home->filePath(QStringLiteral("data/Lexibrook"));
        QVERIFY(!QDir(folder).exists());
        QCOMPARE(pathOf(Place::UserData), folder);
        QVERIFY(QDir(folder).exists());
    }

    void withoutADataFolderOfItsOwnTheDataLiesInTheHome()
    {
        qunsetenv("XDG_DATA_HOME");
        const QString folder = m_home->filePath(QStringLiteral(".local/share/Lexibrook"));
        QCOMPARE(pathOf(Place::UserData), folder);
        QVERIFY(QDir(folder).exists());
    }

    void top10IsAFileOfUserDataWhoseFolderIsMade()
    {
        const QString file = m_home->filePath(QStringLiteral("data/Lexibrook/top10.bin"));
        QCOMPARE(pathOf(Place::Top10), file);
        QVERIFY(QDir(m_home->filePath(QStringLiteral("data/Lexibrook"))).exists());
        QVERIFY(!QFile::exists(file));
    }

    void wordListsLieInDocumentsAndOnlyTheFolderAroundThemIsMade()
    {
        const QString folder = m_home->filePath(QStringLiteral("Documents/Lexibrook/MyLists"));
        QCOMPARE(pathOf(Place::WordLists), folder);
        QVERIFY(QDir(m_home->filePath(QStringLiteral("Documents/Lexibrook"))).exists());
        QVERIFY(!QDir(folder).exists());
    }

    void documentsAreWhereTheDesktopSays()
    {
        QVERIFY(QDir().mkpath(m_home->filePath(QStringLiteral("config"))));
        QFile places(m_home->filePath(QStringLiteral("config/user-dirs.dirs")));
        QVERIFY(places.open(QIODevice::WriteOnly));
        places.write("XDG_DOCUMENTS_DIR=\"$HOME/Schriften\"\n");
        places.close();
        QCOMPARE(pathOf(Place::WordLists),
                 m_home->filePath(QStringLiteral("Schriften/Lexibrook/MyLists")));
        QVERIFY(QDir(m_home->filePath(QStringLiteral("Schriften/Lexibrook"))).exists());
        QVERIFY(!QDir(m_home->filePath(QStringLiteral("Documents"))).exists());
    }

    // Import tells kinds of files by the first dot of the path.
    void noFixedFolderBringsADotIntoThePath()
    {
        const QString inHome = pathOf(Place::WordLists).mid(m_home->path().size());
        QVERIFY2(!inHome.contains(QLatin1Char('.')), qPrintable(inHome));
    }

    void aFolderThatIsThereKeepsItsFiles()
    {
        const QString path = pathOf(Place::Top10);
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("scores");
        file.close();
        QCOMPARE(pathOf(Place::Top10), path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("scores"));
    }

    void whatComesWithTheProgramIsFoundFromItsFolderAndNeverMade()
    {
        const QDir program(QCoreApplication::applicationDirPath());
        QCOMPARE(pathOf(Place::Plugins),
                 QDir::cleanPath(program.filePath(QStringLiteral("../../plugins"))));
        QVERIFY(QDir(pathOf(Place::Plugins)).exists());
        QVERIFY(QDir(pathOf(Place::Audio)).isAbsolute());
        QCOMPARE(QDir(pathOf(Place::Audio)).dirName(), QStringLiteral("Audio"));
    }

private:
    std::unique_ptr<QTemporaryDir> m_home;
};

QTEST_GUILESS_MAIN(Paths_test)
#include "Paths_test.moc"
