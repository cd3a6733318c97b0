#pragma once

#include <malloc.h>

#include <cstddef>

/// Bytes that are allocated, in all threads. AddressSanitizer keeps what is freed for a while, and
/// tells itself of what is lost.
inline std::size_t memoryInUse()
{
#ifdef __SANITIZE_ADDRESS__
    return 0;
#else
    const auto heap = mallinfo2();
    return heap.uordblks + heap.hblkhd;
#endif
}
