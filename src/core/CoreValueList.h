#pragma once

#include "core/Variant.h"

#include <cstdint>
#include <span>
#include <vector>

namespace phial
{

/// The values of a token, counted from 1; a position outside raises 9. The first value is held inline, since
/// most tokens have just one.
class CoreValueList
{
public:
    CoreValueList() = default;
    explicit CoreValueList(Variant value) : first_(std::move(value)), count_(1) {}
    explicit CoreValueList(std::span<const Variant> values);

    const Variant& Item(std::int32_t pIndex) const;
    void SetItem(std::int32_t pIndex, Variant pValue);
    std::int32_t Count() const { return count_; }

private:
    const Variant& at(std::int32_t index) const;

    Variant first_;
    std::vector<Variant> further_;
    std::int32_t count_ = 0;
};

} // namespace phial
