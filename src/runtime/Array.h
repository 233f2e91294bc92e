// SPDX-License-Identifier: GPL-3.0-or-later
// A growable array whose subscripts begin at 1. A subscript outside it throws RunTimeError
// SubscriptOutOfRange.
#pragma once

#include "runtime/RunTimeError.h"

#include <utility>
#include <vector>

template <class T> class Array
{
public:
    Array() = default;
    explicit Array(std::vector<T> elements) : m_elements(std::move(elements)) {}

    // New elements are default-constructed.
    void resize(int size) { m_elements.resize(static_cast<std::size_t>(size)); }
    [[nodiscard]] int size() const { return static_cast<int>(m_elements.size()); }

    [[nodiscard]] const T &operator()(int subscript) const
    {
        if (subscript < 1 || subscript > size())
            throw RunTimeError(RunTimeError::SubscriptOutOfRange);
        return m_elements[static_cast<std::size_t>(subscript - 1)];
    }
    [[nodiscard]] const T &operator()(auto subscript) const { return (*this)(subscript.toInt()); }

private:
    std::vector<T> m_elements;
};
