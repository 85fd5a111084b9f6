#pragma once

#include "core/String.h"
#include "core/Variant.h"

#include <span>

namespace phial
{

/// What happens to an error that a variable raises.
enum class VariableErrors : unsigned char { Raised, Ignored };

/// The term with the values of its variables in place of their names, in invariant notation.
///
/// `variables` holds a name at each even index and its value behind it. A word is a run of letters A to Z,
/// digits and points; its variable is looked up without regard to case, the first of equal names counts, and
/// only a word with a further character behind it is found.
///
/// The walk counts positions and is not set back or forward when a value is put in. So a value that is longer
/// than its name is read again from its character number (length of the name + 2) on, and for a value that is
/// shorter the walk misses as many characters behind the one that ended the word: with ABC = 1 and D = 5,
/// `ABC+D` keeps its D.
///
/// Raises 9 when a name has no value behind it, 13 or 6 when its value is no number, and 5 when values of
/// variables that are named like numbers would put each other in without end. Where errors are ignored the
/// word stays.
String withVariables(StringView term, std::span<const Variant> variables, VariableErrors errors);

} // namespace phial
