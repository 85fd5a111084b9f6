#pragma once

#include "core/String.h"

namespace phial
{

/// Prints a picture on one page, as large as its paper allows, in the direction that suits it, and no larger
/// than twice its size. Nothing happens for one that cannot be read; an error of the printer is raised.
void printHelpPage(const String& file, const String& title);

} // namespace phial
