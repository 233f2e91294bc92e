// SPDX-License-Identifier: GPL-3.0-or-later
// A failure that ends the action under way: thrown by value, reported to the person as a
// numbered run-time error.
#pragma once

#include <QString>

#include <exception>

class RunTimeError final : public std::exception
{
public:
    enum Number {
        InvalidProcedureCall = 5,
        Overflow = 6,
        OutOfMemory = 7,
        SubscriptOutOfRange = 9,
        TypeMismatch = 13,
        BadFileName = 52,
        FileNotFound = 53,
        DeviceIoError = 57,
        DiskFull = 61,
        TooManyFiles = 67,
        PermissionDenied = 70,
        PathFileAccess = 75,
        PathNotFound = 76,
        InvalidFileFormat = 321,
        PrinterFault = 482,
    };

    // detail: for a file error the path and the system's reason, else empty.
    explicit RunTimeError(Number number, QString detail = {});

    [[nodiscard]] Number number() const noexcept { return m_number; }
    // What the person reads: the numbered line, an empty line, the words and, where there is
    // one, the detail on a line of its own.
    [[nodiscard]] QString report() const;
    [[nodiscard]] const char *what() const noexcept override { return m_what.constData(); }

private:
    Number m_number;
    QString m_detail;
    QByteArray m_what;
};
