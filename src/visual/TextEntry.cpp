#include "visual/TextEntry.h"

#include "visual/Form.h"

namespace phial
{

namespace
{

void typeUnit(Control& control, char16_t unit)
{
    KeyPressEvent typed{unit};
    if (const auto form = control.frame().form()) {
        form->inputKeyPress(typed);
    } else {
        control.keyPress(typed);
    }
}

} // namespace

void commitText(Control& control, StringView text)
{
    const ControlPtr self = control.shared_from_this(); // a handler may take it away
    const ControlFrame& frame = control.frame();
    const bool focused = frame.hasFocus();
    control.frame().inputComposition({});
    for (const char16_t unit : text) {
        if (frame.hasFocus() == focused && isPrintable(unit)) {
            typeUnit(control, unit);
        }
    }
}

} // namespace phial
