#include "common/NumberAnswer.h"

#include "common/FrameTexts.h"
#include "core/CoreNumbers.h"
#include "core/NumberText.h"

namespace learning
{

std::optional<double> typedNumber(phial::StringView text)
{
    double value = 0;
    return phial::CoreNumbers::ToDouble(phial::trimmed(text), value) ? std::optional(value) : std::nullopt;
}

NumberAnswer::NumberAnswer(phial::Form& form)
    : field_(form.control<phial::TextBox>(u"txt_Answer")), pad_(form, field_)
{
}

std::optional<double> NumberAnswer::value() const
{
    return typedNumber(field_->Text());
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

void NumberAnswer::open()
{
    field_->Text({});
    field_->Locked(false);
    field_->BackColor(phial::Palette::Surface);
    pad_.Enabled(true);
}

void NumberAnswer::retry()
{
    field_->SelStart(0);
    field_->SelLength(static_cast<std::int32_t>(field_->Text().size()));
}

void NumberAnswer::close()
{
    field_->Locked(true);
    field_->BackColor(phial::Palette::Ground); // as nothing that one types into
    pad_.Enabled(false);
}

} // namespace learning
