#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace learning
{

/// What an answer is worth by itself.
enum class Judgement : std::uint8_t {
    Right,
    Wrong,
    Unreadable, ///< no answer at all
};

/// What an answer comes to in its round.
enum class Verdict : std::uint8_t {
    Right,     ///< solved
    Wrong,     ///< not right, another try is left
    Missed,    ///< not right, and it was the last try
    Unreadable ///< no answer: no try is used up
};

/// How a task of a round stands.
enum class Outcome : std::uint8_t {
    Open,   ///< not decided yet
    AtOnce, ///< solved at the first try and without the hint
    Later,  ///< solved with a wrong try before, or with the hint
    Missed
};

/// One round: its tasks one after the other, tries, hints and points.
///
/// A task gives 10 points at the first try; each wrong try and the hint cost 3. After the third wrong try it
/// is missed and gives none. Invariant: points() <= maximum(), and never less than before.
class Round
{
public:
    static constexpr int FullPoints = 10;
    static constexpr int Deduction = 3;
    static constexpr int Tries = 3;

    /// Of so many tasks, at least one.
    explicit Round(int tasks) : results_(static_cast<std::size_t>(tasks)) {}

    int count() const { return static_cast<int>(results_.size()); }
    /// Position of the current task, from 1.
    int position() const { return position_; }

    /// Counts an answer. On a task that is already decided it repeats the verdict.
    Verdict count(Judgement judgement);
    /// Notes that the hint was taken; a second time costs nothing.
    void takeHint() { hintTaken_ = true; }

    /// Whether the current task is solved or missed.
    bool decided() const { return decided_; }
    /// Whether the last task is decided.
    bool finished() const { return decided_ && position_ == count(); }
    /// Goes on to the next task; false behind the last one.
    bool next();

    /// How a task stands, and the points that it brought; by its position, from 1.
    Outcome outcome(int position) const { return at(position).outcome; }
    int pointsOf(int position) const { return at(position).points; }

    int points() const { return points_; }
    int maximum() const { return count() * FullPoints; }
    int solved() const { return solved_; }
    /// Points that the current task has brought.
    int lastPoints() const { return pointsOf(position_); }
    int triesLeft() const { return Tries - wrongTries_; }

private:
    struct TaskResult {
        Outcome outcome = Outcome::Open;
        int points = 0;
    };

    const TaskResult& at(int position) const { return results_.at(static_cast<std::size_t>(position - 1)); }
    void decide(Outcome outcome, int points);

    std::vector<TaskResult> results_; ///< one a task
    int position_ = 1;
    int wrongTries_ = 0;
    bool hintTaken_ = false;
    bool decided_ = false;
    Verdict verdict_ = Verdict::Unreadable;
    int points_ = 0;
    int solved_ = 0;
};

} // namespace learning
