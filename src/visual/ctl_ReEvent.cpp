#include "visual/ctl_ReEvent.h"

#include "core/Members.h"

namespace phial
{

namespace
{

constexpr Member ReEventMembers[] = {
    members::property<ctl_ReEvent, String, &ctl_ReEvent::NAME, &ctl_ReEvent::NAME>(u"NAME"),
    {u"REPEAT", nullptr, nullptr,
     [](Object& object, std::span<const Variant> arguments) {
         if (arguments.empty()) {
             throw RuntimeError(ErrorNumber::InvalidArgument);
         }
         static_cast<ctl_ReEvent&>(object).REPEAT(arguments[0].toText(),
                                                  Variant::Array(arguments.begin() + 1, arguments.end()));
         return Variant();
     }},
};

} // namespace

MemberTable ctl_ReEvent::members() const
{
    return ReEventMembers;
}

void ctl_ReEvent::REPEAT(const String& pName, const Variant::Array& pArguments)
{
    REPEATED.raise(pName, pArguments);
}

} // namespace phial
