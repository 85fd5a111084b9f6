#pragma once

#include "core/String.h"

namespace phial
{

/// The running program's title: that of the open session's platform; without a session what a platform has
/// when nobody sets one.
String programTitle();

} // namespace phial
