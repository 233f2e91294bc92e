// SPDX-License-Identifier: GPL-3.0-or-later
// Input: a text. The number that is read from it is exact; amounts are shown, rounded and
// multiplied like whole numbers of 128 bits.
#include "Fuzzing.h"
#include "print/PrintNumbers.h"
#include "runtime/Blanks.h"
#include "runtime/TextToNumber.h"

#include <cstdlib>
#include <cstring>
#include <optional>

namespace {

using Wide = __int128;

// The result of a call: a value or the number of its error.
template <class Value> struct Outcome
{
    std::optional<Value> value;
    int error = 0;

    friend bool operator==(const Outcome &, const Outcome &) = default;
};

template <class Call> auto outcomeOf(Call call)
{
    Outcome<decltype(call())> outcome;
    try {
        outcome.value = call();
    } catch (const RunTimeError &error) {
        outcome.error = error.number();
    }
    return outcome;
}

// 0.d1d2d3... times ten to the power of the exponent.
struct Decimal
{
    bool negative = false;
    std::string digits; // the first is not 0; none for zero
    long exponent = 0;
};

constexpr long Huge = 1'000'000'000; // larger than the digits of an input can balance

// Reads a number from a text, from left to right.
class NumberText
{
public:
    explicit NumberText(std::u16string_view text) : m_rest(text) {}

    // Empty if the text is no number.
    std::optional<Decimal> number()
    {
        Decimal decimal;
        decimal.negative = sign();
        std::string digits = takeDigits();
        decimal.exponent = long(digits.size());
        if (take(u"."))
            digits += takeDigits();
        if (digits.empty())
            return std::nullopt;
        if (take(u"eE")) {
            const bool negative = sign();
            const std::string power = takeDigits();
            if (power.empty())
                return std::nullopt;
            decimal.exponent += negative ? -valueOf(power) : valueOf(power);
        }
        if (!m_rest.empty())
            return std::nullopt;
        const std::size_t zeros = std::min(digits.find_first_not_of('0'), digits.size());
        decimal.digits = digits.substr(zeros);
        decimal.exponent -= long(zeros);
        return decimal;
    }

private:
    bool take(std::u16string_view anyOf)
    {
        if (m_rest.empty() || anyOf.find(m_rest.front()) == std::u16string_view::npos)
            return false;
        m_rest.remove_prefix(1);
        return true;
    }

    // Whether the sign is a minus.
    bool sign() { return take(u"-") || (take(u"+"), false); }

    std::string takeDigits()
    {
        std::string digits;
        while (!m_rest.empty() && m_rest.front() >= u'0' && m_rest.front() <= u'9') {
            digits += static_cast<char>(m_rest.front());
            m_rest.remove_prefix(1);
        }
        return digits;
    }

    static long valueOf(const std::string &digits)
    {
        long value = 0;
        for (const char digit : digits)
            value = std::min(value * 10 + (digit - '0'), Huge);
        return value;
    }

