#include "common/LevelButtons.h"

#include "common/FrameDesign.h"
#include "common/LearningApp.h"
#include "common/TermFit.h"
#include "visual/OneLine.h"
#include "visual/VisualHost.h"

#include <algorithm>
#include <iterator>

namespace learning
{

using phial::ctl_Button;
using phial::PixelSize;
using phial::String;
using phial::StringView;

namespace
{

constexpr double TitleSizes[] = {16, 14, 12, 10}; // points; the smallest is 13 pixels
constexpr double TitleMargin = 8;                 // pixels, on each side of a title

PixelSize roomIn(ctl_Button& button)
{
    const phial::PixelRectangle place = button.frame().pixelRectangle();
    return {place.width - 2 * TitleMargin, place.height - 2 * TitleMargin};
}

phial::FontSpec titleFont(double size)
{
    phial::FontSpec font = phial::FontDesign{}.traits();
    font.size = size;
    font.bold = true;
    return font;
}

String joined(const std::vector<String>& lines)
{
    String text;
    for (const String& line : lines) {
        text += text.empty() ? line : u"\n" + line;
    }
    return text;
}

String shortened(StringView title, double size, double width)
{
    phial::DrawDevice device(phial::visualHost().createSurface({1, 1}, 1));
    device.FontName(titleFont(size).name);
    device.FontSize(size);
    device.FontBold(true);
    return phial::fittedLine(device, String(title), width);
}

} // namespace

void arrangeLevels(phial::ControlArray<ctl_Button>& buttons, std::size_t count)
{
    using namespace frame_design;
    constexpr std::size_t OneRow = 3;
    const std::size_t levels = std::min(count, MostLevelsShown);
    const bool isOneRow = levels <= OneRow;
    const std::size_t columns = isOneRow ? OneRow : (levels + 1) / 2;
    const double gaps = static_cast<double>(columns - 1) * LevelGap;
    const double width = (LevelsPlace.width - gaps) / static_cast<double>(columns);
    const double height = isOneRow ? LevelHeight : (LevelsPlace.height - LevelRowGap) / 2;
    for (std::size_t at = 0; at < levels; ++at) {
        const auto index = static_cast<std::int32_t>(at);
        const auto button = buttons.has(index) ? buttons(index) : buttons.load(index);
        const auto column = static_cast<double>(at % columns);
        const std::size_t row = at / columns;
        button->frame().pixelRectangle({LevelsPlace.left + column * (width + LevelGap),
                                        LevelsPlace.top + static_cast<double>(row) * (height + LevelRowGap),
                                        width, height});
        button->Visible(true);
    }
    buttons(0)->Visible(levels > 0);
}

void nameLevels(const phial::ControlArray<ctl_Button>& buttons, std::span<const String> titles)
{
    if (titles.empty()) {
        return;
    }
    const PixelSize room = roomIn(*buttons(0));
    const auto* found = std::ranges::find_if(TitleSizes, [&](double size) {
        return std::ranges::all_of(titles, [&](const String& title) {
            return brokenLines(title, titleFont(size), room).has_value();
        });
    });
    const double size = found == std::end(TitleSizes) ? *std::prev(std::end(TitleSizes)) : *found;
    buttons.each([&](ctl_Button& button, std::int32_t index) {
        const String& title = titles[static_cast<std::size_t>(index)];
        const auto lines = brokenLines(title, titleFont(size), room);
        button.Font(std::make_shared<phial::Font>(titleFont(size)));
        button.Caption(lines ? joined(*lines) : shortened(title, size, room.width));
        button.frame().AccessibleName(title);
        button.frame().ToolTipText(lines ? String() : title);
    });
}

} // namespace learning
