// SPDX-License-Identifier: GPL-3.0-or-later
// An error that ends the running command, thrown by value and shown as a numbered run-time error.
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
    // The text for the message box: the line with the number, an empty line, the description, and
    // the detail, if any, on another line.
    [[nodiscard]] QString report() const;
    [[nodiscard]] const char *what() const noexcept override { return m_what.constData(); }

private:
    Number m_number;
    QString m_detail;
    QByteArray m_what;
};
