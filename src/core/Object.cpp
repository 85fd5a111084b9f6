#include "core/Object.h"

#include "core/RuntimeError.h"
#include "core/Variant.h"

#include <algorithm>

namespace phial
{

const Member* findMember(const Object& object, StringView name)
{
    const MemberTable table = object.members();
    const auto found = std::find_if(table.begin(), table.end(), [name](const Member& member) {
        return member.name.size() == name.size() && equalsIgnoringCase(member.name, name);
    });
    return found != table.end() ? &*found : nullptr;
}

std::optional<Variant> tryGet(Object& object, StringView name)
{
    const Member* member = findMember(object, name);
    if (member == nullptr || member->read == nullptr) {
        return std::nullopt;
    }
    return member->read(object);
}

bool trySet(Object& object, StringView name, const Variant& value)
{
    const Member* member = findMember(object, name);
    if (member == nullptr || member->write == nullptr) {
        return false;
    }
    member->write(object, value);
    return true;
}

std::optional<Variant> tryCall(Object& object, StringView name, std::span<const Variant> arguments)
{
    const Member* member = findMember(object, name);
    if (member == nullptr || member->call == nullptr) {
        return std::nullopt;
    }
    return member->call(object, arguments);
}

Variant getMember(Object& object, StringView name)
{
    if (auto value = tryGet(object, name)) {
        return *std::move(value);
    }
    throw noSuchMember(name, object.typeName());
}

void setMember(Object& object, StringView name, const Variant& value)
{
    if (!trySet(object, name, value)) {
        throw noSuchMember(name, object.typeName());
    }
}

Variant callMember(Object& object, StringView name, std::span<const Variant> arguments)
{
    if (auto result = tryCall(object, name, arguments)) {
        return *std::move(result);
    }
    throw noSuchMember(name, object.typeName());
}

} // namespace phial
