#include "dialogs/KeysOnWindow.h"

#include "dialogs/KeyboardWindow.h"
#include "dialogs/ctl_Keys.h"

namespace phial
{

void joinKeys(DesignedForm& form, KeyboardWindow& window, const std::shared_ptr<ctl_Keys>& keys)
{
    form.on(form->KeyDown, [&window, keys](KeyEvent& event) {
        keys->previewKey(event);
        if (event.is(Key::Escape) && event.Shift != 0) {
            event.KeyCode = 0;
            window.abort();
        }
    });
    form.on(form->KeyUp, [keys](KeyEvent& event) { keys->previewKeyUp(event); });
    form.on(window.DRAGGED, [keys] { keys->cancelPresses(); });
    form.on(keys->PRESSED, [&window, keys](const PointerEvent& event) { window.press(*keys, event); });
    form.on(keys->MOVED, [&window, keys](const PointerEvent& event) { window.move(*keys, event); });
    form.on(keys->RELEASED, [&window](std::int32_t touch) { window.release(touch); });
}

} // namespace phial
