// SPDX-License-Identifier: GPL-3.0-or-later
// Kills the editor at random moments of a random editing session. All actions that had ended a
// second before must be in the list file or in the copy of the unsaved list. TANGLEWIT_KILLS is the
// number of kills, 200 by default.
#include "core/ListFile.h"
#include "core/cVocabList.h"
#include "editor/EditingSession.h"
#include "support/TestFiles.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <atomic>
#include <memory>
#include <mutex>
#include <random>

using namespace EditingSession;
using namespace Qt::StringLiterals;

namespace {

constexpr int Sessions = 8;    // at the same time
constexpr int Lateness = 1000; // milliseconds that a copy may take
constexpr int Longest = 3000;  // from the first action to the kill

// The content of a list file, written as the session writes it; empty if there is no file.
QByteArray listIn(const QString &path)
{
    const QByteArray bytes = QFile::exists(path) ? readFile(path) : QByteArray();
    const ListFile::Content content = ListFile::decode(bytes, cVocabList::MaxWords);
    QByteArray list;
    for (const VocabRecord &record : content.records)
        for (const QString *text : {&record.Word, &record.Definition, &record.Sentence})
            list += QString(text->constData(), text->size()).toLatin1() + FieldEnd;
    return list;
}

// What a session wrote until it was killed.
struct Session
{
    QString home;
    QByteArrayList lists; // before the first action, and at the end of each
    QList<qint64> ends;   // moments of the actions' ends; the last one may have none
};

Session sessionOf(const QByteArray &told, const QByteArray &firstList)
{
    Session session;
    session.lists += firstList;
    const QByteArrayList lines = told.split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith(Home))
            session.home = QString::fromUtf8(line.mid(qsizetype(qstrlen(Home))));
        else if (line.startsWith(Begin))
            session.lists += line.mid(qsizetype(qstrlen(Begin)));
        else if (line.startsWith(End))
            session.ends += line.mid(qsizetype(qstrlen(End))).toLongLong();
    }
    return session;
}

QString listFile(const Session &session)
{
    return session.home + u'/' + QLatin1String(ListName);
}

} // namespace

class UnsavedKilled_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatWasFinishedASecondBeforeAKillIsThere()
    {
        bool given = false;
        const int wanted = qEnvironmentVariableIntValue("TANGLEWIT_KILLS", &given);
        const int kills = given ? wanted : 200;
        std::vector<std::unique_ptr<QThread>> threads;
        for (int i = 0; i < Sessions; ++i) {
            threads.emplace_back(QThread::create([this, kills] { killSessions(kills); }));
            threads.back()->start();
        }
        for (const auto &thread : threads)
            thread->wait();
        qInfo("%d kills: %d with finished actions, %d of them in the copy alone", kills,
              m_editedLong.load(), m_onlyInCopy.load());
        QVERIFY2(m_failures.isEmpty(), qPrintable(m_failures.join(u'\n')));
        QVERIFY(m_editedLong >= kills / 2);
        QVERIFY(m_onlyInCopy >= kills / 8);
    }

private:
    void killSessions(int kills)
    {
        for (int number = m_begun++; number < kills; number = m_begun++) {
            const QString failure = killOnce(static_cast<unsigned>(number));
            const std::lock_guard lock(m_mutex);
            if (!failure.isEmpty())
                m_failures += u"kill %1: %2"_s.arg(number).arg(failure);
        }
    }

    // Empty if nothing is lost.
    [[nodiscard]] QString killOnce(unsigned seed)
    {
        const QTemporaryDir folder; // of the session's home
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"TMPDIR"_s, folder.path());
        environment.insert(QString::fromLatin1(Seed), QString::number(seed));
        process.setProcessEnvironment(environment);
        process.setProcessChannelMode(QProcess::SeparateChannels);
        process.start(QStringLiteral(EDITING_CHILD), {u"-o"_s, u"/dev/null,txt"_s});
        while (!process.canReadLine())
            if (!process.waitForReadyRead())
                return u"the session does not start"_s;
        QByteArray told = process.readLine();
        const QByteArray firstList = listIn(listFile(sessionOf(told, {})));

        std::mt19937 random(seed);
        const qint64 moment =
            milliseconds() + std::uniform_int_distribution(Lateness, Longest)(random);
        while (milliseconds() < moment)
            process.waitForReadyRead(
                static_cast<int>(std::max<qint64>(moment - milliseconds(), 0)));
        if (process.state() != QProcess::Running)
            return u"the session has ended by itself"_s;
        const qint64 killed = milliseconds();
        process.kill();
        process.waitForFinished();
        told += process.readAllStandardOutput();
        return lost(sessionOf(told, firstList), killed);
    }

    [[nodiscard]] QString lost(const Session &session, qint64 killed)
    {
        qsizetype finished = 0; // actions whose outcome must be there
        while (finished < session.ends.size() && session.ends.at(finished) <= killed - Lateness)
            ++finished;
        const QByteArray inList = listIn(listFile(session));
        QByteArrayList found{inList};
        const QDir folder(session.home + u"/Documents/Lexibrook/MyLists"_s);
        const QStringList copies = folder.entryList({u"*(not saved)*.lwx"_s}, QDir::Files);
        for (const QString &copy : copies)
            found += listIn(folder.filePath(copy));

        // It may hold later actions, too, but none of them in part.
        const QByteArrayList allowed = session.lists.mid(finished);
        m_editedLong += finished > 0 ? 1 : 0;
        if (allowed.contains(inList))
            return {};
        for (const QByteArray &list : std::as_const(found))
            if (allowed.contains(list)) {
                ++m_onlyInCopy;
                return {};
            }
        return u"found %1 instead of %2"_s.arg(QString::fromLatin1(found.join(" and ")),
                                               QString::fromLatin1(allowed.join(" or ")));
    }

    std::atomic<int> m_begun = 0;
    std::atomic<int> m_editedLong = 0; // sessions with actions that must not be lost
    std::atomic<int> m_onlyInCopy = 0; // with some that were not in the list file
    std::mutex m_mutex;
    QStringList m_failures;
};

QTEST_GUILESS_MAIN(UnsavedKilled_test)
#include "UnsavedKilled_test.moc"
