#pragma once

#include "core/Event.h"
#include "visual/Geometry.h"
#include "visual/Timer.h"

#include <cstdint>
#include <memory>

namespace phial
{

class ControlFrame;
class cls_DataElement;
class ctl_Bubble;
class PeriodicSheet;

/// Tells of an element in a bubble when it has been watched for half a second: that beneath the pointer, or
/// the one that the keys have reached.
class ElementWatch
{
public:
    /// The table's frame and cells, which outlive it.
    ElementWatch(const ControlFrame& table, const PeriodicSheet& sheet);

    std::shared_ptr<ctl_Bubble> bubble() const { return bubble_; }
    void bubble(std::shared_ptr<ctl_Bubble> value);

    const std::shared_ptr<cls_DataElement>& element() const { return element_; }
    /// Null for none. The bubble goes, and for another element the time counts from now on.
    void watch(std::shared_ptr<cls_DataElement> element);
    /// Puts the bubble beside the element's cell.
    void place();
    /// Whether the bubble tells of the element now.
    bool isTelling() const;
    /// The bubble's place in the table.
    PixelRectangle bubbleArea() const;
    /// The bubble goes and does not come again for this element.
    void hush();

    /// Raised at each tick before it counts; a handler may watch something else.
    Event<> Ticking;

private:
    bool isWatching() const;
    void tick();
    void hideBubble();
    void count();

    const ControlFrame& table_;
    const PeriodicSheet& sheet_;
    std::shared_ptr<cls_DataElement> element_;
    std::shared_ptr<ctl_Bubble> bubble_;
    Timer timer_;
    Connection ticking_;
    std::int32_t ticks_ = 0;
};

} // namespace phial
