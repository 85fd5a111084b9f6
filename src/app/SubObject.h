#pragma once

#include <memory>
#include <utility>

namespace phial
{

/// The place of one sub-object of the root: empty until it is first read, kept from then on, replaceable.
///
/// A header needs only the forward declaration of the class; `get` is called where the class is complete.
template <typename Class>
class SubObject
{
public:
    /// The object, made now if there is none.
    const std::shared_ptr<Class>& get()
    {
        if (!object_) {
            object_ = std::make_shared<Class>();
        }
        return object_;
    }

    /// Puts another object in its place; no object makes the next read create a fresh one.
    void set(std::shared_ptr<Class> object) { object_ = std::move(object); }

    /// The object if it has been made, without making it.
    const std::shared_ptr<Class>& existing() const { return object_; }

private:
    std::shared_ptr<Class> object_;
};

} // namespace phial
