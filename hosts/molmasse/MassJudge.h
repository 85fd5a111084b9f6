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

/// The molar masses of a task, in g/mol.
struct TaskMasses {
    double school; ///< by the school's table, with one decimal an element
    double exact;  ///< with all digits
    bool holdsHydrogen;
};

/// The masses of a formula that holds hydrogen or does not.
TaskMasses massesOf(phial::StringView formula, double school, double exact);

/// By how much an answer may differ from either mass at most, whatever the tolerance, in g/mol: half of the
/// distance from one of them to the other with a hydrogen atom too few or too many. With many atoms the two
/// lie far apart: of tristearin they are 890.0 and 891.5, and the exact one without an atom is 890.49.
double roomForErrors(const TaskMasses& masses);

/// Whether the answers of a task can be told from those with a hydrogen atom forgotten: both masses, written
/// with one decimal, are right, and neither with an atom too few or too many is.
bool canBeJudged(const TaskMasses& masses);

/// What a typed mass is worth: it is right when it is so for either mass. Of octane both 114.0 and 114.23
/// are right.
learning::Judgement judgeMass(std::optional<double> answer, const TaskMasses& masses);

} // namespace molmasse
