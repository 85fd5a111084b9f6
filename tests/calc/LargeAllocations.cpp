#include "calc/LargeAllocations.h"

#include <cstdlib>
#include <new>

namespace
{

constexpr std::size_t Large = 1024 * 1024;

std::size_t largeOnes = 0;

} // namespace

void* operator new(std::size_t size)
{
    void* memory = std::malloc(size == 0 ? 1 : size);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    largeOnes += size >= Large ? 1 : 0;
    return memory;
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept
{
    std::free(memory);
}

namespace phial::test
{

std::size_t largeAllocations()
{
    return largeOnes;
}

} // namespace phial::test
