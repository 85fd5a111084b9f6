#pragma once

#include "common/Round.h"
#include "core/String.h"

#include <optional>

namespace molmasse
{

/// By how much an answer may differ from the molar mass, in g/mol: 0.1 or 0.2 % of the mass, whichever is
/// more, but never more than 0.5. So masses taken from a table with more digits than the school's one decimal
/// pass, while a forgotten hydrogen atom (1 g/mol) never does.
double tolerance(double molarMass);

/// Whether an answer counts as right. The bound itself is still right.
bool isRight(double answer, double molarMass);

/// What a typed mass is worth: it is right when it is so for the molar mass of the school's table, with one
/// decimal an element, or for the exact one, with all digits. Of octane both 114.0 and 114.23 are right.
learning::Judgement judgeMass(std::optional<double> answer, double schoolMass, double exactMass);

} // namespace molmasse
