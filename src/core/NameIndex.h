#pragma once

#include "core/String.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace phial
{

/// Positions of names, found without regard to case in constant time. Holds no names itself: the owner, which
/// keeps them in order, answers with the name at a position. Names are never taken out one by one.
class NameIndex
{
public:
    /// Lists up to this length are searched faster entry by entry.
    static constexpr std::size_t Threshold = 12;

    /// Notes that the name stands at that position (from 0). Positions come in ascending order.
    template <typename NameAt>
    void add(StringView name, std::size_t position, NameAt&& nameAt)
    {
        if ((position + 1) * 2 > slots_.size()) {
            grow(position + 1, nameAt);
        }
        place(name, position);
    }

    /// The position of the name, or `npos`.
    template <typename NameAt>
    std::size_t find(StringView name, NameAt&& nameAt) const
    {
        if (slots_.empty()) {
            return npos;
        }
        for (std::size_t at = hash(name) & mask();; at = (at + 1) & mask()) {
            if (slots_[at] == 0) {
                return npos;
            }
            if (equalsIgnoringCase(nameAt(slots_[at] - 1), name)) {
                return slots_[at] - 1;
            }
        }
    }

    bool empty() const { return slots_.empty(); }
    void clear() { slots_.clear(); }

    static constexpr std::size_t npos = static_cast<std::size_t>(-1);

private:
    template <typename NameAt>
    void grow(std::size_t count, NameAt&& nameAt)
    {
        std::size_t size = slots_.empty() ? Threshold * 4 : slots_.size();
        while (size < count * 4) {
            size *= 2;
        }
        slots_.assign(roundedUp(size), 0);
        for (std::size_t position = 0; position + 1 < count; ++position) {
            place(nameAt(position), position);
        }
    }

    void place(StringView name, std::size_t position);
    std::size_t mask() const { return slots_.size() - 1; }
    static std::size_t hash(StringView name);
    static std::size_t roundedUp(std::size_t size);

    std::vector<std::uint32_t> slots_; // position + 1; 0 is free. The size is a power of two.
};

} // namespace phial
