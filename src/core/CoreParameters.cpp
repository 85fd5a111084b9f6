#include "core/CoreParameters.h"

#include "core/CoreValuePacker.h"
#include "core/RuntimeError.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace phial
{

namespace
{

constexpr StringView LineEnd = u"\r\n";

/// A value as people read it: in one line, an array as its values, an object as the name of its class.
String shown(const Variant& value)
{
    if (value.kind() == Variant::Kind::Object) {
        return value.object() ? String(value.object()->typeName()) : String();
    }
    String text;
    if (value.kind() == Variant::Kind::Array) {
        for (const Variant& item : value.array()) {
            text += text.empty() ? u"" : u", ";
            text += shown(item);
        }
        return text;
    }
    text = replaced(value.toText(), LineEnd, u" ");
    std::replace_if(
        text.begin(), text.end(), [](char16_t unit) { return unit < u' '; }, u' ');
    return text;
}

} // namespace

const CoreParameters::Entry& CoreParameters::entry(std::int32_t position) const
{
    if (position < 1 || position > Count()) {
        throw RuntimeError(ErrorNumber::IndexOutOfBounds);
    }
    return entries_[static_cast<std::size_t>(position - 1)];
}

std::size_t CoreParameters::find(StringView name) const
{
    if (!index_.empty()) {
        return index_.find(name, nameAt());
    }
    const auto found = std::find_if(entries_.begin(), entries_.end(), [name](const Entry& entry) {
        return equalsIgnoringCase(entry.name, name);
    });
    return found != entries_.end() ? static_cast<std::size_t>(found - entries_.begin()) : NameIndex::npos;
}

const String& CoreParameters::Name(std::int32_t pIndex) const
{
    return entry(pIndex).name;
}

const Variant& CoreParameters::Value(std::int32_t pIndex) const
{
    return entry(pIndex).value;
}

bool CoreParameters::Exists(StringView pName) const
{
    return find(pName) != NameIndex::npos;
}

Variant CoreParameters::Get(StringView pName, Variant pDefault) const
{
    const std::size_t found = find(pName);
    if (found != NameIndex::npos) {
        return entries_[found].value;
    }
    return pDefault;
}

void CoreParameters::Set(StringView pName, Variant pValue)
{
    if (const std::size_t found = find(pName); found != NameIndex::npos) {
        entries_[found].value = std::move(pValue);
        return;
    }
    entries_.push_back({String(pName), std::move(pValue)});
    if (entries_.size() > NameIndex::Threshold) {
        index_.add(entries_.back().name, entries_.size() - 1, nameAt());
    }
}

void CoreParameters::Clear()
{
    entries_.clear();
    index_.clear();
}

void CoreParameters::Merge(const CoreParameters& pOther)
{
    if (&pOther == this) {
        return;
    }
    for (const Entry& entry : pOther.entries_) {
        Set(entry.name, entry.value);
    }
}

void CoreParameters::CopyFrom(const CoreParameters& pOther)
{
    *this = pOther;
}

String CoreParameters::Pack() const
{
    std::vector<Variant> values;
    values.reserve(entries_.size() * 2);
    for (const Entry& entry : entries_) {
        values.emplace_back(entry.name);
        values.push_back(entry.value);
    }
    return CoreValuePacker::Pack(values);
}

void CoreParameters::Unpack(StringView pText, std::int32_t pOptions, std::int32_t pForm)
{
    const std::vector<Variant> values =
        pText.empty() ? std::vector<Variant>() : CoreValuePacker::unpackAll(pText);
    if (pOptions != 0 || pForm != 1 || values.size() % 2 != 0) {
        throw RuntimeError(ErrorNumber::InvalidArgument);
    }
    CoreParameters unpacked;
    for (std::size_t i = 0; i < values.size(); i += 2) {
        if (!values[i].isText()) {
            throw RuntimeError(ErrorNumber::InvalidArgument);
        }
        unpacked.Set(values[i].text(), values[i + 1]);
    }
    *this = std::move(unpacked);
}

String CoreParameters::joined(StringView separator) const
{
    String text;
    for (const Entry& entry : entries_) {
        text += text.empty() ? StringView() : separator;
        text += shown(entry.name) + u": " + shown(entry.value);
    }
    return text;
}

String CoreParameters::Text() const
{
    return joined(LineEnd);
}

String CoreParameters::TextLine() const
{
    return joined(u"; ");
}

} // namespace phial
