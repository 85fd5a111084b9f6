#include "app/cls_AppDialog.h"

#include "app/Session.h"
#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/screen/Desktop.h"
#include "app/screen/frm_AppAbout.h"
#include "app/screen/frm_Resource.h"
#include "app/sys_Global.h"
#include "core/CoreNumbers.h"
#include "core/CoreRoot.h"
#include "core/CoreTextBoxOps.h"
#include "core/CoreUIFacet.h"
#include "core/Locale.h"
#include "core/NumberText.h"
#include "core/RuntimeError.h"
#include "dialogs/frm_DialogHelpImages.h"
#include "dialogs/frm_DialogKeyboard.h"
#include "dialogs/frm_DialogKeyboardPSE.h"
#include "dialogs/frm_DialogKeyboardTerm.h"
#include "dialogs/frm_DialogMiniHTML.h"
#include "dialogs/frm_DialogNumericTouch.h"
#include "term/clt_TermInput.h"

namespace phial
{

namespace
{

/// Opens a fresh form for the control; gives whether the user has confirmed.
template <typename InputForm>
bool askFor(const ObjectPtr& target, const String& title)
{
    InputForm form;
    form.TargetControl(target);
    form.TitleText(title);
    form.Show();
    return form.Accepted();
}

/// What a program without a touch screen gets instead. A box that cannot take the focus is left alone.
void prepareForTyping(const ObjectPtr& target)
{
    const auto box = std::dynamic_pointer_cast<TextBox>(target);
    if (box && box->typeName() == u"TextBox") {
        ignoringErrors([&] { coreRoot().CoreUIFacet().CoreTextBoxOps().Prepare(*box); });
    }
}

/// The form in touch mode; otherwise there is none, and the answer is false.
template <typename InputForm>
bool askInTouchMode(const ObjectPtr& target, const String& title)
{
    if (QVAPP()->CONFIG()->TOUCHMODE()) {
        return askFor<InputForm>(target, title);
    }
    prepareForTyping(target);
    return false;
}

/// The hidden text box that stands in for a control of the program. Its text comes back at the end, since the
/// form of another call may be open on it.
class ScratchText
{
public:
    explicit ScratchText(const String& text) : before_(box_->Text()) { box_->Text(text); }
    ~ScratchText() { box_->Text(before_); }
    ScratchText(const ScratchText&) = delete;
    ScratchText& operator=(const ScratchText&) = delete;

    const std::shared_ptr<TextBox>& box() const { return box_; }

private:
    std::shared_ptr<TextBox> box_ = Session::current().sharedForm<frm_Resource>()->part<TextBox>(
        u"txt_NumberInput", [](TextBox& made) { made.MultiLine(true); });
    String before_;
};

/// The hidden term field that stands in for a control of the program, likewise.
class ScratchTerm
{
public:
    explicit ScratchTerm(const String& term) : before_(field_->Term()) { field_->Term(term); }
    ~ScratchTerm() { field_->Term(before_); }
    ScratchTerm(const ScratchTerm&) = delete;
    ScratchTerm& operator=(const ScratchTerm&) = delete;

    const std::shared_ptr<clt_TermInput>& field() const { return field_; }

private:
    std::shared_ptr<clt_TermInput> field_ =
        Session::current().sharedForm<frm_Resource>()->part<clt_TermInput>(u"ctl_Term");
    String before_;
};

/// A term without a control, asked for by one of the two calls for terms.
template <typename Ask>
String askDirectly(Ask ask, const String& preset, const String& onAbort)
{
    const ScratchTerm scratch(preset);
    if (ask(scratch.field())) {
        return scratch.field()->Term();
    }
    return onAbort == u"PRESET" ? preset : onAbort;
}

} // namespace

bool cls_AppDialog::NUMBERINPUT(const ObjectPtr& pTextbox, const String& pTitle) const
{
    return askInTouchMode<frm_DialogNumericTouch>(pTextbox, pTitle);
}

double cls_AppDialog::NUMBERINPUTDIRECT(double pOldValue, const String& pTitle) const
{
    const ScratchText scratch(plainText(pOldValue, currentLocale().decimalSign));
    askFor<frm_DialogNumericTouch>(scratch.box(), pTitle);
    double value = 0;
    CoreNumbers::ToDouble(scratch.box()->Text(), value);
    return value;
}

bool cls_AppDialog::TEXTINPUT(const ObjectPtr& pTextbox, const String& pTitle) const
{
    return askInTouchMode<frm_DialogKeyboard>(pTextbox, pTitle);
}

String cls_AppDialog::TEXTINPUTDIRECT(const String& pOldValue, const String& pTitle) const
{
    const ScratchText scratch(pOldValue);
    askFor<frm_DialogKeyboard>(scratch.box(), pTitle);
    return scratch.box()->Text();
}

bool cls_AppDialog::TERMINPUT(const ObjectPtr& pTextbox, const String& pTitle) const
{
    return askFor<frm_DialogKeyboardTerm>(pTextbox, pTitle);
}

String cls_AppDialog::TERMINPUTDIRECT(const String& pPreset, const String& pTitle,
                                      const String& pReturnOnAbort) const
{
    return askDirectly([&](const auto& field) { return TERMINPUT(field, pTitle); }, pPreset, pReturnOnAbort);
}

bool cls_AppDialog::PSEINPUT(const ObjectPtr& pTextbox, const String& pTitle) const
{
    return askFor<frm_DialogKeyboardPSE>(pTextbox, pTitle);
}

String cls_AppDialog::PSEINPUTDIRECT(const String& pPreset, const String& pTitle,
                                     const String& pReturnOnAbort) const
{
    return askDirectly([&](const auto& field) { return PSEINPUT(field, pTitle); }, pPreset, pReturnOnAbort);
}

Variant cls_AppDialog::HELPIMAGES(const String& pTitle, const String& pFolder,
                                  const CoreParameters* pMore) const
{
    frm_DialogHelpImages form;
    form.TitleText(pTitle);
    form.Folder(pFolder);
    if (pMore) {
        form.More().Merge(*pMore);
    }
    form.Show();
    return {};
}

Variant cls_AppDialog::MINIHTMLINPUT(const String& pText, const String& pTitle, const String& pDefText,
                                     const String& pIcon) const
{
    frm_DialogMiniHTML form;
    form.pText(pText);
    form.pTitle(pTitle);
    form.pDefText(pDefText);
    form.pIcon(pIcon);
    form.Show();
    return form.Accepted() ? Variant(form.ResultText()) : Variant();
}

void cls_AppDialog::ABOUT() const
{
    frm_AppAbout().Show();
}

void cls_AppDialog::TASKBARVISIBLE(bool value) const
{
    if (value) {
        ShowTaskbar();
    } else {
        HideTaskbar();
    }
}

} // namespace phial
