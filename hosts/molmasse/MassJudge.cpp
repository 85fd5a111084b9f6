#include "molmasse/MassJudge.h"

#include <algorithm>
#include <cmath>

namespace molmasse
{

using learning::Judgement;

namespace
{

/// Keeps a difference of exactly the tolerance right in spite of binary fractions.
constexpr double RoundingAllowance = 1e-9;

} // namespace

double tolerance(double molarMass)
{
    return std::clamp(0.002 * molarMass, 0.1, 0.5);
}

bool isRight(double answer, double molarMass)
{
    return std::abs(answer - molarMass) <= tolerance(molarMass) + RoundingAllowance;
}

Judgement judgeMass(std::optional<double> answer, double schoolMass, double exactMass)
{
    if (!answer) {
        return Judgement::Unreadable;
    }
    return isRight(*answer, schoolMass) || isRight(*answer, exactMass) ? Judgement::Right : Judgement::Wrong;
}

} // namespace molmasse
