#include "visual/PropertyBag.h"

#include "visual/Font.h"

#include <algorithm>

namespace phial
{

const PropertyBag::Entry* PropertyBag::find(StringView key) const
{
    const auto found = std::ranges::find_if(
        entries_, [key](const Entry& entry) { return equalsIgnoringCase(entry.key, key); });
    return found == entries_.end() ? nullptr : &*found;
}

Variant PropertyBag::ReadProperty(StringView key, const Variant& defaultValue) const
{
    const Entry* entry = find(key);
    return ownCopy(entry ? entry->value : defaultValue);
}

void PropertyBag::WriteProperty(StringView key, const Variant& value, const Variant& defaultValue)
{
    const auto present = std::ranges::find_if(
        entries_, [key](const Entry& entry) { return equalsIgnoringCase(entry.key, key); });
    const bool leftOut = !defaultValue.isEmpty() && value == defaultValue;
    if (present == entries_.end()) {
        if (!leftOut) {
            entries_.push_back({upperCase(key), ownCopy(value)});
        }
    } else if (leftOut) {
        entries_.erase(present);
    } else {
        present->value = ownCopy(value);
    }
}

std::vector<String> PropertyBag::keys() const
{
    std::vector<String> list;
    std::ranges::transform(entries_, std::back_inserter(list), &Entry::key);
    return list;
}

} // namespace phial
