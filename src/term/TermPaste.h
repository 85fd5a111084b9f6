#pragma once

#include "core/String.h"

namespace phial
{

/// A text from outside as a term of one line. What other programs raise and lower comes in the term's
/// notation, and a term stays as it is:
///
///     H₂SO₄, H<sub>2</sub>SO<sub>4</sub>         H2SO4
///     SO₄²⁻, SO<sub>4</sub><sup>2-</sup>         SO4^2-
///     Na⁺ + Cl⁻                                  Na^+ + Cl-
///     ²³⁵U, x<sub>n</sub>                        ^2#^3#^5U, xµn
///     → ← ≈ · ≙ −                                -> <- ~~ * =^ -
///
/// Line ends, tabs and wide blanks become blanks, of which none stand at the ends; further control characters
/// and halves of pairs are left out. Of a very long text the beginning is read.
String termOfText(StringView text);

/// The same for what programs give to the clipboard: the text, and what it looks like as HTML, which counts
/// where it raises or lowers anything. A term that a term field has copied comes back exactly.
String termOfClipboard(StringView text, StringView html);

} // namespace phial
