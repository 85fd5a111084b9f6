#pragma once

#include "visual/FormDesign.h"

/// The design of frm_ToolPeriodensystem: two tables and a picture at the same place, and what changes them.
namespace phial::tool_periodic_design
{

extern const FormDesign Design;

} // namespace phial::tool_periodic_design
