#include "visual/FormDesign.h"

#include "core/Variant.h"
#include "visual/CommandBar.h"

#include <algorithm>

namespace phial
{

namespace
{

/// Names under which controls have what a design calls by the first of them.
constexpr StringView TextMembers[] = {u"Caption", u"Title", u"Text", u"Term"};
constexpr StringView FontMembers[] = {u"Font", u"TEXTFONT"};
constexpr StringView InkMembers[] = {u"ForeColor", u"TEXTCOLOR"};
constexpr StringView AlignmentMembers[] = {u"Alignment", u"TEXTALIGN"};

void setAny(Control& control, std::span<const StringView> members, const Variant& value)
{
    const bool isSet =
        std::ranges::any_of(members, [&](StringView member) { return trySet(control, member, value); });
    if (!isSet) {
        throw noSuchMember(members.front(), control.typeName());
    }
}

Variant valueOf(const DesignSetting& setting)
{
    switch (setting.kind) {
    case DesignSetting::Kind::Boolean:
        return Variant(setting.whole != 0);
    case DesignSetting::Kind::Real:
        return Variant(setting.real);
    case DesignSetting::Kind::Whole:
        break;
    }
    return Variant(setting.whole);
}

void apply(Control& control, const DesignSetting& setting)
{
    for (const std::span<const StringView> members :
         {std::span<const StringView>(InkMembers), std::span<const StringView>(AlignmentMembers)}) {
        if (members.front() == setting.member) {
            setAny(control, members, valueOf(setting));
            return;
        }
    }
    setMember(control, setting.member, valueOf(setting));
}

Container& holderOf(Form& form, const ControlDesign& design)
{
    if (design.holder.empty()) {
        return form.container();
    }
    Container* holder = form.control<Control>(design.holder)->container();
    if (!holder) {
        throw noSuchMember(u"container", design.holder);
    }
    holder->ScaleMode(form.ScaleMode());
    return *holder;
}

void addButtons(Control& control, std::span<const ButtonDesign> buttons)
{
    auto* bar = dynamic_cast<CommandBar*>(&control);
    if (!bar) {
        throw noSuchMember(u"BUTTONS", control.typeName());
    }
    for (const ButtonDesign& button : buttons) {
        bar->BUTTONS()->Add(String(button.key), String(button.caption))->Default(button.isDefault);
    }
}

void dress(Control& control, const ControlDesign& design)
{
    if (!design.text.empty()) {
        setAny(control, TextMembers, Variant(design.text));
    }
    if (design.textFont) {
        setAny(control, FontMembers, Variant(ObjectPtr(std::make_shared<Font>(design.textFont->traits()))));
    }
    for (std::size_t at = 0; at < design.settingCount; ++at) {
        apply(control, design.settings[at]);
    }
    ControlFrame& frame = control.frame();
    if (design.takesFocus) {
        frame.canFocus(*design.takesFocus);
    }
    if (design.takesTouch) { // some controls take it by themselves
        frame.takesTouch(true);
    }
    frame.ownKeyboard(design.ownKeyboard);
    frame.AccessibleName(String(design.spokenName));
    if (!design.bar.empty()) {
        addButtons(control, design.bar);
    }
    frame.Visible(design.isVisible);
}

void addOne(Form& form, const ControlDesign& design, std::int32_t number, std::int32_t tabIndex)
{
    const auto& steps = design.repetition;
    const std::int32_t row = number / steps.columns;
    const std::int32_t column = number % steps.columns;
    const ControlPtr control = design.make(design.name, design.indexOf(number));
    control->frame().TabIndex(tabIndex);
    form.add(control, &holderOf(form, design));
    control->Move(design.place.left + column * steps.stepX, design.place.top + row * steps.stepY,
                  design.place.width, design.place.height);
    dress(*control, design);
    switch (design.role) {
    case ControlDesign::Role::Plain:
        break;
    case ControlDesign::Role::Default:
        form.DefaultControl(control);
        break;
    case ControlDesign::Role::Cancel:
        form.CancelControl(control);
        break;
    }
}

/// The first number in the order of the Tab key that is free.
std::int32_t nextTabIndex(const Form& form)
{
    std::int32_t next = 0;
    for (std::size_t at = 0; at < form.controlCount(); ++at) {
        if (const auto control = std::dynamic_pointer_cast<Control>(form.controlAt(at))) {
            next = std::max(next, control->frame().TabIndex() + 1);
        }
    }
    return next;
}

} // namespace

std::shared_ptr<Form> makeForm(const FormDesign& design)
{
    auto form = std::make_shared<Form>(String(design.name));
    form->Caption(String(design.caption));
    form->ScaleMode(design.unit);
    form->BorderStyle(design.border);
    form->BackColor(design.ground);
    form->centred(design.isCentred);
    form->KeyPreview(design.hearsKeysFirst || design.closesByEscape);
    if (!design.size.isEmpty()) {
        form->innerSize(design.size);
    }
    addControls(*form, design.controls);
    return form;
}

void addControls(Form& form, std::span<const ControlDesign> controls)
{
    std::int32_t tabIndex = nextTabIndex(form);
    for (const ControlDesign& design : controls) {
        for (std::int32_t number = 0; number < design.repetition.count; ++number) {
            addOne(form, design, number, tabIndex++);
        }
    }
}

} // namespace phial
