#pragma once

#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "dialogs/ctl_QVInput.h"
#include "headless/Hand.h"
#include "support/AppSession.h"
#include "visual/Form.h"

#include <functional>
#include <memory>
#include <vector>

namespace phial::test
{

/// A field for a number or a text on a form, behind another field, with what it tells.
class QVInputRun : public AppSession
{
protected:
    QVInputRun()
    {
        LNG()->CURRENT(ID_Language_German);
        form->ScaleMode(ScaleUnit::Pixels);
        before = form->add<TextBox>(u"txt_Before");
        control = form->add<ctl_QVInput>(u"inp_Mass");
        control->Move(10, 10, 200, 40);
        form->Show();
        tellsProperties =
            control->PropertyChanged.connect([this](const String& name) { told.push_back(name); });
        tellsChanges = control->CHANGED.connect([this](const Variant& value) { changes.push_back(value); });
    }
    ~QVInputRun() override { form->discard(); }

    TextBox& field() { return control->input(); }
    String shown() { return field().Text(); }
    void enter(StringView text)
    {
        control->SetFocus();
        field().inputText(String(text), static_cast<std::int32_t>(text.size()), 0);
    }
    void leave() { before->SetFocus(); }
    static void touchMode(bool value) { QVAPP()->CONFIG()->TOUCHMODE(value); }
    /// The next pad, or the next keyboard, is left with that text.
    void playPad(const std::function<void(Form&)>& user) { play(u"frm_DialogNumericTouch", user); }
    void playKeyboard(const std::function<void(Form&)>& user) { play(u"frm_DialogKeyboard", user); }
    void play(StringView dialog, const std::function<void(Form&)>& user)
    {
        outside.visual().onModal(dialog, user);
    }
    static void typeAndConfirm(Form& dialog, StringView text)
    {
        const auto input = dialog.control<TextBox>(u"txt_Input");
        input->inputText(String(text), static_cast<std::int32_t>(text.size()), 0);
        headless::strike(dialog, {.key = Key::Return});
    }

    std::shared_ptr<Form> form = std::make_shared<Form>(u"frm_Test");
    std::shared_ptr<TextBox> before;
    std::shared_ptr<ctl_QVInput> control;
    std::vector<String> told;
    std::vector<Variant> changes;
    Connection tellsProperties;
    Connection tellsChanges;
};

/// The same, for tests of one case each.
class QVInput : public QVInputRun
{
};

} // namespace phial::test
