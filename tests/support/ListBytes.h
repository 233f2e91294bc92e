// SPDX-License-Identifier: GPL-3.0-or-later
// List files made byte by byte, without the program's own code.
#pragma once

#include <QByteArray>
#include <QList>
#include <QStringList>

// Two bytes, the lower one first.
[[nodiscard]] inline QByteArray number16(qsizetype value)
{
    return QByteArray{}.append(char(value & 0xFF)).append(char(value >> 8 & 0xFF));
}

[[nodiscard]] inline QByteArray textBytes(const QByteArray &text)
{
    return number16(text.size()) + text;
}

[[nodiscard]] inline QByteArray recordBytes(const QByteArray &word, const QByteArray &definition,
                                            const QByteArray &sentence)
{
    return textBytes(word) + textBytes(definition) + textBytes(sentence);
}

// Of an entry: word, definition and sentence.
[[nodiscard]] inline QByteArray recordBytes(const QStringList &entry)
{
    QByteArray bytes;
    for (const QString &text : entry)
        bytes += textBytes(text.toLatin1());
    return bytes;
}

[[nodiscard]] inline QByteArray listBytes(const QList<QStringList> &entries)
{
    QByteArray bytes = number16(entries.size());
    for (const QStringList &entry : entries)
        bytes += recordBytes(entry);
    return bytes;
}
