#pragma once

#include "core/CoreTheme.h"

#include <QObject>

namespace phial::qt
{

/// Tells what shows colours that the theme has got others.
class ThemeNews final : public QObject
{
    Q_OBJECT

public:
    static ThemeNews& instance();

Q_SIGNALS:
    void changed();
};

/// While one of these lives the program itself changes its palette, and not the desktop.
class ApplyingTheme
{
public:
    ApplyingTheme();
    ~ApplyingTheme();
    ApplyingTheme(const ApplyingTheme&) = delete;
    ApplyingTheme& operator=(const ApplyingTheme&) = delete;

    static bool isUnderWay();
};

/// The look of the toolkit's own widgets: one style, and one palette made from the theme's colours, for the
/// whole program. Needs the application object.
void applyTheme(const CoreTheme& theme);
/// Whether the program has that look.
bool isThemed();
/// The session's theme, unless the program has one already: for boxes that come before the first window.
void ensureTheme();

} // namespace phial::qt
