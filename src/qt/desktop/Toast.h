#pragma once

#include <QString>

namespace phial::qt
{

/// Shows a short text over the active window; it goes after a moment, or by a press or a key.
void showToast(const QString& text);

} // namespace phial::qt
