#include "dialogs/KeyPainter.h"

#include "core/Arithmetic.h"
#include "core/CoreTheme.h"
#include "core/Palette.h"
#include "core/SessionState.h"
#include "dialogs/KeyPictures.h"
#include "dialogs/SignPainter.h"
#include "term/TermDraw.h"

#include <algorithm>
#include <vector>

namespace phial
{

namespace
{

// In pixels at scale 1.
constexpr double KeyInset = 2.5; // half of the gap between keys
constexpr double KeyRadius = 7;
constexpr double KeyEdge = 1.5;
constexpr double SignSize = 24;
constexpr double TextMargin = 6;
constexpr double LampLeft = 8;
constexpr double LampEdge = 15;

// Points at scale 1.
constexpr double CharacterPoints = 15;
constexpr double WordPoints = 11;
constexpr double TermPoints = 13;
constexpr double LeastPoints = 6;

struct KeyColours {
    Colour ground;
    Colour edge;
    Colour ink;
};

KeyColours coloursOf(const KeyLook& look)
{
    const bool isOn = look.isPressed || look.state == KeyState::Once;
    if (look.kind == KeyKind::Accept) {
        const Colour ground = isOn ? Palette::AccentPressed : Palette::Accent;
        return {ground, ground, Palette::OnAccent};
    }
    if (isOn) {
        return {Palette::Accent, Palette::Accent, Palette::OnAccent};
    }
    return {look.kind == KeyKind::Function ? Palette::Band : Palette::Surface, Palette::ControlBorder,
            Palette::Ink};
}

/// The grey of faces that say that a level is empty; by daylight the classic one.
Colour emptyInk()
{
    return coreTheme().Colours() == ColourSet::Light ? QBColor(7) : Palette::DisabledText;
}

/// The corners of a key; with a notch it stands around its neighbour at the lower left.
std::vector<PixelPoint> corners(const PixelRectangle& area, double notch)
{
    if (notch <= 0) {
        return {{area.left, area.top},
                {area.right(), area.top},
                {area.right(), area.bottom()},
                {area.left, area.bottom()}};
    }
    const double middle = area.top + area.height / 2;
    return {{area.left, area.top},         {area.right(), area.top},
            {area.right(), area.bottom()}, {area.left + notch, area.bottom()},
            {area.left + notch, middle},   {area.left, middle}};
}

/// The figure with its corners cut round.
std::vector<PixelPoint> rounded(const std::vector<PixelPoint>& figure, double radius)
{
    constexpr int Steps = 6;
    const auto towards = [radius](PixelPoint from, PixelPoint to) {
        const double length = std::abs(to.x - from.x) + std::abs(to.y - from.y); // edges are upright or level
        const double share = length > 0 ? std::min(radius, length / 2) / length : 0;
        return PixelPoint{from.x + (to.x - from.x) * share, from.y + (to.y - from.y) * share};
    };
    std::vector<PixelPoint> round;
    for (std::size_t at = 0; at < figure.size(); ++at) {
        const PixelPoint corner = figure[at];
        const PixelPoint begin = towards(corner, figure[(at + figure.size() - 1) % figure.size()]);
        const PixelPoint end = towards(corner, figure[(at + 1) % figure.size()]);
        for (int step = 0; step <= Steps; ++step) { // a quadratic curve, drawn towards the corner
            const double to = static_cast<double>(step) / Steps;
            const double from = 1 - to;
            round.push_back({from * from * begin.x + 2 * from * to * corner.x + to * to * end.x,
                             from * from * begin.y + 2 * from * to * corner.y + to * to * end.y});
        }
    }
    return round;
}

void paintGround(DrawDevice& device, const KeyLook& look, const KeyColours& colours)
{
    const double inset = KeyInset * look.scale;
    const PixelRectangle body{look.area.left + inset, look.area.top + inset, look.area.width - 2 * inset - 1,
                              look.area.height - 2 * inset - 1};
    device.FillStyle(FillStyle::Solid);
    device.FillColor(colours.ground);
    device.ForeColor(colours.edge);
    device.DrawWidth(std::max(1.0, KeyEdge * look.scale));
    device.Polygon(rounded(corners(body, look.notch), KeyRadius * look.scale));
    device.DrawWidth(1);
}

void paintLamp(DrawDevice& device, const KeyLook& look)
{
    const double left = look.area.left + LampLeft * look.scale;
    const double top = look.area.top + (look.area.height - (LampEdge + 1) * look.scale) / 2;
    const double edge = LampEdge * look.scale;
    device.Line(left, top, left + edge, top + edge, Palette::Accent, LineShape::Filled);
    device.Line(left, top, left + edge, top + edge, Palette::Ink, LineShape::Box);
}

void paintText(DrawDevice& device, const PixelRectangle& area, double scale, const String& text)
{
    device.FontName(u"Tahoma");
    device.FontSize((text.size() == 1 ? CharacterPoints : WordPoints) * scale);
    const double room = area.width - 2 * TextMargin * scale;
    const double width = device.TextWidth(text);
    if (width > room && room > 0) {
        device.FontSize(std::max(LeastPoints, device.FontSize() * room / width));
    }
    device.CurrentX(area.left + (area.width - device.TextWidth(text)) / 2);
    device.CurrentY(area.top + (area.height - device.TextHeight(text)) / 2);
    device.Print(text);
}

/// Where the caret behind the term would stand, which counts fractions too.
double widthOfTerm(DrawDevice& device, StringView term)
{
    return layOutTerm(device, term, 0, 0, TEXTALIGN::MiddleLeft).places().back().x;
}

void paintTerm(DrawDevice& device, const PixelRectangle& area, double scale, StringView term)
{
    constexpr double Margin = 7; // off the edge of a square cap
    device.FontName(u"Tahoma");
    device.FontSize(TermPoints * scale);
    const double room = area.width - 2 * Margin * scale;
    double width = widthOfTerm(device, term);
    if (width > room && room > 0) {
        device.FontSize(std::max(LeastPoints, device.FontSize() * room / width));
        width = widthOfTerm(device, term);
    }
    TermDraw(device, term, toWhole(area.left + (area.width - width) / 2), toWhole(area.top + area.height / 2),
             TEXTALIGN::MiddleLeft);
}

} // namespace

void paintCap(DrawDevice& device, const KeyLook& look)
{
    paintGround(device, look, coloursOf(look));
    if (look.state == KeyState::Locked) {
        paintLamp(device, look);
    }
}

void paintFace(DrawDevice& device, const KeyLook& look)
{
    // The face of a key with a notch stands where the key is whole.
    const PixelRectangle area{look.area.left, look.area.top, look.area.width,
                              look.notch > 0 ? look.area.height / 2 : look.area.height};
    const Colour ink = look.face.isEmpty ? emptyInk() : coloursOf(look).ink;
    device.ForeColor(ink);
    if (look.face.isSign && look.face.text.size() == 1) {
        const double size = SignSize * look.scale;
        paintSign(device, look.face.text.front(),
                  {area.left + (area.width - size) / 2, area.top + (area.height - size) / 2, size, size},
                  ink);
    } else if (look.face.isTerm) {
        paintTerm(device, area, look.scale, look.face.text);
    } else {
        paintText(device, area, look.scale, look.face.text);
    }
}

void KeyPainter::paint(DrawDevice& device, const KeyLook& look) const
{
    const PicturePtr image = device.Image();
    const PicturePtr cap = KeyPictures::current()->cap(look, image ? image->pixelRatio() : 1);
    device.PaintPicture(cap, look.area.left, look.area.top);
    paintFace(device, look);
}

} // namespace phial
