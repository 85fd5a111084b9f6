#pragma once

#include <QIcon>
#include <QPixmap>
#include <QStyle>

namespace phial::qt
{

/// The sign of a message: its shape tells what it is, its colour is that of the set that is shown. It is
/// drawn for each size and screen anew. Null for other icons.
QIcon boxSign(QStyle::StandardPixmap icon);

/// The same with that many pixels for a logical one; `size` is its side in logical ones.
QPixmap drawnSign(QStyle::StandardPixmap icon, int size, double ratio);

} // namespace phial::qt
