#include "visual/ControlCopy.h"

#include "core/Variant.h"
#include "visual/Control.h"
#include "visual/Font.h"

#include <algorithm>
#include <array>

namespace phial
{

namespace
{

/// What makes a control itself and not one like another.
constexpr auto OwnMembers =
    std::to_array<StringView>({u"NAME", u"Index", u"Left", u"Top", u"Width", u"Height"});

bool isOwn(StringView name)
{
    return std::ranges::any_of(OwnMembers, [name](StringView own) { return equalsIgnoringCase(own, name); });
}

} // namespace

void copyControl(const Control& from, Control& to)
{
    auto& source = const_cast<Control&>(from); // reading through the table does not change it
    to.frame().pixelRectangle(from.frame().pixelRectangle());
    to.frame().takesTouch(from.frame().takesTouch());
    to.frame().ownKeyboard(from.frame().ownKeyboard());
    to.frame().AccessibleRole(from.frame().AccessibleRole());
    for (const Member& member : from.members()) {
        if (member.read && member.write && !isOwn(member.name)) {
            member.write(to, ownCopy(member.read(source)));
        }
    }
}

} // namespace phial
