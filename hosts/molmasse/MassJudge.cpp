#include "molmasse/MassJudge.h"

#include "chem/FormulaAnalysis.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace molmasse
{

using learning::Judgement;

namespace
{

/// Keeps a difference of exactly the tolerance right in spite of binary fractions.
constexpr double RoundingAllowance = 1e-9;

constexpr double LeastTolerance = 0.1;
constexpr double SchoolHydrogen = 1.0; // g/mol
constexpr double ExactHydrogen = 1.008;

bool isWithin(double answer, double molarMass, double room)
{
    return std::abs(answer - molarMass) <= room + RoundingAllowance;
}

} // namespace

double tolerance(double molarMass)
{
    return std::clamp(0.002 * molarMass, LeastTolerance, 0.5);
}

bool isRight(double answer, double molarMass)
{
    return isWithin(answer, molarMass, tolerance(molarMass));
}

TaskMasses massesOf(phial::StringView formula, double school, double exact)
{
    const phial::AtomCounts atoms(formula);
    const bool holdsHydrogen = std::any_of(atoms.begin(), atoms.end(),
                                           [](const phial::AtomCount& atom) { return atom.symbol == u"H"; });
    return {school, exact, holdsHydrogen};
}

double roomForErrors(const TaskMasses& masses)
{
    if (!masses.holdsHydrogen) {
        return std::numeric_limits<double>::infinity();
    }
    const double apart = std::abs(masses.exact - masses.school);
    return std::min({SchoolHydrogen, std::abs(apart - SchoolHydrogen), std::abs(apart - ExactHydrogen)}) / 2;
}

bool canBeJudged(const TaskMasses& masses)
{
    return roomForErrors(masses) >= LeastTolerance;
}

Judgement judgeMass(std::optional<double> answer, const TaskMasses& masses)
{
    if (!answer) {
        return Judgement::Unreadable;
    }
    const double room = roomForErrors(masses);
    const auto isRightFor = [&](double mass) {
        return isWithin(*answer, mass, std::min(tolerance(mass), room));
    };
    return isRightFor(masses.school) || isRightFor(masses.exact) ? Judgement::Right : Judgement::Wrong;
}

} // namespace molmasse
