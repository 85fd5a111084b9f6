#pragma once

#include "visual/Picture.h"

#include <QIcon>
#include <QImage>

namespace phial::qt
{

/// The toolkit's view of a picture's memory, which must outlive it; nothing is copied. Its device pixel ratio
/// is 1: it counts the pixels held.
QImage imageOf(const Picture& picture);

/// The same of a picture without see-through pixels, which is painted faster.
QImage opaqueImageOf(const Picture& picture);

/// The same with the picture's ratio, to be painted in logical pixels. Only for reading.
QImage imageForPainting(const Picture& picture);

/// A copy that knows the picture's ratio, for what keeps it.
QImage imageCopy(const Picture& picture);

/// A picture with a copy of the image's pixels, at that ratio.
PicturePtr pictureOf(const QImage& image, double pixelRatio = 1);

/// The picture as the icon of a window; empty for none.
QIcon iconOf(const PicturePtr& picture);

} // namespace phial::qt
