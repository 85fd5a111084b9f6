#include "visual/Screen.h"

#include "visual/Form.h"
#include "visual/VisualHost.h"

namespace phial
{

std::shared_ptr<Form> Screen::ActiveForm() const
{
    return visualHost().forms().ActiveForm();
}

double Screen::Width() const
{
    return visualHost().screenSize().width * TwipsPerPixel;
}

double Screen::Height() const
{
    return visualHost().screenSize().height * TwipsPerPixel;
}

void Screen::MousePointer(phial::MousePointer value)
{
    if (pointer_ != value) {
        pointer_ = value;
        visualHost().screenPointerChanged(value);
    }
}

} // namespace phial
