// SPDX-License-Identifier: GPL-3.0-or-later
// The number of the run-time error that an action ends with.
#pragma once

#include "runtime/RunTimeError.h"

inline constexpr RunTimeError::Number NoRunTimeError{};

template <class Action> [[nodiscard]] RunTimeError::Number errorNumberOf(Action &&action)
{
    try {
        static_cast<void>(action());
    } catch (const RunTimeError &error) {
        return error.number();
    }
    return NoRunTimeError;
}

// The text of the error for the user; empty if there was no error.
template <class Action> [[nodiscard]] QString reportOf(Action &&action)
{
    try {
        static_cast<void>(action());
    } catch (const RunTimeError &error) {
        return error.report();
    }
    return {};
}
