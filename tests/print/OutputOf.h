// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/Caller.h"

#include <QProcess>

// The standard output of a program. Fails the test if the program fails.
[[nodiscard]] inline QByteArray outputOf(const QString &program, const QStringList &arguments,
                                         Caller caller = Caller::current())
{
    constexpr int longestWait = 30'000; // ms
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished(longestWait) || process.exitStatus() != QProcess::NormalExit ||
        process.exitCode() != 0)
        failTest(program + QLatin1String(": ") + process.errorString() + QLatin1Char(' ') +
                     QString::fromLocal8Bit(process.readAllStandardError()),
                 caller);
    return process.readAllStandardOutput();
}
