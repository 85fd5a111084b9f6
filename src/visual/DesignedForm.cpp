#include "visual/DesignedForm.h"

namespace phial
{

DesignedForm::DesignedForm(const FormDesign& design) : form_(makeForm(design)), designs_{design.controls}
{
    if (design.closesByEscape) {
        on(form_->KeyDown, [this](KeyEvent& event) { closeByEscape(event); });
    }
}

DesignedForm::~DesignedForm()
{
    connections_.clear();
    form_->discard();
}

void DesignedForm::add(std::span<const ControlDesign> controls)
{
    addControls(*form_, controls);
    designs_.push_back(controls);
}

void DesignedForm::press(StringView button, std::function<void()> handler)
{
    on(form_->control<ctl_Button>(button)->CLICK, std::move(handler));
}

void DesignedForm::command(StringView bar, StringView key, std::function<void()> handler)
{
    on(form_->control<ctl_CmdBar>(bar)->BUTTON,
       [key = String(key), handler = std::move(handler)](std::int32_t, const String& pressed) {
           if (equalsIgnoringCase(pressed, key)) {
               handler();
           }
       });
}

void DesignedForm::speak(const std::function<String(StringView)>& say) const
{
    for (const auto& controls : designs_) {
        for (const ControlDesign& design : controls) {
            for (std::int32_t at = 0; at < design.repetition.count && !design.spokenName.empty(); ++at) {
                const auto control = form_->control<Control>(design.name, design.indexOf(at));
                control->frame().AccessibleName(say(design.spokenName));
            }
        }
    }
}

void DesignedForm::closeByEscape(KeyEvent& event) const
{
    if (event.is(Key::Escape)) {
        event.KeyCode = 0;
        form_->Unload();
    }
}

} // namespace phial
