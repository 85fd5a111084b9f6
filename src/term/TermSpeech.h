#pragma once

#include "core/String.h"

namespace phial
{

/// A term as a screen reader is to say it, in the language in force: a formula or an equation in words, with
/// its name where lessons have one; any other term as it stands.
String spokenTerm(StringView term);
/// The same without the name: of what a pupil is asked to name, or types as an answer.
String spelledTerm(StringView term);

} // namespace phial
