#pragma once

#include "visual/Control.h"
#include "visual/KeyNotation.h"

namespace phial::headless
{

/// What a text field of a toolkit does with a key: types `character` (0 for none, as of commands), deletes,
/// moves the caret. Does nothing to controls of other kinds and to locked fields beyond moving the caret.
void typeInto(Control& control, const KeyStroke& stroke, char16_t character);

} // namespace phial::headless
