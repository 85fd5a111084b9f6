#pragma once

#include "core/WindowHandle.h"

class QWidget;

namespace phial::qt
{

/// Which widget stands behind a window handle. Widgets leave by themselves when they end.
void registerWindow(WindowHandle handle, QWidget& widget);

/// Null for a handle without a widget.
QWidget* widgetOf(WindowHandle handle);

} // namespace phial::qt
