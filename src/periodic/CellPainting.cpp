#include "periodic/CellPainting.h"

#include "chem/cls_DataElement.h"
#include "core/CoreColors.h"
#include "core/Locale.h"
#include "core/NumberText.h"
#include "periodic/NameLines.h"
#include "visual/DrawDevice.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace phial
{

namespace
{

constexpr Colour Black = QBColor(0);
constexpr Colour White = QBColor(15);
constexpr Colour Grey = QBColor(7);

constexpr double PaleShare = 70;    // of white, in percent
constexpr double MassDarkness = 70; // share of black
constexpr double EdgeShade = 10;
constexpr double FrameWidth = 3;
constexpr double LargeText = 15; // points, from which text is enlarged once more
constexpr double Enlargement = 1.2;
constexpr double NameShare = 0.66; // of a symbol's size
constexpr double StarShare = 0.8;

/// One painting of one cell.
class CellPainter
{
public:
    CellPainter(DrawDevice& device, const ElementCell& cell, const CellStyle& style, const CellLook& look)
        : device_(device), cell_(cell), style_(style), colours_(*style.colours), look_(look),
          left_(cell.area.left), top_(cell.area.top), right_(cell.area.right()), bottom_(cell.area.bottom())
    {
    }

    void paint()
    {
        device_.clip(left_, top_, right_ - 1, bottom_ - 1);
        if (look_.isHovered) {
            device_.Line(left_, top_, right_ - 1, bottom_ - 1, White, LineShape::Filled);
        } else {
            paintGround();
        }
        if (!look_.isEmpty) {
            paintText();
        }
        paintFrames();
        device_.unclip();
    }

private:
    Colour shown(Colour colour) const
    {
        return look_.isPale ? CoreColors::Blend(colour, PaleShare, White) : colour;
    }

    Colour shownText(Colour colour) const
    {
        return look_.isPale && colours_.paleText ? *colours_.paleText : shown(colour);
    }

    Colour groundShade(Colour colour) const { return look_.isGrey ? Grey : shown(colour); }

    void paintGround()
    {
        const Colour upper = groundShade(CoreColors::Lighten(cell_.base, colours_.shade));
        const Colour lower = groundShade(CoreColors::Darken(cell_.base, colours_.shade));
        constexpr double Angle = 45;
        constexpr std::int32_t Steps = 256;
        CoreColors::Gradient(device_, left_, top_, cell_.area.width, cell_.area.height, upper, lower, Angle,
                             Steps);
        paintEdges(CoreColors::Lighten(upper, EdgeShade), CoreColors::Darken(lower, EdgeShade));
        device_.Line(left_, top_, right_ - 1, bottom_ - 1, shown(Black), LineShape::Box);
    }

    /// One pixel inside, so that the cell stands out.
    void paintEdges(Colour upper, Colour lower)
    {
        device_.DrawWidth(look_.isPale ? 1 : 2);
        device_.Line(right_ - 2, top_ + 1, right_ - 2, bottom_ - 2, lower);
        device_.Line(right_ - 2, bottom_ - 2, left_ + 1, bottom_ - 2, lower);
        device_.Line(right_ - 2, top_ + 1, left_ + 1, top_ + 1, upper);
        device_.Line(left_ + 1, top_ + 1, left_ + 1, bottom_ - 2, upper);
        device_.DrawWidth(1);
    }

    void paintText()
    {
        if (cell_.element) {
            paintSmallText();
        }
        device_.FontName(style_.fontName);
        device_.FontSize(style_.textSize());
        device_.FontBold(false);
        if (style_.showsNames && cell_.element) {
            paintName();
        } else {
            printCentred(cell_.symbol, 2);
            paintStar();
        }
        if (cell_.element && colours_.hasStateSigns) {
            paintState();
        }
    }

    /// In the lower right corner, which no text reaches: a box for a solid, a drop, a ring for a gas.
    void paintState()
    {
        constexpr double Size = 5; // pixels, for cells of 32
        constexpr double Margin = 3;
        const double size = std::round(Size * style_.scale);
        const double left = right_ - Margin - size;
        const double top = bottom_ - Margin - size;
        const Colour colour = shownText(cell_.text);
        if (cell_.element->GAS()) {
            device_.DrawWidth(std::max(1.0, std::round(double{1} * style_.scale)));
            device_.Circle(left + size / 2, top + size / 2, size / 2, colour);
            device_.DrawWidth(1);
        } else if (cell_.element->LIQUID()) {
            paintDrop({left, top, size, size}, colour);
        } else {
            device_.Line(left, top, left + size - 1, top + size - 1, colour, LineShape::Filled);
        }
    }

    void paintDrop(const PixelRectangle& area, Colour colour)
    {
        constexpr auto Drop = std::to_array<PixelPoint>(
            {{0.5, -0.1}, {0.85, 0.5}, {0.9, 0.75}, {0.7, 1}, {0.3, 1}, {0.1, 0.75}, {0.15, 0.5}});
        auto points = Drop;
        for (PixelPoint& point : points) {
            point = {area.left + point.x * area.width, area.top + point.y * area.height};
        }
        device_.FillStyle(FillStyle::Solid);
        device_.FillColor(colour);
        device_.ForeColor(colour);
        device_.Polygon(points);
        device_.FillStyle(FillStyle::Transparent);
    }

    void paintSmallText()
    {
        constexpr double SmallFontsBelow = 6;
        device_.FontName(5 * style_.scale < SmallFontsBelow ? u"Small Fonts" : StringView(style_.fontName));
        device_.FontSize(cell_design::SmallSize * style_.scale);
        device_.FontBold(false);
        print(colours_.protons, left_, bottom_ - device_.TextHeight(u"1"),
              u" " + plainText(cell_.element->PROTONS()));
        const char16_t sign = currentLocale().decimalSign;
        print(colours_.mass.value_or(CoreColors::Blend(cell_.base, MassDarkness, Black)), left_, top_ - 1,
              u" " + plainText(cell_.element->MOL(), sign));
    }

    void print(Colour colour, double x, double y, const String& text)
    {
        device_.ForeColor(shownText(colour));
        device_.CurrentX(x);
        device_.CurrentY(y);
        device_.Print(text);
    }

    void paintName()
    {
        const NameLines lines = linesOf(cell_.element->NAME());
        fit(lines);
        if (lines.second.empty()) {
            printCentred(lines.first, 2);
            return;
        }
        constexpr double FirstLine = 1.3; // by how much of its height each line begins above the middle
        constexpr double SecondLine = 3.8;
        printCentred(lines.first, FirstLine);
        printCentred(lines.second, SecondLine);
    }

    /// Names that come too near to the cell's outline are set smaller.
    void fit(const NameLines& lines)
    {
        constexpr double Margin = 2;
        const double room = cell_.area.width - 2 * Margin;
        const double wide = std::max(device_.TextWidth(lines.first), device_.TextWidth(lines.second));
        if (wide > room) {
            device_.FontSize(device_.FontSize() * std::max(room / wide, cell_design::LeastShare));
        }
    }

    /// The divisor tells how much of the text's height lies above the cell's middle.
    void printCentred(const String& text, double divisor)
    {
        print(cell_.text, std::trunc(left_ + cell_.area.width / 2 - device_.TextWidth(text) / 2),
              std::trunc(top_ + cell_.area.height / 2 - device_.TextHeight(text) / divisor), text);
    }

    /// Behind the symbol, for an element that occurs as molecules of two atoms.
    void paintStar()
    {
        if (!cell_.element || !cell_.element->DOUBLEATOMS()) {
            return;
        }
        constexpr double Across = 0.2; // of its height
        constexpr double Up = 0.3;
        device_.FontSize(StarShare * cell_design::TextSize * style_.scale);
        const double height = device_.TextHeight(u"*");
        print(Black, device_.CurrentX() + Across * height, device_.CurrentY() - Up * height, u"*");
    }

    void paintFrames()
    {
        if (look_.isHighlighted) {
            paintFrame(colours_.highlight);
        }
        if (look_.frame) {
            paintFrame(*look_.frame);
        }
        if (look_.isTaken) {
            paintTaken();
        }
    }

    /// Two lines, of which one can be seen on any ground.
    void paintTaken()
    {
        const double inside = FrameWidth / 2 + 1;
        paintFrame(Black);
        device_.DrawWidth(2);
        device_.Line(left_ + inside, top_ + inside, right_ - 1 - inside, bottom_ - 1 - inside, White,
                     LineShape::Box);
        device_.DrawWidth(1);
    }

    void paintFrame(Colour colour)
    {
        device_.DrawWidth(FrameWidth);
        device_.Line(left_, top_, right_ - 1, bottom_ - 1, colour, LineShape::Box);
        device_.DrawWidth(1);
    }

    DrawDevice& device_;
    const ElementCell& cell_;
    const CellStyle& style_;
    const CellColours& colours_;
    const CellLook& look_;
    double left_;
    double top_;
    double right_;
    double bottom_;
};

} // namespace

double CellStyle::textSize() const
{
    double size = cell_design::TextSize * scale;
    if (size > LargeText) {
        size *= Enlargement;
    }
    return showsNames ? NameShare * size : size;
}

ElementCell ElementCell::of(std::shared_ptr<cls_DataElement> element, const PixelRectangle& area, Colour base,
                            const CellColours& colours)
{
    const Colour text = element->LIQUID() ? colours.liquid : element->GAS() ? colours.gas : colours.solid;
    String symbol = element->SYMBOL();
    return {area, std::move(element), std::move(symbol), text, base};
}

void ElementCell::paint(DrawDevice& device, const CellStyle& style, const CellLook& look) const
{
    CellPainter(device, *this, style, look).paint();
}

} // namespace phial
