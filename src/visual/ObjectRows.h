#pragma once

#include "visual/PropertyRow.h"

#include <cstddef>
#include <memory>

/// For rows of properties that are objects, behind functions of the class: a table of constants can hold no
/// default of theirs.
namespace phial::rows
{

template <typename Class>
struct DefaultOf<std::shared_ptr<Class>> {
    using Type = std::nullptr_t;
};

} // namespace phial::rows
