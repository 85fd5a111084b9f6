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
        lastPoints_ = FullPoints - Deduction * (wrongTries_ + (hintTaken_ ? 1 : 0));
        points_ += lastPoints_;
        ++solved_;
        decided_ = true;
        return verdict_ = Verdict::Right;
    case Judgement::Wrong:
        break;
    }
    ++wrongTries_;
    decided_ = wrongTries_ == Tries;
    return verdict_ = decided_ ? Verdict::Missed : Verdict::Wrong;
}

bool Round::next()
{
    if (position_ == count_) {
        return false;
    }
    ++position_;
    wrongTries_ = 0;
    hintTaken_ = false;
    decided_ = false;
    return true;
}

} // namespace learning
