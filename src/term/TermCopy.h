#pragma once

#include "core/String.h"

namespace phial
{

/// A term for other programs, as plain text: with small raised and lowered characters where there are such,
/// with "^" or "µ" before a character where there is none, and with the usual signs: `SO4^2-` gives "SO₄²⁻",
/// `CuSO4*5H2O -> x` gives "CuSO₄·5H₂O → x". What only colours or strikes through is left out; a fraction
/// stays in brackets.
String textOfTerm(StringView term);

/// The same as HTML, raised and lowered by `<sup>` and `<sub>`. The term itself goes with it, unseen, for
/// termOfClipboard.
String htmlOfTerm(StringView term);

} // namespace phial
