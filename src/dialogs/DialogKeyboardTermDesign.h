#pragma once

#include "visual/FormDesign.h"

/// The design of frm_DialogKeyboardTerm, at scale 1: what is asked for at the top, the term below it between
/// keys of its own, then the letters and digits.
namespace phial::dialog_keyboard_term_design
{

/// The words; they stand above the field.
inline constexpr PixelRectangle WordsArea{24, 8, 652, 32};

/// Where formulas are offered: field and keys make room for them.
inline constexpr ControlDesign::Rectangle OfferArea{24, 44, 652, 48};
inline constexpr double OfferRoom = OfferArea.height + 6;

extern const FormDesign Design;

} // namespace phial::dialog_keyboard_term_design
