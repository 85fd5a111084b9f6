#pragma once

#include "core/String.h"

#include <span>

namespace phial
{

/// What a formula of school lessons is called.
struct FormulaName {
    StringView formula; ///< as plainFormula writes it
    StringView german;
    StringView english;
};

/// The name of an ion or substance by its formula, which is compared exactly; null for none. Names follow the
/// IUPAC's recommendations of 2005 and 2013; where lessons call a substance otherwise, such as ammonia, that
/// name.
const FormulaName* nameOfFormula(StringView plainFormula);

/// All that have a name, by their units.
std::span<const FormulaName> formulaNames();

} // namespace phial
