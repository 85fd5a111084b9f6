#pragma once

#include <cstdint>

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
    explicit Round(int tasks) : count_(tasks) {}

    int count() const { return count_; }
    /// Position of the current task, from 1.
    int position() const { return position_; }

    /// Counts an answer. On a task that is already decided it repeats the verdict.
    Verdict count(Judgement judgement);
    /// Notes that the hint was taken; a second time costs nothing.
    void takeHint() { hintTaken_ = true; }

    /// Whether the current task is solved or missed.
    bool decided() const { return decided_; }
    /// Whether the last task is decided.
    bool finished() const { return decided_ && position_ == count_; }
    /// Goes on to the next task; false behind the last one.
    bool next();

    int points() const { return points_; }
    int maximum() const { return count_ * FullPoints; }
    int solved() const { return solved_; }
    /// Points that the last right answer brought.
    int lastPoints() const { return lastPoints_; }
    int triesLeft() const { return Tries - wrongTries_; }

private:
    int count_;
    int position_ = 1;
    int wrongTries_ = 0;
    bool hintTaken_ = false;
    bool decided_ = false;
    Verdict verdict_ = Verdict::Unreadable;
    int points_ = 0;
    int lastPoints_ = 0;
    int solved_ = 0;
};

} // namespace learning
