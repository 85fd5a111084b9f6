#include "common/AnswerLock.h"

#include "common/FrameDesign.h"
#include "visual/Shape.h"

namespace learning
{

namespace
{

/// The shackle, and the body before it.
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

AnswerLock::AnswerLock(phial::Form& form) : form_(form)
{
    phial::addControls(form, Lock);
}

void AnswerLock::Visible(bool value)
{
    for (const phial::ControlDesign& row : Lock) {
        form_.control<phial::Shape>(row.name)->Visible(value);
    }
}

} // namespace learning
