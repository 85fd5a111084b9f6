#pragma once

#include "core/CoreTheme.h"

class QPushButton;
class QWidget;

namespace phial::qt
{

/// The look of the toolkit's own widgets: one palette and one style sheet for the whole program, made from
/// the theme's colours. Needs the application object.
void applyTheme(const CoreTheme& theme);
/// The session's theme, unless the program has one already: for boxes that come before the first window.
void ensureTheme();

/// The button stands out as the one to press, or does so no longer.
void markAccent(QPushButton& button, bool accent);
/// The widget is the ground of a command bar.
void markBar(QWidget& bar);

} // namespace phial::qt
