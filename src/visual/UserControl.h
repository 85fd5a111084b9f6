#pragma once

#include "visual/Control.h"
#include "visual/PropertyBag.h"

#include <memory>
#include <optional>
#include <vector>

namespace phial
{

class PaintSurface;

/// A part of a painted control that can be named: for screen readers, and reached by the arrow keys when it
/// has an action.
struct NamedPart {
    PixelRectangle area; ///< in the control
    PartRole role = PartRole::StaticText;
    String name;
    String action; ///< what activatePart does, such as "Press"; empty for nothing
    PartState state{};
    std::int32_t row = 0;    ///< of a cell, from 1; 0 outside of rows and columns
    std::int32_t column = 0; ///< likewise

    friend bool operator==(const NamedPart&, const NamedPart&) = default;
};

/// A control that paints itself: interface of all `ctl_…` controls and of what is only shown. One widget of
/// an adapter hosts them all, on forms and in foreign windows.
///
/// Life: constructed; named; `initProperties` (freshly placed) or `readProperties`; `shown` and `hidden` as
/// it comes into sight and goes; `ended` when it is taken away or its form ends. `resized` runs whenever the
/// frame's size changes.
class UserControl : public Control
{
public:
    virtual PaintSurface& surface() = 0;
    UserControl* painted() final { return this; }
    Container* containerInUse() final;

    /// Defaults of a freshly placed control.
    virtual void initProperties() {}
    virtual void readProperties(const PropertyBag&) {}
    virtual void writeProperties(PropertyBag&) {}
    virtual void shown() {}
    virtual void hidden() {}
    virtual void ended() {}
    /// Paints the whole control on surface().device(). Called by the surface when its image has to be remade;
    /// controls call it themselves, too.
    virtual void paint() = 0;

    /// Whether its size is its own, whatever it is given; a layout leaves it that size.
    virtual bool keepsOwnSize() const { return false; }
    /// How much room its content needs, in pixels, for a layout that asks: in one piece, or in lines that are
    /// no wider than that where it breaks into lines. Empty for a control that fills whatever it is given.
    virtual PixelSize contentSize(std::optional<double> /*width*/ = std::nullopt) const { return {}; }

    /// The parts that can be named, in reading order. Empty: the control itself is the only part. They are
    /// asked for once a change; a change that the control does not report otherwise (picture, size, text) is
    /// told by ControlAspect::Accessibility.
    virtual std::vector<NamedPart> parts() const { return {}; }
    /// Does the part's action, as a click would.
    virtual void activatePart(std::size_t /*part*/) {}
    /// Whether its own keys move through the parts; an adapter does so otherwise, by the parts' places.
    virtual bool movesThroughParts() const { return false; }
    /// For such a control: the part that has the focus while the control has it; none for the control as a
    /// whole. ControlAspect::CurrentPart tells that the user has moved it.
    virtual std::optional<std::size_t> currentPart() const { return std::nullopt; }
    /// The role of the control as a whole, where its frame has no other.
    virtual PartRole role() const { return PartRole::Graphic; }

    /// A property was changed by its writer: the property's name.
    Event<const String&> PropertyChanged;
};

/// Gives a fresh control its first properties; its name comes before, since a property may be made of it.
inline void initialise(Control& control)
{
    if (UserControl* painted = control.painted()) {
        painted->initProperties();
    }
}

/// Makes a freshly placed control without a name.
template <typename Class, typename... Args>
std::shared_ptr<Class> makeControl(Args&&... args)
{
    auto control = std::make_shared<Class>(std::forward<Args>(args)...);
    initialise(*control);
    return control;
}

/// Makes a freshly placed control of that name, with its place in a control array or -1.
template <typename Class>
std::shared_ptr<Class> makeNamed(StringView name, std::int32_t index = -1)
{
    auto control = std::make_shared<Class>();
    static_cast<Control&>(*control).frame().NAME(String(name));
    static_cast<Control&>(*control).frame().Index(index);
    initialise(*control);
    return control;
}

} // namespace phial
