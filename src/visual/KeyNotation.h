#pragma once

#include "core/String.h"
#include "visual/Input.h"

#include <vector>

namespace phial
{

/// One key struck: a character, or a key known by its code, with modifiers.
struct KeyStroke {
    char16_t character = 0; ///< 0 when `key` counts
    Key key = Key::None;
    std::int32_t Shift = 0; ///< ShiftMask bits

    friend bool operator==(const KeyStroke&, const KeyStroke&) = default;
};

/// The notation of keyboard emulation: "+" is Shift, "^" Ctrl and "%" Alt for the next key or the next group
/// in round brackets; braces quote a sign ("{+}", "{{}") or name a key ("{tab}", "{bs}", "{up}", "{esc}",
/// "{enter}",
/// "{pgup}", "{home}", …), with a count behind a blank ("{left 3}"); "~" and CR (LF behind it is skipped) are
/// Return. Names of keys disregard case. Raises 5 for an unclosed or unknown brace or an unclosed group, and
/// for a count beyond 1000.
std::vector<KeyStroke> parseKeyNotation(StringView notation);

} // namespace phial
