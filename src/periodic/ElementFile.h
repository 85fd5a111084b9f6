#pragma once

#include "core/String.h"

namespace phial
{

/// The element file of the installation, from which tables of programs and dialogs are read.
String elementFile();

/// Whether it is there. If not, the user is told, with its path.
bool checkElementFile();

} // namespace phial
