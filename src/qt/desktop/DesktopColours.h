#pragma once

#include "core/Colour.h"

#include <QColor>

namespace phial::qt
{

/// The colour as painted; a slot of the desktop's colours takes what the program's palette says.
QColor toQColor(Colour colour);

/// A painted colour back as a plain one; its alpha is dropped.
Colour fromQColor(const QColor& colour);

} // namespace phial::qt
