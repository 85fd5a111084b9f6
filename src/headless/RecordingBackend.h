#pragma once

#include "visual/DrawBackend.h"

#include <string>
#include <vector>

namespace phial::headless
{

/// Writes down what is drawn, one line a primitive, in UTF-8:
///
///     clear #FFFFFF                                   (a hole is written `cut` in place of the colour)
///     box 2,2 44x44 fill #3399FF and                  (fill, line or both)
///     line 0,0 - 10,0 #000000                         (w2: the width, where it is not 1)
///     arc 34,31 r4x4 fill #000000 line #000000
///     arc 5,5 r5x5 1.571..3.142 pie fill #FFFF96 line #808000
///     polygon 0,0 8,4 0,8 fill #FFFF96 line #808000
///     text 3,4 "H" Tahoma 8 bold #FF0000
///     image 32x32 from 0,0 32x32 to 4,4 32x32 xor
///     image 32x32 from 0,0 32x32 to 4,4 32x32 and holes #FF00FF
///     gradient 0,0 32x32 #FFFFFF to #808080 45 256
///     hatch 0,0 100x60 cut beside                     (not through the corner)
///     clip 0,0 10x10 | clip none | page | end
///
/// Numbers have up to three decimals. System colours are written by what they stand for without a desktop.
/// The picture is kept as far as tests of holes and of `Point` need it: clearing, filled boxes, hatches and
/// unstretched images take effect at ratio 1, in every mode; everything else is only written down.
class RecordingBackend final : public DrawBackend
{
public:
    RecordingBackend(PixelSize size, std::shared_ptr<TextMetrics> metrics);

    const std::vector<std::string>& lines() const { return lines_; }
    /// All lines in one text, each with a line end.
    std::string text() const;
    /// Forgets the lines, not the picture.
    void forget() { lines_.clear(); }

    PixelSize size() const override { return size_; }
    TextMetrics& metrics() override { return *metrics_; }
    PicturePtr picture() const override { return picture_; }
    void clear(Ink ink) override;
    void rectangle(const PixelRectangle& area, std::optional<Fill> fill,
                   std::optional<Stroke> outline) override;
    void line(PixelPoint from, PixelPoint to, const Stroke& stroke) override;
    void arc(const Arc& arc, std::optional<Fill> fill, std::optional<Stroke> outline) override;
    void polygon(std::span<const PixelPoint> points, std::optional<Fill> fill,
                 std::optional<Stroke> outline) override;
    void text(PixelPoint topLeft, StringView text, const FontFace& face, Ink ink) override;
    void image(const Picture& picture, const PixelRectangle& source, const PixelRectangle& target,
               Raster raster) override;
    void gradient(const PixelRectangle& area, Colour from, Colour to, double angle, int steps) override;
    void hatch(const PixelRectangle& area, Ink ink, HatchStart start) override;
    std::optional<Colour> pixel(PixelPoint point) const override;
    void clip(std::optional<PixelRectangle> area) override;
    void newPage() override { lines_.emplace_back("page"); }
    void endDocument() override { lines_.emplace_back("end"); }

private:
    template <typename Change>
    void changePixels(const PixelRectangle& area, Change&& change);

    PixelSize size_;
    std::shared_ptr<TextMetrics> metrics_;
    PicturePtr picture_;
    std::vector<std::string> lines_;
};

} // namespace phial::headless
