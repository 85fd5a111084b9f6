#include "help_pages/HelpPainting.h"

#include "core/Colour.h"
#include "term/TermDraw.h"
#include "visual/DrawDevice.h"
#include "visual/Markup.h"

#include <array>

namespace help_pages
{

using phial::Colour;
using phial::DrawDevice;
using phial::FontSpec;
using phial::LineShape;
using phial::MarkupLayout;
using phial::PixelRectangle;
using phial::RGB;
using phial::StringView;
using phial::TextSide;

namespace
{

constexpr StringView Face = u"Tahoma";
constexpr double Margin = 40;
constexpr double TitleTop = 20;
constexpr double TitleHeight = 44;
constexpr double RuleTop = 72;
constexpr double TextTop = 88;
constexpr double BlockGap = 12;
constexpr double TermHeight = 44;
constexpr double FractionHeight = 72;

constexpr double TitleSize = 20; // points, as are the following
constexpr double TextSize = 14;
constexpr double TermSize = 18;
constexpr double NumberSize = 22;

constexpr Colour Paper = RGB(255, 255, 255);
constexpr Colour Ink = RGB(28, 40, 54);
constexpr Colour TitleInk = RGB(0, 64, 118);
constexpr Colour Rule = RGB(196, 212, 226);
constexpr Colour OnTile = RGB(255, 255, 255);

/// A chapter's colour in the map, and the calmer one of its tile, which white can be read on.
struct TileColours {
    Colour map;
    Colour tile;
};
constexpr std::array Tiles{
    TileColours{RGB(0, 0, 255), RGB(32, 72, 170)}, TileColours{RGB(0, 255, 255), RGB(0, 105, 120)},
    TileColours{RGB(0, 255, 0), RGB(0, 112, 60)},  TileColours{RGB(255, 255, 0), RGB(122, 90, 0)},
    TileColours{RGB(255, 0, 0), RGB(170, 36, 36)}, TileColours{RGB(255, 0, 255), RGB(128, 44, 128)},
};

constexpr std::size_t TileColumns = 3;
constexpr double TileGap = 20;
constexpr double TileWidth = (PageSize.width - 2 * Margin - (TileColumns - 1) * TileGap) / TileColumns;
constexpr double TileHeight = 136;

PixelRectangle tilePlace(std::size_t chapter)
{
    const auto column = static_cast<double>(chapter % TileColumns);
    const std::size_t row = chapter / TileColumns;
    return {Margin + column * (TileWidth + TileGap),
            TextTop + static_cast<double>(row) * (TileHeight + TileGap), TileWidth, TileHeight};
}

void fill(DrawDevice& device, const PixelRectangle& area, Colour colour)
{
    device.Line(area.left, area.top, area.right() - 1, area.bottom() - 1, colour, LineShape::Filled);
}

FontSpec font(double size, bool bold = false)
{
    return {.name = phial::String(Face), .size = size, .bold = bold};
}

void drawTitle(DrawDevice& device, phial::TextMetrics& metrics, StringView title)
{
    fill(device, {0, 0, PageSize.width, PageSize.height}, Paper);
    device.ForeColor(TitleInk);
    MarkupLayout(title, font(TitleSize, true), metrics)
        .draw(device, {Margin, TitleTop, PageSize.width - 2 * Margin, TitleHeight}, TextSide::Near,
              TextSide::Middle);
    device.Line(Margin, RuleTop, PageSize.width - Margin, RuleTop, Rule);
}

double drawTerm(DrawDevice& device, const phial::String& term, double top)
{
    const double height = term.find(u")/(") == phial::String::npos ? TermHeight : FractionHeight;
    device.FontName(Face);
    device.FontSize(TermSize);
    device.FontBold(false);
    device.ForeColor(Ink);
    phial::TermDraw(device, term, static_cast<std::int32_t>(2 * Margin),
                    static_cast<std::int32_t>(top + height / 2), phial::TEXTALIGN::MiddleLeft);
    return height;
}

double drawParagraph(DrawDevice& device, phial::TextMetrics& metrics, const phial::String& text, double top)
{
    const double width = PageSize.width - 2 * Margin;
    const MarkupLayout layout(text, font(TextSize), metrics, width);
    device.ForeColor(Ink);
    layout.draw(device, {Margin, top, width, layout.size().height}, TextSide::Near, TextSide::Near);
    return layout.size().height;
}

} // namespace

bool drawPage(DrawDevice& device, phial::TextMetrics& metrics, const Page& page)
{
    drawTitle(device, metrics, page.title);
    double top = TextTop;
    for (const Block& block : page.blocks) {
        top += block.kind == Block::Kind::Term ? drawTerm(device, block.text, top)
                                               : drawParagraph(device, metrics, block.text, top);
        top += BlockGap;
    }
    return top <= PageSize.height;
}

void drawMenu(DrawDevice& device, phial::TextMetrics& metrics, const Book& book)
{
    constexpr double Inset = 16;
    constexpr double NumberHeight = 44;
    drawTitle(device, metrics, book.title);
    for (std::size_t chapter = 0; chapter < book.chapters.size(); ++chapter) {
        const PixelRectangle tile = tilePlace(chapter);
        fill(device, tile, Tiles.at(chapter).tile);
        device.ForeColor(OnTile);
        const double width = tile.width - 2 * Inset;
        const phial::String number(1, static_cast<char16_t>(u'1' + chapter));
        MarkupLayout(number, font(NumberSize, true), metrics)
            .draw(device, {tile.left + Inset, tile.top + Inset, width, NumberHeight}, TextSide::Near,
                  TextSide::Near);
        MarkupLayout(book.chapters[chapter].title, font(TextSize, true), metrics, width)
            .draw(device,
                  {tile.left + Inset, tile.top + NumberHeight, width, tile.height - NumberHeight - Inset},
                  TextSide::Near, TextSide::Far);
    }
}

void drawMap(DrawDevice& device, const Book& book)
{
    fill(device, {0, 0, PageSize.width, PageSize.height}, Paper);
    for (std::size_t chapter = 0; chapter < book.chapters.size(); ++chapter) {
        fill(device, tilePlace(chapter), Tiles.at(chapter).map);
    }
}

} // namespace help_pages
