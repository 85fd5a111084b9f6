#pragma once

#include "core/Variant.h"

#include <vector>

namespace phial
{

/// The persisted properties of a visual control: values by key, without regard to case, in the order in which
/// the keys were first written. A key can differ from the property's name. Fonts go in and come out as
/// copies, so that a later change of the control's font leaves the bag alone.
class PropertyBag
{
public:
    bool Exists(StringView key) const { return find(key) != nullptr; }
    /// The stored value, or the default.
    Variant ReadProperty(StringView key, const Variant& defaultValue = {}) const;
    /// Stores the value. One that equals the default is left out, so that it follows a later default.
    void WriteProperty(StringView key, const Variant& value, const Variant& defaultValue = {});
    std::size_t Count() const { return entries_.size(); }
    void Clear() { entries_.clear(); }

    /// In upper case.
    std::vector<String> keys() const;

private:
    struct Entry {
        String key;
        Variant value;
    };
    const Entry* find(StringView key) const;

    std::vector<Entry> entries_;
};

} // namespace phial
