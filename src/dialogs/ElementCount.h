#pragma once

#include "core/String.h"

#include <optional>

namespace phial
{

/// The term with the element counted up that stands at its end: "H" of "H" gives "H2", and of "C12H9"
/// "C12H10". None where another element stands there, or nothing: then the symbol is typed. Symbols are
/// compared by case, and a count has any number of digits.
std::optional<String> countedUp(StringView term, StringView symbol);

} // namespace phial
