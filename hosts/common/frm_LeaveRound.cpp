#include "common/frm_LeaveRound.h"

#include "app/FormTexts.h"
#include "common/FrameTexts.h"
#include "common/LeaveRoundDesign.h"

namespace learning
{

frm_LeaveRound::frm_LeaveRound(std::optional<int> points) : points_(points), form_(leave_round_design::Design)
{
    form_.press(u"but_GoOn", [this] { form_->Unload(); });
    form_.press(u"but_Leave", [this] {
        leaves_ = true;
        form_->Unload();
    });
    form_.on(form_->TRANSLATE, [this] { TRANSLATE(); });
    TRANSLATE();
}

bool frm_LeaveRound::Show()
{
    form_->Show(phial::FormShow::Modal);
    return leaves_;
}

void frm_LeaveRound::TRANSLATE()
{
    phial::translateForm(form_);
    caption(*form_, u"lab_Question", question());
}

phial::String frm_LeaveRound::question() const
{
    if (!points_) {
        return translate(u"Mit dem Üben aufhören? Es gehen keine Punkte verloren.",
                         u"Stop practising? No points will be lost.");
    }
    return points_ == 0   ? translate(u"Runde abbrechen?", u"Stop the round?")
           : points_ == 1 ? translate(u"Runde abbrechen? Ein Punkt geht verloren.",
                                      u"Stop the round? One point will be lost.")
                          : translate(u"Runde abbrechen? {1} Punkte gehen verloren.",
                                      u"Stop the round? {1} points will be lost.", {number(*points_)});
}

} // namespace learning
