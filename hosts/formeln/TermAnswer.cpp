#include "formeln/TermAnswer.h"

#include "app/cls_App.h"
#include "app/cls_AppDialog.h"
#include "app/sys_Global.h"

namespace formeln
{

TermAnswer::TermAnswer(phial::Form& form)
    : frame_(form.control<phial::ctl_Pannel>(u"pan_Answer")),
      field_(form.control<phial::clt_TermInput>(u"trm_Answer"))
{
    field_->TEXTFONT()->Size(Points);
    field_->TEXTALIGN(phial::TEXTALIGN::MiddleCentre); // away from the frame, as on the card
    field_->Term({});
    close(false);
}

void TermAnswer::type(const phial::String& term)
{
    field_->Term(term);
    field_->CARET(static_cast<std::int32_t>(term.size()));
}

void TermAnswer::openKeyboard(const phial::String& title)
{
    if (!field_->LOCKED()) {
        phial::QVAPP()->DIALOG()->TERMINPUT(field_, title);
    }
}

void TermAnswer::openTable(const phial::String& title)
{
    if (!field_->LOCKED()) {
        phial::QVAPP()->DIALOG()->PSEINPUT(field_, title);
    }
}

void TermAnswer::retry()
{
    field_->CARET(static_cast<std::int32_t>(field_->Term().size()));
}

void TermAnswer::close(bool isClosed)
{
    const phial::Colour ground = isClosed ? phial::Palette::DisabledGround : phial::Palette::Surface;
    field_->LOCKED(isClosed);
    frame_->BackColor(ground);
    field_->BACKCOLOR(ground);
    field_->TEXTCOLOR(isClosed ? phial::Palette::DisabledText : phial::Palette::Ink);
}

} // namespace formeln
