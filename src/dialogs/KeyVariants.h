#pragma once

#include "core/String.h"

namespace phial
{

/// The characters that a key offers when it is held, in the case of its face: such as "ßšśş" for "s". Empty
/// where there are none.
String variantsOf(StringView face);

} // namespace phial
