#pragma once

#include "core/Variant.h"

#include <map>

namespace phial
{

/// The persisted properties of a visual control: values by key, without regard to case. A key can differ from
/// the property's name. Fonts go in and come out as copies, so that a later change of the control's font
/// leaves the bag alone.
class PropertyBag
{
public:
    bool Exists(StringView key) const;
    /// The stored value, or the default.
    Variant ReadProperty(StringView key, const Variant& defaultValue = {}) const;
    /// Stores the value. One that equals the default is left out, so that it follows a later default.
    void WriteProperty(StringView key, const Variant& value, const Variant& defaultValue = {});
    std::size_t Count() const { return values_.size(); }
    void Clear() { values_.clear(); }

private:
    std::map<String, Variant> values_; ///< by upper-case key
};

} // namespace phial
