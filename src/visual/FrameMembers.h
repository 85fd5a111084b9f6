#pragma once

#include "core/Members.h"
#include "visual/Control.h"

#include <array>

namespace phial
{

/// The members that every control has, for its member table:
///
///     constexpr auto Table = joinMembers(FrameMembers, std::to_array<Member>({ … }));
template <std::size_t First, std::size_t Second>
constexpr std::array<Member, First + Second> joinMembers(const std::array<Member, First>& first,
                                                         const std::array<Member, Second>& second)
{
    std::array<Member, First + Second> joined{};
    std::copy(first.begin(), first.end(), joined.begin());
    std::copy(second.begin(), second.end(), joined.begin() + First);
    return joined;
}

/// A property of the frame, read and written through the control.
template <typename Value, Value (ControlFrame::*Read)() const, void (ControlFrame::*Write)(Value)>
constexpr Member frameProperty(StringView name)
{
    return {name,
            [](Object& object) {
                return members::toVariant<Value>((static_cast<Control&>(object).frame().*Read)());
            },
            [](Object& object, const Variant& value) {
                (static_cast<Control&>(object).frame().*Write)(members::fromVariant<Value>(value));
            }};
}

template <typename Value, Value (ControlFrame::*Read)() const>
constexpr Member frameReadOnly(StringView name)
{
    return {name, [](Object& object) {
                return members::toVariant<Value>((static_cast<Control&>(object).frame().*Read)());
            }};
}

template <void (ControlFrame::*Call)()>
constexpr Member frameOperation(StringView name)
{
    return {name, nullptr, nullptr, [](Object& object, std::span<const Variant>) {
                (static_cast<Control&>(object).frame().*Call)();
                return Variant();
            }};
}

inline constexpr auto FrameMembers = std::to_array<Member>({
    frameProperty<String, &ControlFrame::NAME, &ControlFrame::NAME>(u"NAME"),
    frameReadOnly<std::int32_t, &ControlFrame::Index>(u"Index"),
    frameProperty<String, &ControlFrame::Tag, &ControlFrame::Tag>(u"Tag"),
    frameProperty<double, &ControlFrame::Left, &ControlFrame::Left>(u"Left"),
    frameProperty<double, &ControlFrame::Top, &ControlFrame::Top>(u"Top"),
    frameProperty<double, &ControlFrame::Width, &ControlFrame::Width>(u"Width"),
    frameProperty<double, &ControlFrame::Height, &ControlFrame::Height>(u"Height"),
    frameProperty<bool, &ControlFrame::Visible, &ControlFrame::Visible>(u"Visible"),
    frameProperty<bool, &ControlFrame::Enabled, &ControlFrame::Enabled>(u"Enabled"),
    frameProperty<std::int32_t, &ControlFrame::TabIndex, &ControlFrame::TabIndex>(u"TabIndex"),
    frameProperty<bool, &ControlFrame::TabStop, &ControlFrame::TabStop>(u"TabStop"),
    frameProperty<String, &ControlFrame::ToolTipText, &ControlFrame::ToolTipText>(u"ToolTipText"),
    frameProperty<MousePointer, &ControlFrame::MousePointer, &ControlFrame::MousePointer>(u"MousePointer"),
    frameProperty<PicturePtr, &ControlFrame::MouseIcon, &ControlFrame::MouseIcon>(u"MouseIcon"),
    frameProperty<String, &ControlFrame::AccessibleName, &ControlFrame::AccessibleName>(u"AccessibleName"),
    frameProperty<String, &ControlFrame::HelpText, &ControlFrame::HelpText>(u"HelpText"),
    frameReadOnly<ObjectPtr, &ControlFrame::ContainerObject>(u"Container"),
    frameReadOnly<std::shared_ptr<ControlParent>, &ControlFrame::Parent>(u"Parent"),
    frameReadOnly<WindowHandle, &ControlFrame::hWnd>(u"hWnd"),
    frameOperation<&ControlFrame::SetFocus>(u"SetFocus"),
});

} // namespace phial
