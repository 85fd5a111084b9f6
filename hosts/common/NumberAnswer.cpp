#include "common/NumberAnswer.h"

#include "common/FrameTexts.h"
#include "core/CoreNumbers.h"
#include "core/NumberText.h"
#include "visual/Shape.h"

namespace learning
{

namespace
{

/// The sign of a decided answer, a padlock at the end of the unit's room: its shackle, and the body before
/// it.
constexpr double LockLeft =
    frame_design::TaskPlaces::Answer.left + frame_design::TaskPlaces::Answer.width - 22;
constexpr double LockTop = frame_design::TaskPlaces::Answer.top + frame_design::TaskPlaces::Answer.height / 2;
constexpr phial::ControlDesign Lock[] = {
    phial::design<phial::Shape>(u"shp_LockShackle", {LockLeft + 3, LockTop - 11, 12, 18})
        .inside(u"pan_Task")
        .set(u"Shape", phial::ShapeKind::Oval)
        .set(u"BorderWidth", 2)
        .set(u"BorderColor", phial::Palette::Muted)
        .hidden(),
    phial::design<phial::Shape>(u"shp_Lock", {LockLeft, LockTop - 2, 18, 14})
        .inside(u"pan_Task")
        .set(u"BorderWidth", 0)
        .set(u"FillStyle", phial::FillStyle::Solid)
        .set(u"FillColor", phial::Palette::Muted)
        .hidden(),
};

} // namespace

std::optional<double> typedNumber(phial::StringView text)
{
    double value = 0;
    return phial::CoreNumbers::ToDouble(phial::trimmed(text), value) ? std::optional(value) : std::nullopt;
}

NumberAnswer::NumberAnswer(phial::Form& form)
    : form_(form), field_(form.control<phial::TextBox>(u"txt_Answer")), pad_(form, field_)
{
    phial::addControls(form, Lock);
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
    look(false);
}

/// Colours alone do not tell that it is decided: there is a sign as well.
void NumberAnswer::look(bool decided)
{
    field_->BackColor(decided ? phial::Palette::DisabledGround : phial::Palette::Surface);
    field_->ForeColor(decided ? phial::Palette::DisabledText : phial::Palette::Ink);
    for (const phial::ControlDesign& row : Lock) {
        form_.control<phial::Shape>(row.name)->Visible(decided);
    }
    pad_.Enabled(!decided);
}

void NumberAnswer::retry()
{
    field_->SelStart(0);
    field_->SelLength(static_cast<std::int32_t>(field_->Text().size()));
}

void NumberAnswer::close()
{
    field_->Locked(true);
    look(true);
}

} // namespace learning
