#pragma once

#include "app/FormTexts.h"
#include "app/Settings.h"
#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "dialogs/KeyboardWindow.h"
#include "support/AppSession.h"
#include "visual/TextBox.h"

#include <memory>

namespace phial::test
{

inline constexpr ControlDesign SampleControls[] = {
    design<TextBox>(u"txt_Input", {228, 12, 444, 48}).font(20).keyboarded(),
};
inline constexpr FormDesign SampleDesign{.name = u"frm_Sample",
                                         .caption = u"Tastatur|Keyboard",
                                         .size = {750, 340},
                                         .border = BorderStyle::None,
                                         .isCentred = false,
                                         .controls = SampleControls};

/// A keyboard without keys.
struct SampleKeyboard {
    explicit SampleKeyboard(KeyboardWindow::Leaving leaving = KeyboardWindow::Leaving::Stays)
        : window(form, leaving)
    {
        form.on(form->TRANSLATE, [this] { translate(); });
        form.on(form->Load, [this] {
            window.open();
            translate();
        });
        form.on(window.CONFIRMED, [this] { ++confirmed; });
        form.on(window.DRAGGED, [this] { ++dragged; });
        form.on(window.SCALED, [this] { ++scaled; });
        translateForm(form);
    }
    void translate()
    {
        translateForm(form);
        window.translate();
    }
    template <typename Class>
    std::shared_ptr<Class> get(StringView name)
    {
        return form->control<Class>(name);
    }
    void press(const PointerEvent& event = {}) { window.press(*get<TextBox>(u"txt_Input"), event); }
    void move(const PointerEvent& event) { window.move(*get<TextBox>(u"txt_Input"), event); }
    PixelPoint corner() { return {form->Left() / TwipsPerPixel, form->Top() / TwipsPerPixel}; }

    DesignedForm form{SampleDesign};
    KeyboardWindow window;
    int confirmed = 0;
    int dragged = 0;
    int scaled = 0;
};

class KeyboardWindowTest : public AppSession
{
protected:
    KeyboardWindowTest()
    {
        outside.display().resize(1920, 1080);
        point({960, 540});
        LNG()->CURRENT(ID_Language_German);
    }
    ~KeyboardWindowTest() override { host->discard(); }

    void point(PixelPoint at)
    {
        outside.display().moveCursor(static_cast<int>(at.x), static_cast<int>(at.y));
    }
    /// The pointer goes there and time passes in which the drag is noticed.
    void pointAndWait(PixelPoint at)
    {
        point(at);
        outside.advance(0.02);
    }
    /// A control on a shown form, at that place of the desktop.
    template <typename Class>
    std::shared_ptr<Class> target(const headless::WindowEdges& edges)
    {
        host->Show();
        const auto control = host->add<Class>(u"target");
        outside.windows().place(control->hWnd(), edges);
        return control;
    }
    SampleKeyboard& open()
    {
        keyboard.form->Show();
        return keyboard;
    }
    std::int32_t kept(StringView name)
    {
        const auto value = outside.settings().read(SettingsHive::CurrentUser, settings::path(name));
        return value ? value->toWhole() : -1;
    }

    std::shared_ptr<Form> host = std::make_shared<Form>(u"frm_Host");
    SampleKeyboard keyboard;
};

} // namespace phial::test
