#pragma once

#include "visual/Control.h"

#include <vector>

namespace phial
{

/// What stands on a form, in the order in which it was added, and found by its name. A control's name is read
/// where it lies, so that a search neither copies a text nor has to be told when a name changes.
class NamedObjects
{
public:
    void add(ObjectPtr object);
    /// Gives what was taken away; null when it was not here.
    ObjectPtr remove(const Object& object);
    /// The first one of that name, without regard to case, and that Index (-1 outside arrays); null when
    /// there is none. An object that has no name is never found.
    ObjectPtr find(StringView name, std::int32_t index) const;

    std::size_t size() const { return objects_.size(); }
    const ObjectPtr& operator[](std::size_t at) const { return objects_[at]; }
    auto begin() const { return objects_.begin(); }
    auto end() const { return objects_.end(); }

private:
    bool isCalled(std::size_t at, StringView name, std::int32_t index) const;

    std::vector<ObjectPtr> objects_;
    std::vector<const ControlFrame*> frames_; ///< of the same place; null for what is no control
};

} // namespace phial
