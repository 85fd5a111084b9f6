#pragma once

#include "core/Colour.h"
#include "core/RuntimeError.h"
#include "visual/DrawBackend.h"
#include "visual/Font.h"
#include "visual/Geometry.h"

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <span>

namespace phial
{

/// Where a device draws. A device asks for the back end at each first use, so that a surface can be made late
/// and remade when its size or pixel ratio changes.
class DrawTarget
{
public:
    virtual ~DrawTarget() = default;
    /// Raises when there is nothing to draw on.
    virtual std::shared_ptr<DrawBackend> openBackend() = 0;
    /// Something has been drawn.
    virtual void drawn() {}
};

/// What a device does with an error raised while it draws.
enum class DrawErrors : std::int32_t {
    Swallow, ///< pictures and controls: the statement has no effect
    Raise,   ///< printers
};

enum class LineShape : std::int32_t {
    Plain,  ///< leaves out its end pixel
    Box,    ///< outline of the box, both corners included
    Filled, ///< the box, both corners included
};

enum class FillStyle : std::int32_t { Solid = 0, Transparent = 1 };

/// How the pen and the fills meet what is there. Setting another value raises 5.
enum class DrawMode : std::int32_t { XorPen = 7, MaskPen = 9, CopyPen = 13 };

/// An end angle of Circle. Radians, counter-clockwise from 3 o'clock, -2 pi to 2 pi; a negative angle means
/// its absolute value with the radius drawn, and so a negative zero cannot be had.
struct CircleAngles {
    double start = 0;
    double end = 0;
};

/// Whatever can be drawn and printed on: a picture, a control's surface, the printer. One class with the
/// drawing vocabulary and its state over a small back end.
///
/// Places and sizes are in scale units (ScaleMode); sizes of fonts are points, DrawWidth is pixels. `Line`,
/// `Circle`, `PSet` and `Print` move the current point. Colours drawn in the mask colour cut holes, see
/// MaskColor; where bits are combined (DrawMode, RasterMode) it is a colour like others and a hole has it.
/// Where a statement below raises, a device that swallows errors leaves it without effect instead. A fresh
/// device has the font Tahoma 8, black on white, FillStyle transparent, DrawWidth 1, DrawMode CopyPen and
/// pixels as its unit.
class DrawDevice
{
public:
    explicit DrawDevice(std::shared_ptr<DrawBackend> backend, DrawErrors errors = DrawErrors::Swallow);
    /// The target must outlive the device.
    explicit DrawDevice(DrawTarget& target, DrawErrors errors = DrawErrors::Swallow);
    DrawDevice(const DrawDevice&) = delete;
    DrawDevice& operator=(const DrawDevice&) = delete;

    /// What is drawn is for paper: symbolic colours are those by daylight, whatever set windows are shown in.
    void onPaper() { paper_ = true; }
    /// Drops the back end; the next use asks the target again. State stays.
    void detach();

    // Font.
    const String& FontName() const { return font_.name; }
    void FontName(StringView value);
    double FontSize() const { return font_.size; }
    /// Points; a size that is not above 0 raises 5.
    void FontSize(double value);
    bool FontBold() const { return font_.bold; }
    void FontBold(bool value) { changeFont(font_.bold, value); }
    bool FontItalic() const { return font_.italic; }
    void FontItalic(bool value) { changeFont(font_.italic, value); }
    bool FontUnderline() const { return font_.underline; }
    void FontUnderline(bool value) { changeFont(font_.underline, value); }
    bool FontStrikethru() const { return font_.strikethrough; }
    void FontStrikethru(bool value) { changeFont(font_.strikethrough, value); }
    const FontSpec& font() const { return font_; }
    void font(const FontSpec& value) { changeFont(font_, value); }

    // Colours and pens.
    Colour ForeColor() const { return foreColor_; }
    void ForeColor(Colour value) { foreColor_ = value; }
    Colour BackColor() const { return backColor_; }
    void BackColor(Colour value) { backColor_ = value; }
    Colour FillColor() const { return fillColor_; }
    void FillColor(Colour value) { fillColor_ = value; }
    phial::FillStyle FillStyle() const { return fillStyle_; }
    void FillStyle(phial::FillStyle value) { fillStyle_ = value; }
    /// Pixels; a width below 1 raises 5.
    double DrawWidth() const { return drawWidth_; }
    void DrawWidth(double value);
    phial::DrawMode DrawMode() const { return drawMode_; }
    void DrawMode(phial::DrawMode value);
    /// The colour that stands for "see-through": whatever is drawn in it becomes a hole, without smoothing.
    /// None at first.
    std::optional<Colour> MaskColor() const { return maskColor_; }
    void MaskColor(std::optional<Colour> value) { maskColor_ = value; }

    /// The background is see-through whatever BackColor says: Cls leaves holes. False at first.
    bool transparent() const { return transparent_; }
    void transparent(bool value) { transparent_ = value; }

    // Units.
    ScaleUnit ScaleMode() const { return unit_; }
    /// The current point stays where it is. Raises 5 for a unit outside the named ones.
    void ScaleMode(ScaleUnit value);
    double ScaleWidth();
    double ScaleHeight();
    double ScaleX(double value, ScaleUnit from, ScaleUnit to) const { return convertUnits(value, from, to); }
    double ScaleY(double value, ScaleUnit from, ScaleUnit to) const { return convertUnits(value, from, to); }
    double CurrentX() const { return current_.x; }
    void CurrentX(double value) { current_.x = value; }
    double CurrentY() const { return current_.y; }
    void CurrentY(double value) { current_.y = value; }

