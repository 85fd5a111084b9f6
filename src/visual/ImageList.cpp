#include "visual/ImageList.h"

#include "core/Members.h"
#include "core/RuntimeError.h"

namespace phial
{

void ImageList::checkKey(StringView key) const
{
    if (key.empty()) {
        return;
    }
    for (const Entry& entry : entries_) {
        if (equalsIgnoringCase(entry.key, key)) {
            throw RuntimeError(35602, u"Key is not unique in collection");
        }
    }
}

void ImageList::Add(String key, PicturePtr picture)
{
    if (!picture) {
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    }
    checkKey(key);
    entries_.push_back({std::move(key), {}, std::move(picture)});
}

void ImageList::AddFile(String key, String path)
{
    checkKey(key);
    entries_.push_back({std::move(key), std::move(path), nullptr});
}

std::int32_t ImageList::Index(const Variant& indexOrKey) const
{
    if (indexOrKey.isText()) {
        for (std::size_t at = 0; at < entries_.size(); ++at) {
            if (!entries_[at].key.empty() && equalsIgnoringCase(entries_[at].key, indexOrKey.text())) {
                return static_cast<std::int32_t>(at + 1);
            }
        }
        throw RuntimeError(ErrorNumber::IndexOutOfBounds);
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
