#pragma once

#include "core/String.h"

#include <map>

namespace phial
{
class Form;
}

namespace phial::test
{

/// Every text that a form shows or says to a screen reader, by the place where it stands, such as
/// `lab_Title.Caption`, `lab_Last(2).ToolTipText` or `bar_Buttons.BUTTONS(1).Caption`: its own caption and
/// those of its controls and menu entries, with their buttons, panels, items, columns and list lines. Empty
/// texts and those of blanks alone are left out, and so are those of hidden controls.
std::map<String, String> visibleTexts(Form& form);

} // namespace phial::test
