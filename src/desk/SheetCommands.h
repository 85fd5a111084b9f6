#pragma once

#include "desk/SheetEntries.h"

namespace phial
{

class DesignedForm;

/// Wires what all reference sheets have in common: OK closes the form, "Look up" and Ctrl+F open the table of
/// all sheets at this one.
void wireSheet(DesignedForm& form, ReferenceSheet sheet);

} // namespace phial
