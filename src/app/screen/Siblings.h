#pragma once

#include "core/Object.h"

namespace phial
{

/// The sibling of a control that has the id as its property CTRLID, in the order of its form's controls. Null
/// for an empty id, a control without parent, and when there is none.
ObjectPtr FindControlById(Object& pControl, StringView pId);

/// The sibling with that type name and NAME, both without regard to case, the names without outer blanks.
/// Null for a control without parent and when there is none.
ObjectPtr FindControlByType(Object& pControl, StringView pTypeName, StringView pControlName);

} // namespace phial
