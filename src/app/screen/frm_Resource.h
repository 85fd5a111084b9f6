#pragma once

#include "visual/Form.h"

#include <memory>
#include <type_traits>

namespace phial
{

/// A form that is never shown and holds what subsystems share: picture stores, timers, scratch controls. Made
/// and kept by the session; each part is added when it is first asked for.
class frm_Resource
{
public:
    frm_Resource() = default;
    ~frm_Resource() { form_->discard(); }
    frm_Resource(const frm_Resource&) = delete;
    frm_Resource& operator=(const frm_Resource&) = delete;

    Form& form() { return *form_; }

    /// The control, timer or image list of that name. When it is not there yet it is made, and `prepare` is
    /// called with it once. Raises 438 when another class has the name.
    template <typename Part, typename Prepare>
    std::shared_ptr<Part> part(StringView name, Prepare prepare)
    {
        if (form_->find(name)) {
            return form_->control<Part>(name);
        }
        auto made = make<Part>(name);
        prepare(*made);
        return made;
    }

    template <typename Part>
    std::shared_ptr<Part> part(StringView name)
    {
        return part<Part>(name, [](Part&) {});
    }

private:
    template <typename Part>
    std::shared_ptr<Part> make(StringView name)
    {
        if constexpr (std::is_base_of_v<Control, Part>) {
            return form_->add<Part>(name);
        } else {
            auto component = std::make_shared<Part>();
            component->NAME(String(name));
            form_->addComponent(component);
            return component;
        }
    }

    std::shared_ptr<Form> form_ = std::make_shared<Form>(u"frm_Resource");
};

} // namespace phial
