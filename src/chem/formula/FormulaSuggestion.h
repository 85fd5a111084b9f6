#pragma once

#include "core/String.h"

#include <vector>

namespace phial
{

/// What a text could mean whose symbols are not written as they should be: `h2o` is H2O, `Ch3` CH3, `NACL`
/// NaCl, `co2` CO2 or Co2. At most two formulas, which all read; none for a text that is too long or where
/// nothing fits. A capital of the text begins a symbol if that is possible at all.
std::vector<String> suggestedFormulas(StringView text);

} // namespace phial
