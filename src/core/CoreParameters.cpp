#include "core/CoreParameters.h"

#include "core/CoreValuePacker.h"
#include "core/ParameterText.h"
#include "core/RuntimeError.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace phial
{

namespace
{

/// The entries of packed values: names and values in turn.
CoreParameters parametersOfPacked(StringView text)
{
    const std::vector<Variant> values = CoreValuePacker::unpackAll(text);
    if (values.size() % 2 != 0) {
        throw RuntimeError(ErrorNumber::InvalidArgument);
    }
    CoreParameters parameters;
    for (std::size_t i = 0; i < values.size(); i += 2) {
        if (!values[i].isText()) {
            throw RuntimeError(ErrorNumber::InvalidArgument);
        }
        parameters.Set(values[i].text(), values[i + 1]);
    }
    return parameters;
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
    if (pOptions != 0 || pForm != 1) {
        throw RuntimeError(ErrorNumber::InvalidArgument);
    }
    *this = CoreValuePacker::isPacked(pText) ? parametersOfPacked(pText) : parametersOfText(pText);
}

String CoreParameters::joined(StringView separator) const
{
    String text;
    for (const Entry& entry : entries_) {
        text += text.empty() ? StringView() : separator;
        text += parameterText(entry.name, entry.value);
    }
    return text;
}

String CoreParameters::Text() const
{
    return joined(u"\r\n");
}

String CoreParameters::TextLine() const
{
    return joined(u"; ");
}

} // namespace phial
