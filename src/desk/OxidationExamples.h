#pragma once

#include "core/String.h"

#include <cstdint>
#include <span>

namespace phial
{

enum class OxidationRule : std::uint8_t;

/// An example of a rule: an atom of a formula and its oxidation number.
struct OxidationExample {
    StringView formula;
    StringView symbol;
    StringView number; ///< as writtenOxidationNumber gives it
};

/// What the sheet of oxidation numbers shows of one rule.
struct OxidationLine {
    OxidationRule rule;
    OxidationExample examples[2];
};

/// The rules in the order in which one goes through them. The numbers are those of IUPAC's Red Book 2005,
/// IR-4.6, and of Karen, McArdle and Takats, Pure Appl. Chem. 2016, 88, 831.
std::span<const OxidationLine> oxidationLines();

} // namespace phial
