#pragma once

#include "visual/Geometry.h"
#include "visual/Input.h"

#include <memory>

namespace phial
{

class Form;

/// The screen as programs see it.
class Screen
{
public:
    /// The form that is active; null when none is.
    std::shared_ptr<Form> ActiveForm() const;
    /// In twips.
    double Width() const;
    double Height() const;
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
