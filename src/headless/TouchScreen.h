#pragma once

#include "headless/FakeDisplay.h"
#include "headless/PressedControl.h"

#include <map>
#include <optional>

namespace phial::headless
{

/// Fingers that press, move and let go one by one, as an adapter would bring them. Where a control takes
/// touch each finger is a press of its own; elsewhere the first one is the mouse, and others do nothing until
/// it is let go. The fake pointer goes with the finger that pressed last.
///
/// Places are those of Hand: pixels of the control, and what is see-through there lets the press through.
class TouchScreen
{
public:
    explicit TouchScreen(FakeDisplay& display) : display_(display) {}

    /// The finger must be up. In the control's middle without a place.
    void press(std::int32_t finger, Control& control);
    void press(std::int32_t finger, Control& control, PixelPoint at);
    /// By so many pixels of the screen. What was pressed hears it, wherever it is meanwhile.
    void move(std::int32_t finger, PixelPoint by);
    /// Where the finger stands; a click, where that is on what was pressed.
    void release(std::int32_t finger);
    /// The desktop takes all touches for a gesture of its own: what takes touch hears that they are
    /// cancelled.
    void cancel();

private:
    struct Finger {
        PressedControl pressed;  ///< none for one that does nothing
        PixelPoint place;        ///< on the screen
        std::int32_t number = 0; ///< 0 where it is the mouse
    };

    Finger& held(std::int32_t finger);
    void begin(Finger& finger, const ControlPtr& control);
    bool isMouseDown() const;
    std::int32_t freeNumber(const Control& control) const;
    void lead(std::int32_t finger);

    FakeDisplay& display_;
    std::map<std::int32_t, Finger> down_;
    std::optional<std::int32_t> leading_;
};

} // namespace phial::headless
