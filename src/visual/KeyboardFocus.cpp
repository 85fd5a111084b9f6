#include "visual/KeyboardFocus.h"

#include "visual/Container.h"

#include <algorithm>

namespace phial
{

namespace
{

/// The controls that the control holds for itself, by TabIndex.
std::vector<ControlPtr> fieldsOf(Control& holder)
{
    std::vector<ControlPtr> fields;
    if (const Container* inside = holder.containerInUse()) {
        std::ranges::copy_if(inside->controls(), std::back_inserter(fields), [&](const ControlPtr& control) {
            return control->frame().privateHolder() == &holder;
        });
    }
    std::ranges::stable_sort(fields, {}, [](const ControlPtr& field) { return field->frame().TabIndex(); });
    return fields;
}

void addStops(const ControlPtr& control, std::vector<ControlPtr>& stops)
{
    const ControlFrame& frame = control->frame();
    if (frame.canFocus() && !frame.TabStop()) {
        return;
    }
    const std::size_t before = stops.size();
    for (const ControlPtr& field : fieldsOf(*control)) {
        addStops(field, stops);
    }
    if (stops.size() == before && frame.TabStop() && frame.isReachable()) {
        stops.push_back(control);
    }
}

/// The first field within that can take the focus, a stop of the Tab key or not.
ControlPtr anyFieldOf(Control& holder)
{
    for (const ControlPtr& field : fieldsOf(holder)) {
        if (ControlPtr inner = anyFieldOf(*field)) {
            return inner;
        }
        if (field->frame().canFocus() && field->frame().isReachable()) {
            return field;
        }
    }
    return nullptr;
}

/// The control and its holders, from the inside out.
std::vector<ControlPtr> withHolders(const ControlPtr& control)
{
    std::vector<ControlPtr> chain;
    for (ControlPtr link = control; link;) {
        chain.push_back(link);
        const Control* holder = link->frame().privateHolder();
        link = holder ? std::const_pointer_cast<Control>(holder->weak_from_this().lock()) : nullptr;
    }
    return chain;
}

} // namespace

std::vector<ControlPtr> tabStops(std::vector<ControlPtr> controls)
{
    std::ranges::stable_sort(controls, {},
                             [](const ControlPtr& control) { return control->frame().TabIndex(); });
    std::vector<ControlPtr> stops;
    for (const ControlPtr& control : controls) {
        addStops(control, stops);
    }
    return stops;
}

ControlPtr KeyboardFocus::control() const
{
    const ControlPtr focused = field();
    return focused ? withHolders(focused).back() : nullptr;
}

bool KeyboardFocus::isAt(const Control& control) const
{
    const ControlPtr focused = field();
    for (const Control* link = focused.get(); link; link = link->frame().privateHolder()) {
        if (link == &control) {
            return true;
        }
    }
    return false;
}

bool KeyboardFocus::isInside(const Control& control) const
{
    const ControlPtr focused = field();
    return focused && focused->frame().standsIn(control);
}

ControlPtr KeyboardFocus::fieldOf(const ControlPtr& control) const
{
    if (!control->frame().isReachable()) {
        return nullptr;
    }
    if (ControlPtr focused = field(); focused && isAt(*control) && focused->frame().isReachable()) {
        return focused;
    }
    if (const std::vector<ControlPtr> stops = tabStops(fieldsOf(*control)); !stops.empty()) {
        return stops.front();
    }
    if (ControlPtr field = anyFieldOf(*control)) {
        return field;
    }
    return control->frame().canFocus() ? control : nullptr;
}

void KeyboardFocus::moveTo(const ControlPtr& control)
{
    ControlPtr field = control ? fieldOf(control) : nullptr;
    if (!field) {
        field = control;
    }
    const ControlPtr previous = field_.lock();
    if (previous != field || (field && !field->frame().hasFocus())) {
        field_ = field;
        tell(previous, field);
    } else if (field != control) {
        field->frame().report(ControlAspect::Focus); // the holder's widget has got it instead
    }
}

void KeyboardFocus::tell(const ControlPtr& previous, const ControlPtr& field) const
{
    for (const ControlPtr& left : withHolders(previous)) {
        if (!isAt(*left)) {
            left->frame().focusChanged(false);
        }
    }
    std::vector<ControlPtr> inwards = withHolders(field);
    std::ranges::reverse(inwards);
    for (const ControlPtr& entered : inwards) {
        if (this->field() != field) {
            return; // a handler has moved the focus on
        }
        if (entered == field) {
            field->frame().report(ControlAspect::Focus);
        }
        entered->frame().focusChanged(true);
    }
}

void KeyboardFocus::forget() const
{
    for (const ControlPtr& link : withHolders(field())) {
        link->frame().forgetFocus();
    }
}

} // namespace phial
