// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/PrintServer.h"

#include "print/OutputOf.h"

#include <QTest>

#include <csignal>
#include <sys/prctl.h>

namespace {

constexpr int LongestWait = 30000; // ms

constexpr const char *Places = R"(ServerRoot FOLDER/root
StateDir FOLDER/state
CacheDir FOLDER/cache
RequestRoot FOLDER/spool
TempDir FOLDER/spool/tmp
AccessLog FOLDER/access
ErrorLog FOLDER/errors
PageLog FOLDER/pages
Printcap
FileDevice Yes
)";

// Everyone who can open the socket has all rights.
constexpr const char *Rights = R"(Listen FOLDER/socket
Browsing No
WebInterface No
DefaultAuthType None
<Location />
  Order allow,deny
  Allow all
</Location>
<Policy default>
  JobPrivateAccess all
  JobPrivateValues none
  SubscriptionPrivateAccess all
  SubscriptionPrivateValues none
  <Limit All>
    Order deny,allow
  </Limit>
</Policy>
)";

} // namespace

PrintServer::PrintServer()
{
    // The server's filters run as another user.
    if (!m_folder.setMode(0711))
        failTest(QStringLiteral("the server's folder cannot be opened for other users"));
    configure();
    qputenv("CUPS_SERVER", QFile::encodeName(path(QStringLiteral("socket"))));
    qputenv("CUPS_SERVERROOT", QFile::encodeName(path(QStringLiteral("root"))));
    m_process.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGTERM); });
    m_process.start(QStringLiteral("/usr/sbin/cupsd"),
                    {QStringLiteral("-f"), QStringLiteral("-c"), path(QStringLiteral("cupsd.conf")),
                     QStringLiteral("-s"), path(QStringLiteral("cups-files.conf"))});
    const QString socket = path(QStringLiteral("socket"));
    if (!m_process.waitForStarted() ||
        !QTest::qWaitFor([&] { return QFile::exists(socket); }, LongestWait))
        failTest(QStringLiteral("no print server: ") + m_process.errorString());
}

PrintServer::~PrintServer()
{
    stop();
}

bool PrintServer::isInstalled()
{
    return QFile::exists(QStringLiteral("/usr/sbin/cupsd")) &&
           QFile::exists(QStringLiteral("/usr/sbin/lpadmin")) &&
           QFile::exists(QStringLiteral("/usr/lib/cups/filter/gstoraster"));
}

void PrintServer::configure() const
{
    for (const char *name : {"root", "state", "cache", "spool/tmp", "printed"})
        QDir().mkpath(path(QLatin1String(name)));
    const auto write = [this](const QString &name, QByteArray text) {
        m_folder.write(name, text.replace("FOLDER", QFile::encodeName(m_folder.path())));
    };
    write(QStringLiteral("cups-files.conf"), Places);
    write(QStringLiteral("cupsd.conf"), Rights);
}

void PrintServer::stop()
{
    m_process.terminate();
    if (!m_process.waitForFinished(LongestWait))
        m_process.kill();
    m_process.waitForFinished();
}

void PrintServer::addQueue(const QString &queue, const QString &driver)
{
    static_cast<void>(outputOf(
        QStringLiteral("/usr/sbin/lpadmin"),
        {QStringLiteral("-p"), queue, QStringLiteral("-E"), QStringLiteral("-P"), driver,
         QStringLiteral("-v"), QStringLiteral("file://") + path(QStringLiteral("printed/")) + queue,
         QStringLiteral("-o"), QStringLiteral("PageSize=A4")}));
}

void PrintServer::addInstance(const QString &queue, const QString &instance)
{
    m_folder.write(QStringLiteral("root/lpoptions"),
                   QStringLiteral("Dest %1/%2 sides=one-sided\n").arg(queue, instance).toUtf8());
}

void PrintServer::removeQueue(const QString &queue)
{
    static_cast<void>(outputOf(QStringLiteral("/usr/sbin/lpadmin"), {QStringLiteral("-x"), queue}));
}

void PrintServer::tell(const QString &command, const QString &queue)
{
    static_cast<void>(outputOf(QStringLiteral("/usr/sbin/") + command, {queue}));
}

QStringList PrintServer::listed(const QString &queue, const QString &which) const
{
    const QByteArray lines = outputOf(QStringLiteral("lpstat"),
                                      {QStringLiteral("-W"), which, QStringLiteral("-o"), queue});
    return QString::fromUtf8(lines).split(u'\n', Qt::SkipEmptyParts);
}

qsizetype PrintServer::jobs(const QString &queue) const
{
    return listed(queue, QStringLiteral("all")).size();
}

QString PrintServer::printed(const QString &queue) const
{
    const auto isDone = [&] {
        return listed(queue, QStringLiteral("not-completed")).isEmpty() &&
               !listed(queue, QStringLiteral("completed")).isEmpty();
    };
    if (!QTest::qWaitFor(isDone, LongestWait))
        failTest(QStringLiteral("the queue %1 does not print its jobs").arg(queue));
    return path(QStringLiteral("printed/")) + queue;
}
