#include "term/TermLayout.h"

#include "core/Arithmetic.h"
#include "visual/DrawDevice.h"
#include "visual/TextMetrics.h"

#include <algorithm>

namespace phial
{

namespace
{

/// Below the signs that join or reorder, and no line end.
bool standsAlone(char16_t unit)
{
    constexpr char16_t FirstJoined = 0x0300;
    return unit >= u' ' && unit < FirstJoined;
}

} // namespace

void TermLayout::addText(const DrawDevice& device, StringView text, double width)
{
    const PixelPoint from{device.CurrentX(), device.CurrentY()};
    const PixelPoint to{from.x + width, from.y};
    const bool mayGrow = std::ranges::all_of(text, standsAlone);
    if (mayGrow && !marks_.empty()) {
        Mark& last = marks_.back();
        if (last.mayGrow && last.to == from && last.colour == device.ForeColor() &&
            last.font == device.font()) {
            last.text += text;
            last.to = to;
            return;
        }
    }
    marks_.push_back({from, to, device.ForeColor(), device.font(), String(text), mayGrow});
}

void TermLayout::addLine(const DrawDevice& device, PixelPoint from, PixelPoint to)
{
    marks_.push_back(
        {.from = from, .to = to, .colour = device.ForeColor(), .font = device.font(), .text = {}});
}

void TermLayout::addPlace(const DrawDevice& device, std::int32_t index)
{
    places_.push_back({index, device.CurrentX(), device.ForeColor()});
}

std::vector<TermCaretPlace> TermLayout::places() const
{
    std::vector<TermCaretPlace> places;
    places.reserve(places_.size());
    for (const Place& place : places_) {
        places.push_back({place.index, toWhole(place.x)});
    }
    return places;
}

PixelRectangle TermLayout::extent(TextMetrics& metrics) const
{
    PixelRectangle all;
    for (const Mark& mark : marks_) {
        const double height =
            mark.text.empty() ? mark.to.y - mark.from.y + 1 : metrics.face(mark.font)->height();
        const PixelRectangle place{mark.from.x, mark.from.y, mark.to.x - mark.from.x, height};
        all = all.isEmpty() ? place : all.united(place);
    }
    return all;
}

void TermLayout::draw(DrawDevice& device, std::int32_t distance, std::int32_t caret) const
{
    for (const Mark& mark : marks_) {
        device.ForeColor(mark.colour);
        if (mark.text.empty()) {
            device.Line(mark.from.x + distance, mark.from.y, mark.to.x + distance, mark.to.y);
        } else {
            device.font(mark.font);
            device.CurrentX(mark.from.x + distance);
            device.CurrentY(mark.from.y);
            device.Print(mark.text);
        }
    }
    const auto place = std::ranges::lower_bound(places_, caret, {}, &Place::index);
    if (place != places_.end() && place->index == caret) {
        drawCaret(device, *place, distance);
    }
}

void TermLayout::drawCaret(DrawDevice& device, const Place& place, std::int32_t distance) const
{
    const double x = place.x + distance;
    const double gap = device.ScaleY(3, ScaleUnit::Pixels, device.ScaleMode());
    device.ForeColor(place.colour);
    device.Line(x, gap, x, device.ScaleHeight() - 1 - gap);
}

} // namespace phial
