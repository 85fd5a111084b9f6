#pragma once

#include <QImage>

namespace phial::qt
{

/// Fills `smaller` with the image in its size: each pixel is the average of all that it covers. `smaller` is
/// no larger than the image, and its pixels are premultiplied ones with alpha.
void shrinkInto(QImage& smaller, const QImage& image);

} // namespace phial::qt
