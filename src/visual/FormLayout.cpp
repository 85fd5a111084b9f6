#include "visual/FormLayout.h"

#include "core/Variant.h"

#include <array>

namespace phial
{

namespace
{

/// The property that shows a control's text: the first of these that it has.
void setText(Control& control, StringView text)
{
    constexpr auto TextMembers = std::to_array<StringView>({u"Caption", u"Title", u"Text", u"Term"});
    for (const StringView name : TextMembers) {
        if (trySet(control, name, Variant(text))) {
            return;
        }
    }
    throw RuntimeError(ErrorNumber::NoSuchMember);
}

Container& holderOf(Form& form, const LayoutItem& item)
{
    if (item.container.empty()) {
        return form.container();
    }
    Container* holder = form.control<Control>(item.container)->container();
    if (!holder) {
        throw RuntimeError(ErrorNumber::NoSuchMember);
    }
    return *holder;
}

} // namespace

void applyLayout(Form& form, std::span<const LayoutItem> layout)
{
    std::int32_t tabIndex = 0;
    for (const LayoutItem& item : layout) {
        const ControlPtr control = item.make();
        ControlFrame& frame = control->frame();
        frame.NAME(String(item.name));
        frame.Index(item.index);
        frame.TabIndex(tabIndex++);
        form.add(control, &holderOf(form, item));
        if (!item.text.empty()) {
            setText(*control, item.text);
        }
        frame.Move(item.place.left, item.place.top, item.place.width, item.place.height);
        frame.Visible(item.visible);
    }
}

} // namespace phial
