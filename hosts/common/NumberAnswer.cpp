#include "common/NumberAnswer.h"

#include "app/cls_App.h"
#include "app/sys_Global.h"
#include "common/FrameTexts.h"
#include "core/CoreNumbers.h"
#include "core/NumberText.h"
#include "media/cls_AppMedia.h"
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

NumberAnswer::NumberAnswer(phial::Form& form, const phial::ControlPtr& task)
    : form_(form), field_(form.control<phial::ctl_QVInput>(u"txt_Answer")),
      input_(std::static_pointer_cast<phial::TextBox>(field_->input().shared_from_this())),
      pad_(form.control<phial::ctl_Button>(u"but_Pad"))
{
    phial::addControls(form, Lock);
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

void NumberAnswer::open()
{
    input_->Text({});
    input_->Locked(false);
    look(false);
}

/// Colours alone do not tell that it is decided: there is a sign as well.
void NumberAnswer::look(bool decided)
{
    input_->BackColor(decided ? phial::Palette::DisabledGround : phial::Palette::Surface);
    input_->ForeColor(decided ? phial::Palette::DisabledText : phial::Palette::Ink);
    for (const phial::ControlDesign& row : Lock) {
        form_.control<phial::Shape>(row.name)->Visible(decided);
    }
    pad_->Enabled(!decided);
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
