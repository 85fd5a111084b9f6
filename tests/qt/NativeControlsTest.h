#pragma once

#include "DesktopSession.h"

#include <QWidget>

namespace phial::qt
{

/// Controls that are the toolkit's own widgets, on a form.
class NativeControlsTest : public DesktopSession
{
protected:
    NativeControlsTest()
    {
        form_->ScaleMode(ScaleUnit::Pixels);
        form_->innerSize({400, 300});
    }

    template <typename Class>
    std::shared_ptr<Class> shown(StringView name)
    {
        auto control = form_->add<Class>(name);
        control->Move(10, 10, 200, 120);
        form_->Show();
        return control;
    }

    template <typename Widget>
    static Widget& inner(const Control& control)
    {
        if (auto* self = qobject_cast<Widget*>(&widgetOf(control))) {
            return *self;
        }
        return *widgetOf(control).findChild<Widget*>();
    }

    std::shared_ptr<Form> form_ = std::make_shared<Form>(u"frm_Test");
};

} // namespace phial::qt
