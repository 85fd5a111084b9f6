#include "periodic/TableLabels.h"

#include "core/NumberText.h"
#include "periodic/CellPainting.h"
#include "visual/Markup.h"
#include "visual/VisualHost.h"

#include <algorithm>
#include <array>

namespace phial
{

namespace
{

struct TableLabel {
    double column;
    double row;
    StringView text;
    double columns = 1; ///< its width
};

constexpr auto Labels = std::to_array<TableLabel>({
    {1, 1, u"I"},
    {2, 1, u"II"},
    {3, 4, u"IIIa"},
    {4, 4, u"IVa"},
    {5, 4, u"Va"},
    {6, 4, u"VIa"},
    {7, 4, u"VIIa"},
    {9, 4, u"VIIIa"},
    {11, 4, u"Ia"},
    {12, 4, u"IIa"},
    {13, 1, u"III"},
    {14, 1, u"IV"},
    {15, 1, u"V"},
    {16, 1, u"VI"},
    {17, 1, u"VII"},
    {18, 1, u"VIII"},
    {1, 0, u"Haupt-", 2},
    {16, 0, u"Gruppen", 3},
    {7, 3, u"Nebengruppen", 6},
    {3, 10, u"Lanthanide", 2},
    {3, 11, u"Actinide", 2},
    {0, 1, u"Periode"},
});

/// A row of half-high captions, `sign` with a raised number each.
struct StateRun {
    double column;
    double row;
    StringView sign;
    std::int32_t count;
};

constexpr auto StateRuns = std::to_array<StateRun>({
    {1, 9, u"s", 2},
    {3, 9, u"d", 10},
    {13, 9, u"p", 6},
    {5, 12, u"f", 14},
});

constexpr double FontStep = 0.9;

/// As large as the table's text, and smaller where the area has no room for that.
void paintCaption(DrawDevice& device, const CellStyle& style, const PixelRectangle& area, const String& text)
{
    FontSpec font{.name = style.fontName, .size = cell_design::TextSize * style.scale};
    const auto layOut = [&] { return MarkupLayout(text, font, visualHost().metrics()); };
    MarkupLayout layout = layOut();
    const double least = font.size * cell_design::LeastShare;
    while ((layout.size().width > area.width || layout.size().height > area.height) && font.size > least) {
        font.size *= FontStep;
        layout = layOut();
    }
    layout.draw(device, area, TextSide::Middle, TextSide::Middle);
}

} // namespace

void paintTableLabels(DrawDevice& device, const TableGrid& grid, const CellStyle& style)
{
    device.ForeColor(inkOn(device.BackColor(), style.colours->caption));
    for (const TableLabel& label : Labels) {
        paintCaption(device, style, grid.area(label.column, label.row, label.columns, 1), String(label.text));
    }
    constexpr std::int32_t Periods = 7;
    for (std::int32_t period = 1; period <= Periods; ++period) {
        paintCaption(device, style, grid.area(0, period + 1, 1, 1), plainText(period));
    }
}

void paintElectronStates(DrawDevice& device, const TableGrid& grid, const CellStyle& style)
{
    constexpr double Height = 0.5;
    device.ForeColor(inkOn(device.BackColor(), style.colours->caption));
    for (const StateRun& run : StateRuns) {
        for (std::int32_t number = 1; number <= run.count; ++number) {
            paintCaption(device, style, grid.area(run.column + number - 1, run.row, 1, Height),
                         String(run.sign) + u"<sup>" + plainText(number) + u"</sup>");
        }
    }
}

} // namespace phial
