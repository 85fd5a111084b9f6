#pragma once

#include "core/String.h"

#include <optional>
#include <vector>

namespace formeln
{

/// How a typed name stands to the right one.
enum class NameMatch : std::uint8_t {
    Same,          ///< or one of the other names that count as well
    Misspelt,      ///< a letter or two away, and nothing else than that
    OtherEnding,   ///< -at, -it and -id, or -an, -en and -in, have been mixed up
    NumeralWrong,  ///< the Roman numeral in brackets is missing, or another one
    CountWrong,    ///< mono, di, tri … is missing, or another one
    HydrogenWrong, ///< "Hydrogen" is missing, or stands there in vain
    IonMissing,    ///< the name of the element or molecule instead of its ion
    Other
};

/// Compares a typed name with those that count. Blanks, hyphens and capitals make no difference, nor do older
/// and foreign spellings of the same sound: k and z for c, y for i, ph for f, ä for e ("Kalziumkarbonat",
/// "Äthanol", "sulphate"). Where `ionMayBeLeftOut`, "Sulfat" is as good as "Sulfat-Ion".
///
/// Of several names the one counts that matches best, in the order of NameMatch.
NameMatch matchOf(phial::StringView typed, const std::vector<phial::String>& names, bool ionMayBeLeftOut);

/// The names that a column of the task file holds, which are divided by "/"; the first one is shown.
std::vector<phial::String> namesIn(phial::StringView column);

/// What the pupil is told of a name that is not right, in the language in force; empty for Same and Other.
phial::String explained(NameMatch match);

} // namespace formeln