    // Text. Line ends (CR, LF, CR LF) part lines; the width is that of the widest line.
    double TextWidth(StringView text);
    double TextHeight(StringView text);
    /// Prints at the current point and leaves it behind the text, at the same line.
    void Print(StringView text);
    /// Prints and goes to the start of the next line.
    void PrintLine(StringView text = {});

    // Shapes. Without a colour the fore colour is taken.
    void Cls();
    void PSet(double x, double y, std::optional<Colour> colour = std::nullopt);
    void Line(double x1, double y1, double x2, double y2, std::optional<Colour> colour = std::nullopt,
              LineShape shape = LineShape::Plain);
    /// Around (x, y); filled by FillStyle when it is whole or has both radii. `aspect` is height by width;
    /// above 1 the radius is the vertical one. Raises 5 for a negative radius or aspect and angles out of
    /// range.
    void Circle(double x, double y, double radius, std::optional<Colour> colour = std::nullopt,
                std::optional<CircleAngles> angles = std::nullopt, double aspect = 1);
    /// A closed figure, filled by FillStyle and outlined in the fore colour. Points are in scale units.
    void Polygon(std::span<const PixelPoint> points);
    /// The colour at a place; none outside and where the surface is see-through.
    std::optional<Colour> Point(double x, double y);
    /// Bands of colour over a rectangle; see DrawBackend.
    void Gradient(double left, double top, double width, double height, Colour from, Colour to, double angle,
                  int steps);
    /// Every second diagonal of a rectangle, as fine as the device's pixels; see DrawBackend. In the mask
    /// colour it lets half of what lies below through.
    void Hatch(double left, double top, double width, double height, Colour colour,
               HatchStart start = HatchStart::AtCorner);

    // Pictures.
    /// The whole picture at (x, y), in its own size unless a size is given.
    void PaintPicture(const PicturePtr& picture, double x, double y, RasterMode mode = RasterMode::Paint);
    void PaintPicture(const PicturePtr& picture, double x, double y, double width, double height,
                      RasterMode mode = RasterMode::Paint);
    /// A part of the picture (in its logical pixels), stretched into the box at (x, y).
    void PaintPicture(const PicturePtr& picture, const PixelRectangle& source, double x, double y,
                      double width, double height, RasterMode mode = RasterMode::Paint);
    /// The picture that is drawn in, not a copy; null for a printer.
    PicturePtr Image();
    /// Limits drawing to a box in scale units, both corners included, until `unclip`.
    void clip(double x1, double y1, double x2, double y2);
    void unclip();

    // Pages; nothing happens on a picture.
    void NewPage();
    void EndDoc();

private:
    template <typename Statement>
    void draw(Statement&& statement);
    DrawBackend& backend();
    /// The back end for a statement that leaves something behind.
    DrawBackend& canvas();
    const FontFace& face();
    void printOneLine(StringView line);
    void startNextLine();
    Ink ink(Colour colour) const;
    std::optional<Fill> fill() const;
    Stroke stroke(Colour colour) const;
    Raster raster(RasterMode mode) const;
    RasterMode penMode() const;
    Ink penInk(Colour colour) const;
    Colour shown(Colour colour) const;
    double toPixels(double value) const { return value / unitsPerPixel_; }
    double fromPixels(double value) const { return value * unitsPerPixel_; }
    PixelPoint pixel(double x, double y) const { return {toPixels(x), toPixels(y)}; }
    PixelRectangle box(double x1, double y1, double x2, double y2) const;
    void paintArc(Arc arc, Colour colour, std::optional<CircleAngles> angles);
    /// Sets a field of the font; the face is looked up again when it is needed.
    template <typename Value>
    void changeFont(Value& field, const Value& value);

    struct CachedFace {
        FontSpec traits;
        std::shared_ptr<const FontFace> face;
    };

    DrawTarget* target_ = nullptr;
    std::shared_ptr<DrawBackend> backend_;
    DrawErrors errors_;

    FontSpec font_;
    const FontFace* face_ = nullptr; ///< of font_; null until it is needed
    std::array<CachedFace, 6> faces_;
    std::size_t nextFace_ = 0;

    Colour foreColor_ = RGB(0, 0, 0);
    Colour backColor_ = RGB(255, 255, 255);
    Colour fillColor_ = RGB(0, 0, 0);
    phial::FillStyle fillStyle_ = phial::FillStyle::Transparent;
    double drawWidth_ = 1;
    phial::DrawMode drawMode_ = phial::DrawMode::CopyPen;
    std::optional<Colour> maskColor_;
    bool transparent_ = false;
    bool paper_ = false;

    ScaleUnit unit_ = ScaleUnit::Pixels;
    double unitsPerPixel_ = 1;
    PixelPoint current_; ///< in scale units
};

template <typename Value>
void DrawDevice::changeFont(Value& field, const Value& value)
{
    if (!(field == value)) {
        field = value;
        face_ = nullptr;
    }
}

} // namespace phial
