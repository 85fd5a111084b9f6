#pragma once

#include "visual/Control.h"

class QWidget;

namespace phial::qt
{

/// A widget for a control, joined to it: the painting one for what paints itself, the toolkit's own for the
/// rest. The holder owns it.
QWidget* makeControlWidget(const ControlPtr& control, QWidget& holder);

} // namespace phial::qt
