#pragma once

#include "core/String.h"

namespace phial
{

/// Numbers and texts without regard to the user's habits, with a point as decimal sign.
class CoreInvariant
{
public:
    /// The number at the beginning of the text, 0 if there is none; raises 6 beyond the range of a double.
    static double Parse(StringView pText);
    static String Format(double pValue);
};

/// Conversion between numbers and texts.
class CoreNumbers
{
public:
    /// Reads a number as people type it (see typedNumberAtStart), blanks around it allowed. Gives whether the
    /// text was a number; if not, `rValue` is the number it begins with, or 0. A number beyond the range of a
    /// double is none.
    static bool ToDouble(StringView pText, double& rValue);

    static CoreInvariant Invariant() { return {}; }

    /// The value at time `pNow` on the straight line from `pFrom` at `pStart` to `pTo` at `pEnd`, also
    /// outside these times; `pTo` when both times are the same.
    static double Lerp(double pNow, double pStart, double pEnd, double pFrom, double pTo);
};

} // namespace phial
