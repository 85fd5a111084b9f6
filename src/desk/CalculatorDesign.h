#pragma once

#include "visual/FormDesign.h"

/// The design of frm_ToolCalc: the display above the keys at the left, memories and past lines at the right.
/// All in pixels. The task above and the variables below take the room that they need.
namespace phial::tool_calc_design
{

inline constexpr double Margin = 16;
inline constexpr double Gap = 8;

inline constexpr double KeyWidth = 64;
inline constexpr double KeyHeight = 46;
inline constexpr std::int32_t Columns = 5;
inline constexpr std::int32_t Rows = 6;
inline constexpr double KeypadWidth = Columns * KeyWidth + (Columns - 1) * Gap;

inline constexpr double DisplayHeight = 64;
inline constexpr double ReadingTop = Margin + DisplayHeight + 4;
inline constexpr double ReadingHeight = 38;
inline constexpr double KeysTop = ReadingTop + ReadingHeight + Gap;
inline constexpr double CalcWidth = Margin + KeypadWidth + Margin;
inline constexpr double CalcHeight = KeysTop + Rows * KeyHeight + (Rows - 1) * Gap + Margin;

/// The width of what stands beside the keys: past lines, or the table.
inline constexpr double TapeWidth = 232;
inline constexpr double TableWidth = 616;
inline constexpr double MemoryHeight = 40;
inline constexpr double StoreWidth = 64;
inline constexpr double TapeTitleHeight = 24;
inline constexpr double TapeRoom = 172; ///< of a line, beside the bar that turns the list
inline constexpr double VariableHeight = 44;
inline constexpr double LeastVariableWidth = 110;

/// The display's font begins with this size and goes down to the least.
inline constexpr double LargestPoints = 26;
inline constexpr double LeastPoints = 5;
/// What the text leaves free of the display's width.
inline constexpr double DisplayMargin = 10;

inline constexpr std::int32_t FirstStoreKey = 40; ///< indices of the four keys STO1 to STO4

extern const FormDesign Design;

} // namespace phial::tool_calc_design
