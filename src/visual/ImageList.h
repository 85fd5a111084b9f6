#pragma once

#include "core/NameIndex.h"
#include "core/Variant.h"
#include "visual/Picture.h"

#include <vector>

namespace phial
{

/// Pictures by number, from 1, and by key. A picture given by its file is decoded when it is first asked for.
class ImageList final : public Object
{
public:
    explicit ImageList(String name = {}) : name_(std::move(name)) {}

    String NAME() const { return name_; }
    void NAME(String value) { name_ = std::move(value); }

    std::int32_t Count() const { return static_cast<std::int32_t>(entries_.size()); }
    /// Raises 35602 for a key in use; an empty key names nothing.
    void Add(String key, PicturePtr picture);
    /// The file's path as the system writes it; the file is not touched yet.
    void AddFile(String key, String path);
    void Clear();

    /// The entry of a number or key; raises 9 when there is none.
    std::int32_t Index(const Variant& indexOrKey) const;
    String Key(const Variant& indexOrKey) const;
    /// Raises as well what LoadPicture raises for the file; it is tried anew at the next time.
    PicturePtr Picture(const Variant& indexOrKey);

    StringView typeName() const override { return u"ImageList"; }
    MemberTable members() const override;

private:
    struct Entry {
        String key;
        String path;
        PicturePtr picture;
    };
    void add(Entry entry);
    /// `npos` of the index for a key that is not there, and for the empty one.
    std::size_t positionOf(StringView key) const;

    String name_;
    std::vector<Entry> entries_;
    NameIndex keys_;
};

} // namespace phial
