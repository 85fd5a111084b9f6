#pragma once

#include <malloc.h>

namespace bench
{

/// Memory given back to the system comes again page by page, which costs more than the work and sets in at
/// some length. From here on the program keeps it.
inline void keepFreedMemory()
{
    constexpr int Kept = 1024 * 1024 * 1024; // bytes
    mallopt(M_MMAP_MAX, 0);
    mallopt(M_TRIM_THRESHOLD, Kept);
}

} // namespace bench
