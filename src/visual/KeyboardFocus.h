#pragma once

#include "visual/Control.h"

#include <memory>
#include <vector>

namespace phial
{

/// Where typing goes on a form or in a foreign window.
///
/// A painted control may hold fields of its own, which stand within it without belonging to the form. Such a
/// field takes the focus together with what holds it: coming in, the holder hears GotFocus before its field,
/// and going out LostFocus behind it; while the focus moves between two fields of one holder, the holder
/// hears nothing.
class KeyboardFocus
{
public:
    /// The control that keys go to; null when none has the focus.
    ControlPtr field() const { return field_.lock(); }
    /// The same as the form knows it: the field's outermost holder, or the field itself.
    ControlPtr control() const;
    /// Whether the control, or a field that it holds, has the focus.
    bool isAt(const Control& control) const;
    /// Whether the focus is at a control that stands in that one, and not at that one itself.
    bool isInside(const Control& control) const;

    /// What takes the focus when the control is given it: the field within that has it already, the first one
    /// of its Tab order, or itself. Null when nothing can.
    ControlPtr fieldOf(const ControlPtr& control) const;

    /// The focus goes to the control or its field, or to none; those concerned hear so. A handler may move it
    /// on.
    void moveTo(const ControlPtr& control);
    /// The same without telling anybody, for a form without a window.
    void choose(const ControlPtr& control) { field_ = control; }
    /// Nobody has it any longer, and nobody is told; the field is still the one chosen.
    void forget() const;

private:
    void tell(const ControlPtr& previous, const ControlPtr& field) const;

    std::weak_ptr<Control> field_;
};

/// The stops of the Tab key at these controls, by TabIndex; those of equal index in the order given. Fields
/// that a painted control holds for itself stand at its place, in their own order, instead of it; it has to
/// be a stop itself if it can take the focus at all.
std::vector<ControlPtr> tabStops(std::vector<ControlPtr> controls);

} // namespace phial
