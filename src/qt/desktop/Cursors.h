#pragma once

#include "visual/Input.h"
#include "visual/Picture.h"

#include <QCursor>

namespace phial::qt
{

/// The cursor for a pointer's shape. The picture counts for MousePointer::Custom; its hot spot is in its
/// middle top, where a pointing hand has its finger.
QCursor cursorFor(MousePointer pointer, const PicturePtr& picture);

} // namespace phial::qt
