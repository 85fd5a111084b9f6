#include "visual/Container.h"

#include "core/RuntimeError.h"

#include <algorithm>

namespace phial
{

Container::Container(ScaleUnit unit, Report report) : report_(std::move(report))
{
    ScaleMode(unit);
}

Container::~Container()
{
    for (const auto& control : controls_) {
        control->frame().container_ = nullptr;
    }
}

void Container::ScaleMode(ScaleUnit value)
{
    if (value != ScaleUnit::Twips && value != ScaleUnit::Pixels) {
        throw RuntimeError(ErrorNumber::InvalidArgument);
    }
    unit_ = value;
}

void Container::add(const ControlPtr& control)
{
    if (!control) {
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    }
    ControlFrame& frame = control->frame();
    if (frame.container_) {
        throw RuntimeError(ErrorNumber::InvalidArgument);
    }
    frame.container_ = this;
    controls_.push_back(control);
    report_(ControlAspect::Children);
    control->frame().tellSeen();
}

void Container::remove(Control& control)
{
    const ControlPtr self = control.shared_from_this(); // outlives its place here
    if (find(control) != controls_.end()) {
        control.frame().leaveFocus();
        release(control);
        control.frame().tellSeen();
    }
}

void Container::release(const Control& control)
{
    const auto found = find(control);
    if (found == controls_.end()) {
        return;
    }
    const ControlPtr removed = *found; // outlives the report
    controls_.erase(found);
    removed->frame().container_ = nullptr;
    report_(ControlAspect::Children);
    if (!removed->frame().container_) {
        removed->frame().peer(nullptr); // what is left of a press on its widget is for nobody
    }
}

void Container::toFront(const Control& control)
{
    if (const auto found = find(control); found != controls_.end()) {
        std::rotate(found, found + 1, controls_.end());
        report_(ControlAspect::ZOrder);
    }
}

void Container::toBack(const Control& control)
{
    if (const auto found = find(control); found != controls_.end()) {
        std::rotate(controls_.begin(), found, found + 1);
        report_(ControlAspect::ZOrder);
    }
}

std::vector<ControlPtr>::iterator Container::find(const Control& control)
{
    return std::ranges::find_if(controls_, [&](const ControlPtr& entry) { return entry.get() == &control; });
}

} // namespace phial
