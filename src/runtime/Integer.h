// SPDX-License-Identifier: GPL-3.0-or-later
// The program's whole number: 16 bits, signed, checked.
//
// Range -32768..32767. A conversion or an operation whose result leaves it throws
// RunTimeError Overflow and changes nothing.
#pragma once

#include "runtime/RunTimeError.h"

#include <QString>

#include <compare>
#include <concepts>
#include <utility>

template <class T>
concept WholeNumber = std::integral<T> && !std::same_as<T, bool>;

class Integer
{
public:
    static constexpr int Min = -32768;
    static constexpr int Max = 32767;

    constexpr Integer() = default;
    constexpr Integer(WholeNumber auto value) : m_value(static_cast<short>(value))
    {
        if (std::cmp_less(value, Min) || std::cmp_greater(value, Max))
            throw RunTimeError(RunTimeError::Overflow);
    }

    [[nodiscard]] constexpr int toInt() const { return m_value; }
    [[nodiscard]] QString toText() const { return QString::number(m_value); }

    constexpr Integer &operator+=(Integer other) { return *this = *this + other; }
    constexpr Integer &operator-=(Integer other) { return *this = *this - other; }
    constexpr Integer &operator++() { return *this += 1; }
    constexpr Integer &operator--() { return *this -= 1; }

    friend constexpr Integer operator+(Integer a, Integer b) { return a.toInt() + b.toInt(); }
    friend constexpr Integer operator-(Integer a, Integer b) { return a.toInt() - b.toInt(); }
    friend constexpr Integer operator*(Integer a, Integer b) { return a.toInt() * b.toInt(); }
    friend constexpr bool operator==(Integer a, Integer b) { return a.m_value == b.m_value; }
    friend constexpr std::strong_ordering operator<=>(Integer a, Integer b)
    {
        return a.m_value <=> b.m_value;
    }

private:
    short m_value = 0;
};
