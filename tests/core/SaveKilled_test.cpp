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

// The environment variable TANGLEWIT_KILLS sets another number.
const int Kills = qEnvironmentVariableIsSet("TANGLEWIT_KILLS")
                      ? qEnvironmentVariableIntValue("TANGLEWIT_KILLS")
                      : 200;
constexpr int Entries = cVocabList::MaxWords;

// Saves a list with as many entries as can be added. Its texts contain the name.
void writeList(const QString &path, const QString &name, const QString &sentence)
{
    cVocabList list;
    for (int i = 1; i <= Entries; ++i)
        list.AddVocab(u"%1 word %2"_s.arg(name).arg(i),
                      u"what word %1 of list %2 means to us"_s.arg(i).arg(name), sentence);
    Module1::gFileName = path;
    list.SaveFile();
}

// A process that saves until it is killed.
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
        std::mt19937 random(20'240); // the same moments in every run
        // In units of one save. Above 1 for the end of a save and for slow saves.
        std::uniform_real_distribution moment(0.0, 1.5);
        QByteArray before = m_long;
        double microseconds = 0; // that one save takes
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
        // Some kills came before the new file was in place, others after.
        QVERIFY(newFiles > Kills / 20);
        QVERIFY(newFiles < Kills * 19 / 20);
    }

private:
    [[nodiscard]] QString path(const char *name) const
    {
        return m_folder.filePath(QLatin1String(name));
    }
    // A killed save may leave its temporary file.
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
    QByteArray m_short; // the short list saved over it: the rest of the long one stays at the end
};

QTEST_GUILESS_MAIN(SaveKilled_test)
#include "SaveKilled_test.moc"
