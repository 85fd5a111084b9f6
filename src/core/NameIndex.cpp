#include "core/NameIndex.h"

#include <bit>

namespace phial
{

void NameIndex::place(StringView name, std::size_t position)
{
    std::size_t at = hash(name) & mask();
    while (slots_[at] != 0) {
        at = (at + 1) & mask();
    }
    slots_[at] = static_cast<std::uint32_t>(position + 1);
}

std::size_t NameIndex::hash(StringView name)
{
    std::uint64_t hash = 0xCBF29CE484222325U;
    for (const char16_t unit : name) {
        hash = (hash ^ upperCase(unit)) * 0x100000001B3U;
    }
    return static_cast<std::size_t>(hash ^ (hash >> 32U));
}

std::size_t NameIndex::roundedUp(std::size_t size)
{
    return std::bit_ceil(size);
}

} // namespace phial
