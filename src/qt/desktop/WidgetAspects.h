#pragma once

#include "visual/Control.h"

class QWidget;

namespace phial::qt
{

/// What every widget of a control shows of its frame: place, visibility, whether it is enabled, its order,
/// pointer, tool tip and its name for screen readers. `Focus` gives it the focus. Aspects of single controls
/// do nothing here.
void applyFrameAspect(QWidget& widget, Control& control, ControlAspect aspect);

/// Place and all the rest, for a fresh widget.
void applyFrame(QWidget& widget, Control& control);

/// The widget's place: the control's rectangle with its edges rounded to pixels.
void applyGeometry(QWidget& widget, const Control& control);

/// Gives the field in a holder the names of the holder, since that is what screen readers come to.
void passNames(const QWidget& holder, QWidget& field);

} // namespace phial::qt
