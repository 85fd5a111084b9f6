#include "help_pages/HelpPainting.h"

#include "core/Variant.h"
#include "help_pages/HelpInks.h"
#include "help_pages/HelpPicture.h"
#include "term/TermDraw.h"
#include "visual/Markup.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

namespace help_pages
{

using phial::Colour;
using phial::DrawDevice;
using phial::LineShape;
using phial::MarkupLayout;
using phial::PixelRectangle;
using phial::RGB;
using phial::String;
using phial::StringView;
using phial::TextMetrics;
using phial::TextSide;

namespace
{

constexpr double Margin = 40;
constexpr double BandWidth = 8;
constexpr double ChapterTop = 16;
constexpr double ChapterHeight = 22;
constexpr double TitleTop = 38;
constexpr double TitleHeight = 40;
constexpr double TextTop = 96;
constexpr double TextWidth = 560; // some 66 letters
constexpr double PictureLeft = 640;
constexpr double BlockGap = 12;
constexpr double TermHeight = 46;
constexpr double FractionHeight = 72;
constexpr double CardInset = 10;
constexpr double CapHeight = 33;
constexpr double CapGap = 20;
constexpr double KeyGap = 8;

constexpr double SmallSize = 11; // points, as are the following
constexpr double TextSize = 14;
constexpr double TermSize = 18;
constexpr double TitleSize = 20;

/// A chapter's colour in the map, and the calmer one of its tile, which white can be read on.
struct TileColours {
    Colour map;
    Colour tile;
    Colour soft;
};
constexpr std::array Tiles{
    TileColours{RGB(0, 0, 255), RGB(0, 106, 181), RGB(225, 239, 250)},
    TileColours{RGB(0, 255, 255), RGB(0, 105, 120), RGB(222, 242, 244)},
    TileColours{RGB(0, 255, 0), RGB(0, 112, 60), RGB(227, 244, 234)},
    TileColours{RGB(255, 255, 0), RGB(122, 90, 0), RGB(250, 243, 220)},
    TileColours{RGB(255, 0, 0), RGB(170, 36, 36), RGB(251, 233, 233)},
    TileColours{RGB(255, 0, 255), RGB(128, 44, 128), RGB(245, 232, 245)},
};

void fill(DrawDevice& device, const PixelRectangle& area, Colour colour)
{
    device.Line(area.left, area.top, area.right() - 1, area.bottom() - 1, colour, LineShape::Filled);
}

String numberText(std::size_t number)
{
    return phial::Variant(static_cast<std::int32_t>(number)).toText();
}

// A page, block by block.

class PagePainter
{
public:
    PagePainter(DrawDevice& device, TextMetrics& metrics, const TileColours& colours)
        : device_(device), metrics_(metrics), colours_(colours)
    {
    }

    void drawHead(const String& chapter, const String& title, std::size_t page, std::size_t pages)
    {
        fill(device_, {0, 0, PageSize.width, PageSize.height}, inks::Paper);
        fill(device_, {0, 0, BandWidth, PageSize.height}, colours_.tile);
        write(chapter, SmallSize, true, colours_.tile, {Margin, ChapterTop, TextWidth, ChapterHeight});
        write(title, TitleSize, true, inks::Ink,
              {Margin, TitleTop, PageSize.width - 2 * Margin, TitleHeight});
        drawDots(page, pages);
    }

    /// Before its blocks: keys of a page have one width, and what they do has room beside a picture.
    void prepare(const Page& page)
    {
        for (const Block& block : page.blocks) {
            if (block.kind == Block::Kind::Key) {
                keyIndent_ = std::max(keyIndent_, capWidth(block.key) + CapGap);
            }
            if (block.kind == Block::Kind::Picture) {
                keyWidth_ = TextWidth;
            }
        }
    }

    void draw(const Block& block)
    {
        if (block.kind != Block::Kind::Key && wasKey_) {
            top_ += KeyGap;
            wasKey_ = false;
        }
        switch (block.kind) {
        case Block::Kind::Picture:
            drawPicture(device_, metrics_, block.text,
                        {PictureLeft, TextTop, PageSize.width - Margin - PictureLeft,
                         PageSize.height - TextTop - Margin});
            return;
        case Block::Kind::Paragraph:
            take(drawText(block.text, Margin, TextWidth, top_));
            return;
        case Block::Kind::Term:
            drawTerm(block.text);
            return;
        case Block::Kind::Step:
            drawStep(block.text);
            return;
        case Block::Kind::Key:
            drawKey(block);
            return;
        case Block::Kind::Note:
            drawNote(block.text);
            return;
        }
    }

    bool hasFitted() const { return top_ <= PageSize.height; }

private:
    void write(StringView text, double size, bool bold, Colour ink, const PixelRectangle& box,
               TextSide side = TextSide::Near)
    {
        device_.ForeColor(ink);
        MarkupLayout(text, helpFont(size, bold), metrics_, box.width)
            .draw(device_, box, side, TextSide::Middle);
    }

