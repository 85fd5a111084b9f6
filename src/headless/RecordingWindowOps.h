#pragma once

#include "core/CoreWindowOps.h"

#include <map>
#include <vector>

namespace phial::headless
{

/// Edges of a window on the screen, in pixels.
struct WindowEdges {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t right = 0;
    std::int32_t bottom = 0;
};

/// One call of `SetTranslucent`.
struct Translucency {
    WindowHandle window = WindowHandle::None;
    std::int32_t opacity = 255;
    TranslucentMode mode = TranslucentMode::Opacity;
    Colour colourKey;

    friend bool operator==(const Translucency&, const Translucency&) = default;
};

/// Windows whose places a test sets, and a record of what is done to them.
class RecordingWindowOps : public CoreWindowOps
{
public:
    void place(WindowHandle window, const WindowEdges& edges) { edges_[window] = edges; }
    const std::vector<Translucency>& translucencies() const { return translucencies_; }
    /// Every order to show or hide the taskbar, in turn.
    const std::vector<bool>& taskbarOrders() const { return taskbarOrders_; }

    std::int32_t ScreenTop(WindowHandle pWindow) const override { return edges(pWindow).top; }
    std::int32_t ScreenLeft(WindowHandle pWindow) const override { return edges(pWindow).left; }
    std::int32_t ScreenBottom(WindowHandle pWindow) const override { return edges(pWindow).bottom; }
    std::int32_t ScreenRight(WindowHandle pWindow) const override { return edges(pWindow).right; }
    void SetTranslucent(WindowHandle pWindow, std::int32_t pOpacity, TranslucentMode pMode,
                        Colour pColourKey) override
    {
        translucencies_.push_back({pWindow, pOpacity, pMode, pColourKey});
    }
    void TaskbarVisible(bool pVisible) override { taskbarOrders_.push_back(pVisible); }

private:
    WindowEdges edges(WindowHandle window) const
    {
        const auto entry = edges_.find(window);
        return entry == edges_.end() ? WindowEdges() : entry->second;
    }

    std::map<WindowHandle, WindowEdges> edges_;
    std::vector<Translucency> translucencies_;
    std::vector<bool> taskbarOrders_;
};

} // namespace phial::headless
