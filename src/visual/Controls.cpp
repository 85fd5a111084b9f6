#include "visual/Controls.h"

#include "core/Members.h"
#include "core/RuntimeError.h"

namespace phial
{

std::int32_t Controls::Count() const
{
    const auto parent = parent_.lock();
    return parent ? static_cast<std::int32_t>(parent->controlCount()) : 0;
}

ObjectPtr Controls::Item(std::int32_t index) const
{
    const auto parent = parent_.lock();
    if (!parent) {
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    }
    if (index < 0) {
        throw RuntimeError(ErrorNumber::IndexOutOfBounds);
    }
    return parent->controlAt(static_cast<std::size_t>(index));
}

MemberTable Controls::members() const
{
    static constexpr auto Table = std::to_array<Member>({
        members::readOnly<Controls, std::int32_t, &Controls::Count>(u"Count"),
        Member{u"Item", nullptr, nullptr,
               [](Object& object, std::span<const Variant> arguments) {
                   if (arguments.size() != 1) {
                       throw RuntimeError(ErrorNumber::InvalidArgument);
                   }
                   return Variant(static_cast<Controls&>(object).Item(arguments.front().toWhole()));
               }},
    });
    return Table;
}

} // namespace phial
