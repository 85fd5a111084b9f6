#pragma once

#include "core/String.h"

#include <cstdint>
#include <initializer_list>
#include <vector>

namespace phial
{

/// An ordered list of texts. Positions count from 1; a position outside raises 9. Entries may repeat and be
/// empty. Look-ups and sorting disregard case.
class CoreStringList
{
public:
    CoreStringList() = default;
    CoreStringList(std::initializer_list<StringView> entries);

    /// Stores its number and changes nothing else: the list always keeps its entries in the order added.
    void Setup(std::int32_t pNumber) { setup_ = pNumber; }
    std::int32_t SetupNumber() const { return setup_; }

    /// Appends one entry, or the entries of another list (which may be this one).
    void Add(String pText);
    void AddList(const CoreStringList& pList);
    /// Puts the text at that position, 1 to Count + 1; what stood there and behind moves up.
    void Insert(String pText, std::int32_t pPosition);

    const String& Item(std::int32_t pPosition) const;
    bool Exists(StringView pText) const;
    std::int32_t Count() const { return static_cast<std::int32_t>(entries_.size()); }

    void Clear() { entries_.clear(); }
    /// Removes the first entry equal to the text; nothing happens when there is none.
    void Remove(StringView pText);
    void RemoveAt(std::int32_t pPosition);

    /// Ascending; entries that differ in case only keep their order.
    void Sort();

    /// A random entry, drawn from the session's random numbers; the empty text for an empty list.
    String RandomItem() const;
    /// The first entry; the empty text for an empty list.
    String First() const;

    auto begin() const { return entries_.begin(); }
    auto end() const { return entries_.end(); }

    friend bool operator==(const CoreStringList& left, const CoreStringList& right)
    {
        return left.entries_ == right.entries_;
    }

private:
    std::size_t slot(std::int32_t position) const;

    std::vector<String> entries_;
    std::int32_t setup_ = 0;
};

} // namespace phial
