// SPDX-License-Identifier: GPL-3.0-or-later
// Reads little-endian numbers and texts with a length prefix from a range of bytes, never beyond
// its end. A number that is not complete is read as zero, a text that is not complete as its start.
#pragma once

#include "runtime/Windows1252.h"

#include <QtEndian>

class ByteReader
{
public:
    explicit ByteReader(QByteArrayView bytes) : m_rest(bytes) {}

    [[nodiscard]] bool atEnd() const { return m_rest.isEmpty(); }
    [[nodiscard]] qsizetype left() const { return m_rest.size(); }
    // Whether something was read that is not complete.
    [[nodiscard]] bool ranOut() const { return m_ranOut; }

    // As many bytes as there are, up to the size.
    QByteArrayView take(qsizetype size)
    {
        if (size > m_rest.size()) [[unlikely]] {
            m_ranOut = true;
            size = m_rest.size();
        }
        const QByteArrayView taken = m_rest.first(size);
        m_rest = m_rest.sliced(taken.size());
        return taken;
    }

    template <class Number> Number number()
    {
        const QByteArrayView bytes = take(sizeof(Number));
        return bytes.size() < qsizetype(sizeof(Number)) ? Number(0)
                                                        : qFromLittleEndian<Number>(bytes.data());
    }

    // An unsigned 16-bit length in bytes, then that many bytes of Windows-1252.
    QByteArrayView textBytes() { return take(number<quint16>()); }
    QString text() { return fromWindows1252(textBytes()); }

private:
    QByteArrayView m_rest;
    bool m_ranOut = false;
};
