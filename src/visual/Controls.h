#pragma once

#include "visual/Control.h"

namespace phial
{

/// The controls of a form as one object, for callers that know them by name only: `Count`, `Item(index)` from
/// 0.
class Controls final : public Object
{
public:
    explicit Controls(std::weak_ptr<const ControlParent> parent) : parent_(std::move(parent)) {}

    /// 0 when the form is gone.
    std::int32_t Count() const;
    /// Raises 9 outside and 91 when the form is gone.
    ObjectPtr Item(std::int32_t index) const;

    StringView typeName() const override { return u"Controls"; }
    MemberTable members() const override;

private:
    std::weak_ptr<const ControlParent> parent_;
};

} // namespace phial
