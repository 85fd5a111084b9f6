#pragma once

#include "core/CoreToken.h"
#include "core/NameIndex.h"

#include <cstdint>
#include <initializer_list>
#include <span>
#include <vector>

namespace phial
{

/// An ordered list of tokens with distinct names, counted from 1. Names are compared without regard to case.
///
/// Tokens lie side by side: a reference to one holds until the next `Add`.
class CoreTokenList
{
public:
    /// Appends a token. A name that is there already keeps its position and gets the new values. Gives the
    /// token.
    CoreToken& Add(StringView pName, Variant pValue);
    CoreToken& Add(StringView pName, std::span<const Variant> pValues);
    CoreToken& Add(StringView pName, std::initializer_list<Variant> pValues);

    /// The token at a position. Position 0 gives a scratch token without name, whose one value reads as empty
    /// and can be written to without effect on the list; any other position outside raises 9.
    CoreToken& Item(std::int32_t pPosition);
    const CoreToken& Item(std::int32_t pPosition) const;
    /// The token of that name; the scratch token when there is none, as IndexOf gives 0 then.
    CoreToken& Item(StringView pName);
    const CoreToken& Item(StringView pName) const;

    bool Exists(StringView pName) const { return IndexOf(pName) != 0; }
    /// The position of the token of that name, or 0.
    std::int32_t IndexOf(StringView pName) const;
    std::int32_t Count() const
    {
        return static_cast<std::int32_t>(tokens_.size()) - (tokens_.empty() ? 0 : 1);
    }

private:
    /// Answers the index with the name at a position from 0.
    auto nameAt() const
    {
        return [this](std::size_t position) -> StringView { return tokens_[position + 1].Name(); };
    }
    CoreToken& add(StringView name, CoreValueList values);

    // Slot 0 is the scratch token, there as soon as anything is.
    std::vector<CoreToken> tokens_;
    NameIndex index_;
};

} // namespace phial
