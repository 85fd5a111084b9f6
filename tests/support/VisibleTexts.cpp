#include "support/VisibleTexts.h"

#include "core/NumberText.h"
#include "core/RuntimeError.h"
#include "core/Variant.h"
#include "visual/ComboBox.h"
#include "visual/Form.h"
#include "visual/ListBox.h"

#include <array>
#include <utility>

namespace phial::test
{

namespace
{

constexpr std::array<StringView, 8> OwnTexts = {u"Caption",  u"Title",     u"TitleShort",  u"Text",
                                                u"TextLeft", u"TextRight", u"ToolTipText", u"Description"};
constexpr std::array<StringView, 4> Collections = {u"BUTTONS", u"PANELS", u"ITEMS", u"COLUMNHEADERS"};

/// Gathers texts under the name of what shows them.
class Reader
{
public:
    std::map<String, String> found;

    void own(Object& object, const String& name)
    {
        for (const StringView property : OwnTexts) {
            ignoringErrors([&] {
                if (const auto value = tryGet(object, property)) {
                    note(name + u"." + String(property), value->toText());
                }
            });
        }
    }

    void members(Object& object, const String& name)
    {
        for (const StringView collection : Collections) {
            ignoringErrors([&] {
                if (const auto value = tryGet(object, collection)) {
                    each(*value->object(), name + u"." + String(collection));
                }
            });
        }
    }

    /// What only controls have.
    void control(Control& control, const String& name)
    {
        note(name + u".AccessibleName", control.frame().AccessibleName());
        note(name + u".HelpText", control.frame().HelpText());
        if (const auto* list = dynamic_cast<ListBox*>(&control)) {
            lines(*list, name);
        } else if (const auto* box = dynamic_cast<ComboBox*>(&control)) {
            lines(*box, name);
        }
    }

private:
    void each(Object& collection, const String& name)
    {
        const std::int32_t count = getMember(collection, u"Count").toWhole();
        for (std::int32_t position = 1; position <= count; ++position) {
            const Variant argument(position);
            const ObjectPtr item = callMember(collection, u"Item", {&argument, 1}).object();
            own(*item, name + u"(" + plainText(position) + u")");
        }
    }

    template <typename List>
    void lines(const List& list, const String& name)
    {
        for (std::int32_t line = 0; line < list.ListCount(); ++line) {
            note(name + u".List(" + plainText(line) + u")", list.List(line));
        }
    }

    void note(const String& place, String text)
    {
        if (!trimmed(text).empty()) {
            found.emplace(place, std::move(text));
        }
    }
};

/// The name, with the index of a member of an array.
String nameOf(Object& object)
{
    const String name = getMember(object, u"NAME").toText();
    const std::int32_t index = getMember(object, u"Index").toWhole();
    return index < 0 ? name : name + u"(" + plainText(index) + u")";
}

bool isShown(Object& object)
{
    const auto visible = tryGet(object, u"Visible");
    return visible && visible->toBoolean();
}

} // namespace

std::map<String, String> visibleTexts(Form& form)
{
    Reader reader;
    reader.own(form, form.NAME());
    for (std::size_t at = 0; at < form.controlCount(); ++at) {
        const ObjectPtr object = form.controlAt(at);
        if (!isShown(*object)) {
            continue; // a hidden control, or a timer
        }
        const String name = nameOf(*object);
        reader.own(*object, name);
        reader.members(*object, name);
        if (auto* control = dynamic_cast<Control*>(object.get())) {
            reader.control(*control, name);
        }
    }
    return reader.found;
}

} // namespace phial::test
