#include "visual/ctl_Button.h"

#include "visual/Change.h"
#include "visual/FrameMembers.h"

namespace phial
{

namespace
{

constexpr auto Table = joinMembers(
    FrameMembers,
    std::to_array<Member>({
        members::property<ctl_Button, String, &ctl_Button::Caption, &ctl_Button::Caption>(u"Caption"),
        members::property<ctl_Button, PicturePtr, &ctl_Button::Picture, &ctl_Button::Picture>(u"Picture"),
        members::property<ctl_Button, FontPtr, &ctl_Button::Font, &ctl_Button::Font>(u"Font"),
        members::property<ctl_Button, bool, &ctl_Button::Accent, &ctl_Button::Accent>(u"Accent"),
    }));

} // namespace

ctl_Button::ctl_Button() : frame_(*this), font_(std::make_shared<phial::Font>())
{
    frame_.canFocus(true);
    listenToFont();
}

MemberTable ctl_Button::members() const
{
    return Table;
}

void ctl_Button::listenToFont()
{
    fontChanged_ = font_->changed.connect([this] { frame_.report(ControlAspect::Style); });
}

void ctl_Button::Caption(String value)
{
    if (change(caption_, std::move(value))) {
        frame_.report(ControlAspect::Text);
    }
}

void ctl_Button::Picture(PicturePtr value)
{
    if (change(picture_, std::move(value))) {
        frame_.report(ControlAspect::Picture);
    }
}

void ctl_Button::Font(FontPtr value)
{
    shareFont(font_, fontChanged_, std::move(value), [this] { frame_.report(ControlAspect::Style); });
}

void ctl_Button::Accent(bool value)
{
    if (change(accent_, value)) {
        frame_.report(ControlAspect::Style);
    }
}

} // namespace phial
