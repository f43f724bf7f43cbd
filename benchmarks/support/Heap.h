#pragma once

#include <malloc.h>

/// Counts what the program has allocated and not freed, in KiB.
inline double kibibytesInUse()
{
    const struct mallinfo2 heap = mallinfo2();
    return double(heap.uordblks + heap.hblkhd) / 1024;
}
