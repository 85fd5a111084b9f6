#pragma once

#include "core/String.h"

namespace phial
{

class TextMetrics;

/// The font of a periodic table's texts: the first of "Calibri", "Tahoma" and "Arial" that can be had. Where
/// none can, it is the first of them, for which the display takes another.
StringView tableFont(const TextMetrics& metrics);

} // namespace phial
