#pragma once

#include "core/Palette.h"
#include "core/String.h"

namespace learning
{

/// What stands beside the word for how a task goes or went, so that no verdict is told by its colour alone.
struct OutcomeSign {
    phial::StringView sign;
    phial::Colour colour = phial::Palette::Ink;
};

inline constexpr OutcomeSign RightSign{u"\u2713", phial::Palette::Right};
inline constexpr OutcomeSign TryAgainSign{u"\u21BB", phial::Palette::TryAgain};
inline constexpr OutcomeSign MissedSign{u"\u2715", phial::Palette::Failure};

} // namespace learning
