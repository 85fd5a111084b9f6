#pragma once

#include "core/Colour.h"

namespace phial
{
class Form;
}

/// How the trainer looks: colours, fonts and alignments of the controls that MolmasseLayout.h places.
namespace molmasse::style
{

inline constexpr phial::Colour Paper = phial::RGB(246, 249, 252); // ground of the pages
inline constexpr phial::Colour Good = phial::RGB(0, 112, 60);
inline constexpr phial::Colour Bad = phial::RGB(176, 32, 32);
inline constexpr phial::Colour Online = phial::RGB(0, 150, 80); // sign of the classroom
inline constexpr phial::Colour Offline = phial::RGB(150, 160, 170);

/// Dresses all controls of the form; those of control arrays must be there.
void apply(phial::Form& form);

/// The same for the dialog that asks for the master.
void applyToMasterChoice(phial::Form& form);

} // namespace molmasse::style
