#include "visual/CommandBar.h"

#include "visual/PropertyRows.h"

namespace phial
{

struct CommandBarButton::Properties {
    static constexpr rows::Table Table{
        rows::property<u"Key">(&CommandBarButton::key_).still(),
        rows::property<u"Caption">(&CommandBarButton::caption_),
        rows::property<u"Text">(&CommandBarButton::text_),
        rows::property<u"Enabled">(&CommandBarButton::enabled_),
        rows::property<u"Visible">(&CommandBarButton::visible_),
        rows::property<u"Default">(&CommandBarButton::default_),
        rows::property<u"Picture">(&CommandBarButton::picture_),
        rows::property<u"ToolTipText">(&CommandBarButton::toolTip_),
        rows::property<u"Description">(&CommandBarButton::description_),
        rows::property<u"Tag">(&CommandBarButton::tag_).still(),
    };
    static constexpr auto Effect = &CommandBarButton::tellChanged;
};

CommandBarButton::CommandBarButton(String key, String caption, std::shared_ptr<const Event<>> changed)
    : key_(std::move(key)), caption_(std::move(caption)), changed_(std::move(changed))
{
}

MemberTable CommandBarButton::members() const
{
    return rows::membersOf<Properties>();
}

void CommandBarButton::tellChanged()
{
    changed_->raise();
}

// One line a setter.
// clang-format off
void CommandBarButton::Key(String value) { rows::set<Properties, u"Key">(*this, std::move(value)); }
void CommandBarButton::Caption(String value) { rows::set<Properties, u"Caption">(*this, std::move(value)); }
void CommandBarButton::Text(String value) { rows::set<Properties, u"Text">(*this, std::move(value)); }
void CommandBarButton::Enabled(bool value) { rows::set<Properties, u"Enabled">(*this, value); }
void CommandBarButton::Visible(bool value) { rows::set<Properties, u"Visible">(*this, value); }
void CommandBarButton::Default(bool value) { rows::set<Properties, u"Default">(*this, value); }
void CommandBarButton::Picture(PicturePtr value) { rows::set<Properties, u"Picture">(*this, std::move(value)); }
void CommandBarButton::ToolTipText(String value) { rows::set<Properties, u"ToolTipText">(*this, std::move(value)); }
void CommandBarButton::Description(String value) { rows::set<Properties, u"Description">(*this, std::move(value)); }
void CommandBarButton::Tag(String value) { rows::set<Properties, u"Tag">(*this, std::move(value)); }
// clang-format on

CommandBarBody::CommandBarBody(ControlFrame& frame) : frame_(frame)
{
    frame_.canFocus(true);
    changes_ += buttons_->changed().connect([this] { refresh(); });
    changes_ += panels_->changed().connect([this] { refresh(); });
}

void CommandBarBody::press(std::int32_t button, const ButtonEvent& event) const
{
    const auto pressed = buttons_->Item(button);
    if (pressed->Enabled() && pressed->Visible()) {
        event.raise(frame_.Index(), pressed->Key());
    }
}

} // namespace phial
