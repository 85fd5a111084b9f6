#include "visual/NamedObjects.h"

#include "core/Variant.h"

#include <algorithm>

namespace phial
{

void NamedObjects::add(ObjectPtr object)
{
    const auto* control = dynamic_cast<const Control*>(object.get());
    frames_.push_back(control ? &control->frame() : nullptr);
    objects_.push_back(std::move(object));
}

ObjectPtr NamedObjects::remove(const Object& object)
{
    const auto found =
        std::ranges::find_if(objects_, [&](const auto& entry) { return entry.get() == &object; });
    if (found == objects_.end()) {
        return nullptr;
    }
    ObjectPtr removed = *found;
    frames_.erase(frames_.begin() + (found - objects_.begin()));
    objects_.erase(found);
    return removed;
}

ObjectPtr NamedObjects::find(StringView name, std::int32_t index) const
{
    for (std::size_t at = 0; at < objects_.size(); ++at) {
        if (isCalled(at, name, index)) {
            return objects_[at];
        }
    }
    return nullptr;
}

bool NamedObjects::isCalled(std::size_t at, StringView name, std::int32_t index) const
{
    if (const ControlFrame* frame = frames_[at]) {
        return frame->isCalled(name, index);
    }
    Object& object = *objects_[at];
    const auto own = tryGet(object, u"NAME");
    return own && equalsIgnoringCase(own->toText(), name) &&
           tryGet(object, u"Index").value_or(Variant(-1)).toWhole() == index;
}

} // namespace phial
