#pragma once

#include "core/NameIndex.h"
#include "core/Variant.h"

#include <cstdint>
#include <vector>

namespace phial
{

/// A list of named values in the order in which they were first set: the usual way of passing optional data.
/// Names are compared without regard to case and keep the case in which they were first set. Positions count
/// from 1; one outside raises 9.
class CoreParameters
{
public:
    std::int32_t Count() const { return static_cast<std::int32_t>(entries_.size()); }
    const String& Name(std::int32_t pIndex) const;
    /// The value at a position.
    const Variant& Value(std::int32_t pIndex) const;

    bool Exists(StringView pName) const;
    /// The value of that name, or the default when there is none.
    Variant Get(StringView pName, Variant pDefault = {}) const;
    /// Adds the entry, or replaces the value of the one that has the name.
    void Set(StringView pName, Variant pValue);
    void Clear();

    /// Sets each entry of the other list here; other entries stay.
    void Merge(const CoreParameters& pOther);
    /// Gives up the entries and takes a copy of the other list's.
    void CopyFrom(const CoreParameters& pOther);

    /// All entries as one text (docs/formats.md). Raises 13 for an object that has no text form.
    String Pack() const;
    /// Replaces all entries by those of a text made by Pack, Text or TextLine, which begin so differently
    /// that none is taken for another; the empty text gives no entries. A text that is none of them raises 5,
    /// one with an object or an unknown kind of value 13, and the entries stay. The further arguments name
    /// the form of the text; 0 and 1 are the only ones and others raise 5.
    void Unpack(StringView pText, std::int32_t pOptions = 0, std::int32_t pForm = 1);

    /// All entries for people to read, and for Unpack to read back: `Name = value` in one line per entry,
    /// with CR LF between them (docs/formats.md). An object that is set is only named and makes the text one
    /// that Unpack refuses. Raises 5 for arrays nested deeper than CoreValuePacker::MaxNesting.
    String Text() const;
    /// The same in a single line: `Name = value; Name = value`.
    String TextLine() const;

private:
    struct Entry {
        String name;
        Variant value;
    };

    /// Answers the index with the name at a position from 0.
    auto nameAt() const
    {
        return [this](std::size_t position) -> StringView { return entries_[position].name; };
    }
    const Entry& entry(std::int32_t position) const;
    std::size_t find(StringView name) const;
    String joined(StringView separator) const;

    std::vector<Entry> entries_;
    NameIndex index_;
};

} // namespace phial
