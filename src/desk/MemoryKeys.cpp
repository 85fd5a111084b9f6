#include "desk/MemoryKeys.h"

#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "calc/CalculatorDisplay.h"
#include "core/CoreNumbers.h"
#include "core/NumberText.h"

namespace phial
{

MemoryKeys::MemoryKeys(DesignedForm& form, CalculatorDisplay& display)
    : display_(display), keys_(*form, u"but_Recall")
{
    keys_.adopt();
    keys_.connectEach([this](ctl_Button& key, std::int32_t memory) {
        return key.CLICK.connect([this, memory] { RECALL.raise(memory); });
    });
    keys_.connectEach([this](ctl_Button& key, std::int32_t memory) {
        return key.MouseUp.connect([this, memory](const PointerEvent& event) {
            if (event.Button == PointerButton::Right) {
                clear(memory);
            }
        });
    });
}

void MemoryKeys::clear(std::int32_t memory)
{
    display_.clear(memory);
    show();
}

bool MemoryKeys::clearFocused()
{
    for (std::int32_t memory = 0; memory < CalculatorDisplay::Memories; ++memory) {
        if (keys_(memory)->frame().hasFocus()) {
            clear(memory);
            return true;
        }
    }
    return false;
}

void MemoryKeys::show()
{
    keys_.each([this](ctl_Button& key, std::int32_t memory) { show(key, memory); });
}

void MemoryKeys::show(ctl_Button& key, std::int32_t memory)
{
    const String number = plainText(memory + 1);
    const String name = LNG()->TRANSLATE(u"Speicher ", u"Memory ") + number;
    const auto& value = display_.memory(memory);
    const String text = value ? display_.fitted(*value) : String();
    key.Tag(value ? CoreNumbers::Invariant().Format(*value) : String());
    key.Caption(value ? text : u"M" + number);
    key.Enabled(value.has_value());
    key.frame().AccessibleName(value ? name + u": " + text : name);
    key.frame().ToolTipText(
        value ? LNG()->TRANSLATE(u"Ein Rechtsklick leert den Speicher.", u"A right click empties the memory.")
              : String());
}

} // namespace phial
