#pragma once

#include "visual/Menu.h"

class QMenuBar;

namespace phial::qt
{

/// Shows the entries below a menu's root in a menu bar. Called again when the model has changed it keeps the
/// toolkit's entries of models that are still there, so that an open menu stays open and nothing piles up;
/// the bar keeps the models alive.
void showMenu(QMenuBar& bar, const Menu& root);

} // namespace phial::qt
