#pragma once

#include "core/String.h"

namespace phial
{

/// The languages in which the formula kernel speaks.
enum class FormulaTongue : std::uint8_t { German, English };

/// One half of "German|English".
inline StringView inTongue(StringView both, FormulaTongue tongue)
{
    const std::size_t bar = both.find(u'|');
    return tongue == FormulaTongue::German ? both.substr(0, bar) : both.substr(bar + 1);
}

} // namespace phial
