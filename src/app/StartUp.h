#pragma once

#include "core/String.h"

namespace phial
{

class cls_App;

/// Runs the start-up routine on the root: all that happens between a host's INIT and its first own line. What
/// fails on the way is raised, except by the cover form at its end.
void startUp(cls_App& root, String commandLine, bool serverAllowed);

} // namespace phial
