#include "visual/CommandBar.h"

#include "visual/PropertyRows.h"

namespace phial
{

namespace
{

constexpr Member ButtonsTable[] = {
    members::readOnly<CommandBarButtons, std::int32_t, &CommandBarButtons::Count>(u"Count"),
    {u"Item", nullptr, nullptr,
     [](Object& object, std::span<const Variant> arguments) {
         if (arguments.size() != 1) {
             throw RuntimeError(ErrorNumber::InvalidArgument);
         }
         return Variant(ObjectPtr(static_cast<CommandBarButtons&>(object).Item(arguments[0].toWhole())));
     }},
    members::operation<CommandBarButtons, &CommandBarButtons::Clear>(u"Clear"),
};

} // namespace

struct CommandBarButton::Properties {
    static constexpr rows::Table Table{
        rows::property<u"Key">(&CommandBarButton::key_).still(),
        rows::property<u"Caption">(&CommandBarButton::caption_),
        rows::property<u"Enabled">(&CommandBarButton::enabled_),
        rows::property<u"Visible">(&CommandBarButton::visible_),
        rows::property<u"Default">(&CommandBarButton::default_),
        rows::property<u"Picture">(&CommandBarButton::picture_),
        rows::property<u"ToolTipText">(&CommandBarButton::toolTip_),
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
    changed_->emit();
}

// One line a setter.
// clang-format off
void CommandBarButton::Caption(String value) { rows::set<Properties, u"Caption">(*this, std::move(value)); }
void CommandBarButton::Enabled(bool value) { rows::set<Properties, u"Enabled">(*this, value); }
void CommandBarButton::Visible(bool value) { rows::set<Properties, u"Visible">(*this, value); }
void CommandBarButton::Default(bool value) { rows::set<Properties, u"Default">(*this, value); }
void CommandBarButton::Picture(PicturePtr value) { rows::set<Properties, u"Picture">(*this, std::move(value)); }
void CommandBarButton::ToolTipText(String value) { rows::set<Properties, u"ToolTipText">(*this, std::move(value)); }
// clang-format on

std::shared_ptr<CommandBarButton> CommandBarButtons::Item(std::int32_t index) const
{
    if (index < 1 || index > Count()) {
        throw RuntimeError(ErrorNumber::IndexOutOfBounds);
    }
    return buttons_[static_cast<std::size_t>(index - 1)];
}

std::shared_ptr<CommandBarButton> CommandBarButtons::find(StringView key) const
{
    for (const auto& button : buttons_) {
        if (equalsIgnoringCase(button->Key(), key)) {
            return button;
        }
    }
    return nullptr;
}

std::shared_ptr<CommandBarButton> CommandBarButtons::Add(String key, String caption)
{
    buttons_.push_back(std::make_shared<CommandBarButton>(std::move(key), std::move(caption), changed_));
    changed_->emit();
    return buttons_.back();
}

void CommandBarButtons::Clear()
{
    buttons_.clear();
    changed_->emit();
}

MemberTable CommandBarButtons::members() const
{
    return ButtonsTable;
}

CommandBarBody::CommandBarBody(ControlFrame& frame)
    : frame_(frame), buttonsChanged_(buttons_->changed().connect([this] { refresh(); }))
{
    frame_.canFocus(true);
}

void CommandBarBody::press(std::int32_t button, const ButtonEvent& event) const
{
    const auto pressed = buttons_->Item(button);
    if (pressed->Enabled() && pressed->Visible()) {
        event.emit(frame_.Index(), pressed->Key());
    }
}

} // namespace phial
