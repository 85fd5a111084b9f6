#pragma once

#include "core/Colour.h"
#include "core/WindowHandle.h"

#include <cstdint>

namespace phial
{

/// How a window becomes see-through.
enum class TranslucentMode : std::int32_t {
    ColourKey = 1, ///< pixels of the key colour are holes, the rest is solid; the opacity does not count
    Opacity = 2,   ///< the whole window has the opacity, 0 (invisible) to 255 (solid)
};

/// What is done to windows by their handles. Edges are in logical pixels of the screen; a handle without a
/// window gives 0 everywhere and ignores changes.
class CoreWindowOps
{
public:
    virtual ~CoreWindowOps() = default;

    virtual std::int32_t ScreenTop(WindowHandle pWindow) const = 0;
    virtual std::int32_t ScreenLeft(WindowHandle pWindow) const = 0;
    virtual std::int32_t ScreenBottom(WindowHandle pWindow) const = 0;
    virtual std::int32_t ScreenRight(WindowHandle pWindow) const = 0;

    virtual void SetTranslucent(WindowHandle pWindow, std::int32_t pOpacity, TranslucentMode pMode,
                                Colour pColourKey) = 0;

    /// Shows or hides the desktop's taskbar; nothing happens where there is none to reach.
    virtual void TaskbarVisible(bool pVisible) = 0;
};

} // namespace phial
