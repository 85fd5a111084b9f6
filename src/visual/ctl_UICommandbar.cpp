#include "visual/ctl_UICommandbar.h"

#include "visual/FrameMembers.h"

namespace phial
{

namespace
{

constexpr auto Table = joinMembers(
    FrameMembers,
    std::to_array<Member>({
        members::readOnly<ctl_UICommandbar, std::shared_ptr<CommandBarButtons>, &ctl_UICommandbar::BUTTONS>(
            u"BUTTONS"),
        members::operation<ctl_UICommandbar, &ctl_UICommandbar::REFRESH>(u"REFRESH"),
    }));

} // namespace

ctl_UICommandbar::ctl_UICommandbar()
    : frame_(*this), buttons_(std::make_shared<CommandBarButtons>()),
      buttonsChanged_(buttons_->changed().connect([this] { REFRESH(); }))
{
    frame_.canFocus(true);
}

MemberTable ctl_UICommandbar::members() const
{
    return Table;
}

void ctl_UICommandbar::REFRESH()
{
    frame_.report(ControlAspect::Items);
}

void ctl_UICommandbar::inputButton(std::int32_t button)
{
    const auto pressed = buttons_->Item(button);
    if (pressed->Enabled() && pressed->Visible()) {
        BUTTON.emit(frame_.Index(), pressed->Key());
    }
}

} // namespace phial
