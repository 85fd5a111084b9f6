#include "core/CoreTokenList.h"

#include "core/RuntimeError.h"

#include <cstddef>
#include <utility>

namespace phial
{

namespace
{

// Most lists are the atoms of a formula: one piece of memory serves the scratch token and these.
constexpr std::size_t UsualTokens = 5;

CoreToken scratchToken()
{
    return CoreToken({}, CoreValueList(Variant()));
}

std::size_t slot(std::int32_t position, std::int32_t count)
{
    if (position < 0 || position > count) {
        throw RuntimeError(ErrorNumber::IndexOutOfBounds);
    }
    return static_cast<std::size_t>(position);
}

} // namespace

CoreToken& CoreTokenList::Add(StringView pName, Variant pValue)
{
    return add(pName, CoreValueList(std::move(pValue)));
}

CoreToken& CoreTokenList::Add(StringView pName, std::span<const Variant> pValues)
{
    return add(pName, CoreValueList(pValues));
}

CoreToken& CoreTokenList::Add(StringView pName, std::initializer_list<Variant> pValues)
{
    return add(pName, CoreValueList(std::span<const Variant>(pValues.begin(), pValues.size())));
}

CoreToken& CoreTokenList::add(StringView name, CoreValueList values)
{
    if (const std::int32_t known = IndexOf(name); known != 0) {
        CoreToken& token = tokens_[static_cast<std::size_t>(known)];
        token.Values() = std::move(values);
        return token;
    }
    if (tokens_.empty()) {
        tokens_.reserve(1 + UsualTokens);
        tokens_.push_back(scratchToken());
    }
    const std::size_t position = tokens_.size();
    CoreToken& token = tokens_.emplace_back(name, std::move(values));
    if (position > NameIndex::Threshold) {
        index_.add(token.Name(), position - 1, nameAt());
    }
    return token;
}

CoreToken& CoreTokenList::Item(std::int32_t pPosition)
{
    const std::size_t found = slot(pPosition, Count());
    if (found != 0) {
        return tokens_[found];
    }
    if (tokens_.empty()) {
        tokens_.emplace_back();
    }
    return tokens_[0] = scratchToken();
}

const CoreToken& CoreTokenList::Item(std::int32_t pPosition) const
{
    static const CoreToken Scratch = scratchToken();
    const std::size_t found = slot(pPosition, Count());
    return found != 0 ? tokens_[found] : Scratch;
}

CoreToken& CoreTokenList::Item(StringView pName)
{
    return Item(IndexOf(pName));
}

const CoreToken& CoreTokenList::Item(StringView pName) const
{
    return Item(IndexOf(pName));
}

std::int32_t CoreTokenList::IndexOf(StringView pName) const
{
    if (!index_.empty()) {
        const std::size_t found = index_.find(pName, nameAt());
        return found == NameIndex::npos ? 0 : static_cast<std::int32_t>(found + 1);
    }
    for (std::size_t position = 1; position < tokens_.size(); ++position) {
        if (equalsIgnoringCase(tokens_[position].Name(), pName)) {
            return static_cast<std::int32_t>(position);
        }
    }
    return 0;
}

} // namespace phial
