#pragma once

#include "visual/Control.h"

namespace phial
{

enum class ScrollDirection : std::int32_t { Vertical = 0, Horizontal = 1 };

/// A scroll bar; the toolkit's own widget. Min may be above Max.
class ScrollBar final : public Control
{
public:
    explicit ScrollBar(ScrollDirection direction = ScrollDirection::Vertical);

    ScrollDirection Direction() const { return direction_; }
    void Direction(ScrollDirection value);
    std::int32_t Min() const { return min_; }
    void Min(std::int32_t value);
    std::int32_t Max() const { return max_; }
    void Max(std::int32_t value);
    /// Raises Change when it differs. Outside Min to Max raises 380; a new range takes the value with it.
    std::int32_t Value() const { return value_; }
    void Value(std::int32_t value);
    /// Steps of the arrows and of a click beside the thumb; below 1 raises 5.
    std::int32_t SmallChange() const { return smallChange_; }
    void SmallChange(std::int32_t value);
    std::int32_t LargeChange() const { return largeChange_; }
    void LargeChange(std::int32_t value);

    Event<> Change;
    /// While the thumb is held.
    Event<> Scroll;

    /// The user is moving the thumb, or has set the value.
    void inputScroll(std::int32_t value);
    void inputValue(std::int32_t value);

    StringView typeName() const override
    {
        return direction_ == ScrollDirection::Vertical ? u"VScrollBar" : u"HScrollBar";
    }
    MemberTable members() const override;
    ControlFrame& frame() override { return frame_; }

private:
    struct Properties;

    std::int32_t limited(std::int32_t value) const;
    void rangeChanged();

    ControlFrame frame_;
    ScrollDirection direction_;
    std::int32_t min_ = 0;
    std::int32_t max_ = 32767;
    std::int32_t value_ = 0;
    std::int32_t smallChange_ = 1;
    std::int32_t largeChange_ = 1;
};

} // namespace phial
