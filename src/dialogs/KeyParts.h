#pragma once

#include "dialogs/KeySheet.h"
#include "visual/UserControl.h"

#include <vector>

namespace phial
{

/// What screen readers find of a keyboard, in the language in force: each key as a button, in the order of
/// the layout, and behind them the variants, while some are shown.
std::vector<NamedPart> keyParts(const KeyBoard& board, const KeySheet& sheet,
                                const std::optional<VariantStrip>& strip);

} // namespace phial
