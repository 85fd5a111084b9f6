#include "app/screen/Siblings.h"

#include "core/RuntimeError.h"
#include "core/Variant.h"
#include "visual/Control.h"

#include <array>
#include <vector>

namespace phial
{

namespace
{

/// What stands on the control's parent, the control itself included: a form or what stands for one in a
/// foreign window, else any object that has COUNT and Item, counted from 0.
std::vector<ObjectPtr> siblings(Object& control)
{
    const ObjectPtr parent = getMember(control, u"Parent").object();
    if (!parent) {
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    }
    std::vector<ObjectPtr> list;
    if (const auto* form = dynamic_cast<const ControlParent*>(parent.get())) {
        for (std::size_t index = 0; index < form->controlCount(); ++index) {
            list.push_back(form->controlAt(index));
        }
        return list;
    }
    const std::int32_t count = getMember(*parent, u"COUNT").toWhole();
    for (std::int32_t index = 0; index < count; ++index) {
        list.push_back(callMember(*parent, u"Item", std::array{Variant(index)}).object());
    }
    return list;
}

/// The first sibling for which `matches` holds. One that raises while it is asked, for want of the property,
/// is no match.
template <typename Predicate>
ObjectPtr findSibling(Object& control, Predicate matches)
{
    std::vector<ObjectPtr> candidates;
    ignoringErrors([&] { candidates = siblings(control); });
    for (ObjectPtr& candidate : candidates) {
        bool found = false;
        ignoringErrors([&] { found = candidate && matches(*candidate); });
        if (found) {
            return std::move(candidate);
        }
    }
    return nullptr;
}

} // namespace

ObjectPtr FindControlById(Object& pControl, StringView pId)
{
    if (pId.empty()) {
        return nullptr;
    }
    return findSibling(pControl,
                       [&](Object& sibling) { return getMember(sibling, u"CTRLID").toText() == pId; });
}

ObjectPtr FindControlByType(Object& pControl, StringView pTypeName, StringView pControlName)
{
    const String name = upperCase(trimmed(pControlName));
    return findSibling(pControl, [&](Object& sibling) {
        return equalsIgnoringCase(sibling.typeName(), pTypeName) &&
               upperCase(trimmed(getMember(sibling, u"NAME").toText())) == name;
    });
}

} // namespace phial
