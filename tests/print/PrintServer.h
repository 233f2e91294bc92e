// SPDX-License-Identifier: GPL-3.0-or-later
// A print server for the test, with queues that print into files. It does not touch the system's
// server, and ends with the object or with this process.
#pragma once

#include "support/TestFiles.h"

#include <QProcess>
#include <QStringList>

class PrintServer final
{
public:
    // Sets CUPS's environment variables for this process. Create the server before anything asks
    // for printers.
    PrintServer();
    ~PrintServer();
    Q_DISABLE_COPY_MOVE(PrintServer)

    [[nodiscard]] static bool isInstalled();

    void addQueue(const QString &queue, const QString &driver);
    // A further printer "queue/instance" that prints into the same queue with options of its own.
    void addInstance(const QString &queue, const QString &instance);
    void removeQueue(const QString &queue);
    // "cupsdisable", "cupsenable", "cupsreject" or "cupsaccept"
    void tell(const QString &command, const QString &queue);
    void stop();

    // All jobs that the queue has received.
    [[nodiscard]] qsizetype jobs(const QString &queue) const;
    // Waits until the queue has printed its jobs. Returns the file of the last one.
    [[nodiscard]] QString printed(const QString &queue) const;

private:
    [[nodiscard]] QString path(const QString &name) const { return m_folder.path(name); }
    void configure() const;
    [[nodiscard]] QStringList listed(const QString &queue, const QString &which) const;

    TestFolder m_folder;
    QProcess m_process;
};
