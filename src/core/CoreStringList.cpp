#include "core/CoreStringList.h"

#include "core/RandomSource.h"
#include "core/RuntimeError.h"
#include "core/SessionState.h"

#include <algorithm>
#include <utility>

namespace phial
{

CoreStringList::CoreStringList(std::initializer_list<StringView> entries)
{
    entries_.assign(entries.begin(), entries.end());
}

std::size_t CoreStringList::slot(std::int32_t position) const
{
    if (position < 1 || position > Count()) {
        throw RuntimeError(ErrorNumber::IndexOutOfBounds);
    }
    return static_cast<std::size_t>(position - 1);
}

void CoreStringList::Add(String pText)
{
    entries_.push_back(std::move(pText));
}

void CoreStringList::AddList(const CoreStringList& pList)
{
    const std::vector<String> added = pList.entries_;
    entries_.insert(entries_.end(), added.begin(), added.end());
}

void CoreStringList::Insert(String pText, std::int32_t pPosition)
{
    if (pPosition == Count() + 1) {
        Add(std::move(pText));
        return;
    }
    entries_.insert(entries_.begin() + static_cast<std::ptrdiff_t>(slot(pPosition)), std::move(pText));
}

const String& CoreStringList::Item(std::int32_t pPosition) const
{
    return entries_[slot(pPosition)];
}

bool CoreStringList::Exists(StringView pText) const
{
    return std::any_of(entries_.begin(), entries_.end(),
                       [pText](const String& entry) { return equalsIgnoringCase(entry, pText); });
}

void CoreStringList::Remove(StringView pText)
{
    const auto found = std::find_if(entries_.begin(), entries_.end(), [pText](const String& entry) {
        return equalsIgnoringCase(entry, pText);
    });
    if (found != entries_.end()) {
        entries_.erase(found);
    }
}

void CoreStringList::RemoveAt(std::int32_t pPosition)
{
    entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(slot(pPosition)));
}

void CoreStringList::Sort()
{
    std::stable_sort(entries_.begin(), entries_.end(), [](const String& left, const String& right) {
        return compareIgnoringCase(left, right) < 0;
    });
}

String CoreStringList::RandomItem() const
{
    if (entries_.empty()) {
        return {};
    }
    const double random = SessionState::current().platform().random->next();
    const auto drawn = static_cast<std::size_t>(random * static_cast<double>(entries_.size()));
    return entries_[std::min(drawn, entries_.size() - 1)];
}

String CoreStringList::First() const
{
    return entries_.empty() ? String() : entries_.front();
}

} // namespace phial
