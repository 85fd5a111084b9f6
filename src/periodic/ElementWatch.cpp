#include "periodic/ElementWatch.h"

#include "chem/cls_DataElement.h"
#include "mascot/ctl_Bubble.h"
#include "periodic/ElementBubble.h"
#include "periodic/PeriodicSheet.h"

#include <utility>

namespace phial
{

namespace
{

constexpr std::int32_t BubbleInterval = 100; // milliseconds
constexpr std::int32_t BubbleTick = 5;       // at which the bubble comes

} // namespace

ElementWatch::ElementWatch(const ControlFrame& table, const PeriodicSheet& sheet)
    : table_(table), sheet_(sheet), timer_(u"tmr_Bubble", BubbleInterval)
{
    ticking_ = timer_.Tick.connect([this] { tick(); });
}

void ElementWatch::bubble(std::shared_ptr<ctl_Bubble> value)
{
    if (value == bubble_) {
        return;
    }
    if (isTelling()) {
        hideBubble();
    }
    bubble_ = std::move(value);
    count();
}

void ElementWatch::watch(std::shared_ptr<cls_DataElement> element)
{
    if (element == element_) {
        return;
    }
    element_ = std::move(element);
    hideBubble();
    count();
}

/// From now on.
void ElementWatch::count()
{
    ticks_ = 0;
    timer_.Enabled(false);
    timer_.Enabled(element_ && bubble_);
}

void ElementWatch::hideBubble()
{
    if (bubble_) {
        bubble_->Visible(false);
    }
}

bool ElementWatch::isTelling() const
{
    return element_ && bubble_ && ticks_ >= BubbleTick && bubble_->Visible();
}

void ElementWatch::hush()
{
    hideBubble();
    timer_.Enabled(false);
}

void ElementWatch::place()
{
    const auto cell = sheet_.cellOf(element_.get());
    if (!cell || !bubble_) {
        return;
    }
    const PixelRectangle now = bubble_->frame().pixelRectangle();
    const auto place =
        BubblePlace::beside(sheet_.cells()[*cell].painted.area, {now.width, now.height}, sheet_.corner());
    if (bubble_->ZIPSIDE() != place.side) {
        bubble_->ZIPSIDE(place.side);
    }
    // Both corners as the form has them, since the bubble may stand in another container.
    const PixelPoint table = table_.originOnForm();
    const PixelPoint bubble = bubble_->frame().originOnForm();
    bubble_->frame().pixelRectangle({now.left + table.x - bubble.x + place.corner.x,
                                     now.top + table.y - bubble.y + place.corner.y, now.width, now.height});
}

PixelRectangle ElementWatch::bubbleArea() const
{
    const PixelRectangle area = bubble_ ? bubble_->frame().pixelRectangle() : PixelRectangle();
    const PixelPoint table = table_.originOnForm();
    const PixelPoint bubble = bubble_ ? bubble_->frame().originOnForm() : table;
    return {bubble.x - table.x, bubble.y - table.y, area.width, area.height};
}

void ElementWatch::tick()
{
    Ticking.emit();
    if (!bubble_ || !element_) {
        ticks_ = 0;
        timer_.Enabled(false);
        return;
    }
    if (++ticks_ == BubbleTick) {
        bubble_->TEXT(bubbleText(*element_));
        place();
        bubble_->Visible(true);
        bubble_->frame().ZOrder();
    }
}

} // namespace phial
