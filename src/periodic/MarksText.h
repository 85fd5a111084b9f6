#pragma once

#include "core/CoreStringList.h"
#include "core/CoreTokenList.h"

#include <memory>

/// Marks of a periodic table as texts, for whoever reaches them by name: words with blanks between.
namespace phial
{

/// "He Ne".
String textOf(const CoreStringList& symbols);
std::shared_ptr<CoreStringList> symbolsIn(StringView text);

/// "Cl 65280 Na 255": each symbol with its colour. Raises 5 for a symbol without one, and 13 for a colour
/// that is no number.
String textOf(const CoreTokenList& frames);
std::shared_ptr<CoreTokenList> framesIn(StringView text);

} // namespace phial
