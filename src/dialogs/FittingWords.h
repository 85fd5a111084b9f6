#pragma once

#include "core/String.h"
#include "visual/Font.h"
#include "visual/Geometry.h"

namespace phial
{

/// As much of a plain text as a box of that size shows in wrapped lines: the whole of it, or its beginning
/// with an ellipsis.
String fittingWords(const String& text, const FontSpec& font, PixelSize room);

} // namespace phial
