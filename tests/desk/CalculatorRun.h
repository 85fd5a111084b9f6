#pragma once

#include "app/cls_App.h"
#include "app/cls_AppURL.h"
#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "chem/cls_DataElement.h"
#include "core/NativePath.h"
#include "desk/frm_ToolCalc.h"
#include "headless/Hand.h"
#include "periodic/ctl_PSE.h"
#include "support/AppSession.h"
#include "support/Places.h"
#include "visual/ctl_Button.h"
#include "visual/ctl_Label.h"

#include <algorithm>
#include <initializer_list>
#include <memory>
#include <vector>

namespace phial::test
{

/// Types each sign by its own key, as a hardware keyboard does.
inline void typeSigns(Form& form, StringView signs)
{
    for (const char16_t sign : signs) {
        headless::strike(form, {.character = sign});
    }
}
inline void strikeWithControl(Form& form, KeyStroke stroke)
{
    stroke.Shift = ShiftMask::Control;
    headless::strike(form, stroke);
}

/// Indices of keys that tests press.
namespace calc_keys
{
inline constexpr std::int32_t Open = 10;
inline constexpr std::int32_t Close = 11;
inline constexpr std::int32_t Times = 12;
inline constexpr std::int32_t Over = 13;
inline constexpr std::int32_t Plus = 14;
inline constexpr std::int32_t Comma = 16;
inline constexpr std::int32_t Equals = 19;
inline constexpr std::int32_t Table = 20;
inline constexpr std::int32_t Mass = 21;
inline constexpr std::int32_t Back = 23;
inline constexpr std::int32_t Clear = 24;
inline constexpr std::int32_t Ok = 25;
inline constexpr std::int32_t Digits = 26;
inline constexpr std::int32_t Store1 = 40;
} // namespace calc_keys

/// The calculator on a large screen, with the installed elements, in German.
class CalculatorRun : public AppSession
{
protected:
    CalculatorRun()
    {
        outside.display().resize(1920, 1080);
        LNG()->CURRENT(ID_Language_German);
        QVAPP()->URL()->ROOT(systemPath(treeFolder()) + u"\\");
    }
    ~CalculatorRun() override { form().discard(); }

    Form& form() { return calculator.form(); }
    void open() { form().Show(); }
    template <typename Class>
    std::shared_ptr<Class> get(StringView name)
    {
        return form().control<Class>(name);
    }
    std::shared_ptr<ctl_Button> key(std::int32_t index)
    {
        return form().control<ctl_Button>(u"but_Key", index);
    }
    std::shared_ptr<ctl_Button> recall(std::int32_t memory)
    {
        return form().control<ctl_Button>(u"but_Recall", memory);
    }
    void type(StringView signs) { typeSigns(form(), signs); }
    void strike(Key named) { headless::strike(form(), {.key = named}); }
    void tap(std::initializer_list<std::int32_t> keys)
    {
        for (const std::int32_t index : keys) {
            headless::click(*key(index));
        }
    }
    void tapElement(StringView symbol)
    {
        const auto table = get<ctl_PSE>(u"ctl_PSE");
        const auto parts = table->parts();
        const auto part = std::ranges::find_if(parts, [&](const NamedPart& each) {
            return each.name.find(u", " + String(symbol) + u",") != String::npos;
        });
        ASSERT_NE(part, parts.end());
        headless::click(*table, part->area.left + part->area.width / 2,
                        part->area.top + part->area.height / 2);
        outside.runPending();
    }
    String line() { return get<ctl_Label>(u"lab_Term")->Caption(); }
    String reading() { return get<ctl_Label>(u"Label1")->Caption(); }

    frm_ToolCalc calculator;
};

} // namespace phial::test
