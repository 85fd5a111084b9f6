#pragma once

#include "desk/SheetEntries.h"

namespace phial
{

/// Prints the entries as a table below the title, on as many pages as they need, each with its number at the
/// bottom. Nothing happens without entries; an error of the printer is raised.
void printEntries(const String& title, std::span<const SheetEntry> entries);

} // namespace phial
