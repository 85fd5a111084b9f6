#pragma once

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

} // namespace phial
