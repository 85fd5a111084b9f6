#pragma once

#include "visual/FormDesign.h"

/// The design of frm_ToolLookUp: what is sought and where above, what has been found below.
namespace phial::tool_look_up_design
{

inline constexpr StringView Copies = u"SHEET.COPY();";
inline constexpr StringView Prints = u"SHEET.PRINT();";
inline constexpr StringView Asks = u"SHEET.QUIZ();";

/// Widths of the list's columns; the second has what they leave.
inline constexpr double SubjectColumn = 250;
inline constexpr double SheetColumn = 200;

extern const FormDesign Design;

} // namespace phial::tool_look_up_design
