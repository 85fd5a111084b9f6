#pragma once

#include "visual/Form.h"

#include <memory>

namespace phial::headless
{

/// A control that a press has found, for as long as a desktop would tell it of that press: nothing more once
/// it has been taken from where it was, or its window has closed.
class PressedControl
{
public:
    PressedControl() = default;
    explicit PressedControl(Control& control)
        : control_(control.shared_from_this()), container_(control.frame().container()),
          form_(control.frame().form()), wasShown_(isShown())
    {
    }

    /// Null when it has gone or been taken away.
    ControlPtr inPlace() const
    {
        const ControlPtr control = control_.lock();
        const bool isThere =
            control && control->frame().container() == container_ && control->frame().form() == form_.lock();
        return isThere ? control : nullptr;
    }
    bool isLive() const { return inPlace() && (!wasShown_ || isShown()); }

private:
    bool isShown() const
    {
        const auto form = form_.lock();
        return form && form->Visible();
    }

    std::weak_ptr<Control> control_;
    const Container* container_ = nullptr; // compared only
    std::weak_ptr<Form> form_;
    bool wasShown_ = false;
};

} // namespace phial::headless
