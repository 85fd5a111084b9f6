#pragma once

#include "core/Event.h"
#include "core/RuntimeError.h"
#include "visual/ControlCopy.h"
#include "visual/Form.h"

#include <functional>
#include <map>
#include <memory>

namespace phial
{

/// Controls of one name that differ by their Index. Indices are sparse and at least 0. A handler connected
/// for the array hears each element, also those loaded later, and is told the index:
///
///     keys_.connectEach([](PictureBox& key, std::int32_t index) {
///         return key.Click.connect([index] { … });
///     });
template <typename Class>
class ControlArray
{
public:
    using Wiring = std::function<Connection(Class&, std::int32_t index)>;

    /// The form must outlive the array.
    ControlArray(Form& form, String name) : form_(form), name_(std::move(name)) {}

    /// Takes up a control as element; raises 360 when the index is in use and 5 when it is negative.
    std::shared_ptr<Class> add(std::int32_t index, std::shared_ptr<Class> control, Container* into = nullptr)
    {
        checkFree(index);
        control->frame().NAME(name_);
        control->frame().Index(index);
        form_.add(control, into);
        take(index, control);
        return control;
    }

    /// Takes up the elements of that name that stand on the form already.
    void adopt()
    {
        for (std::size_t at = 0; at < form_.controlCount(); ++at) {
            auto control = std::dynamic_pointer_cast<Class>(form_.controlAt(at));
            if (control && control->Index() >= 0 && equalsIgnoringCase(control->NAME(), name_) &&
                !elements_.contains(control->Index())) {
                take(control->Index(), control);
            }
        }
    }

    /// A copy of the element of the lowest index, hidden, in the same container. Raises 360 when the index is
    /// in use, 5 when it is negative, 9 when the array is empty.
    std::shared_ptr<Class> load(std::int32_t index)
    {
        checkFree(index);
        if (elements_.empty()) {
            throw RuntimeError(ErrorNumber::IndexOutOfBounds);
        }
        Class& original = *elements_.begin()->second.control;
        auto copy = makeNamed<Class>(name_, index);
        copyControl(original, *copy);
        copy->Visible(false);
        return add(index, std::move(copy), original.frame().container());
    }

    /// Takes an element away; raises 9 when there is none of that index.
    void unload(std::int32_t index)
    {
        form_.remove(*(*this)(index));
        elements_.erase(index);
    }

    /// Raises 9 when there is none of that index.
    std::shared_ptr<Class> operator()(std::int32_t index) const
    {
        const auto found = elements_.find(index);
        if (found == elements_.end()) {
            throw RuntimeError(ErrorNumber::IndexOutOfBounds);
        }
        return found->second.control;
    }
    bool has(std::int32_t index) const { return elements_.contains(index); }
    std::size_t Count() const { return elements_.size(); }
    /// Lowest and greatest index; raise 9 for an empty array.
    std::int32_t LBound() const { return checkedEnd(elements_.begin()); }
    std::int32_t UBound() const
    {
        return checkedEnd(elements_.empty() ? elements_.end() : std::prev(elements_.end()));
    }

    /// Runs for each element, now and when one is added. The connection lasts as long as the element is in
    /// the array.
    void connectEach(const Wiring& wiring)
    {
        wirings_.push_back(wiring);
        for (auto& [index, element] : elements_) {
            element.connections += wiring(*element.control, index);
        }
    }
    /// Calls `action(control, index)` in the order of the indices.
    template <typename Action>
    void each(Action&& action) const
    {
        const auto current = snapshot();
        for (const auto& [index, control] : current) {
            action(*control, index);
        }
    }

private:
    struct Element {
        std::shared_ptr<Class> control;
        Connections connections;
    };

    void take(std::int32_t index, const std::shared_ptr<Class>& control)
    {
        auto& element = elements_[index];
        element.control = control;
        for (const auto& wiring : wirings_) {
            element.connections += wiring(*control, index);
        }
    }
    void checkFree(std::int32_t index) const
    {
        if (index < 0) {
            throw RuntimeError(ErrorNumber::InvalidArgument);
        }
        if (has(index)) {
            throw RuntimeError(360, u"Object already loaded");
        }
    }
    std::int32_t checkedEnd(typename std::map<std::int32_t, Element>::const_iterator end) const
    {
        if (end == elements_.end()) {
            throw RuntimeError(ErrorNumber::IndexOutOfBounds);
        }
        return end->first;
    }
    std::map<std::int32_t, std::shared_ptr<Class>> snapshot() const
    {
        std::map<std::int32_t, std::shared_ptr<Class>> copy;
        for (const auto& [index, element] : elements_) {
            copy.emplace(index, element.control);
        }
        return copy;
    }

    Form& form_;
    String name_;
    std::map<std::int32_t, Element> elements_;
    std::vector<Wiring> wirings_;
};

} // namespace phial
