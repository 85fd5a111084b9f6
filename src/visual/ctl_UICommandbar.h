#pragma once

#include "visual/CommandBar.h"

namespace phial
{

/// The bar of an editor's commands, with smaller buttons.
class ctl_UICommandbar final : public CommandBar
{
public:
    ctl_UICommandbar() : frame_(*this), body_(frame_) {}

    std::shared_ptr<CommandBarButtons> BUTTONS() const override { return body_.buttons(); }
    std::shared_ptr<CommandBarButtons> PANELS() const override { return body_.panels(); }
    void REFRESH() override { body_.refresh(); }

    /// The bar's Index and the button's key text.
    Event<std::int32_t, const String&> BUTTON;

    StringView typeName() const override { return u"ctl_UICommandbar"; }
    MemberTable members() const override;
    ControlFrame& frame() override { return frame_; }
    void inputButton(std::int32_t button) override { body_.press(button, BUTTON); }

private:
    struct Properties;

    ControlFrame frame_;
    CommandBarBody body_;
};

} // namespace phial
