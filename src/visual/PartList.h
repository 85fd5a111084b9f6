#pragma once

#include "core/Event.h"
#include "core/Members.h"
#include "core/RuntimeError.h"

#include <array>
#include <memory>
#include <utility>
#include <vector>

namespace phial
{

/// The parts of a control that are reached one by one, such as the buttons of a bar: counted from 1, and by
/// name through `Count`, `Item(index)` and `Clear`. `Part` names its list (`ListName`) and takes as the last
/// argument of its constructor the event that it raises when it looks different. Parts may live longer than
/// their list.
template <typename Part>
class PartList final : public Object
{
public:
    std::int32_t Count() const { return static_cast<std::int32_t>(parts_.size()); }
    /// Raises 9 outside.
    std::shared_ptr<Part> Item(std::int32_t index) const { return parts_[checked(index)]; }
    /// Adds a part behind the others, made of these arguments.
    template <typename... Args>
    std::shared_ptr<Part> Add(Args&&... args)
    {
        parts_.push_back(std::make_shared<Part>(std::forward<Args>(args)..., changed_));
        changed_->raise();
        return parts_.back();
    }
    /// Raises 9 outside.
    void RemoveAt(std::int32_t index)
    {
        parts_.erase(parts_.begin() + static_cast<std::ptrdiff_t>(checked(index)));
        changed_->raise();
    }
    void Clear()
    {
        parts_.clear();
        changed_->raise();
    }
    /// Raised when parts come, go or look different.
    Event<>& changed() { return *changed_; }

    auto begin() const { return parts_.begin(); }
    auto end() const { return parts_.end(); }

    StringView typeName() const override { return Part::ListName; }
    MemberTable members() const override
    {
        static constexpr auto Table = std::to_array<Member>({
            members::readOnly<PartList, std::int32_t, &PartList::Count>(u"Count"),
            {u"Item", nullptr, nullptr, itemByName},
            members::operation<PartList, &PartList::Clear>(u"Clear"),
        });
        return Table;
    }

private:
    std::size_t checked(std::int32_t index) const
    {
        if (index < 1 || index > Count()) {
            throw RuntimeError(ErrorNumber::IndexOutOfBounds);
        }
        return static_cast<std::size_t>(index - 1);
    }
    static Variant itemByName(Object& list, std::span<const Variant> arguments)
    {
        if (arguments.size() != 1) {
            throw RuntimeError(ErrorNumber::InvalidArgument);
        }
        return Variant(ObjectPtr(static_cast<PartList&>(list).Item(arguments.front().toWhole())));
    }

    std::shared_ptr<Event<>> changed_ = std::make_shared<Event<>>();
    std::vector<std::shared_ptr<Part>> parts_;
};

} // namespace phial
