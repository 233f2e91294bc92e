// SPDX-License-Identifier: GPL-3.0-or-later
// An exact amount with four decimals: a 64-bit count of ten-thousandths, checked.
//
// What has more decimals is rounded to the nearest ten-thousandth, halves to the even one. A
// value beyond the 64 bits throws RunTimeError Overflow.
#pragma once

#include "runtime/Integer.h"

#include <compare>
#include <cstdint>
#include <limits>

class Currency
{
public:
    static constexpr std::int64_t Scale = 10'000;

    constexpr Currency() = default;
    constexpr Currency(Integer whole) : m_scaled(whole.toInt() * Scale) {}
    constexpr Currency(int whole) : m_scaled(whole * Scale) {}
    // Throws TypeMismatch for what is not finite.
    explicit Currency(double value);

    // Takes the texts that toNumber takes.
    [[nodiscard]] static Currency fromText(const QString &text);
    [[nodiscard]] static constexpr Currency fromScaled(std::int64_t tenThousandths)
    {
        Currency value;
        value.m_scaled = tenThousandths;
        return value;
    }
    [[nodiscard]] static constexpr Currency largest()
    {
        return fromScaled(std::numeric_limits<std::int64_t>::max());
    }
    [[nodiscard]] static constexpr Currency smallest()
    {
        return fromScaled(std::numeric_limits<std::int64_t>::min());
    }

    [[nodiscard]] constexpr std::int64_t scaled() const { return m_scaled; }
    [[nodiscard]] double toDouble() const { return static_cast<double>(m_scaled) / Scale; }
    // Rounded to the nearest whole number, halves to even.
    [[nodiscard]] Integer toInteger() const;
    // With two decimals, a leading zero and groups of three digits: "0.50", "1,234.00".
    [[nodiscard]] QString toText() const;

    friend Currency operator*(Currency a, Integer b);
    friend constexpr bool operator==(Currency a, Currency b) = default;
    friend constexpr std::strong_ordering operator<=>(Currency a, Currency b)
    {
        return a.m_scaled <=> b.m_scaled;
    }

private:
    std::int64_t m_scaled = 0;
};
