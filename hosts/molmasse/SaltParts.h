#pragma once

#include "core/String.h"

#include <cstdint>
#include <vector>

namespace molmasse
{

/// What stands between the dots of a formula, and how often: `H2O`, 5 times, in CuSO4*5H2O.
struct SaltPart {
    phial::String formula;
    std::int64_t times = 1;

    friend bool operator==(const SaltPart&, const SaltPart&) = default;
};

/// The parts of a formula; a formula without a dot is one part, as it stands. Empty for a formula with dots
/// that cannot be read or in which a part stands a broken number of times.
std::vector<SaltPart> saltParts(phial::StringView formula);

/// The parts in one formula, whose atoms are counted as those of any other: CuSO4(H2O)5.
phial::String joined(const std::vector<SaltPart>& parts);

/// The same at once: the formula itself where it has no dot, and empty where saltParts is.
phial::String withoutDots(phial::StringView formula);

} // namespace molmasse
