#pragma once

#include <QImage>

namespace phial::qt
{

/// The image in a smaller size: each pixel is the average of all that it covers. Gives one of the painter's
/// usual formats, and the image itself where it has that size. The size is at most the image's.
QImage shrunk(const QImage& image, QSize size);

} // namespace phial::qt
