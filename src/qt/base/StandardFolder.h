#pragma once

#include "core/String.h"

#include <QStandardPaths>

namespace phial::qt
{

/// A native folder as the system writes it, with one backslash at its end. A folder that is no real place
/// (none, or the root that stands for a missing home) is replaced by the temporary folder.
String asFolder(const QString& nativeFolder);

/// One of the desktop's standard folders in the same form.
String standardFolder(QStandardPaths::StandardLocation location);

} // namespace phial::qt
