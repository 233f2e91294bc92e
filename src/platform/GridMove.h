// SPDX-License-Identifier: GPL-3.0-or-later
// How a key moves the current row of a grid.
#pragma once

enum class GridMove { RowUp, RowDown, PageUp, PageDown, First, Last };
