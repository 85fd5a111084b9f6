#pragma once

#include "dialogs/KeyBoard.h"

namespace phial
{

/// What screen readers say of a key, in the language in force: what it types or does now, and of a modifier
/// whether it is locked.
String spokenKey(const KeyBoard& board, std::int32_t index);

/// Likewise of a single character.
String spokenCharacter(StringView character);

} // namespace phial
