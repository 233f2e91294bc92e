// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/RunTimeError.h"

#include <utility>

namespace {

QString words(RunTimeError::Number number)
{
    switch (number) {
    case RunTimeError::InvalidProcedureCall:
        return QStringLiteral("Invalid procedure call or argument");
    case RunTimeError::Overflow:
        return QStringLiteral("Overflow");
    case RunTimeError::OutOfMemory:
        return QStringLiteral("Out of memory");
    case RunTimeError::SubscriptOutOfRange:
        return QStringLiteral("Subscript out of range");
    case RunTimeError::TypeMismatch:
        return QStringLiteral("Type mismatch");
    case RunTimeError::BadFileName:
        return QStringLiteral("Bad file name or number");
    case RunTimeError::FileNotFound:
        return QStringLiteral("File not found");
    case RunTimeError::DeviceIoError:
        return QStringLiteral("Device I/O error");
    case RunTimeError::DiskFull:
        return QStringLiteral("Disk full");
    case RunTimeError::TooManyFiles:
        return QStringLiteral("Too many files");
    case RunTimeError::PermissionDenied:
        return QStringLiteral("Permission denied");
    case RunTimeError::PathFileAccess:
        return QStringLiteral("Path/File access error");
    case RunTimeError::PathNotFound:
        return QStringLiteral("Path not found");
    case RunTimeError::InvalidFileFormat:
        return QStringLiteral("Invalid file format");
    case RunTimeError::PrinterFault:
        return QStringLiteral("Printer error");
    }
    return {};
}

} // namespace

RunTimeError::RunTimeError(Number number, QString detail)
    : m_number(number), m_detail(std::move(detail)), m_what(report().toUtf8())
{
}

QString RunTimeError::report() const
{
    QString text =
        QStringLiteral("Run-time error '%1':\n\n%2").arg(int(m_number)).arg(words(m_number));
    if (!m_detail.isEmpty())
        text += QLatin1Char('\n') + m_detail;
    return text;
}
