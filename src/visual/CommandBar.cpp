#include "visual/CommandBar.h"

#include "core/Members.h"
#include "visual/Change.h"

#include <array>

namespace phial
{

namespace
{

constexpr Member ButtonTable[] = {
    members::property<CommandBarButton, String, &CommandBarButton::Key, &CommandBarButton::Key>(u"Key"),
    members::property<CommandBarButton, String, &CommandBarButton::Caption, &CommandBarButton::Caption>(
        u"Caption"),
    members::property<CommandBarButton, bool, &CommandBarButton::Enabled, &CommandBarButton::Enabled>(
        u"Enabled"),
    members::property<CommandBarButton, bool, &CommandBarButton::Visible, &CommandBarButton::Visible>(
        u"Visible"),
    members::property<CommandBarButton, bool, &CommandBarButton::Default, &CommandBarButton::Default>(
        u"Default"),
    members::property<CommandBarButton, PicturePtr, &CommandBarButton::Picture, &CommandBarButton::Picture>(
        u"Picture"),
    members::property<CommandBarButton, String, &CommandBarButton::ToolTipText,
                      &CommandBarButton::ToolTipText>(u"ToolTipText"),
};

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

CommandBarButton::CommandBarButton(String key, String caption, std::shared_ptr<const Event<>> changed)
    : key_(std::move(key)), caption_(std::move(caption)), changed_(std::move(changed))
{
}

void CommandBarButton::Caption(String value)
{
    if (change(caption_, std::move(value))) {
        changed_->emit();
    }
}

void CommandBarButton::Enabled(bool value)
{
    if (change(enabled_, value)) {
        changed_->emit();
    }
}

void CommandBarButton::Visible(bool value)
{
    if (change(visible_, value)) {
        changed_->emit();
    }
}

void CommandBarButton::Default(bool value)
{
    if (change(default_, value)) {
        changed_->emit();
    }
}

void CommandBarButton::Picture(PicturePtr value)
{
    if (change(picture_, std::move(value))) {
        changed_->emit();
    }
}

void CommandBarButton::ToolTipText(String value)
{
    if (change(toolTip_, std::move(value))) {
        changed_->emit();
    }
}

MemberTable CommandBarButton::members() const
{
    return ButtonTable;
}

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

} // namespace phial
