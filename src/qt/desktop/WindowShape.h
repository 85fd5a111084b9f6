#pragma once

#include "visual/Form.h"

class QImage;
class QWidget;

namespace phial::qt
{

/// Whether the window has holes: where its inside shows the key colour, or where the mask picture is
/// see-through. Presses there go to what lies behind the window.
bool hasHoles(const Translucency& translucency);

/// Whether the desktop puts windows together by their alpha, so that pixels can be half see-through.
bool desktopComposes();

/// Gives a window its holes. With soft edges a pixel is a hole when nothing of it is drawn, without them when
/// less than half of it is.
void applyShape(QWidget& window, QWidget& inside, const Translucency& translucency, bool soft);

/// The picture for a window without soft edges: each pixel solid in its own colour, or a hole.
QImage hardened(const Picture& picture);

} // namespace phial::qt
