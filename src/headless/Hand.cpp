#include "headless/Hand.h"

#include "core/RuntimeError.h"
#include "headless/PressedControl.h"
#include "headless/TextTyping.h"
#include "visual/CommandBar.h"
#include "visual/Form.h"
#include "visual/PaintSurface.h"
#include "visual/Typing.h"
#include "visual/ctl_Button.h"

#include <algorithm>

namespace phial::headless
{

namespace
{

/// The control at a place of its container (in pixels), from the front; null when there is none.
ControlPtr controlAt(const Container& container, PixelPoint place)
{
    const auto& controls = container.controls();
    for (auto candidate = controls.rbegin(); candidate != controls.rend(); ++candidate) {
        const PixelRectangle area = (*candidate)->frame().pixelRectangle();
        if (!(*candidate)->Visible() || !area.contains(place)) {
            continue;
        }
        UserControl* painted = (*candidate)->painted();
        if (!painted || painted->surface().hits({place.x - area.left, place.y - area.top})) {
            return *candidate;
        }
    }
    return nullptr;
}

std::int32_t codeOf(const KeyStroke& stroke)
{
    return stroke.character != 0 ? keyCodeOf(stroke.character) : static_cast<std::int32_t>(stroke.key);
}

void press(Control& control, double x, double y)
{
    const auto self = control.shared_from_this();
    if (!control.frame().isReachable()) {
        return;
    }
    focusByPress(control);
    const PointerEvent event{PointerButton::Left, 0, x, y};
    const PressedControl pressed(control);
    control.pointerDown(event);
    if (pressed.isLive()) {
        control.pointerUp(event);
    }
    if (pressed.isLive()) {
        control.click();
    }
}

void moveFocus(Form& form, bool backward)
{
    const auto order = form.tabOrder();
    if (order.empty()) {
        return;
    }
    const auto active = std::ranges::find(order, form.keyboardFocus()->field());
    const auto count = static_cast<std::ptrdiff_t>(order.size());
    const std::ptrdiff_t at = active == order.end() ? (backward ? 0 : -1) : active - order.begin();
    form.focus(order[static_cast<std::size_t>((at + (backward ? count - 1 : 1)) % count)]);
}

} // namespace

void click(Control& control)
{
    const PixelRectangle area = control.frame().pixelRectangle();
    press(control, area.width / 2, area.height / 2);
}

void click(Control& control, double x, double y)
{
    PixelPoint at{x, y};
    if (const ControlPtr hit = controlHit(control, at)) {
        press(*hit, at.x, at.y);
    }
}

std::shared_ptr<Control> controlHit(Control& control, PixelPoint& rAt)
{
    const Container* container = control.frame().container();
    UserControl* painted = control.painted();
    if (!container || !painted || painted->surface().hits(rAt)) {
        return control.shared_from_this();
    }
    const PixelRectangle area = control.frame().pixelRectangle();
    const PixelPoint place{area.left + rAt.x, area.top + rAt.y};
    ControlPtr below = controlAt(*container, place);
    if (below) {
        const PixelRectangle hit = below->frame().pixelRectangle();
        rAt = {place.x - hit.left, place.y - hit.top};
    }
    return below;
}

void focusByPress(Control& control)
{
    const auto form = control.frame().form();
    if (form && control.frame().canFocus() && control.frame().isReachable()) {
        form->focus(control.shared_from_this());
    }
}

void doubleClick(Control& control)
{
    const auto self = control.shared_from_this();
    const PressedControl pressed(control);
    click(control);
    if (pressed.isLive() && control.frame().isReachable()) {
        control.doubleClick();
    }
}

void drag(Control& control, PixelPoint from, PixelPoint to)
{
    constexpr int Steps = 4;
    const auto self = control.shared_from_this();
    if (!control.frame().isReachable()) {
        return;
    }
    const PixelPoint origin = control.frame().originOnForm();
    const auto event = [&](double share) {
        const PixelPoint now = control.frame().originOnForm();
        return PointerEvent{PointerButton::Left, 0, from.x + (to.x - from.x) * share + origin.x - now.x,
                            from.y + (to.y - from.y) * share + origin.y - now.y};
    };
    const PressedControl pressed(control);
    control.pointerDown(event(0));
    for (int step = 1; step <= Steps && pressed.isLive(); ++step) {
        control.pointerMove(event(static_cast<double>(step) / Steps));
    }
    if (pressed.isLive()) {
        control.pointerUp(event(1));
    }
    if (pressed.isLive()) {
        control.click();
    }
}

void turnWheel(Control& control, double notches)
{
    WheelEvent turn{notches};
    for (Control* asked = &control; asked && !turn.used;) {
        if (asked->frame().isReachable()) {
            asked->wheel(turn);
        }
        const Container* holder = asked->frame().container();
        asked = holder ? holder->owner() : nullptr;
    }
}

void clickButton(Control& bar, StringView key)
{
    auto& commands = dynamic_cast<CommandBar&>(bar);
    for (std::int32_t index = 1; index <= commands.BUTTONS()->Count(); ++index) {
        const auto button = commands.BUTTONS()->Item(index);
        if (equalsIgnoringCase(button->Key(), key)) {
            if (button->Enabled() && button->Visible()) {
                focusByPress(bar);
            }
            commands.inputButton(index);
            return;
        }
    }
    throw noSuchMember(key, bar.NAME());
}

void press(Form& form, const KeyStroke& stroke, KeyDown down)
{
    const auto self = form.shared_from_this();
    const bool wasShown = form.Visible();
    const auto hasClosed = [&] { return wasShown && !form.Visible(); };
    KeyEvent key{codeOf(stroke), stroke.Shift, down == KeyDown::Repeat, down == KeyDown::Sent};
    const ControlPtr active = form.keyboardFocus()->field();
    if (!form.inputKeyDown(key) || hasClosed()) {
        return;
    }
    KeyPressEvent typed{typedCharacter({sentCharacter(stroke), stroke.key, stroke.Shift})};
    const bool goesOn = typed.KeyAscii == 0 || form.inputKeyPress(typed);
    if (goesOn && !hasClosed() && stroke.key == Key::Tab) {
        moveFocus(form, (stroke.Shift & ShiftMask::Shift) != 0);
    } else if (goesOn && !hasClosed() && active) {
        typeInto(*active, stroke, typed.KeyAscii);
    }
}

void letGo(Form& form, const KeyStroke& stroke)
{
    KeyEvent up{codeOf(stroke), stroke.Shift};
    form.inputKeyUp(up);
}

namespace
{

void strikeTimes(Form& form, const KeyStroke& stroke, int times, KeyDown first = KeyDown::First)
{
    const auto self = form.shared_from_this();
    const bool wasShown = form.Visible();
    const auto hasClosed = [&] { return wasShown && !form.Visible(); };
    for (int time = 0; time < times && !hasClosed(); ++time) {
        press(form, stroke, time == 0 ? first : KeyDown::Repeat);
    }
    if (!hasClosed()) {
        letGo(form, stroke);
    }
}

} // namespace

void hold(Form& form, const KeyStroke& stroke)
{
    constexpr int Downs = 5;
    strikeTimes(form, stroke, Downs);
}

void strike(Form& form, const KeyStroke& stroke)
{
    strikeTimes(form, stroke, 1);
}

void send(Form& form, const KeyStroke& stroke)
{
    strikeTimes(form, stroke, 1, KeyDown::Sent);
}

void type(Form& form, StringView notation)
{
    for (const KeyStroke& stroke : parseKeyNotation(notation)) {
        strike(form, stroke);
    }
}

void compose(Form& form, StringView text)
{
    if (const ControlPtr active = form.keyboardFocus()->field()) {
        active->frame().inputComposition({String(text), static_cast<std::int32_t>(text.size())});
    }
}

void commit(Form& form, StringView text)
{
    const ControlPtr active = form.keyboardFocus()->field();
    if (!active || !active->frame().isReachable()) {
        return;
    }
    if (active->painted()) {
        if (active->frame().takesText()) {
            commitText(*active, text);
        }
        return;
    }
    for (const char16_t unit : text) {
        typeInto(*active, {unit}, unit);
    }
}

void tab(Form& form, bool backward)
{
    strike(form, {0, Key::Tab, backward ? ShiftMask::Shift : 0});
}

} // namespace phial::headless
