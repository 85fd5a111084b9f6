#include "dialogs/frm_DialogMiniHTML.h"

#include "app/FormTexts.h"
#include "app/cls_App.h"
#include "app/cls_AppURL.h"
#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "core/CorePathText.h"
#include "core/RuntimeError.h"
#include "dialogs/DialogMiniHTMLDesign.h"

namespace phial
{

namespace
{

/// Null for none and for a file that is no picture.
PicturePtr headerIcon(const String& path)
{
    PicturePtr icon;
    if (!path.empty()) {
        ignoringErrors([&] {
            const bool isBelow = CorePathText::Drive(path).empty() && !path.starts_with(u'\\');
            icon = LoadPicture(isBelow ? QVAPP()->URL()->RESOURCEGFX() + path : path);
        });
    }
    return icon;
}

} // namespace

frm_DialogMiniHTML::frm_DialogMiniHTML()
    : form_(dialog_mini_html_design::Design), input_(form_->control<ctl_MiniHTMLInput>(u"txt_Input")),
      preview_({form_->control<PictureBox>(u"pic_Preview"), form_->control<ctl_Label>(u"lab_Preview"),
                form_->control<ScrollBar>(u"srl_Preview")})
{
    connect();
    TRANSLATE();
}

void frm_DialogMiniHTML::Show()
{
    form_->Show(FormShow::Modal);
}

void frm_DialogMiniHTML::connect()
{
    form_.on(form_->Load, [this] { load(); });
    form_.on(form_->TRANSLATE, [this] { TRANSLATE(); });
    form_.on(input_->CHANGED, [this] { showPreview(); });
    form_.on(form_->control<ctl_CmdBar>(u"bar_Buttons")->BUTTON,
             [this](std::int32_t, const String&) { accept(); });
    form_.on(form_->control<ctl_Title>(u"bar_Header")->CLOSE, [this] { form_->Unload(); });
}

void frm_DialogMiniHTML::TRANSLATE()
{
    translateForm(form_);
    input_->TRANSLATE();
    const String usual = LNG()->TRANSLATE(u"Text eingeben", u"Enter a text");
    form_->control<ctl_Title>(u"bar_Header")->Title(title_.empty() ? usual : title_);
    input_->input().frame().AccessibleName(usual);
}

void frm_DialogMiniHTML::load()
{
    TRANSLATE();
    form_->control<ctl_Title>(u"bar_Header")->Icon(headerIcon(icon_));
    form_->control<ctl_Label>(u"lab_Text")->Caption(question_);
    input_->TEXT(text_);
}

void frm_DialogMiniHTML::accept()
{
    result_ = input_->TEXT();
    accepted_ = true;
    form_->Unload();
}

void frm_DialogMiniHTML::showPreview()
{
    const TextBox& field = input_->input();
    preview_.show(field.Text(),
                  static_cast<std::size_t>(field.SelStart()) + static_cast<std::size_t>(field.SelLength()));
}

} // namespace phial
