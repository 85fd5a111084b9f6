#include "master/MasterSettings.h"

#include "core/NumberText.h"
#include "master/Packages.h"

#include <algorithm>
#include <array>

namespace phial::master
{

namespace
{

constexpr StringView ScreenNames = u"SCREENNAMES";
constexpr StringView WelcomeMessage = u"WELCOMEMESSAGE";
constexpr StringView ListLengthEnding = u".MAX";
constexpr StringView OnceEnding = u".ONCE";

bool endsWith(StringView name, StringView ending)
{
    return name.size() > ending.size() &&
           equalsIgnoringCase(name.substr(name.size() - ending.size()), ending);
}

bool isBoolean(StringView name)
{
    return equalsIgnoringCase(name, ScreenNames) || endsWith(name, OnceEnding);
}

bool isOneOf(StringView text, std::initializer_list<StringView> words)
{
    return std::ranges::any_of(words, [text](StringView word) { return equalsIgnoringCase(text, word); });
}

/// What a teacher types for yes and no, in both languages.
std::optional<bool> typedBoolean(StringView text)
{
    if (isOneOf(text, {u"true", u"1", u"-1", u"ja", u"yes", u"wahr", u"an", u"on"})) {
        return true;
    }
    if (isOneOf(text, {u"false", u"0", u"nein", u"no", u"falsch", u"aus", u"off"})) {
        return false;
    }
    return std::nullopt;
}

bool isListLength(StringView text)
{
    const NumberAtStart number = numberAtStart(text);
    return number.length == text.size() && number.value >= 1 &&
           number.value <= MasterSettings::MaxListLength && number.value == static_cast<int>(number.value);
}

/// Signs that divide packed texts take more room there.
bool fitsWhenHandedOut(const String& welcome)
{
    CoreParameters out;
    out.Set(ScreenNames, true);
    out.Set(WelcomeMessage, welcome);
    return out.Pack().size() <= MasterSettings::MaxHandedOut;
}

/// The value as its setting's kind has it, from the text that is kept.
Variant asKind(StringView name, const String& text)
{
    if (isBoolean(name)) {
        return typedBoolean(text).value_or(true);
    }
    return text;
}

} // namespace

MasterSettings::MasterSettings(const Texts& kept)
{
    for (const auto& [name, text] : kept) {
        values_.Set(name, asKind(name, text));
    }
}

MasterSettings::Change MasterSettings::changeTo(StringView name, StringView value) const
{
    Change change{upperCase(cleaned(name, MaxNameLength + 1)), cleaned(value, MaxValueLength + 1)};
    change.problem = problemOf(change.name, change.text);
    return change;
}

MasterSettings::Problem MasterSettings::problemOf(const String& key, const String& text) const
{
    if (key.empty() || key.size() > MaxNameLength) {
        return Problem::Name;
    }
    if (text.empty()) {
        return Problem::None;
    }
    if (isBoolean(key) && !typedBoolean(text)) {
        return Problem::NoBoolean;
    }
    if (endsWith(key, ListLengthEnding) && !isListLength(text)) {
        return Problem::NoListLength;
    }
    if (values_.Count() >= MaxCount && !values_.Exists(key)) {
        return Problem::TooMany;
    }
    if (text.size() > MaxValueLength || (key == WelcomeMessage && !fitsWhenHandedOut(text))) {
        return Problem::TooLong;
    }
    return Problem::None;
}

std::optional<Variant> MasterSettings::value(StringView name) const
{
    if (!values_.Exists(name)) {
        return std::nullopt;
    }
    return values_.Get(name);
}

std::shared_ptr<CoreParameters> MasterSettings::handedOut() const
{
    auto out = std::make_shared<CoreParameters>();
    for (const StringView name : {ScreenNames, WelcomeMessage}) {
        if (const auto known = value(name)) {
            out->Set(name, *known);
        }
    }
    return out;
}

bool MasterSettings::hasListRules(StringView module) const
{
    return values_.Exists(String(module) + String(ListLengthEnding)) ||
           values_.Exists(String(module) + String(OnceEnding));
}

std::int32_t MasterSettings::listLength(StringView module) const
{
    const NumberAtStart most = numberAtStart(values_.Get(String(module) + String(ListLengthEnding)).toText());
    const bool isSet = most.length > 0;
    return isSet ? static_cast<std::int32_t>(std::clamp(most.value, 1.0, double{MaxListLength}))
                 : UsualListLength;
}

bool MasterSettings::keepsBestOnly(StringView module) const
{
    return values_.Get(String(module) + String(OnceEnding), false).toBoolean();
}

} // namespace phial::master
