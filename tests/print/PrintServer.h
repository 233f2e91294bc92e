// SPDX-License-Identifier: GPL-3.0-or-later
// A print server of the test's own, with queues that print into files. The system's server is not
// touched. It ends with the object, and with this process.
#pragma once

#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

class PrintServer final
{
public:
    // Programs and libraries of this process take it for the system's server from now on, so it
    // has to be there before they ask for one.
    PrintServer();
    ~PrintServer();
    Q_DISABLE_COPY_MOVE(PrintServer)

    void addQueue(const QString &queue, const QString &driver);
    void removeQueue(const QString &queue);
    // "cupsdisable", "cupsenable", "cupsreject" or "cupsaccept"
    void tell(const QString &command, const QString &queue);
    void stop();

    // How many jobs the queue was ever given.
    [[nodiscard]] qsizetype jobs(const QString &queue) const;
    // Waits for the end of the queue's jobs. Where the last one was printed to.
    [[nodiscard]] QString printed(const QString &queue) const;

private:
    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }
    void configure() const;
    [[nodiscard]] QStringList listed(const QString &queue, const QString &which) const;

    QTemporaryDir m_folder;
    QProcess m_process;
};

// What a program prints on its standard output. Ends the test where it fails.
[[nodiscard]] QByteArray outputOf(const QString &program, const QStringList &arguments);