    std::u16string_view m_rest;
};

Wide halfToEven(Wide number, Wide divisor)
{
    const Wide twice = number % divisor * 2;
    const Wide quotient = number / divisor;
    return twice > divisor || (twice == divisor && quotient % 2 != 0) ? quotient + 1 : quotient;
}

constexpr Wide Beyond = Wide(1) << 100;

// In units of the last decimal, halves rounded to even.
Wide units(const Decimal &decimal, int decimals)
{
    const long wholeDigits = decimal.exponent + decimals;
    if (decimal.digits.empty() || wholeDigits < 0)
        return 0;
    if (wholeDigits > 25)
        return decimal.negative ? -Beyond : Beyond;
    std::string digits = decimal.digits;
    digits.resize(std::max(digits.size(), std::size_t(wholeDigits)), '0');
    Wide number = 0;
    for (long i = 0; i < wholeDigits; ++i)
        number = number * 10 + (digits[std::size_t(i)] - '0');
    // Two of the digits left are enough: the second says whether anything follows the first.
    const std::string rest = digits.substr(std::size_t(wholeDigits));
    const Wide first = rest.empty() ? 0 : rest[0] - '0';
    const bool more = rest.find_first_not_of('0', 1) != std::string::npos;
    number = halfToEven(number * 100 + first * 10 + (more ? 1 : 0), 100);
    return decimal.negative ? -number : number;
}

constexpr Wide Smallest = Currency::smallest().scaled();
constexpr Wide Largest = Currency::largest().scaled();

Outcome<Integer> asInteger(Wide number)
{
    if (number < Integer::Min || number > Integer::Max)
        return {{}, RunTimeError::Overflow};
    return {Integer(int(number)), 0};
}

Outcome<Currency> asCurrency(Wide scaled)
{
    if (scaled < Smallest || scaled > Largest)
        return {{}, RunTimeError::Overflow};
    return {Currency::fromScaled(std::int64_t(scaled)), 0};
}

std::u16string_view trimmed(std::u16string_view text)
{
    const std::size_t first = std::min(text.find_first_not_of(u' '), text.size());
    text.remove_prefix(first);
    return text.substr(0, text.find_last_not_of(u' ') + 1);
}

// Exceptions are slow, so each text is given to only one of the functions.
void checkNoNumber(const QString &text)
{
    constexpr int mismatch = RunTimeError::TypeMismatch;
    switch (text.size() % 5) {
    case 0:
        return require(outcomeOf([&] { return toNumber(text); }).error == mismatch);
    case 1:
        return require(outcomeOf([&] { return toInteger(text); }).error == mismatch);
    case 2:
        return require(outcomeOf([&] { return Currency::fromText(text); }).error == mismatch);
    case 3:
        return require(!marginFromText(text));
    default:
        return require(!positionFromText(text));
    }
}

void checkNumber(const QString &text, const Decimal &decimal)
{
    // The C library also rounds to the nearest double.
    const double nearest = std::strtod(withoutOuterBlanks(text).toLatin1().constData(), nullptr);
    const bool isFinite = nearest - nearest == 0;
    const Outcome<double> number = outcomeOf([&] { return toNumber(text); });
    require(isFinite ? number.value == nearest : number.error == RunTimeError::Overflow);

    const Wide whole = units(decimal, 0);
    require(outcomeOf([&] { return toInteger(text); }) == asInteger(whole));
    require(positionFromText(text) ==
            Integer(int(std::clamp<Wide>(whole, Integer::Min, Integer::Max))));

    const Wide scaled = units(decimal, 4);
    require(outcomeOf([&] { return Currency::fromText(text); }) == asCurrency(scaled));
    require(marginFromText(text) ==
            Currency::fromScaled(std::int64_t(std::clamp(scaled, Smallest, Largest))));
}

void checkText(const std::u16string &characters)
{
    const QString text = QStringView(characters).toString();
    const std::u16string_view inner = trimmed(characters);
    require(withoutOuterBlanks(text) == QStringView(inner));
    if (const std::optional<Decimal> decimal = NumberText(inner).number())
        checkNumber(text, *decimal);
    else
        checkNoNumber(text);
}

std::string shown(Wide tenThousandths)
{
    const bool negative = tenThousandths < 0;
    std::string text =
        std::to_string(std::uint64_t(halfToEven(negative ? -tenThousandths : tenThousandths, 100)));
    text.insert(0, text.size() < 3 ? 3 - text.size() : 0, '0');
    text.insert(text.size() - 2, ".");
    for (std::size_t at = text.size() - 3; at > 3; at -= 3)
        text.insert(at - 3, ",");
    return (negative && text != "0.00" ? "-" : "") + text;
}

void checkAmount(std::int64_t tenThousandths, Integer factor)
{
    const Currency amount = Currency::fromScaled(tenThousandths);
    require(amount.toText() == QLatin1String(shown(tenThousandths).c_str()));
    const Wide size = tenThousandths < 0 ? -Wide(tenThousandths) : Wide(tenThousandths);
    const Wide rounded = halfToEven(size, Currency::Scale);
    require(outcomeOf([&] { return amount.toInteger(); }) ==
            asInteger(tenThousandths < 0 ? -rounded : rounded));
    require(outcomeOf([&] { return amount * factor; }) ==
            asCurrency(Wide(tenThousandths) * factor.toInt()));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    checkText(textOf(bytesOf(data, size)));

    std::int64_t tenThousandths = 0;
    std::int16_t factor = 0;
    if (size >= sizeof tenThousandths + sizeof factor) {
        std::memcpy(&tenThousandths, data, sizeof tenThousandths);
        std::memcpy(&factor, data + sizeof tenThousandths, sizeof factor);
        checkAmount(tenThousandths % (Currency::largest().scaled() + 1), factor);
    }
    return 0;
}
