#pragma once

#include "visual/Menu.h"

class QMenuBar;

namespace phial::qt
{

/// Shows the entries below a menu's root in a menu bar, made anew from the model; the bar keeps the models
/// alive.
void showMenu(QMenuBar& bar, const Menu& root);

} // namespace phial::qt