    /// Gives the height.
    double drawText(const String& text, double left, double width, double top)
    {
        const MarkupLayout layout(text, helpFont(TextSize), metrics_, width);
        device_.ForeColor(inks::Ink);
        layout.draw(device_, {left, top, width, layout.size().height}, TextSide::Near, TextSide::Near);
        return layout.size().height;
    }

    double heightOf(const String& text, double width)
    {
        return MarkupLayout(text, helpFont(TextSize), metrics_, width).size().height;
    }

    void take(double height) { top_ += height + BlockGap; }

    /// How far one is in the chapter.
    void drawDots(std::size_t page, std::size_t pages)
    {
        constexpr double Pitch = 18;
        constexpr double Radius = 5;
        const double first = PageSize.width - Margin - static_cast<double>(pages - 1) * Pitch - Radius;
        for (std::size_t at = 0; pages > 1 && at < pages; ++at) {
            fillDisc(device_, {first + static_cast<double>(at) * Pitch, ChapterTop + ChapterHeight / 2},
                     Radius, at == page ? colours_.tile : inks::Paper, colours_.tile);
        }
    }

    /// Terms that follow each other share a card.
    void drawTerm(const String& term)
    {
        const double height = term.find(u")/(") == String::npos ? TermHeight : FractionHeight;
        if (isBehindTerm_) {
            top_ -= BlockGap;
        }
        fill(device_, {Margin, top_, TextWidth, height}, colours_.soft);
        fill(device_, {Margin, top_, 4, height}, colours_.tile);
        device_.font(helpFont(TermSize));
        device_.ForeColor(inks::Ink);
        phial::TermDraw(device_, term, static_cast<std::int32_t>(Margin + 2 * CardInset),
                        static_cast<std::int32_t>(top_ + height / 2), phial::TEXTALIGN::MiddleLeft);
        take(height);
        isBehindTerm_ = true;
    }

    void drawStep(const String& text)
    {
        constexpr double Radius = 15;
        constexpr double Indent = 44;
        const double height = std::max(2 * Radius, heightOf(text, TextWidth - Indent));
        const double middle = top_ + Radius;
        fillDisc(device_, {Margin + Radius, middle}, Radius, colours_.tile, colours_.tile);
        write(numberText(++steps_), TextSize, true, inks::Paper,
              {Margin, middle - Radius, 2 * Radius, 2 * Radius}, TextSide::Middle);
        const double shift = std::max(0.0, (2 * Radius - heightOf(text, TextWidth - Indent)) / 2);
        drawText(text, Margin + Indent, TextWidth - Indent, top_ + shift);
        take(height);
        endTerms();
    }

    double capWidth(const String& key)
    {
        constexpr double Inset = 14;
        return std::max(CapHeight + 8,
                        MarkupLayout(key, helpFont(TextSize, true), metrics_).size().width + 2 * Inset);
    }

    /// A key cap, and beside it what the key does.
    void drawKey(const Block& block)
    {
        const double width = keyWidth_ - keyIndent_;
        const double text = heightOf(block.text, width);
        const PixelRectangle cap{Margin, top_, capWidth(block.key), CapHeight};
        fillRound(device_, {cap.left, cap.top + 2, cap.width, cap.height}, 6, inks::Divider, inks::Edge);
        fillRound(device_, cap, 6, inks::Paper, inks::Edge);
        write(block.key, TextSize, true, inks::Ink, cap, TextSide::Middle);
        drawText(block.text, Margin + keyIndent_, width, top_ + std::max(0.0, (CapHeight - text) / 2));
        top_ += std::max(CapHeight, text) + KeyGap;
        wasKey_ = true;
        endTerms();
    }

    void drawNote(const String& text)
    {
        constexpr double Sign = 44;
        const double width = TextWidth - Sign - CardInset;
        const double height = heightOf(text, width) + 2 * CardInset;
        const PixelRectangle card{Margin, top_, TextWidth, height};
        fillRound(device_, card, 8, inks::NoteSoft, inks::NoteSoft);
        fillDisc(device_, {card.left + Sign / 2, card.top + height / 2}, 12, inks::Note, inks::Note);
        write(u"!", TextSize, true, inks::Paper, {card.left, card.top, Sign, height}, TextSide::Middle);
        drawText(text, Margin + Sign, width, top_ + CardInset);
        take(height);
        endTerms();
    }

    void endTerms() { isBehindTerm_ = false; }

