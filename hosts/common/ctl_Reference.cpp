#include "common/ctl_Reference.h"

#include "core/Palette.h"
#include "visual/VisualHost.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace learning
{

using phial::PixelRectangle;
namespace Palette = phial::Palette;

namespace
{

constexpr double ReferenceSizes[] = {13.5, 12, 10.5, 9.75}; // points: 18, 16, 14, 13 pixels
constexpr double ReferenceEdge = 6;                         // pixels between the edge and the cells
constexpr double ReferenceGap = 4;                          // between sign and value
constexpr double CellGap = 10;                              // between two entries of a row, at least

phial::FontSpec referenceFont(double size, bool bold)
{
    phial::FontSpec font;
    font.size = size;
    font.bold = bold;
    return font;
}

double widthOf(const ReferenceEntry& entry, double size)
{
    phial::TextMetrics& metrics = phial::visualHost().metrics();
    return metrics.face(referenceFont(size, true))->width(entry.sign) + ReferenceGap +
           metrics.face(referenceFont(size, false))->width(entry.value);
}

} // namespace

void ctl_Reference::show(std::vector<ReferenceEntry> entries)
{
    if (entries.size() != entries_.size()) {
        page_ = 0;
    }
    entries_ = std::move(entries);
    resized();
}

void ctl_Reference::resized()
{
    grid_.reset();
    surface_.resized();
    surface_.invalidate();
}

void ctl_Reference::firstPage()
{
    page_ = 0;
    surface_.invalidate();
}

bool ctl_Reference::nextPage()
{
    if ((page_ + 1) * grid().cells() >= entries_.size()) {
        return false;
    }
    ++page_;
    surface_.invalidate();
    return true;
}

/// The largest in which all entries stand on one page, or the smallest.
const ctl_Reference::Grid& ctl_Reference::grid() const
{
    if (!grid_) {
        for (const double size : ReferenceSizes) {
            grid_ = gridOf(size);
            if (grid_->cells() >= entries_.size()) {
                break;
            }
        }
    }
    return *grid_;
}

ctl_Reference::Grid ctl_Reference::gridOf(double size) const
{
    double widest = 1;
    for (const ReferenceEntry& entry : entries_) {
        widest = std::max(widest, widthOf(entry, size));
    }
    const auto [width, height] = surface_.size();
    const double line = phial::visualHost().metrics().face(referenceFont(size, true))->height();
    const auto fitting = [](double room, double piece) {
        return static_cast<std::size_t>(std::max(1.0, std::floor(room / piece)));
    };
    const std::size_t mostColumns = fitting(width - 2 * ReferenceEdge, widest + CellGap);
    const std::size_t mostRows = fitting(height - 2 * ReferenceEdge, line);
    const std::size_t rows =
        std::clamp<std::size_t>((entries_.size() + mostColumns - 1) / mostColumns, 1, mostRows);
    const std::size_t columns = std::clamp<std::size_t>((entries_.size() + rows - 1) / rows, 1, mostColumns);
    return {size, columns, rows};
}

PixelRectangle ctl_Reference::cell(std::size_t place) const
{
    const auto [width, height] = surface_.size();
    const std::size_t row = place / grid().columns;
    const double cellWidth = (width - 2 * ReferenceEdge) / static_cast<double>(grid().columns);
    const double cellHeight = (height - 2 * ReferenceEdge) / static_cast<double>(grid().rows);
    return {ReferenceEdge + cellWidth * static_cast<double>(place % grid().columns),
            ReferenceEdge + cellHeight * static_cast<double>(row), cellWidth, cellHeight};
}

std::size_t ctl_Reference::entriesOnPage() const
{
    return std::min(grid().cells(), entries_.size() - std::min(entries_.size(), page_ * grid().cells()));
}

void ctl_Reference::paint()
{
    surface_.BackColor(Palette::Surface);
    phial::DrawDevice& device = surface_.device();
    device.Cls();
    const auto [width, height] = surface_.size();
    device.Line(0, 0, width - 1, height - 1, Palette::Accent, phial::LineShape::Box);
    for (std::size_t place = 0; place < entriesOnPage(); ++place) {
        paintEntry(entries_[page_ * grid().cells() + place], cell(place));
    }
}

void ctl_Reference::paintEntry(const ReferenceEntry& entry, const PixelRectangle& place)
{
    phial::DrawDevice& device = surface_.device();
    const double width = widthOf(entry, grid().size);
    device.FontSize(grid().size);
    device.ForeColor(Palette::Ink);
    device.FontBold(true);
    device.CurrentX(place.left + (place.width - width) / 2);
    device.CurrentY(place.top + (place.height - device.TextHeight(entry.sign)) / 2);
    device.Print(entry.sign);
    device.FontBold(false);
    device.CurrentX(device.CurrentX() + ReferenceGap);
    device.Print(entry.value);
}

std::vector<phial::NamedPart> ctl_Reference::parts() const
{
    std::vector<phial::NamedPart> parts;
    for (std::size_t place = 0; place < entriesOnPage(); ++place) {
        phial::NamedPart& part = parts.emplace_back();
        part.area = cell(place);
        part.name = entries_[page_ * grid().cells() + place].spoken;
    }
    return parts;
}

} // namespace learning
