#include "molmasse/Round.h"

#include "core/CoreNumbers.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace molmasse
{

namespace
{

/// Keeps a difference of exactly the tolerance right in spite of binary fractions.
constexpr double RoundingAllowance = 1e-9;

std::vector<Task> drawTasks(std::vector<Task> pool, const Round::Random& random)
{
    const auto wanted = std::min<std::size_t>(pool.size(), Round::TaskCount);
    for (std::size_t i = 0; i < wanted; ++i) {
        const auto left = static_cast<int>(pool.size() - i);
        std::swap(pool[i], pool[i + static_cast<std::size_t>(random(left))]);
    }
    pool.resize(wanted);
    return pool;
}

} // namespace

double tolerance(double molarMass)
{
    return std::clamp(0.002 * molarMass, 0.1, 0.5);
}

bool isRight(double answer, double molarMass)
{
    return std::abs(answer - molarMass) <= tolerance(molarMass) + RoundingAllowance;
}

Round::Round(const Level& level, MolarMass molarMass, const Random& random)
    : tasks_(drawTasks(level.tasks, random)), molarMass_(std::move(molarMass))
{
    startTask();
}

void Round::startTask()
{
    solution_ = molarMass_(task().formula);
    wrongTries_ = 0;
    hintTaken_ = false;
    decided_ = false;
}

Verdict Round::check(phial::StringView answer)
{
    if (decided_) {
        return verdict_;
    }
    double value = 0;
    if (!phial::CoreNumbers::ToDouble(phial::trimmed(answer), value)) {
        return Verdict::NoNumber;
    }
    if (isRight(value, solution_)) {
        lastPoints_ = FullPoints - Deduction * (wrongTries_ + (hintTaken_ ? 1 : 0));
        points_ += lastPoints_;
        ++solved_;
        decided_ = true;
        return verdict_ = Verdict::Right;
    }
    ++wrongTries_;
    decided_ = wrongTries_ == Tries;
    return verdict_ = decided_ ? Verdict::Missed : Verdict::Wrong;
}

void Round::takeHint()
{
    hintTaken_ = true;
}

bool Round::next()
{
    if (position_ == count()) {
        return false;
    }
    ++position_;
    startTask();
    return true;
}

} // namespace molmasse
