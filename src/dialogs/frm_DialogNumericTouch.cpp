#include "dialogs/frm_DialogNumericTouch.h"

#include "app/FormTexts.h"
#include "core/Locale.h"
#include "core/RuntimeError.h"
#include "dialogs/DialogNumericTouchDesign.h"
#include "dialogs/KeysOnWindow.h"
#include "dialogs/NumberLayout.h"
#include "dialogs/ScanChoice.h"

#include <utility>

namespace phial
{

frm_DialogNumericTouch::frm_DialogNumericTouch()
    : form_(dialog_numeric_touch_design::Design), window_(form_, KeyboardWindow::Leaving::Confirms),
      input_(form_->control<TextBox>(u"txt_Input")), keys_(form_->control<ctl_Keys>(u"ctl_Keys")),
      number_({}, currentLocale().decimalSign)
{
    keys_->layout(number_layout::Layout);
    keys_->offersVariants(false);
    keys_->board().rename(number_layout::DecimalSignKey,
                          currentLocale().decimalSign == u'.' ? StringView(u".") : StringView(u","));
    connect();
    TRANSLATE();
}

void frm_DialogNumericTouch::Show()
{
    form_->Show(FormShow::Modal);
}

void frm_DialogNumericTouch::connect()
{
    form_.on(form_->Load, [this] { load(); });
    form_.on(form_->TRANSLATE, [this] { TRANSLATE(); });
    form_.on(input_->Change, [this] { edited(); });
    form_.on(window_.CONFIRMED, [this] { accept(); });
    joinKeys(form_, window_, keys_);
    form_.on(keys_->CLICK,
             [this](std::int32_t index) { ignoringErrors([&] { strike(keys_->board().name(index)); }); });
}

void frm_DialogNumericTouch::TRANSLATE()
{
    translateForm(form_);
    window_.translate();
    input_->frame().AccessibleName(window_.question());
    keys_->refresh();
}

void frm_DialogNumericTouch::load()
{
    window_.open();
    keys_->scanInterval(rememberedScan());
    TRANSLATE();
    readTarget();
}

void frm_DialogNumericTouch::readTarget()
{
    const TargetText& target = window_.target();
    number_ = NumberPadText(target.read(), currentLocale().decimalSign);
    input_->PasswordChar(target.passwordChar());
    input_->MaxLength(target.maxLength());
    input_->Locked(target.locked());
    show();
}

/// On the desk, or by what else the toolkit's field offers.
void frm_DialogNumericTouch::edited()
{
    if (input_->Text() != number_.text()) {
        number_.typed(input_->Text());
    }
}

/// Behind OK the number that was confirmed stays as it is.
void frm_DialogNumericTouch::strike(const String& key)
{
    if (window_.isEnding()) {
        return;
    }
    if (key == u"OK") {
        accept();
        return;
    }
    NumberPadText next = number_;
    next.press(key,
               {static_cast<std::size_t>(input_->SelStart()), static_cast<std::size_t>(input_->SelLength())});
    if (!input_->Locked() && hasRoomFor(next.text())) {
        number_ = std::move(next);
        input_->SetFocus();
        show();
    }
}

bool frm_DialogNumericTouch::hasRoomFor(const String& text) const
{
    const auto most = static_cast<std::size_t>(input_->MaxLength());
    return most == 0 || text.size() <= most || text.size() < input_->Text().size();
}

void frm_DialogNumericTouch::show()
{
    input_->Text(number_.text());
    input_->SelStart(static_cast<std::int32_t>(number_.text().size()));
}

void frm_DialogNumericTouch::accept()
{
    if (window_.isEnding()) {
        return;
    }
    if (number_.isTouched()) {
        window_.target().write(number_.number());
    }
    input_->Locked(true);
    window_.accept();
}

} // namespace phial
