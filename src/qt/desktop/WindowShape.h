#pragma once

#include "visual/Form.h"

class QWidget;

namespace phial::qt
{

/// Gives a window the holes that the model asks for: where its inside shows the key colour, or where the mask
/// picture is see-through. Presses there go to what lies behind the window.
void applyShape(QWidget& window, QWidget& inside, const Translucency& translucency);

} // namespace phial::qt
