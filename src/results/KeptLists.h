#pragma once

#include "core/String.h"

namespace phial
{

/// What people should be told about lists that were damaged or not read, and are kept under another name, or
/// that have gone, since this was asked last; in the language in force, empty when there is nothing. A
/// program shows it once, where it does not disturb: behind a result that was handed in.
String untoldKeptLists();

} // namespace phial
