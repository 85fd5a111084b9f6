#include "common/TermFit.h"

#include "visual/Markup.h"
#include "visual/VisualHost.h"

#include <algorithm>
#include <iterator>

namespace learning
{

namespace
{

constexpr double TermSizes[] = {39, 33, 28.5, 24}; // points: 52, 44, 38, 32 pixels

} // namespace

double termWidth(phial::StringView term, double points)
{
    phial::DrawDevice device(phial::visualHost().createSurface({1, 1}, 1));
    device.FontName(phial::FontDesign{}.name);
    device.FontSize(points);
    return phial::TermDraw(device, term, 0, 0);
}

std::optional<double> fittingTermSize(phial::StringView term, double width)
{
    const auto* const size =
        std::ranges::find_if(TermSizes, [&](double points) { return termWidth(term, points) <= width; });
    return size == std::end(TermSizes) ? std::nullopt : std::optional(*size);
}

void showFitting(phial::ctl_TermLabel& label, phial::StringView term)
{
    const double width = label.frame().pixelRectangle().width;
    label.TEXTFONT()->Size(fittingTermSize(term, width).value_or(*std::prev(std::end(TermSizes))));
    label.Term(phial::String(term));
}

void showFitting(phial::ctl_Label& label, phial::StringView text, double size)
{
    constexpr double Least = 10; // points
    const phial::PixelRectangle place = label.frame().pixelRectangle();
    phial::FontSpec font = label.Font()->traits();
    for (font.size = size; font.size > Least; --font.size) {
        const phial::MarkupLayout layout(text, font, phial::visualHost().metrics(), place.width);
        if (layout.size().height <= place.height) {
            break;
        }
    }
    label.Font()->Size(font.size);
    label.Caption(phial::String(text));
}

std::optional<std::vector<phial::String>> brokenLines(phial::StringView text, const phial::FontSpec& font,
                                                      phial::PixelSize room)
{
    const auto face = phial::visualHost().metrics().face(font);
    std::vector<phial::String> lines;
    for (const phial::StringView word : phial::split(text, u" ")) {
        const phial::String longer =
            lines.empty() ? phial::String(word) : lines.back() + u" " + phial::String(word);
        if (!lines.empty() && face->width(longer) <= room.width) {
            lines.back() = longer;
            continue;
        }
        if (face->width(word) > room.width) {
            return std::nullopt;
        }
        lines.emplace_back(word);
    }
    const bool fits = static_cast<double>(lines.size()) * face->height() <= room.height;
    return fits ? std::optional(std::move(lines)) : std::nullopt;
}

} // namespace learning
