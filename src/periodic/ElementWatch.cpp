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
    timer_.Enabled(isWatching());
}

void ElementWatch::hideBubble()
{
    if (bubble_) {
        bubble_->Visible(false);
    }
}

bool ElementWatch::isWatching() const
{
    return element_ && bubble_;
}

bool ElementWatch::isTelling() const
{
    return isWatching() && ticks_ >= BubbleTick && bubble_->Visible();
}

void ElementWatch::hush()
{
    hideBubble();
    timer_.Enabled(false);
}

void ElementWatch::place()
{
    const auto cell = sheet_.cellOf(element_.get());
    const auto bubble = bubble_;
    if (!cell || !bubble) {
        return;
    }
    const PixelRectangle now = bubble->frame().pixelRectangle();
    const auto place =
        BubblePlace::beside(sheet_.cells()[*cell].painted.area, {now.width, now.height}, sheet_.corner());
    const auto table = table_.control().weak_from_this().lock();
    if (bubble->ZIPSIDE() != place.side) {
        bubble->ZIPSIDE(place.side);
    }
    // Both corners as the form has them, since the bubble may stand in another container.
    const PixelPoint from = table_.originOnForm();
    const PixelPoint to = bubble->frame().originOnForm();
    bubble->frame().pixelRectangle({now.left + from.x - to.x + place.corner.x,
                                    now.top + from.y - to.y + place.corner.y, now.width, now.height});
}

PixelRectangle ElementWatch::bubbleArea() const
{
    const PixelRectangle area = bubble_ ? bubble_->frame().pixelRectangle() : PixelRectangle();
    const PixelPoint table = table_.originOnForm();
    const PixelPoint bubble = bubble_ ? bubble_->frame().originOnForm() : table;
    return {bubble.x - table.x, bubble.y - table.y, area.width, area.height};
}

/// Handlers of the bubble's changes may take the bubble away, and the table.
void ElementWatch::tick()
{
    const auto table = table_.control().weak_from_this().lock();
    Ticking.raise();
    if (!isWatching()) {
        ticks_ = 0;
        timer_.Enabled(false);
        return;
    }
    if (++ticks_ == BubbleTick) {
        bubble_->TEXT(bubbleText(*element_));
        place();
        if (isWatching() && ticks_ == BubbleTick) { // and it is the same that the count was for
            bubble_->Visible(true);
            bubble_->frame().ZOrder();
        }
    }
}

} // namespace phial
