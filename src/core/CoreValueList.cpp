#include "core/CoreValueList.h"

#include "core/RuntimeError.h"

#include <cstddef>
#include <utility>

namespace phial
{

CoreValueList::CoreValueList(std::span<const Variant> values)
    : count_(static_cast<std::int32_t>(values.size()))
{
    if (!values.empty()) {
        first_ = values.front();
        further_.assign(values.begin() + 1, values.end());
    }
}

const Variant& CoreValueList::at(std::int32_t index) const
{
    if (index < 1 || index > count_) {
        throw RuntimeError(ErrorNumber::IndexOutOfBounds);
    }
    return index == 1 ? first_ : further_[static_cast<std::size_t>(index - 2)];
}

const Variant& CoreValueList::Item(std::int32_t pIndex) const
{
    return at(pIndex);
}

void CoreValueList::SetItem(std::int32_t pIndex, Variant pValue)
{
    const_cast<Variant&>(at(pIndex)) =
        std::move(pValue); // NOLINT(cppcoreguidelines-pro-type-const-cast): own value
}

} // namespace phial
