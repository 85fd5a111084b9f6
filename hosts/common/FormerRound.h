#pragma once

#include "common/RoundResult.h"

#include <optional>

namespace learning
{

/// Keeps how many tasks a pupil solved in a round, in this account's settings for each name, program and
/// level, and gives what was kept there before. Empty for the first round, for one of another number of
/// tasks, which cannot be compared, and where the setting cannot be read. A failure to keep it is silent.
std::optional<int> keepRound(phial::StringView pupil, const RoundResult& result);

} // namespace learning
