#pragma once

#include "visual/FormDesign.h"

/// The design of frm_DialogKeyboardPSE, at scale 1: what is asked for at the top, the formula and the table
/// below it, the keys beside them.
namespace phial::dialog_keyboard_pse_design
{

/// The words; they stand above the field.
inline constexpr PixelRectangle WordsArea{24, 8, 740, 32};

/// The table takes it once it follows its size, which the design's rows set behind the place.
inline constexpr ControlDesign::Rectangle TableArea{24, 104, 536, 353};
/// From one cell of the table to the next; they are the least of all that is tapped.
inline constexpr double CellPitch = TableArea.width / 19;

extern const FormDesign Design;

} // namespace phial::dialog_keyboard_pse_design
