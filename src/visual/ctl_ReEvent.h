#pragma once

#include "core/Event.h"
#include "core/Object.h"
#include "core/Variant.h"

namespace phial
{

/// A relay: whoever holds it repeats an event through it, and others hear that without knowing the source.
class ctl_ReEvent final : public Object
{
public:
    explicit ctl_ReEvent(String name = {}) : name_(std::move(name)) {}

    String NAME() const { return name_; }
    void NAME(String value) { name_ = std::move(value); }

    /// Repeats an event to all who listen; `pName` says which, `pArguments` what it carries.
    void REPEAT(const String& pName, const Variant::Array& pArguments = {});
    Event<const String&, const Variant::Array&> REPEATED;

    StringView typeName() const override { return u"ctl_ReEvent"; }
    MemberTable members() const override;

private:
    String name_;
};

} // namespace phial
