#include "common/NumberAnswer.h"

#include "app/cls_App.h"
#include "app/cls_AppTools.h"
#include "app/sys_Global.h"
#include "calc/SignificantDigits.h"
#include "common/FrameTexts.h"
#include "core/CoreNumbers.h"
#include "core/CoreParameters.h"
#include "core/Locale.h"
#include "core/NumberText.h"
#include "media/cls_AppMedia.h"

#include <cmath>
#include <limits>

namespace learning
{

std::optional<double> typedNumber(phial::StringView text)
{
    double value = 0;
    return phial::CoreNumbers::ToDouble(phial::trimmed(text), value) ? std::optional(value) : std::nullopt;
}

NumberAnswer::NumberAnswer(phial::Form& form, const phial::ControlPtr& task)
    : lock_(form), field_(form.control<phial::ctl_QVInput>(u"txt_Answer")),
      input_(std::static_pointer_cast<phial::TextBox>(field_->input().shared_from_this())),
      pad_(form.control<phial::ctl_Button>(u"but_Pad")),
      calculator_(std::dynamic_pointer_cast<phial::ctl_Button>(form.find(u"but_Calculator")))
{
    field_->KeyboardBeside(task);
    pressing_ = pad_->CLICK.connect([this] {
        phial::QVAPP()->MEDIA()->CLICK();
        input_->SetFocus();
        field_->OpenKeyboard();
    });
}

/// The pad asks for what a screen reader calls the field.
void NumberAnswer::TRANSLATE()
{
    field_->TEXT(field_->frame().AccessibleName());
}

std::optional<double> NumberAnswer::value() const
{
    return typedNumber(input_->Text());
}

phial::String NumberAnswer::text() const
{
    const auto number = value();
    return number ? phial::plainText(*number, u',') : phial::String();
}

phial::String NumberAnswer::unreadable()
{
    return translate(u"Bitte gib eine Zahl ein, zum Beispiel 12,5.",
                     u"Please type a number, for example 12.5.");
}

void NumberAnswer::calculate(const phial::String& task)
{
    if (input_->Locked()) {
        return;
    }
    constexpr double NotTaken = std::numeric_limits<double>::quiet_NaN();
    constexpr std::int32_t AtPointer = -1;
    phial::CoreParameters flags;
    flags.Set(u"TASK", task);
    flags.Set(u"FORMULA", false);
    const double result =
        phial::QVAPP()->TOOLS()->CALC(0, AtPointer, AtPointer, nullptr, false, NotTaken, {}, &flags);
    const phial::String text = phial::textInRoom(result, Room, phial::currentLocale().decimalSign);
    if (!std::isnan(result) && text.size() <= Room) {
        type(text);
    }
    input_->SetFocus();
}

void NumberAnswer::open()
{
    input_->Text({});
    input_->Locked(false);
    look(false);
}

void NumberAnswer::look(bool decided)
{
    input_->BackColor(decided ? phial::Palette::DisabledGround : phial::Palette::Surface);
    input_->ForeColor(decided ? phial::Palette::DisabledText : phial::Palette::Ink);
    lock_.Visible(decided);
    pad_->Enabled(!decided);
    if (calculator_) {
        calculator_->Enabled(!decided);
    }
}

void NumberAnswer::retry()
{
    input_->SelStart(0);
    input_->SelLength(static_cast<std::int32_t>(input_->Text().size()));
}

void NumberAnswer::close()
{
    input_->Locked(true);
    look(true);
}

} // namespace learning
