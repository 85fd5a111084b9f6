#pragma once

#include "visual/Control.h"

#include <functional>
#include <memory>
#include <vector>

namespace phial
{

/// What holds controls: a form has one, and so has each control that holds others. It keeps the controls that
/// stand directly in it, from the back to the front, and the unit in which their places are counted.
class Container
{
public:
    /// Tells the owner's widget that the controls or their order have changed.
    using Report = std::function<void(ControlAspect)>;

    Container(ScaleUnit unit, Report report);
    Container(const Container&) = delete;
    Container& operator=(const Container&) = delete;
    ~Container();

    /// Twips or pixels; another unit raises 5. Places of the controls stay where they are.
    ScaleUnit ScaleMode() const { return unit_; }
    void ScaleMode(ScaleUnit value);
    /// Twips in one unit: 1 or 15.
    double twipsPerUnit() const { return unit_ == ScaleUnit::Twips ? 1 : TwipsPerPixel; }

    /// Puts the control in front of the others. It must stand in no container.
    void add(const ControlPtr& control);
    /// Takes the control away; the focus leaves it first.
    void remove(Control& control);
    const std::vector<ControlPtr>& controls() const { return controls_; }
    void toFront(const Control& control);
    void toBack(const Control& control);

    /// The control that holds this container; null for a form's.
    Control* owner() const { return owner_; }
    void owner(Control* value) { owner_ = value; }

private:
    friend class ControlFrame;
    void release(const Control& control);
    std::vector<ControlPtr>::iterator find(const Control& control);

    ScaleUnit unit_;
    Report report_;
    Control* owner_ = nullptr;
    std::vector<ControlPtr> controls_;
};

} // namespace phial
