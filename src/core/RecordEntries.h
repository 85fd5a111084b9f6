#pragma once

#include "core/CoreDataStream.h"
#include "core/CoreDatabase.h"
#include "core/DATA.h"
#include "core/RuntimeError.h"
#include "core/tmp_Data.h"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

namespace phial
{

/// The entries of a list record, counted from 1, with what every list record does to them. A position outside
/// raises 9. An empty slot is filled with a new entry when it is first read, so that no caller sees null.
template <typename Entry>
class RecordEntries
{
public:
    using Pointer = std::shared_ptr<Entry>;

    /// What a record file may claim to hold before its entries are read: above what the values of any file
    /// make, far below what would exhaust memory.
    static constexpr std::int32_t MaxStored = 1'000'000;

    std::int32_t count() const { return static_cast<std::int32_t>(slots_.size()); }

    const Pointer& at(std::int32_t position) const
    {
        Pointer& slot = slotAt(position);
        if (!slot) {
            slot = std::make_shared<Entry>();
        }
        return slot;
    }

    void clear() { slots_.clear(); }

    /// Keeps the first entries only; a longer limit than the list changes nothing.
    void cut(std::int32_t limit)
    {
        if (limit < count()) {
            slots_.resize(static_cast<std::size_t>(limit));
        }
    }

    /// Appends an entry, and gives it the ID unless that is null. An object of another class raises 13.
    void import(const std::shared_ptr<tmp_Data>& item, const Variant* id)
    {
        auto entry = std::dynamic_pointer_cast<Entry>(item);
        if (!entry) {
            throw RuntimeError(ErrorNumber::TypeMismatch);
        }
        if (id) {
            item->DATA()->ID(*id);
        }
        slots_.push_back(std::move(entry));
    }

    /// Removes an entry: the later ones move up, or the last one takes its place.
    void removeAndMoveUp(std::int32_t position)
    {
        slotAt(position);
        slots_.erase(slots_.begin() + (position - 1));
    }
    void removeAndFillWithLast(std::int32_t position)
    {
        slotAt(position) = slots_.back();
        slots_.pop_back();
    }

    /// Puts the entries in another order: `order` names for each place, from 0, the entry that goes there.
    void arrange(const std::vector<std::size_t>& order)
    {
        std::vector<Pointer> arranged;
        arranged.reserve(order.size());
        for (const std::size_t from : order) {
            arranged.push_back(std::move(slots_[from]));
        }
        slots_ = std::move(arranged);
    }

    /// The position of the first entry that fits; 0 when none does.
    template <typename Fits>
    std::int32_t find(const Fits& fits) const
    {
        for (std::int32_t position = 1; position <= count(); ++position) {
            if (fits(*at(position))) {
                return position;
            }
        }
        return 0;
    }

    /// Calls `work` for each entry in turn.
    template <typename Work>
    void forEach(const Work& work) const
    {
        for (std::int32_t position = 1; position <= count(); ++position) {
            work(*at(position));
        }
    }

    /// Gives up the entries for deep copies of those of another list of the same class.
    void copyFrom(const CoreDatabase& source)
    {
        std::vector<Pointer> copies;
        for (std::int32_t position = 1; position <= source.Count(); ++position) {
            copies.push_back(std::make_shared<Entry>());
            copies.back()->DATA()->Copy(*source.Item(position, true));
        }
        slots_ = std::move(copies);
    }

    /// The entries in a stream: their number, then each by its own values. A number that no list has raises
    /// 9; when a later value fails, what was read until then stays.
    void store(CoreDataStream& stream) const
    {
        stream.Write(count());
        forEach([&](Entry& entry) { entry.DATA()->Store(stream); });
    }
    void read(CoreDataStream& stream)
    {
        std::int32_t stored = 0;
        stream.Read(stored);
        if (stored < 0 || stored > MaxStored) {
            throw RuntimeError(ErrorNumber::IndexOutOfBounds);
        }
        slots_.assign(static_cast<std::size_t>(stored), nullptr);
        forEach([&](Entry& entry) { entry.DATA()->Read(stream); });
    }

    /// The one-text forms of the entries, and new entries from such texts.
    std::vector<String> packed() const
    {
        std::vector<String> texts;
        forEach([&](Entry& entry) { texts.push_back(entry.DATA()->Pack()); });
        return texts;
    }
    template <typename Texts>
    void unpack(const Texts& texts)
    {
        std::vector<Pointer> entries;
        for (const StringView text : texts) {
            entries.push_back(std::make_shared<Entry>());
            entries.back()->DATA()->Unpack(text);
        }
        slots_ = std::move(entries);
    }

    /// The same as an array of texts; unpacking raises 13 for another value.
    Variant packedArray() const
    {
        const std::vector<String> texts = packed();
        return Variant::Array(texts.begin(), texts.end());
    }
    void unpackArray(const Variant& array)
    {
        std::vector<StringView> texts;
        for (const Variant& text : array.array()) {
            texts.emplace_back(text.text());
        }
        unpack(texts);
    }

private:
    Pointer& slotAt(std::int32_t position) const
    {
        if (position < 1 || position > count()) {
            throw RuntimeError(ErrorNumber::IndexOutOfBounds);
        }
        return slots_[static_cast<std::size_t>(position) - 1];
    }

    mutable std::vector<Pointer> slots_; // filled by reading, which nobody can tell
};

} // namespace phial
