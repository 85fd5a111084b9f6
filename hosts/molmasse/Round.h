#pragma once

#include "molmasse/TaskList.h"

#include <functional>
#include <vector>

namespace molmasse
{

/// By how much an answer may differ from the molar mass, in g/mol: 0.1 or 0.2 % of the mass, whichever is
/// more, but never more than 0.5. So masses taken from a table with more digits than the school's one decimal
/// pass, while a forgotten hydrogen atom (1 g/mol) never does.
double tolerance(double molarMass);

/// Whether an answer counts as right. The bound itself is still right.
bool isRight(double answer, double molarMass);

/// What a check of an answer came to.
enum class Verdict {
    Right,   ///< solved
    Wrong,   ///< not right, another try is left
    Missed,  ///< not right, and it was the last try
    NoNumber ///< not a number: no try is used up
};

/// One round of the trainer: its tasks one after the other, tries, hints and points.
///
/// A task gives 10 points at the first try; each wrong try and the hint cost 3. After the third wrong try it
/// is missed and gives none. Invariant: points() <= maximum(), and never less than before.
class Round
{
public:
    static constexpr int TaskCount = 10;
    static constexpr int FullPoints = 10;
    static constexpr int Deduction = 3;
    static constexpr int Tries = 3;

    /// Molar mass of a formula, in g/mol.
    using MolarMass = std::function<double(const phial::String& formula)>;
    /// A whole number from 0 up to the bound, exclusive.
    using Random = std::function<int(int bound)>;

    /// Draws up to TaskCount different tasks of the level. Needs at least one task.
    Round(const Level& level, MolarMass molarMass, const Random& random);

    int count() const { return static_cast<int>(tasks_.size()); }
    /// Position of the current task, from 1.
    int position() const { return position_; }
    const Task& task() const { return tasks_[static_cast<std::size_t>(position_ - 1)]; }
    /// The current task's molar mass.
    double solution() const { return solution_; }

    /// Judges a typed answer (comma or point). On a task that is already decided, repeats the verdict.
    Verdict check(phial::StringView answer);
    /// Notes that the hint was taken; a second time costs nothing.
    void takeHint();

    /// Whether the current task is solved or missed.
    bool decided() const { return decided_; }
    /// Goes on to the next task; false at the end of the round.
    bool next();
    /// Whether the last task is decided.
    bool finished() const { return decided_ && position_ == count(); }

    int points() const { return points_; }
    int maximum() const { return count() * FullPoints; }
    int solved() const { return solved_; }
    /// Points that the last right answer brought.
    int lastPoints() const { return lastPoints_; }
    int triesLeft() const { return Tries - wrongTries_; }

private:
    void startTask();

    std::vector<Task> tasks_;
    MolarMass molarMass_;
    int position_ = 1;
    double solution_ = 0;
    int wrongTries_ = 0;
    bool hintTaken_ = false;
    bool decided_ = false;
    Verdict verdict_ = Verdict::NoNumber;
    int points_ = 0;
    int lastPoints_ = 0;
    int solved_ = 0;
};

} // namespace molmasse
