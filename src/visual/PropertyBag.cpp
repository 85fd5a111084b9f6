#include "visual/PropertyBag.h"

#include "visual/Font.h"

namespace phial
{

bool PropertyBag::Exists(StringView key) const
{
    return values_.contains(upperCase(key));
}

Variant PropertyBag::ReadProperty(StringView key, const Variant& defaultValue) const
{
    const auto found = values_.find(upperCase(key));
    return ownCopy(found == values_.end() ? defaultValue : found->second);
}

void PropertyBag::WriteProperty(StringView key, const Variant& value, const Variant& defaultValue)
{
    if (!defaultValue.isEmpty() && value == defaultValue) {
        values_.erase(upperCase(key));
    } else {
        values_.insert_or_assign(upperCase(key), ownCopy(value));
    }
}

} // namespace phial
