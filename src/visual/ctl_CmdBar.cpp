#include "visual/ctl_CmdBar.h"

#include "visual/FrameMembers.h"

namespace phial
{

namespace
{

constexpr auto Table = joinMembers(
    FrameMembers,
    std::to_array<Member>({
        members::readOnly<ctl_CmdBar, std::shared_ptr<CommandBarButtons>, &ctl_CmdBar::BUTTONS>(u"BUTTONS"),
        members::operation<ctl_CmdBar, &ctl_CmdBar::REFRESH>(u"REFRESH"),
    }));

} // namespace

ctl_CmdBar::ctl_CmdBar()
    : frame_(*this), buttons_(std::make_shared<CommandBarButtons>()),
      buttonsChanged_(buttons_->changed().connect([this] { REFRESH(); }))
{
    frame_.canFocus(true);
}

MemberTable ctl_CmdBar::members() const
{
    return Table;
}

void ctl_CmdBar::REFRESH()
{
    frame_.report(ControlAspect::Items);
}

void ctl_CmdBar::inputButton(std::int32_t button)
{
    const auto pressed = buttons_->Item(button);
    if (pressed->Enabled() && pressed->Visible()) {
        BUTTON.emit(frame_.Index(), pressed->Key());
    }
}

} // namespace phial
