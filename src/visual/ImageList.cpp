#include "visual/ImageList.h"

#include "core/Members.h"
#include "core/RuntimeError.h"

namespace phial
{

std::size_t ImageList::positionOf(StringView key) const
{
    return key.empty() ? NameIndex::npos
                       : keys_.find(key, [this](std::size_t at) -> StringView { return entries_[at].key; });
}

void ImageList::add(Entry entry)
{
    if (positionOf(entry.key) != NameIndex::npos) {
        throw RuntimeError(35602, u"Key is not unique in collection");
    }
    entries_.push_back(std::move(entry));
    keys_.add(entries_.back().key, entries_.size() - 1,
              [this](std::size_t at) -> StringView { return entries_[at].key; });
}

void ImageList::Add(String key, PicturePtr picture)
{
    if (!picture) {
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    }
    add({std::move(key), {}, std::move(picture)});
}

void ImageList::AddFile(String key, String path)
{
    add({std::move(key), std::move(path), nullptr});
}

void ImageList::Clear()
{
    entries_.clear();
    keys_.clear();
}

std::int32_t ImageList::Index(const Variant& indexOrKey) const
{
    if (indexOrKey.isText()) {
        const std::size_t at = positionOf(indexOrKey.text());
        if (at == NameIndex::npos) {
            throw RuntimeError(ErrorNumber::IndexOutOfBounds);
        }
        return static_cast<std::int32_t>(at + 1);
    }
    const std::int32_t index = indexOrKey.toWhole();
    if (index < 1 || index > Count()) {
        throw RuntimeError(ErrorNumber::IndexOutOfBounds);
    }
    return index;
}

String ImageList::Key(const Variant& indexOrKey) const
{
    return entries_[static_cast<std::size_t>(Index(indexOrKey) - 1)].key;
}

PicturePtr ImageList::Picture(const Variant& indexOrKey)
{
    const auto at = static_cast<std::size_t>(Index(indexOrKey) - 1);
    if (!entries_[at].picture) {
        const PicturePtr picture = LoadPicture(entries_[at].path);
        entries_[at].picture = picture;
    }
    return entries_[at].picture;
}

MemberTable ImageList::members() const
{
    static constexpr auto Table = std::to_array<Member>({
        members::property<ImageList, String, &ImageList::NAME, &ImageList::NAME>(u"NAME"),
        members::readOnly<ImageList, std::int32_t, &ImageList::Count>(u"Count"),
        members::operation<ImageList, &ImageList::Clear>(u"Clear"),
    });
    return Table;
}

} // namespace phial
