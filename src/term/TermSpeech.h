#pragma once

#include "core/String.h"

namespace phial
{

/// A term as a screen reader is to say it, in the language in force: a formula or an equation in words, with
/// its name where lessons have one; any other term as it stands.
String spokenTerm(StringView term);

} // namespace phial
