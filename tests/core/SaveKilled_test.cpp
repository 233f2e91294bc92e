// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Module1.h"
#include "core/cVocabList.h"
#include "support/TestFiles.h"

#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <random>

using namespace Qt::StringLiterals;

namespace {

// TANGLEWIT_KILLS=1000 SaveKilled_test: more of them than a run of all tests has time for.
const int Kills = qEnvironmentVariableIsSet("TANGLEWIT_KILLS")
                      ? qEnvironmentVariableIntValue("TANGLEWIT_KILLS")
                      : 200;
constexpr int Entries = cVocabList::MaxWords;

// A list of the largest size with texts of everyday length, which name the list.
void writeList(const QString &path, const QString &name, const QString &sentence)
{
    cVocabList list;
    for (int i = 1; i <= Entries; ++i)
        list.AddVocab(u"%1 word %2"_s.arg(name).arg(i),
                      u"what word %1 of list %2 means to us"_s.arg(i).arg(name), sentence);
    Module1::gFileName = path;
    list.SaveFile();
}

// A process that saves without end.
class SavingProcess
{
public:
    SavingProcess(const QString &target, const QString &first, const QString &second)
    {
        m_process.start(QStringLiteral(SAVING_CHILD), {target, first, second});
    }
    Q_DISABLE_COPY_MOVE(SavingProcess)
    ~SavingProcess() { kill(); }

    // Waits until a save begins or ends.
    [[nodiscard]] bool saveBegins() { return tells('.'); }
    [[nodiscard]] bool saveEnds() { return tells(','); }

    [[nodiscard]] bool isRunning() const { return m_process.state() == QProcess::Running; }

    void kill()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

private:
    [[nodiscard]] bool tells(char event)
    {
        while (m_process.bytesAvailable() == 0)
            if (!m_process.waitForReadyRead())
                return false;
        char told = 0;
        return m_process.read(&told, 1) == 1 && told == event;
    }

    QProcess m_process;
};

} // namespace

class SaveKilled_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_folder.isValid());
        writeList(path("long.lwx"), u"long"_s,
                  u"This sentence of the long list is there to be read."_s);
        writeList(path("short.lwx"), u"short"_s, u"The other list says less."_s);
        m_long = readFile(path("long.lwx"));
        m_short = readFile(path("short.lwx"));
        QVERIFY(m_short.size() > 2'000'000);
        QVERIFY(m_long.size() > m_short.size());
        m_short += m_long.sliced(m_short.size());
        QVERIFY(QFile::copy(path("long.lwx"), path("target.lwx")));
    }

    void aSaveKilledAtAnyMomentLeavesTheOldFileOrTheNewOneWhole()
    {
        std::mt19937 random(20'240); // the same moments at every run
        // As a part of a save's duration; beyond one for the save's end and for slower ones.
        std::uniform_real_distribution moment(0.0, 1.5);
        QByteArray before = m_long;
        double microseconds = 0; // that a save takes at present
        int newFiles = 0;
        for (int killed = 1; killed <= Kills; ++killed) {
            const bool longIsNew = before == m_short;
            const QString oldList = path(longIsNew ? "short.lwx" : "long.lwx");
            const QString newList = path(longIsNew ? "long.lwx" : "short.lwx");
            const bool measuring = killed % 10 == 1;
            SavingProcess saving(path("target.lwx"), measuring ? oldList : newList,
                                 measuring ? newList : oldList);
            QVERIFY(saving.saveBegins());
            if (measuring) {
                QElapsedTimer oneSave;
                oneSave.start();
                QVERIFY(saving.saveEnds());
                microseconds = static_cast<double>(oneSave.nsecsElapsed()) / 1000;
                QVERIFY(saving.saveBegins());
            }
            QThread::usleep(static_cast<unsigned long>(moment(random) * microseconds));
            QVERIFY(saving.isRunning());
            saving.kill();

            const QByteArray found = readFile(path("target.lwx"));
            const QByteArray context = "kill " + QByteArray::number(killed);
            QVERIFY2(found == m_long || found == m_short, context);
            newFiles += found == before ? 0 : 1;
            before = found;
            removeLeftovers();

            cVocabList list;
            Module1::gFileName = path("target.lwx");
            QVERIFY2(list.OpenFile(), context);
            QCOMPARE(list.NumWords(), Integer(Entries));
            list.CurrentWord(Entries);
            QVERIFY2(list.Word().startsWith(QLatin1String(found == m_long ? "long" : "short")),
                     context);
        }
        qInfo("%d of %d kills left the new file", newFiles, Kills);
        // The kills were spread over the save: before the new file was in place, and after.
        QVERIFY(newFiles > Kills / 20);
        QVERIFY(newFiles < Kills * 19 / 20);
    }

private:
    [[nodiscard]] QString path(const char *name) const
    {
        return m_folder.filePath(QLatin1String(name));
    }
    // Removes what a killed save may leave beside the lists: its unfinished file, where that has a
    // name yet.
    void removeLeftovers() const
    {
        QStringList names = QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden);
        for (const char *own : {"long.lwx", "short.lwx", "target.lwx"})
            names.removeAll(QLatin1String(own));
        for (const QString &name : std::as_const(names))
            QFile::remove(m_folder.filePath(name));
    }

    QTemporaryDir m_folder;
    QByteArray m_long;  // the file after a save of the long list
    QByteArray m_short; // and of the short one over it, which keeps the long one's tail
};

QTEST_GUILESS_MAIN(SaveKilled_test)
#include "SaveKilled_test.moc"
