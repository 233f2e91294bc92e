// SPDX-License-Identifier: GPL-3.0-or-later
// Reads little-endian numbers and length-prefixed texts off a byte span, never beyond its end.
//
// A number that does not lie in the span whole is zero; a text cut off keeps what is there.
#pragma once

#include "runtime/Windows1252.h"

#include <QtEndian>

class ByteReader
{
public:
    explicit ByteReader(QByteArrayView bytes) : m_rest(bytes) {}

    [[nodiscard]] bool atEnd() const { return m_rest.isEmpty(); }
    [[nodiscard]] qsizetype left() const { return m_rest.size(); }
    // Whether something was asked for that does not lie in the span whole.
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
