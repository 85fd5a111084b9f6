#pragma once

#include "core/String.h"

#include <memory>
#include <optional>
#include <span>

namespace phial
{

class Variant;
class Object;

/// One member of a class as it is reached by name: a property (read, perhaps write) or an operation (call).
struct Member {
    StringView name;
    Variant (*read)(Object&) = nullptr;
    void (*write)(Object&, const Variant&) = nullptr;
    Variant (*call)(Object&, std::span<const Variant>) = nullptr;
};

/// The members of one class: a constant table.
using MemberTable = std::span<const Member>;

/// Anything that is reached by the names of its members: forms, controls, items, columns. This is an
/// interface and holds no state. Each class has exactly one table of members.
class Object
{
public:
    virtual ~Object() = default;

    /// The class's name, such as `ctl_TermLabel` or "TextBox".
    virtual StringView typeName() const = 0;
    virtual MemberTable members() const = 0;
};

using ObjectPtr = std::shared_ptr<Object>;

/// The member of that name, without regard to case; null when the class has none.
const Member* findMember(const Object& object, StringView name);

/// Reads a property; no value when there is no such readable member.
std::optional<Variant> tryGet(Object& object, StringView name);
/// Writes a property; false when there is no such writable member. A value of the wrong type raises 13.
bool trySet(Object& object, StringView name, const Variant& value);
/// Calls an operation; no value when there is none of that name. An operation without result gives the empty
/// value.
std::optional<Variant> tryCall(Object& object, StringView name, std::span<const Variant> arguments = {});

/// The raising forms: 438 when there is no such member.
Variant getMember(Object& object, StringView name);
void setMember(Object& object, StringView name, const Variant& value);
Variant callMember(Object& object, StringView name, std::span<const Variant> arguments = {});

} // namespace phial
