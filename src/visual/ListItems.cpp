#include "visual/ListItems.h"

#include "core/RuntimeError.h"

namespace phial
{

std::size_t ListItems::checked(std::int32_t index) const
{
    if (index < 0 || index >= count()) {
        throw RuntimeError(ErrorNumber::IndexOutOfBounds);
    }
    return static_cast<std::size_t>(index);
}

const String& ListItems::line(std::int32_t index) const
{
    return lines_[checked(index)].text;
}

void ListItems::line(std::int32_t index, String value)
{
    lines_[checked(index)].text = std::move(value);
}

std::int32_t ListItems::data(std::int32_t index) const
{
    return lines_[checked(index)].data;
}

void ListItems::data(std::int32_t index, std::int32_t value)
{
    lines_[checked(index)].data = value;
}

void ListItems::add(String value, std::int32_t index)
{
    if (index < -1 || index > count()) {
        throw RuntimeError(ErrorNumber::IndexOutOfBounds);
    }
    const std::int32_t place = index == -1 ? count() : index;
    lines_.insert(lines_.begin() + place, Line{std::move(value)});
    if (chosen_ >= place) {
        ++chosen_;
    }
}

void ListItems::remove(std::int32_t index)
{
    lines_.erase(lines_.begin() + static_cast<std::ptrdiff_t>(checked(index)));
    if (chosen_ == index) {
        chosen_ = -1;
    } else if (chosen_ > index) {
        --chosen_;
    }
}

void ListItems::clear()
{
    lines_.clear();
    chosen_ = -1;
}

bool ListItems::choose(std::int32_t index)
{
    if (index < -1 || index >= count()) {
        throw RuntimeError(ErrorNumber::InvalidPropertyValue);
    }
    const bool differs = chosen_ != index;
    chosen_ = index;
    return differs;
}

} // namespace phial
