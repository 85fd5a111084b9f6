#pragma once

#include "core/Colour.h"

#include <QObject>
#include <QPalette>

#include <functional>

namespace phial::qt
{

/// The set that fits windows of that palette: dark where their ground is, of high contrast where it is black
/// or white and their text as far from it as can be.
ColourSet colourSetOf(const QPalette& palette);

/// What the palette of the desktop's own windows is, which the program's palette hides.
QPalette askDesktop();

/// Tells the session's theme which set the desktop shows: when it is made, and whenever the desktop says that
/// its theme is another one.
class DesktopLook final : public QObject
{
    Q_OBJECT

public:
    explicit DesktopLook(std::function<QPalette()> ask = askDesktop);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void tell();

    std::function<QPalette()> ask_;
    bool isScheduled_ = false;
};

} // namespace phial::qt
