#pragma once

#include "core/CoreTheme.h"

#include <QObject>

class QPushButton;
class QWidget;

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

/// The look of the toolkit's own widgets: one palette and one style sheet for the whole program, made from
/// the theme's colours. Needs the application object.
void applyTheme(const CoreTheme& theme);
/// The session's theme, unless the program has one already: for boxes that come before the first window.
void ensureTheme();

/// The button stands out as the one to press, or does so no longer.
void markAccent(QPushButton& button, bool accent);
/// The widget is the ground of a command bar.
void markBar(QWidget& bar);

} // namespace phial::qt