    DrawDevice& device_;
    TextMetrics& metrics_;
    const TileColours& colours_;
    double top_ = TextTop;
    double keyIndent_ = 0;
    double keyWidth_ = PageSize.width - 2 * Margin;
    bool wasKey_ = false;
    std::size_t steps_ = 0;
    bool isBehindTerm_ = false;
};

// The menu.

constexpr double TileGap = 20;
constexpr double MenuTop = 92;
constexpr double MenuBottom = 24;

/// Few chapters have large tiles.
std::size_t tileColumns(std::size_t chapters)
{
    constexpr std::size_t InTwos = 4;
    return chapters <= 2 ? chapters : chapters == InTwos ? 2 : 3;
}

PixelRectangle tilePlace(std::size_t chapter, std::size_t chapters)
{
    const std::size_t columns = tileColumns(chapters);
    const std::size_t row = chapter / columns;
    const std::size_t lastRow = (chapters - 1) / columns;
    const double rows = static_cast<double>(lastRow) + 1;
    const auto across = static_cast<double>(columns);
    const double width = (PageSize.width - 2 * Margin - (across - 1) * TileGap) / across;
    const double height = (PageSize.height - MenuTop - MenuBottom - (rows - 1) * TileGap) / rows;
    return {Margin + static_cast<double>(chapter % columns) * (width + TileGap),
            MenuTop + static_cast<double>(row) * (height + TileGap), width, height};
}

/// What a chapter tells, in the words of its pages.
String contentsOf(const Chapter& chapter)
{
    String contents;
    for (const Page& page : chapter.pages) {
        contents += (contents.empty() ? String() : String(u" \u00B7 ")) + page.title;
    }
    return contents;
}

/// A table out of the chapter, on a card at the foot of a tile that has room for it.
void drawTilePicture(DrawDevice& device, TextMetrics& metrics, const Chapter& chapter,
                     const PixelRectangle& tile)
{
    constexpr double Inset = 16;
    constexpr double LeastHeight = 250;
    if (tile.height < LeastHeight) {
        return;
    }
    for (const Page& page : chapter.pages) {
        for (const Block& block : page.blocks) {
            const auto size = block.kind == Block::Kind::Picture ? tableSize(block.text) : std::nullopt;
            if (size) {
                const double height = size->height + Inset;
                const PixelRectangle card{tile.left + Inset, tile.bottom() - Inset - height,
                                          tile.width - 2 * Inset, height};
                fillRound(device, card, 8, inks::Paper, inks::Paper);
                drawPicture(device, metrics, block.text,
                            {std::floor(card.left + (card.width - size->width) / 2) - Inset / 2, card.top,
                             size->width, size->height});
                return;
            }
        }
    }
}

void drawTile(DrawDevice& device, TextMetrics& metrics, const Chapter& chapter, std::size_t number,
              const PixelRectangle& tile)
{
    constexpr double Inset = 20;
    constexpr double Radius = 20;
    constexpr double TitleIndent = 2 * Radius + 14;
    constexpr double ChapterSize = 17;
    const Colour colour = Tiles.at(number - 1).tile;
    fillRound(device, tile, 12, colour, colour);
    const PixelRectangle disc{tile.left + Inset, tile.top + Inset, 2 * Radius, 2 * Radius};
    fillDisc(device, {disc.left + Radius, disc.top + Radius}, Radius, inks::Paper, inks::Paper);
    device.ForeColor(colour);
    MarkupLayout(numberText(number), helpFont(ChapterSize, true), metrics)
        .draw(device, disc, TextSide::Middle, TextSide::Middle);
    device.ForeColor(inks::Paper);
    const double width = tile.width - 2 * Inset - TitleIndent;
    MarkupLayout(chapter.title, helpFont(ChapterSize, true), metrics, width)
        .draw(device, {disc.left + TitleIndent, disc.top, width, disc.height}, TextSide::Near,
              TextSide::Middle);
    const double textTop = disc.bottom() + 8;
    MarkupLayout(contentsOf(chapter), helpFont(SmallSize + 1), metrics, width)
        .draw(device, {disc.left + TitleIndent, textTop, width, tile.bottom() - Inset - textTop},
              TextSide::Near, TextSide::Near);
    drawTilePicture(device, metrics, chapter, tile);
}

} // namespace

bool drawPage(DrawDevice& device, TextMetrics& metrics, const Book& book, std::size_t chapter,
              std::size_t page)
{
    const Chapter& within = book.chapters.at(chapter);
    PagePainter painter(device, metrics, Tiles.at(chapter));
    painter.drawHead(numberText(chapter + 1) + u"  " + within.title, within.pages.at(page).title, page,
                     within.pages.size());
    painter.prepare(within.pages.at(page));
    for (const Block& block : within.pages.at(page).blocks) {
        painter.draw(block);
    }
    return painter.hasFitted();
}

void drawMenu(DrawDevice& device, TextMetrics& metrics, const Book& book)
{
    fill(device, {0, 0, PageSize.width, PageSize.height}, inks::Paper);
    device.ForeColor(inks::Ink);
    MarkupLayout(book.title, helpFont(TitleSize + 2, true), metrics)
        .draw(device, {Margin, 0, PageSize.width - 2 * Margin, MenuTop}, TextSide::Near, TextSide::Middle);
    for (std::size_t chapter = 0; chapter < book.chapters.size(); ++chapter) {
        drawTile(device, metrics, book.chapters[chapter], chapter + 1,
                 tilePlace(chapter, book.chapters.size()));
    }
}

void drawMap(DrawDevice& device, const Book& book)
{
    fill(device, {0, 0, PageSize.width, PageSize.height}, inks::Paper);
    for (std::size_t chapter = 0; chapter < book.chapters.size(); ++chapter) {
        fill(device, tilePlace(chapter, book.chapters.size()), Tiles.at(chapter).map);
    }
}

} // namespace help_pages
