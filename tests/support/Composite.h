#pragma once

#include "core/Event.h"
#include "visual/Container.h"
#include "visual/PaintSurface.h"
#include "visual/TextBox.h"
#include "visual/UserControl.h"
#include "visual/ctl_Button.h"

#include <memory>

namespace phial::test
{

/// A painted control that holds two fields and a button for itself, the fields in another order than that of
/// the Tab key.
class Composite final : public UserControl
{
public:
    Composite()
    {
        frame_.pixelRectangle({0, 0, 200, 100});
        second = hold<TextBox>(u"txt_Second", 2);
        first = hold<TextBox>(u"txt_First", 1);
        press = hold<ctl_Button>(u"but_Press", 3);
    }

    StringView typeName() const override { return u"ctl_Composite"; }
    MemberTable members() const override { return {}; }
    ControlFrame& frame() override { return frame_; }
    PaintSurface& surface() override { return surface_; }
    Container* container() override { return &surface_.children(); }
    void paint() override {}
    void ended() override { ENDED.raise(); }
    void gotFocus() override { GotFocus.raise(); }
    void lostFocus() override { LostFocus.raise(); }

    Event<> GotFocus;
    Event<> LostFocus;
    Event<> ENDED;
    std::shared_ptr<TextBox> first;
    std::shared_ptr<TextBox> second;
    std::shared_ptr<ctl_Button> press;

private:
    template <typename Class>
    std::shared_ptr<Class> hold(StringView name, std::int32_t tabIndex)
    {
        auto control = makeNamed<Class>(name);
        control->frame().TabIndex(tabIndex);
        surface_.children().add(control);
        control->Move(0, tabIndex * 25.0 - 25, 200, 25);
        return control;
    }

    ControlFrame frame_{*this};
    PaintSurface surface_{*this};
};

} // namespace phial::test
