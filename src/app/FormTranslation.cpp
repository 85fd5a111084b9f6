#include "app/FormTranslation.h"

#include "core/Colour.h"
#include "core/CoreColors.h"
#include "core/CoreStringOps.h"
#include "core/Variant.h"

#include <algorithm>
#include <array>

namespace phial
{

namespace
{

constexpr StringView Separator = u"|";
constexpr StringView ButtonPadding = u"   "; // behind each button's text
constexpr int FewestLetters = 3;             // of a text that counts as forgotten
constexpr Colour FieldBlue = RGB(0, 106, 181);
constexpr double FieldBlend = 80;

constexpr auto ControlTexts = std::to_array<StringView>(
    {u"TITLE", u"TEXT", u"TEXTLEFT", u"TEXTRIGHT", u"TOOLTIPTEXT", u"CAPTION", u"TAG"});
constexpr auto ButtonTexts =
    std::to_array<StringView>({u"TEXT", u"CAPTION", u"TOOLTIPTEXT", u"DESCRIPTION", u"TAG"});
constexpr auto ItemTexts = std::to_array<StringView>({u"TITLE", u"TITLESHORT", u"TOOLTIPTEXT", u"TAG"});
constexpr auto ColumnTexts = std::to_array<StringView>({u"TEXT", u"TOOLTIPTEXT"});

constexpr auto Collections = std::to_array<FormTranslation::Collection>({{u"BUTTONS", ButtonTexts},
                                                                         {u"PANELS", ButtonTexts},
                                                                         {u"ITEMS", ItemTexts},
                                                                         {u"COLUMNHEADERS", ColumnTexts}});

/// The text of a member, none when the object has no such member or it cannot be read.
std::optional<String> textOf(Object& object, StringView property)
{
    std::optional<String> text;
    ignoringErrors([&] {
        if (const auto value = tryGet(object, property)) {
            text = value->toText();
        }
    });
    return text;
}

ObjectPtr objectOf(Object& object, StringView property)
{
    ObjectPtr found;
    ignoringErrors([&] {
        if (const auto value = tryGet(object, property)) {
            found = value->object();
        }
    });
    return found;
}

std::int32_t countOf(Object& collection)
{
    std::int32_t count = 0;
    ignoringErrors([&] { count = getMember(collection, u"Count").toWhole(); });
    return count;
}

ObjectPtr itemOf(Object& collection, std::int32_t position)
{
    ObjectPtr item;
    ignoringErrors([&] {
        const Variant argument(position);
        item = callMember(collection, u"Item", {&argument, 1}).object();
    });
    return item;
}

/// The control's name, with its index behind it in a control array.
String keyOf(Object& control)
{
    const String name = textOf(control, u"NAME").value_or(String());
    const String index = textOf(control, u"Index").value_or(u"-1");
    return index.starts_with(u'-') ? name : name + u"(" + index + u")";
}

bool isOneOf(const String& typeName, std::initializer_list<StringView> names)
{
    return std::any_of(names.begin(), names.end(),
                       [&](StringView name) { return equalsIgnoringCase(typeName, name); });
}

/// Fields in the plain window colour get a pale blue.
void tintField(Object& control)
{
    const String type(control.typeName());
    if (!isOneOf(type, {u"TEXTBOX", u"COMBOBOX", u"LISTBOX", u"LISTVIEW"})) {
        return;
    }
    ignoringErrors([&] {
        const auto window = static_cast<std::int32_t>(SystemColour::Window.value);
        if (getMember(control, u"BACKCOLOR").toWhole() == window) {
            const Colour tinted = CoreColors::Blend(FieldBlue, FieldBlend, RGB(255, 255, 255));
            setMember(control, u"BACKCOLOR", static_cast<std::int32_t>(tinted.value));
        }
    });
}

bool isLetter(char16_t unit)
{
    return (unit >= u'A' && unit <= u'Z') || unit == u'Ä' || unit == u'Ö' || unit == u'Ü';
}

} // namespace

FormTranslation::FormTranslation(Object& form, CoreTokenList& buffer, bool german)
    : form_(form), buffer_(buffer), german_(german), formName_(textOf(form, u"NAME").value_or(String()))
{
}

void FormTranslation::run()
{
    const std::vector<ObjectPtr> found = controls();
    std::vector<Place> places;
    for (const ObjectPtr& control : found) {
        findPlaces(control, places);
    }
    if (buffer_.Count() == 0) {
        gather(places);
        for (const ObjectPtr& control : found) {
            tintField(*control);
        }
    }
    assignText(form_, formName_ + u".Caption", u"Caption");
    for (const Place& place : places) {
        assignText(*place.object, place.key, place.property);
    }
}

void FormTranslation::gather(const std::vector<Place>& places)
{
    note(formName_ + u".Caption", textOf(form_, u"Caption").value_or(String()));
    for (const Place& place : places) {
        if (const auto text = textOf(*place.object, place.property)) {
            note(place.key, *text);
        }
    }
}

std::vector<ObjectPtr> FormTranslation::controls()
{
    std::vector<ObjectPtr> found;
    const ObjectPtr collection = objectOf(form_, u"Controls");
    const std::int32_t count = collection ? countOf(*collection) : 0;
    for (std::int32_t i = 0; i < count; ++i) {
        if (const ObjectPtr control = itemOf(*collection, i)) {
            found.push_back(control);
        }
    }
    return found;
}

/// Forms have many controls of few classes, so the members of a class are looked up once.
const FormTranslation::Kind& FormTranslation::kindOf(const Object& control)
{
    const MemberTable members = control.members();
    const auto known =
        std::ranges::find_if(kinds_, [&](const Kind& kind) { return kind.members.data() == members.data(); });
    if (known != kinds_.end()) {
        return *known;
    }
    Kind kind{.members = members, .texts = {}, .collections = {}};
    std::ranges::copy_if(ControlTexts, std::back_inserter(kind.texts),
                         [&](StringView property) { return findMember(control, property) != nullptr; });
    std::ranges::copy_if(Collections, std::back_inserter(kind.collections),
                         [&](const Collection& each) { return findMember(control, each.name) != nullptr; });
    return kinds_.emplace_back(std::move(kind));
}

void FormTranslation::findPlaces(const ObjectPtr& control, std::vector<Place>& places)
{
    const Kind& kind = kindOf(*control);
    if (kind.texts.empty() && kind.collections.empty()) {
        return;
    }
    const String key = keyOf(*control);
    for (const StringView property : kind.texts) {
        places.push_back({control, property, String(key).append(u".").append(property)});
    }
    for (const Collection& each : kind.collections) {
        findPlacesWithin(*control, each, key, places);
    }
}

void FormTranslation::findPlacesWithin(Object& control, const Collection& collection, StringView controlKey,
                                       std::vector<Place>& places)
{
    const ObjectPtr members = objectOf(control, collection.name);
    const std::int32_t count = members ? countOf(*members) : 0;
    for (std::int32_t i = 1; i <= count; ++i) {
        const ObjectPtr member = itemOf(*members, i);
        if (!member) {
            continue;
        }
        const String key =
            String(controlKey).append(u".").append(collection.name) + u"(" + Variant(i).toText() + u").";
        for (const StringView property : collection.texts) {
            places.push_back({member, property, String(key).append(property)});
        }
    }
}

/// A text that ends in the separator has no English part and keeps its separator.
void FormTranslation::note(StringView key, const String& text)
{
    const auto separator = text.find(Separator);
    if (separator == String::npos) {
        noteUntranslated(key, text);
    } else if (text.ends_with(Separator)) {
        buffer_.Add(key, {Variant(text), Variant(text)});
    } else {
        buffer_.Add(key, {Variant(CoreStringOps::Before(text, Separator)),
                          Variant(CoreStringOps::After(text, Separator))});
    }
}

void FormTranslation::noteUntranslated(StringView key, const String& text)
{
    const String capitals = upperCase(text);
    if (text.find(u'\\') != String::npos || text == capitals || text == u"Text" || text == u"Title") {
        return;
    }
    if (std::count_if(capitals.begin(), capitals.end(), isLetter) >= FewestLetters) {
        untranslated_.Add(String(key) + u" in " + formName_);
    }
}

String FormTranslation::lookUp(StringView key, const String& standard) const
{
    return buffer_.Exists(key) ? buffer_.Item(key).Values().Item(german_ ? 1 : 2).toText() : standard;
}

/// A button's text is kept apart from its edge by blanks.
void FormTranslation::assignText(Object& object, StringView key, StringView property)
{
    const auto present = textOf(object, property);
    if (!present) {
        return;
    }
    const bool isButtonText = key.find(u".BUTTONS(") != StringView::npos && property == u"TEXT";
    const String text =
        isButtonText ? lookUp(key, trimmed(*present)).append(ButtonPadding) : lookUp(key, *present);
    if (text != *present) {
        ignoringErrors([&] { trySet(object, property, text); });
    }
}

} // namespace phial
