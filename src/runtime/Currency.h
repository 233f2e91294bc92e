// SPDX-License-Identifier: GPL-3.0-or-later
// An exact amount with four decimals.
//
// Range -9,999,999,999.9999 to 9,999,999,999.9999. A value outside it throws RunTimeError Overflow.
// A value with more decimals is rounded to the nearest ten-thousandth, halves to the even one.
#pragma once

#include "runtime/Integer.h"

#include <compare>
#include <cstdint>

class Currency
{
public:
    static constexpr int Scale = 10'000;

    constexpr Currency() = default;
    constexpr Currency(int whole) : m_scaled(std::int64_t(whole) * Scale) {}
    explicit Currency(double value);

    // Takes the texts that toNumber takes.
    [[nodiscard]] static Currency fromText(const QString &text);
    [[nodiscard]] static constexpr Currency fromScaled(std::int64_t tenThousandths)
    {
        if (tenThousandths < -LargestScaled || tenThousandths > LargestScaled)
            throw RunTimeError(RunTimeError::Overflow);
        Currency value;
        value.m_scaled = tenThousandths;
        return value;
    }
    [[nodiscard]] static constexpr Currency largest() { return fromScaled(LargestScaled); }
    [[nodiscard]] static constexpr Currency smallest() { return fromScaled(-LargestScaled); }

    [[nodiscard]] constexpr std::int64_t scaled() const { return m_scaled; }
    [[nodiscard]] constexpr double toDouble() const { return double(m_scaled) / Scale; }
    // Rounded to the nearest whole number, halves to even.
    [[nodiscard]] Integer toInteger() const;
    // With two decimals, a leading zero and groups of three digits: "0.50", "1,234.00".
    [[nodiscard]] QString toText() const;

    friend constexpr Currency operator*(Currency a, Integer b)
    {
        return fromScaled(a.m_scaled * b.toInt());
    }
    friend constexpr bool operator==(Currency a, Currency b) = default;
    friend constexpr std::strong_ordering operator<=>(Currency a, Currency b)
    {
        return a.m_scaled <=> b.m_scaled;
    }

private:
    // 14 digits: rounding may go through a double, and a product with an Integer fits 64 bits.
    static constexpr std::int64_t LargestScaled = 99'999'999'999'999;

    std::int64_t m_scaled = 0;
};
