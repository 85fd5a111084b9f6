#pragma once

#include "qt/desktop/SvgForm.h"

class QPainter;

namespace phial::qt
{

/// Draws a form with the present texts of its fields into an area of the painter, as large as fits and in the
/// middle. Texts stand above the drawing. A text that is too long for its box, or for its line between the
/// edges of the page, is made smaller, to half its size; what is still too long is cut at a whole line.
/// False when the drawing cannot be shown.
bool drawSvgForm(QPainter& painter, const SvgForm& form, const QRectF& area);

} // namespace phial::qt
