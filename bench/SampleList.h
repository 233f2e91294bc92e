// SPDX-License-Identifier: GPL-3.0-or-later
// Word lists to measure with: made-up words with definitions and sentences of everyday length,
// about 110 bytes an entry, the same in every run.
#pragma once

#include "core/VocabRecord.h"

#include <vector>

namespace SampleList {

// Up to 32,000 entries; all words differ, whatever their case.
[[nodiscard]] std::vector<VocabRecord> entries(int count);

// The path of a list file with that many entries, written at the first call and kept until the
// program ends. It lies below the current folder, because a folder for temporary files may be in
// memory, where flushing costs nothing.
[[nodiscard]] QString file(int count);

} // namespace SampleList
