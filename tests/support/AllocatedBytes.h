// SPDX-License-Identifier: GPL-3.0-or-later
// How much memory the process has allocated and not freed, in bytes.
#pragma once

#include <cstddef>

#include <malloc.h>

#ifdef __SANITIZE_ADDRESS__
// The compiler has no header that declares it.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif

[[nodiscard]] inline std::size_t allocatedBytes()
{
#ifdef __SANITIZE_ADDRESS__
    return __sanitizer_get_current_allocated_bytes();
#else
    const struct mallinfo2 heap = mallinfo2();
    return heap.uordblks + heap.hblkhd;
#endif
}
