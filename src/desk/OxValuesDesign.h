#pragma once

#include "visual/FormDesign.h"

/// The design of frm_ToolOxValues: a rule a line, its examples at the right.
namespace phial::tool_ox_values_design
{

inline constexpr std::int32_t Rules = 10;

extern const FormDesign Design;

} // namespace phial::tool_ox_values_design
