#include "common/Round.h"

namespace learning
{

Verdict Round::count(Judgement judgement)
{
    if (decided_) {
        return verdict_;
    }
    switch (judgement) {
    case Judgement::Unreadable:
        return Verdict::Unreadable;
    case Judgement::Right:
        decide(wrongTries_ == 0 && !hintTaken_ ? Outcome::AtOnce : Outcome::Later,
               FullPoints - Deduction * (wrongTries_ + (hintTaken_ ? 1 : 0)));
        ++solved_;
        return verdict_ = Verdict::Right;
    case Judgement::Wrong:
        break;
    }
    if (++wrongTries_ == Tries) {
        decide(Outcome::Missed, 0);
        return verdict_ = Verdict::Missed;
    }
    return verdict_ = Verdict::Wrong;
}

void Round::decide(Outcome outcome, int points)
{
    results_.at(static_cast<std::size_t>(position_ - 1)) = {outcome, points};
    points_ += points;
    decided_ = true;
}

bool Round::next()
{
    if (position_ == count()) {
        return false;
    }
    ++position_;
    wrongTries_ = 0;
    hintTaken_ = false;
    decided_ = false;
    return true;
}

} // namespace learning
