#include "CountedMemory.h"

#include <algorithm>
#include <cstdlib>
#include <malloc.h>
#include <new>

namespace
{

// One thread does all the work.
std::int64_t held = 0;
std::int64_t peak = 0;
std::int64_t heldAtStart = 0;
std::int64_t allocations = 0;

void* allocate(std::size_t size)
{
    void* memory = std::malloc(size);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    held += static_cast<std::int64_t>(malloc_usable_size(memory));
    peak = std::max(peak, held);
    ++allocations;
    return memory;
}

void release(void* memory) noexcept
{
    held -= static_cast<std::int64_t>(malloc_usable_size(memory));
    std::free(memory);
}

} // namespace

void* operator new(std::size_t size)
{
    return allocate(size);
}

void operator delete(void* memory) noexcept
{
    release(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept
{
    release(memory);
}

namespace bench
{

void CountedMemory::Start()
{
    heldAtStart = peak = held;
    allocations = 0;
}

void CountedMemory::Stop(Result& rResult)
{
    rResult.num_allocs = allocations;
    rResult.max_bytes_used = peak - heldAtStart;
}

} // namespace bench
