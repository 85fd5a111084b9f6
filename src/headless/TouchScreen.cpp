#include "headless/TouchScreen.h"

#include "core/RuntimeError.h"
#include "headless/Hand.h"
#include "visual/Form.h"
#include "visual/PaintSurface.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace phial::headless
{

namespace
{

/// The control's corner on the screen, in pixels.
PixelPoint screenOrigin(const Control& control)
{
    PixelPoint origin = control.frame().originOnForm();
    if (const auto form = control.frame().form()) {
        origin.x += form->Left() / TwipsPerPixel;
        origin.y += form->Top() / TwipsPerPixel;
    }
    return origin;
}

bool isOn(Control& control, const PointerEvent& event)
{
    const PixelRectangle area = control.frame().pixelRectangle();
    UserControl* painted = control.painted();
    return painted ? painted->surface().hits({event.X, event.Y})
                   : PixelRectangle{0, 0, area.width, area.height}.contains({event.X, event.Y});
}

} // namespace

void TouchScreen::press(std::int32_t finger, Control& control)
{
    const PixelRectangle area = control.frame().pixelRectangle();
    press(finger, control, {area.width / 2, area.height / 2});
}

void TouchScreen::press(std::int32_t finger, Control& control, PixelPoint at)
{
    if (down_.contains(finger)) {
        throw RuntimeError(ErrorNumber::InvalidArgument);
    }
    const PixelPoint origin = screenOrigin(control);
    PixelPoint inHit = at;
    Finger& pressing = down_[finger];
    pressing.place = {origin.x + at.x, origin.y + at.y};
    leading_ = finger;
    lead(finger);
    if (const ControlPtr hit = controlHit(control, inHit); hit && hit->frame().isReachable()) {
        begin(pressing, hit);
    }
}

void TouchScreen::begin(Finger& finger, const ControlPtr& control)
{
    const bool takesTouch = control->painted() && control->frame().takesTouch();
    if (!takesTouch && isMouseDown()) {
        return;
    }
    finger.number = takesTouch ? freeNumber(*control) : 0;
    finger.pressed = PressedControl(*control);
    const PixelPoint origin = screenOrigin(*control);
    const PointerEvent event{PointerButton::Left, 0, finger.place.x - origin.x, finger.place.y - origin.y,
                             finger.number};
    focusByPress(*control);
    control->pointerDown(event);
}

bool TouchScreen::isMouseDown() const
{
    return std::ranges::any_of(
        down_, [](const auto& held) { return held.second.number == 0 && held.second.pressed.inPlace(); });
}

std::int32_t TouchScreen::freeNumber(const Control& control) const
{
    const auto isTaken = [&](std::int32_t number) {
        return std::ranges::any_of(down_, [&](const auto& held) {
            return held.second.number == number && held.second.pressed.inPlace().get() == &control;
        });
    };
    std::int32_t number = 1;
    while (isTaken(number)) {
        ++number;
    }
    return number;
}

void TouchScreen::move(std::int32_t finger, PixelPoint by)
{
    Finger& moved = held(finger);
    moved.place = {moved.place.x + by.x, moved.place.y + by.y};
    lead(finger);
    if (const ControlPtr control = moved.pressed.inPlace()) {
        const PixelPoint origin = screenOrigin(*control);
        control->pointerMove(
            {PointerButton::Left, 0, moved.place.x - origin.x, moved.place.y - origin.y, moved.number});
    }
}

void TouchScreen::release(std::int32_t finger)
{
    const Finger released = held(finger);
    down_.erase(finger);
    if (leading_ == finger) {
        leading_.reset();
    }
    const ControlPtr control = released.pressed.inPlace();
    if (!control) {
        return;
    }
    const PixelPoint origin = screenOrigin(*control);
    const PointerEvent event{PointerButton::Left, 0, released.place.x - origin.x, released.place.y - origin.y,
                             released.number};
    const PressedControl let(*control);
    control->pointerUp(event);
    if (let.isLive() && control->frame().isReachable() && isOn(*control, event)) {
        control->click();
    }
}

void TouchScreen::cancel()
{
    leading_.reset();
    for (const auto& [number, finger] : std::exchange(down_, {})) {
        if (const ControlPtr control = finger.pressed.inPlace()) {
            const PixelPoint origin = screenOrigin(*control);
            control->pointerUp({PointerButton::Left, 0, finger.place.x - origin.x, finger.place.y - origin.y,
                                finger.number, true});
        }
    }
}

TouchScreen::Finger& TouchScreen::held(std::int32_t finger)
{
    const auto found = down_.find(finger);
    if (found == down_.end()) {
        throw RuntimeError(ErrorNumber::InvalidArgument);
    }
    return found->second;
}

void TouchScreen::lead(std::int32_t finger)
{
    if (leading_ == finger) {
        const PixelPoint place = down_[finger].place;
        display_.moveCursor(static_cast<std::int32_t>(std::lround(place.x)),
                            static_cast<std::int32_t>(std::lround(place.y)));
    }
}

} // namespace phial::headless
