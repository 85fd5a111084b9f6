#include "support/Allocations.h"

#include <cstdlib>
#include <new>

namespace
{

constexpr std::size_t Large = 1024 * 1024;

std::size_t allOnes = 0;
std::size_t largeOnes = 0;

} // namespace

void* operator new(std::size_t size, const std::nothrow_t& /*unused*/) noexcept
{
    void* memory = std::malloc(size == 0 ? 1 : size);
    allOnes += memory != nullptr ? 1 : 0;
    largeOnes += memory != nullptr && size >= Large ? 1 : 0;
    return memory;
}

void* operator new(std::size_t size)
{
    void* memory = operator new(size, std::nothrow);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    return memory;
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, const std::nothrow_t& /*unused*/) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept
{
    std::free(memory);
}

namespace phial::test
{

std::size_t allocations()
{
    return allOnes;
}

std::size_t largeAllocations()
{
    return largeOnes;
}

} // namespace phial::test
