#pragma once

#include "visual/Alignment.h"
#include "visual/Control.h"
#include "visual/FontSpec.h"

#include <QRectF>
#include <QString>
#include <Qt>

class QColor;
class QRect;
class QWidget;

namespace phial::qt
{

/// What every widget of a control shows of its frame: place, visibility, whether it is enabled, its order,
/// pointer, tool tip and its name for screen readers. `Focus` gives it the focus. Aspects of single controls
/// do nothing here.
void applyFrameAspect(QWidget& widget, Control& control, ControlAspect aspect);

/// Place and all the rest, for a fresh widget.
void applyFrame(QWidget& widget, Control& control);
/// All the rest, for a fresh widget whose place and visibility are a layout's.
void applyLook(QWidget& widget, Control& control);
/// Whether the focus can come, and how.
void applyFocusPolicy(QWidget& widget, const ControlFrame& frame);

/// How many pixels of the window a pixel of the control takes.
double zoomOf(const Control& control);
/// The font as the control's window shows it.
FontSpec zoomed(FontSpec font, const Control& control);
QRectF zoomed(const PixelRectangle& area, const Control& control);

/// The control's rectangle in its window, with its edges rounded to pixels.
QRect pixelPlace(const Control& control);
/// Puts the widget there.
void applyGeometry(QWidget& widget, Control& control);

/// Tells a form's window that the widget lets through another part of it.
void tellShape(QWidget& widget);

/// Of a field or a list; one that is off looks so whatever its colours are.
void showColours(QWidget& widget, const QColor& text, const QColor& ground);

/// Where a text of one line stands: at its side, and in the middle of the height.
Qt::Alignment lineAlignment(Alignment alignment);

/// The text as a push button of the toolkit takes it: no sign in it stands for a key.
QString buttonText(StringView text);

/// Gives the field in a holder the names of the holder, since that is what screen readers come to.
void passNames(const QWidget& holder, QWidget& field);

} // namespace phial::qt
