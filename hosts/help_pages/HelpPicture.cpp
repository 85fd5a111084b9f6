#include "help_pages/HelpPicture.h"

#include "core/RuntimeError.h"
#include "core/Variant.h"
#include "help_pages/HelpInks.h"
#include "visual/Markup.h"

#include <algorithm>
#include <array>
#include <sstream>
#include <string>
#include <vector>

namespace help_pages
{

using phial::Colour;
using phial::DrawDevice;
using phial::MarkupLayout;
using phial::PixelPoint;
using phial::PixelRectangle;
using phial::RGB;
using phial::String;
using phial::StringView;
using phial::TextMetrics;
using phial::TextSide;

namespace
{

struct Canvas {
    DrawDevice& device;
    TextMetrics& metrics;
    PixelRectangle place;

    void write(StringView text, double size, bool bold, Colour ink, const PixelRectangle& box,
               TextSide side = TextSide::Middle) const
    {
        device.ForeColor(ink);
        MarkupLayout(text, helpFont(size, bold), metrics).draw(device, box, side, TextSide::Middle);
    }
};

std::vector<std::string> wordsOf(const String& description)
{
    std::istringstream stream(phial::toUtf8(description));
    std::vector<std::string> words;
    for (std::string word; stream >> word;) {
        words.push_back(word);
    }
    return words;
}

std::vector<int> numbersFrom(const std::vector<std::string>& words, std::size_t first)
{
    std::vector<int> numbers;
    for (std::size_t at = first; at < words.size(); ++at) {
        numbers.push_back(std::stoi(words[at]));
    }
    return numbers;
}

// Atoms.

struct AtomLook {
    StringView symbol;
    Colour ball;
    Colour sign;
};
constexpr Colour DarkSign = RGB(28, 40, 54);
constexpr Colour LightSign = RGB(255, 255, 255);
constexpr std::array AtomLooks{
    AtomLook{u"H", RGB(244, 247, 250), DarkSign},  AtomLook{u"C", RGB(72, 80, 90), LightSign},
    AtomLook{u"O", RGB(203, 45, 45), LightSign},   AtomLook{u"S", RGB(247, 209, 72), DarkSign},
    AtomLook{u"Ca", RGB(74, 140, 84), LightSign},  AtomLook{u"Al", RGB(150, 160, 172), DarkSign},
    AtomLook{u"Na", RGB(126, 87, 178), LightSign}, AtomLook{u"Cl", RGB(60, 160, 70), LightSign},
};

AtomLook lookOf(const String& symbol)
{
    const auto* const found = std::ranges::find(AtomLooks, StringView(symbol), &AtomLook::symbol);
    return found == AtomLooks.end() ? AtomLook{u"", inks::Gap, DarkSign} : *found;
}

void drawAtoms(const Canvas& canvas, const std::vector<std::string>& words)
{
    constexpr double Pitch = 46;
    constexpr double Radius = 20;
    constexpr double SignSize = 12;
    double x = canvas.place.left + Radius;
    double y = canvas.place.top + Radius;
    for (std::size_t at = 1; at < words.size(); ++at) {
        const bool isOther = at > 1 && words[at] != words[at - 1];
        if (isOther || x + Radius > canvas.place.right()) {
            x = canvas.place.left + Radius;
            y += at > 1 ? Pitch : 0;
        }
        const String symbol = phial::fromUtf8(words[at]);
        const AtomLook look = lookOf(symbol);
        fillDisc(canvas.device, {x, y}, Radius, look.ball, inks::Edge);
        canvas.write(symbol, SignSize, true, look.sign, {x - Radius, y - Radius, 2 * Radius, 2 * Radius});
        x += Pitch;
    }
}

// The periodic table.

constexpr int Columns = 18;
constexpr int Rows = 7;
constexpr double Cell = 15;
constexpr double LabelSize = 9;

bool isCell(int column, int row)
{
    constexpr int FirstLong = 4;
    constexpr int SecondGroup = 2;
    constexpr int ThirdMainGroup = 13;
    return row >= FirstLong || column == 1 || column == Columns ||
           (row > 1 && (column <= SecondGroup || column >= ThirdMainGroup));
}

/// Of a main group as the table of the apps counts them; empty for a subgroup.
StringView romanOf(int column)
{
    constexpr std::array<StringView, 8> Numbers{u"I", u"II", u"III", u"IV", u"V", u"VI", u"VII", u"VIII"};
    constexpr int Subgroups = 10;
    const int number = column <= 2 ? column : column - Subgroups;
    return number >= 1 && (column <= 2 || number > 2) ? Numbers.at(static_cast<std::size_t>(number - 1))
                                                      : StringView();
}

PixelRectangle cellOf(const Canvas& canvas, int column, int row)
{
    return {canvas.place.left + column * Cell, canvas.place.top + row * (Cell + 2), Cell - 2, Cell};
}

template <typename IsSetOff>
void drawTable(const Canvas& canvas, const IsSetOff& isSetOff)
{
    for (int row = 1; row <= Rows; ++row) {
        for (int column = 1; column <= Columns; ++column) {
            if (isCell(column, row)) {
                const Colour ground = isSetOff(column, row) ? inks::Accent : inks::Divider;
                fillRound(canvas.device, cellOf(canvas, column, row), 2, ground, ground);
            }
        }
    }
}

PixelRectangle labelBox(const PixelRectangle& cell, double widening)
{
    return {cell.left - widening, cell.top, cell.width + 2 * widening, cell.height};
}

void drawGroups(const Canvas& canvas, const std::vector<int>& groups)
{
    drawTable(canvas, [&](int column, int) { return std::ranges::find(groups, column) != groups.end(); });
    for (const int group : groups) {
        const int top = isCell(group, 1) ? 1 : isCell(group, 2) ? 2 : 4;
        const PixelRectangle above = cellOf(canvas, group, top - 1);
        canvas.write(romanOf(group), LabelSize, true, inks::Accent, labelBox(above, Cell));
    }
}

void drawPeriods(const Canvas& canvas, const std::vector<int>& periods)
{
    drawTable(canvas, [&](int, int row) { return std::ranges::find(periods, row) != periods.end(); });
    for (const int period : periods) {
        canvas.write(phial::Variant(period).toText(), LabelSize, true, inks::Accent,
                     cellOf(canvas, 0, period));
    }
}

/// To the left, with a head at its end.
void drawArrow(const Canvas& canvas, double from, PixelPoint to)
{
    constexpr double Head = 5;
    canvas.device.DrawWidth(2);
    canvas.device.Line(from, to.y, to.x + Head, to.y, inks::Ink);
    canvas.device.DrawWidth(1);
    canvas.device.FillColor(inks::Ink);
    canvas.device.ForeColor(inks::Ink);
    const std::array<PixelPoint, 3> head{to, PixelPoint{to.x + 2 * Head, to.y - Head},
                                         PixelPoint{to.x + 2 * Head, to.y + Head}};
    canvas.device.Polygon(head);
}

/// The tile lies where the table has no cells above the subgroups.
void drawPlacing(const Canvas& canvas, const std::vector<std::string>& words)
{
    constexpr double Tile = 36;
    constexpr int TileColumn = 7;
    constexpr double SignSize = 13;
    const String symbol = phial::fromUtf8(words.at(1));
    const int column = std::stoi(words.at(2));
    const int row = std::stoi(words.at(3));
    drawTable(canvas, [&](int atColumn, int atRow) { return atColumn == column && atRow == row; });
    const PixelRectangle cell = cellOf(canvas, column, row);
    const double middle = cell.top + cell.height / 2;
    const PixelRectangle tile{cellOf(canvas, TileColumn, row).left, middle - Tile / 2, Tile, Tile};
    drawArrow(canvas, tile.left, {cell.right() + 4, middle});
    fillRound(canvas.device, tile, 4, inks::AccentSoft, inks::Accent);
    canvas.write(symbol, SignSize, true, inks::Ink, tile);
}

// The answer.

std::vector<String> partsOf(const String& description, std::size_t from)
{
    std::vector<String> parts;
    std::size_t start = from;
    while (start <= description.size()) {
        const std::size_t end = std::min(description.find(u'|', start), description.size());
        parts.push_back(phial::trimmed(description.substr(start, end - start)));
        start = end + 1;
    }
    return parts;
}

struct Verdict {
    StringView sign;
    Colour ink;
    Colour ground;
};
constexpr Verdict RightVerdict{u"\u2713", inks::Right, inks::RightSoft};
constexpr Verdict AgainVerdict{u"\u21BB", inks::Note, inks::NoteSoft};

void drawAnswer(const Canvas& canvas, const std::vector<String>& parts, const Verdict& look)
{
    constexpr double Height = 52;
    constexpr double FieldWidth = 176;
    constexpr double Gap = 12;
    constexpr double Inset = 12;
    constexpr double NumberSize = 20;
    constexpr double CaptionSize = 13;
    const double left = canvas.place.left;
    const double top = canvas.place.top;
    const double width = canvas.place.width;
    const PixelRectangle field{left, top, FieldWidth, Height};
    fillRound(canvas.device, field, 6, inks::Paper, inks::Edge);
    canvas.write(parts.at(0), NumberSize, false, inks::Ink,
                 {field.left + Inset, field.top, field.width - 2 * Inset, field.height}, TextSide::Far);
    canvas.write(parts.at(1), CaptionSize, false, inks::Ink,
                 {field.right() + Gap, top, width - FieldWidth - Gap, Height}, TextSide::Near);
    const PixelRectangle button{left, top + Height + Gap, width, Height};
    fillRound(canvas.device, button, 8, inks::Accent, inks::Accent);
    canvas.write(parts.at(2), CaptionSize, true, inks::Paper, button);
    const PixelRectangle verdict{left, button.bottom() + Gap, width, Height};
    fillRound(canvas.device, verdict, 8, look.ground, look.ground);
    canvas.write(String(look.sign) + u"  " + parts.at(3), CaptionSize, true, look.ink, verdict);
}

/// What a round was worth.
void drawResult(const Canvas& canvas, const std::vector<String>& parts)
{
    constexpr double LineHeight = 32;
    constexpr double BarHeight = 14;
    constexpr double Gap = 10;
    constexpr double PointsSize = 15;
    constexpr double Percent = 100;
    const PixelRectangle line{canvas.place.left, canvas.place.top, canvas.place.width, LineHeight};
    canvas.write(parts.at(0), PointsSize, false, inks::Ink, line);
    const double top = line.bottom() + Gap;
    fillRound(canvas.device, {line.left, top, line.width, BarHeight}, 3, inks::Paper, inks::Edge);
    const double share = std::stod(phial::toUtf8(parts.at(1))) / Percent;
    fillRound(canvas.device, {line.left, top, line.width * share, BarHeight}, 3, inks::Accent, inks::Accent);
    canvas.write(parts.at(2), PointsSize, true, inks::Ink,
                 {line.left, top + BarHeight + Gap, line.width, LineHeight});
}

} // namespace

std::optional<phial::PixelSize> tableSize(const String& description)
{
    const std::vector<std::string> words = wordsOf(description);
    const std::string kind = words.empty() ? std::string() : words.front();
    if (kind != "groups" && kind != "periods" && kind != "place") {
        return std::nullopt;
    }
    return phial::PixelSize{(Columns + 1) * Cell, (Rows + 1) * (Cell + 2)};
}

void drawPicture(DrawDevice& device, TextMetrics& metrics, const String& description,
                 const PixelRectangle& place)
{
    const Canvas canvas{device, metrics, place};
    const std::vector<std::string> words = wordsOf(description);
    const std::string kind = words.empty() ? std::string() : words.front();
    if (kind == "atoms") {
        drawAtoms(canvas, words);
    } else if (kind == "groups") {
        drawGroups(canvas, numbersFrom(words, 1));
    } else if (kind == "periods") {
        drawPeriods(canvas, numbersFrom(words, 1));
    } else if (kind == "place") {
        drawPlacing(canvas, words);
    } else if (kind == "answer") {
        drawAnswer(canvas, partsOf(description, kind.size()), RightVerdict);
    } else if (kind == "wrong") {
        drawAnswer(canvas, partsOf(description, kind.size()), AgainVerdict);
    } else if (kind == "result") {
        drawResult(canvas, partsOf(description, kind.size()));
    } else {
        throw phial::RuntimeError(phial::ErrorNumber::InvalidArgument,
                                  u"A help book has no such picture: " + description);
    }
}

} // namespace help_pages
