#pragma once

#include "core/String.h"

namespace phial
{

/// Leaves a trace in the user's setting "DebugPos" before a step that might not return, so that the value
/// tells afterwards how far a run got. It costs no access to the disk of its own but once a minute. Nothing
/// in the system reads it.
void DebugPos(StringView pText);

} // namespace phial
