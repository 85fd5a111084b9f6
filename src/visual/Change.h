#pragma once

#include "visual/Font.h"

#include <functional>
#include <utility>

namespace phial
{

/// The middle of a setter: stores a value and gives whether it differs from the old one.
template <typename Value>
bool change(Value& field, Value value)
{
    if (field == value) {
        return false;
    }
    field = std::move(value);
    return true;
}

/// Makes a control share a font: `changed` runs now and whenever an attribute of the font changes. Raises 91
/// for null.
inline void shareFont(FontPtr& font, Connection& connection, FontPtr value,
                      const std::function<void()>& changed)
{
    if (!value) {
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    }
    font = std::move(value);
    connection = font->changed.connect(changed);
    changed();
}

} // namespace phial
