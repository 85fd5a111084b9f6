#pragma once

#include "dialogs/KeyVariants.h"

namespace phial
{

/// What keys of the keyboards for terms offer when they are held:
///
///     a digit    itself raised and lowered
///     a letter   the elements that begin with it, those of lessons first
///     -          arrows
///     (          a fraction
std::vector<KeyVariant> termVariants(const KeyBoard& board, std::int32_t index);

/// The ions of an element that lessons have a name for.
std::vector<KeyVariant> ionVariants(StringView symbol);

/// What a variant puts into a term behind `before`, so that it reads as it was shown: a raised digit behind a
/// raised one stands beside it and not above it, an ion behind its own symbol adds its charge to that, and no
/// blank is doubled.
String variantBehind(StringView before, StringView variant);

/// How far behind the place where a variant was typed the caret comes; in the numerator of a fraction.
std::size_t caretInVariant(StringView typed);

} // namespace phial
