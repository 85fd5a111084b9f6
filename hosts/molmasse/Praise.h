#pragma once

#include "core/String.h"

#include <vector>

namespace molmasse
{

/// What a pupil has mastered who has worked out the molar mass of that formula, each "German|English" and one
/// short sentence about the work; the rarest first, at least one.
std::vector<phial::StringView> masteredIn(phial::StringView formula);

} // namespace molmasse
