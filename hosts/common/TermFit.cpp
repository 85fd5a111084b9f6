#include "common/TermFit.h"

#include "visual/VisualHost.h"

#include <algorithm>
#include <iterator>

namespace learning
{

namespace
{

constexpr double TermSizes[] = {39, 33, 28.5, 24}; // points: 52, 44, 38, 32 pixels

} // namespace

std::optional<double> fittingTermSize(phial::StringView term, double width)
{
    phial::DrawDevice device(phial::visualHost().createSurface({1, 1}, 1));
    device.FontName(phial::FontDesign{}.name);
    const auto* const size = std::ranges::find_if(TermSizes, [&](double points) {
        device.FontSize(points);
        return phial::TermDraw(device, term, 0, 0) <= width;
    });
    return size == std::end(TermSizes) ? std::nullopt : std::optional(*size);
}

void showFitting(phial::ctl_TermLabel& label, phial::StringView term)
{
    const double width = label.frame().pixelRectangle().width;
    label.TEXTFONT()->Size(fittingTermSize(term, width).value_or(*std::prev(std::end(TermSizes))));
    label.Term(phial::String(term));
}

} // namespace learning
