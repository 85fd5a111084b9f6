#pragma once

#include "core/String.h"

#include <span>

namespace phial
{

/// A line of the sheet of groups: a name as it ends or begins the names of compounds, "German|English", with
/// the blanks around it; and the formula in the older notation (OlderNotation.h).
struct GroupName {
    StringView name;
    StringView formula;
    bool isAsked = true; ///< whether one may practise it: not where the print is wrong or no name
};

/// The lines in the order of the sheet. They are what schools know from its print, and stand here as there.
std::span<const GroupName> groupNames();

} // namespace phial
