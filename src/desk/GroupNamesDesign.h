#pragma once

#include "visual/FormDesign.h"

/// The design of frm_ToolGroupNames: the lines of the sheet in columns, from above to below.
namespace phial::tool_group_names_design
{

inline constexpr double NameWidth = 148;
inline constexpr double FormulaWidth = 88;
inline constexpr double RowHeight = 35;
inline constexpr double FormulaPoints = 10;
inline constexpr std::int32_t Columns = 4;
inline constexpr std::int32_t Rows = 13;
inline constexpr std::int32_t Lines = 49;

extern const FormDesign Design;

} // namespace phial::tool_group_names_design
