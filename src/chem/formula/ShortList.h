#pragma once

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <memory>
#include <type_traits>
#include <utility>

namespace phial
{

/// A list of plain items, of which the first few lie in the list itself: most formulas are short, and theirs
/// take no memory from the heap. Items never move while the list has room for them (`reserve`).
template <typename Item, std::size_t Room>
class ShortList
{
    static_assert(std::is_trivially_copyable_v<Item>);

public:
    using value_type = Item;

    // NOLINTNEXTLINE(modernize-use-equals-default): which would have no way to make the union's items
    ShortList() noexcept {}
    ShortList(std::initializer_list<Item> items) { assign(items.begin(), items.size()); }
    ShortList(const ShortList& other) { assign(other.data(), other.size_); }
    ShortList(ShortList&& other) noexcept { take(other); }
    ShortList& operator=(const ShortList& other)
    {
        if (this != &other) {
            size_ = 0;
            assign(other.data(), other.size_);
        }
        return *this;
    }
    ShortList& operator=(ShortList&& other) noexcept
    {
        if (this != &other) {
            take(other);
        }
        return *this;
    }
    ~ShortList() = default;

    std::size_t size() const { return size_; }
    bool empty() const { return size_ == 0; }
    Item* data() { return items_; }
    const Item* data() const { return items_; }
    Item* begin() { return data(); }
    const Item* begin() const { return data(); }
    Item* end() { return data() + size_; }
    const Item* end() const { return data() + size_; }
    Item& operator[](std::size_t at) { return data()[at]; }
    const Item& operator[](std::size_t at) const { return data()[at]; }
    Item& front() { return data()[0]; }
    const Item& front() const { return data()[0]; }
    Item& back() { return data()[size_ - 1]; }
    const Item& back() const { return data()[size_ - 1]; }

    void clear() { size_ = 0; }
    void pop_back() { --size_; }
    void reserve(std::size_t count)
    {
        if (count > room_) {
            grow(count);
        }
    }
    void push_back(const Item& item)
    {
        if (size_ == room_) {
            const Item kept = item; // which may be one of the list's own
            grow(2 * room_);
            items_[size_++] = kept;
        } else {
            std::construct_at(items_ + size_, item);
            ++size_;
        }
    }
    /// A fresh item at the end, to be filled where it lies.
    Item& append()
    {
        if (size_ == room_) {
            grow(2 * room_);
        }
        return *std::construct_at(items_ + size_++);
    }

private:
    void assign(const Item* items, std::size_t count)
    {
        reserve(count);
        std::uninitialized_copy_n(items, count, data());
        size_ = count;
    }
    void take(ShortList& other) noexcept
    {
        heap_ = std::move(other.heap_);
        room_ = std::exchange(other.room_, Room);
        size_ = std::exchange(other.size_, 0);
        items_ = heap_ ? heap_.get() : near_;
        other.items_ = other.near_;
        if (!heap_) {
            std::uninitialized_copy_n(other.near_, size_, near_);
        }
    }
    void grow(std::size_t room)
    {
        auto larger = std::make_unique_for_overwrite<Item[]>(room);
        std::copy_n(items_, size_, larger.get());
        heap_ = std::move(larger);
        items_ = heap_.get();
        room_ = room;
    }

    std::unique_ptr<Item[]> heap_;
    Item* items_ = near_; ///< here or there
    std::size_t size_ = 0;
    std::size_t room_ = Room;
    union {
        Item near_[Room]; ///< as far as there are items
    };
};

} // namespace phial
