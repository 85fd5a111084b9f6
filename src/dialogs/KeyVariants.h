#pragma once

#include "core/String.h"

namespace phial
{

/// The characters that a key offers when it is held, as its face shows a small or a capital letter: such as
/// "äàâ" for "a". Empty for most.
String variantsOf(StringView face);

} // namespace phial
