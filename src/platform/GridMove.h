// SPDX-License-Identifier: GPL-3.0-or-later
// Where a key asks a grid to move its current row: by a row, by a page, to the first or last one.
#pragma once

enum class GridMove { RowUp, RowDown, PageUp, PageDown, First, Last };
