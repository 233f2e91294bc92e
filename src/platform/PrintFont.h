// SPDX-License-Identifier: GPL-3.0-or-later
// Font and style of printed text.
#pragma once

#include <QString>

struct PrintFont
{
    QString Name;
    double Size = 0; // points

    friend bool operator==(const PrintFont &a, const PrintFont &b) = default;
};

struct PrintStyle
{
    PrintFont font;
    bool bold = false;
    bool italic = false;

    friend bool operator==(const PrintStyle &a, const PrintStyle &b) = default;
};
