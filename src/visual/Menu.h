#pragma once

#include "core/Event.h"
#include "core/Object.h"

#include <functional>
#include <memory>
#include <vector>

namespace phial
{

/// A menu entry, with entries of its own or without. Entries of an array bear one name and an Index.
class Menu final : public Object, public std::enable_shared_from_this<Menu>
{
public:
    explicit Menu(String name = {}, String caption = {}, std::int32_t index = -1);
    ~Menu() override;
    Menu(const Menu&) = delete;
    Menu& operator=(const Menu&) = delete;

    String NAME() const { return name_; }
    void NAME(String value) { name_ = std::move(value); }
    std::int32_t Index() const { return index_; }
    /// Whether it bears that name, without regard to case, at that place in an array.
    bool isCalled(StringView name, std::int32_t index) const
    {
        return index_ == index && equalsIgnoringCase(name_, name);
    }
    String Tag() const { return tag_; }
    void Tag(String value) { tag_ = std::move(value); }
    /// "-" is a separating line; "&" stands before the letter that opens the entry.
    String Caption() const { return caption_; }
    void Caption(String value);
    bool Enabled() const { return enabled_; }
    void Enabled(bool value);
    bool Visible() const { return visible_; }
    void Visible(bool value);
    bool Checked() const { return checked_; }
    void Checked(bool value);

    /// Adds an entry behind the others and gives it.
    std::shared_ptr<Menu> add(const std::shared_ptr<Menu>& entry);
    std::shared_ptr<Menu> add(String name, String caption, std::int32_t index = -1);
    void remove(const Menu& entry);
    const std::vector<std::shared_ptr<Menu>>& entries() const { return entries_; }
    Menu* above() const { return above_; }

    /// The entry of that name and index at any depth, each before those below it; null when there is none.
    std::shared_ptr<Menu> findBelow(StringView name, std::int32_t index) const;

    // Menu arrays: entries of one name below this one.
    /// Copies the entry of that name with the lowest index to the new index, hidden; raises 9 when there is
    /// none to copy and 360 when the index is in use.
    std::shared_ptr<Menu> load(StringView name, std::int32_t index);
    void unload(StringView name, std::int32_t index);
    /// Raises 9 when there is none.
    std::shared_ptr<Menu> entry(StringView name, std::int32_t index = -1) const;
    /// The greatest index of that name; raises 9 when there is none.
    std::int32_t upperBound(StringView name) const;

    /// The user has chosen the entry: raises Click here, then Chosen at each menu above. An entry that is
    /// disabled or hidden does nothing.
    void inputClick();

    /// With the entry's Index.
    Event<std::int32_t> Click;
    /// An entry below, at any depth, was chosen.
    Event<Menu&> Chosen;
    /// The look of this menu or of something below it has changed; for the adapter.
    Event<> changed;

    StringView typeName() const override { return u"Menu"; }
    MemberTable members() const override;

private:
    struct Properties;

    std::shared_ptr<Menu> find(StringView name, std::int32_t index) const;
    void report();

    String name_;
    std::int32_t index_;
    String tag_;
    String caption_;
    bool enabled_ = true;
    bool visible_ = true;
    bool checked_ = false;
    Menu* above_ = nullptr;
    std::vector<std::shared_ptr<Menu>> entries_;
};

} // namespace phial
