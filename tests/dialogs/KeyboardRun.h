#pragma once

#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "dialogs/ctl_Keys.h"
#include "headless/TouchScreen.h"
#include "support/AppSession.h"
#include "visual/TextBox.h"

#include <initializer_list>
#include <memory>

namespace phial::test
{

/// A keyboard's dialog over a form, on a screen that one touches.
template <typename Dialog>
class KeyboardRun : public AppSession
{
protected:
    KeyboardRun()
    {
        outside.display().resize(1920, 1080);
        LNG()->CURRENT(ID_Language_German);
    }
    ~KeyboardRun() override { host->discard(); }

    /// A control of the program's, whose text is edited.
    template <typename Class>
    std::shared_ptr<Class> target(StringView name = u"target")
    {
        return host->add<Class>(name);
    }
    void open(const ObjectPtr& target)
    {
        keyboard.TargetControl(target);
        keyboard.form().Show();
    }
    template <typename Class>
    std::shared_ptr<Class> get(StringView name)
    {
        Form& form = keyboard.form();
        return form.control<Class>(name);
    }
    std::shared_ptr<TextBox> input() { return get<TextBox>(u"txt_Input"); }
    std::shared_ptr<ctl_Keys> keyPad() { return get<ctl_Keys>(u"ctl_Keys"); }

    PixelPoint middle(std::int32_t index)
    {
        const PixelRectangle area = keyPad()->areaOf(index);
        return {area.left + area.width / 2, area.top + area.height / 2};
    }
    void tap(std::int32_t index)
    {
        touch.press(1, *keyPad(), middle(index));
        touch.release(1);
        outside.runPending();
    }
    void tapAll(std::initializer_list<std::int32_t> indices)
    {
        for (const std::int32_t index : indices) {
            tap(index);
        }
    }
    bool isOpen() { return keyboard.form().isLoaded(); }

    std::shared_ptr<Form> host = std::make_shared<Form>(u"frm_Host");
    Dialog keyboard;
    headless::TouchScreen touch{outside.display()};
};

} // namespace phial::test
