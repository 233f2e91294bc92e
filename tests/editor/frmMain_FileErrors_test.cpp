// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/OpenList.h"
#include "platform/EntryTextBox.h"
#include "support/FormTest.h"
#include "support/SmallFiles.h"

#include <QDir>
#include <QFileInfo>

#include <sys/stat.h>

using namespace Module1;
using namespace Qt::StringLiterals;

class frmMain_FileErrors_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_main = std::make_unique<MainWindow>();
        QVERIFY(QDir().mkdir(m_main->path(u"lists"_s)));
        m_path = m_main->path(u"lists/animals.lwx"_s);
        m_other = m_main->path(u"other.lwx"_s);
        writeFile(m_path, listBytes(m_entries));
        openList(*m_main, m_path);
        addEntry(*m_main, u"cow"_s);
    }

    void cleanup()
    {
        QVERIFY(m_main->answers.allSeen());
        m_main.reset();
    }

    void aFullDiskLeavesTheFileWholeAndTheChangesUnsaved()
    {
        gVocabList().AddVocab(u"long"_s, QString(60'000, QLatin1Char('x')),
                              QString(60'000, QLatin1Char('y')));
        const Entries entries = openEntries();
        gSaved = false;
        const OpenList before(*m_main);
        {
            const SmallFiles small(64 * 1024);
            expectReport(m_path);
            m_main->choose("mnuSave");
        }
        QVERIFY(OpenList(*m_main) == before);
        QVERIFY(gChanged);
        QVERIFY(!gSaved);
        QVERIFY(m_main->action("mnuSave").isEnabled());
        QCOMPARE(readFile(m_path), listBytes(m_entries));
        QCOMPARE(QDir(QFileInfo(m_path).path()).entryList(QDir::Files | QDir::Hidden),
                 QStringList{u"animals.lwx"_s});

        // There is room in another folder.
        m_main->answers.chooseFile(m_other);
        m_main->choose("mnuSaveAs");
        QCOMPARE(readFile(m_other), listBytes(entries));
        QVERIFY(!gChanged);
        QVERIFY(gSaved);
        QCOMPARE(gFileName, m_other);
    }

    void saveAsToAFullDiskKeepsTheName()
    {
        gVocabList().AddVocab(u"long"_s, QString(60'000, QLatin1Char('x')),
                              QString(60'000, QLatin1Char('y')));
        const OpenList before(*m_main);
        {
            const SmallFiles small(64 * 1024);
            m_main->answers.chooseFile(m_other);
            expectReport(m_other);
            m_main->choose("mnuSaveAs");
        }
        QVERIFY(OpenList(*m_main) == before);
        QVERIFY(gChanged);
        QVERIFY(!gSaved);
        QVERIFY(!QFile::exists(m_other));

        const Entries entries = openEntries();
        m_main->answers.expectMsgBox(m_path + u" has been saved."_s);
        m_main->choose("mnuSave");
        QCOMPARE(readFile(m_path), listBytes(entries));
    }

    void saveAsIntoAFolderThatIsGoneKeepsTheName()
    {
        const OpenList before(*m_main);
        const QString lost = m_main->path(u"lost/animals.lwx"_s);
        m_main->answers.chooseFile(lost);
        expectReport(lost, u"Run-time error '76':\n\nPath not found\n"_s);
        m_main->choose("mnuSaveAs");
        QVERIFY(OpenList(*m_main) == before);
        QVERIFY(gChanged);
        QVERIFY(!gSaved);
        QCOMPARE(readFile(m_path), listBytes(m_entries));
    }

    void saveAsOverAPipeKeepsTheName()
    {
        QCOMPARE(mkfifo(QFile::encodeName(m_other).constData(), 0600), 0);
        const OpenList before(*m_main);
        m_main->answers.chooseFile(m_other);
        m_main->answers.answerOverwrite(u"other.lwx"_s, QMessageBox::Yes);
        expectReport(m_other, u"Run-time error '75':\n\nPath/File access error\n"_s);
        m_main->choose("mnuSaveAs");
        QVERIFY(OpenList(*m_main) == before);
        QVERIFY(gChanged);
        QVERIFY(!QFileInfo(m_other).isFile());
    }

    void anUntitledListStaysUntitledWhereSaveAsFails()
    {
        m_main->answers.expectMsgBox(EndLesson, QMessageBox::Ok);
        m_main->answers.expectMsgBox(SaveChanges, QMessageBox::No);
        m_main->choose("mnuNew");
        addEntry(*m_main, u"cow"_s);
        const QString lost = m_main->path(u"lost/animals.lwx"_s);
        m_main->answers.chooseFile(lost);
        expectReport(lost, u"Run-time error '76':\n\nPath not found\n"_s);
        m_main->choose("mnuSave");
        QCOMPARE(gFileName, QString());
        QCOMPARE(gFileTitle, QString());
        QCOMPARE(m_main->window().windowTitle(), CaptionStart + u"(Untitled)"_s);
        QVERIFY(gChanged);
        QVERIFY(m_main->action("mnuSave").isEnabled());
    }

    void saveWhoseFolderIsGoneKeepsTheChanges()
    {
        QVERIFY(QDir(m_main->path(u"lists"_s)).removeRecursively());
        const OpenList before(*m_main);
        expectReport(m_path, u"Run-time error '76':\n\nPath not found\n"_s);
        m_main->choose("mnuSave");
        QVERIFY(OpenList(*m_main) == before);
        QVERIFY(gChanged);
        QVERIFY(m_main->action("mnuSave").isEnabled());
    }

    void saveWithAFolderInTheWayKeepsTheChanges()
    {
        QVERIFY(QFile::remove(m_path));
        QVERIFY(QDir().mkdir(m_path));
        const OpenList before(*m_main);
        expectReport(m_path, u"Run-time error '75':\n\nPath/File access error\n"_s);
        m_main->choose("mnuSave");
        QVERIFY(OpenList(*m_main) == before);
        QVERIFY(gChanged);
        QVERIFY(QDir(m_path).exists());
    }

    void aTextTooLongForTheFileIsReportedBeforeTheFileIsTouched()
    {
        m_main->click("cmdNewWord");
        m_main->type("txtWord", u"long"_s);
        m_main->control<EntryTextBox>("txtSentence").setText(QString(65'536, QLatin1Char('x')));
        m_main->click("cmdAdd");
        m_main->click("cmdAbort");
        const QDateTime written = QFileInfo(m_path).lastModified();
        const OpenList before(*m_main);
        expectReport(u"word 7"_s, u"Run-time error '6':\n\nOverflow\n"_s);
        m_main->choose("mnuSave");
        QVERIFY(OpenList(*m_main) == before);
        QVERIFY(gChanged);
        QCOMPARE(readFile(m_path), listBytes(m_entries));
        QCOMPARE(QFileInfo(m_path).lastModified(), written);

        m_main->answers.chooseFile(m_other);
        expectReport(u"word 7"_s, u"Run-time error '6':\n\nOverflow\n"_s);
        m_main->choose("mnuSaveAs");
        QVERIFY(OpenList(*m_main) == before);
        QVERIFY(!QFile::exists(m_other));
    }

    void theLongestTextIsSavedAndReadWhole()
    {
        m_main->click("cmdNewWord");
        m_main->type("txtWord", u"long"_s);
        m_main->control<EntryTextBox>("txtSentence").setText(QString(65'535, QLatin1Char('x')));
        m_main->click("cmdAdd");
        m_main->click("cmdAbort");
        const Entries entries = openEntries();
        m_main->answers.chooseFile(m_other);
        m_main->choose("mnuSaveAs");
        QCOMPARE(readFile(m_other), listBytes(entries));
        openList(*m_main, m_other);
        QCOMPARE(openEntries(), entries);
    }

    void aFileThatCannotBeReadLeavesTheOpenListWhole_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("report");
        const QString subscript = u"Run-time error '9':\n\nSubscript out of range\n"_s;
        QTest::newRow("count -1") << number16(-1) << subscript;
        QTest::newRow("count -32768") << number16(-32768) << subscript;
        QTest::newRow("negative count before good records")
            << number16(-5) + listBytes(m_entries).mid(2) << subscript;
        QTest::newRow("a pipe") << QByteArray()
                                << u"Run-time error '75':\n\nPath/File access error\n"_s;
    }

    void aFileThatCannotBeReadLeavesTheOpenListWhole()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, report);
        if (bytes.isEmpty())
            QCOMPARE(mkfifo(QFile::encodeName(m_other).constData(), 0600), 0);
        else
            writeFile(m_other, bytes);
        const OpenList before(*m_main);
        m_main->answers.expectMsgBox(EndLesson, QMessageBox::Ok);
        m_main->answers.expectMsgBox(SaveChanges, QMessageBox::No);
        m_main->answers.chooseFile(m_other);
        expectReport(QString(), report);
        m_main->choose("mnuOpen");
        QVERIFY(OpenList(*m_main) == before);
        QVERIFY(gChanged);

        const Entries entries = openEntries();
        m_main->answers.expectMsgBox(m_path + u" has been saved."_s);
        m_main->choose("mnuSave");
        QCOMPARE(readFile(m_path), listBytes(entries));
    }

    void aFileInAFolderThatIsGoneLeavesTheOpenListWhole()
    {
        const OpenList before(*m_main);
        const QString lost = m_main->path(u"lost/animals.lwx"_s);
        m_main->answers.expectMsgBox(EndLesson, QMessageBox::Ok);
        m_main->answers.expectMsgBox(SaveChanges, QMessageBox::No);
        m_main->answers.chooseFile(lost);
        expectReport(lost, u"Run-time error '76':\n\nPath not found\n"_s);
        m_main->choose("mnuOpen");
        QVERIFY(OpenList(*m_main) == before);
    }

private:
    void expectReport(const QString &part, const QString &start = u"Run-time error '"_s)
    {
        m_main->answers.expectAnyMsgBox(QMessageBox::Ok, [part, start](QMessageBox &box) {
            QVERIFY2(box.text().startsWith(start) && box.text().contains(part),
                     qPrintable(box.text()));
            QCOMPARE(box.standardButtons(), QMessageBox::StandardButtons(QMessageBox::Ok));
        });
    }

    const Entries m_entries = someEntries(5, u"animal"_s);
    QString m_path;
    QString m_other;
    std::unique_ptr<MainWindow> m_main;
};

int main(int argc, char *argv[])
{
    return runFormTest<frmMain_FileErrors_test>(argc, argv);
}

#include "frmMain_FileErrors_test.moc"
