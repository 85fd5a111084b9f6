#pragma once

#include "visual/Geometry.h"
#include "visual/Input.h"

#include <memory>

namespace phial
{

class Form;

/// The screen as programs see it. Where there are several they make up one desktop, whose pixels all places
/// of windows and of the pointer are; a screen other than the first one does not begin at its (0, 0).
class Screen
{
public:
    /// The form that is active; null when none is.
    std::shared_ptr<Form> ActiveForm() const;
    /// Of the first screen, in twips.
    double Width() const;
    double Height() const;
    /// The screen on which programs begin; empty without any.
    PixelRectangle first() const;
    /// The screen that shows the point, or else the one nearest to it.
    PixelRectangle at(PixelPoint point) const;
    /// The screen that shows the middle of the form.
    PixelRectangle of(const Form& form) const;
    /// 15, on every screen.
    double TwipsPerPixelX() const { return TwipsPerPixel; }
    double TwipsPerPixelY() const { return TwipsPerPixel; }

    /// The cursor over all windows of the program; Default leaves it to the controls.
    phial::MousePointer MousePointer() const { return pointer_; }
    void MousePointer(phial::MousePointer value);

private:
    phial::MousePointer pointer_ = phial::MousePointer::Default;
};

} // namespace phial
