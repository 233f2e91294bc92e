// SPDX-License-Identifier: GPL-3.0-or-later
// Where a typed answer differs from the word.
#pragma once

#include <QString>

// The parts of an answer. `before` and `after` are as in the word; together with `differs` they
// are the answer.
struct TypedDifference
{
    QString before;
    QString differs; // empty if only letters of the word are missing there
    QString after;

    bool operator==(const TypedDifference &) const = default;
};

[[nodiscard]] TypedDifference differenceOf(const QString &answer, const QString &word);
