#pragma once

#include "visual/TextMetrics.h"

#include <QFont>
#include <QPointF>
#include <QRawFont>
#include <QTextLayout>

#include <array>
#include <deque>
#include <span>
#include <unordered_map>
#include <vector>

namespace phial::qt
{

/// A piece of a line of text that comes from one font: glyphs with their places from the line's start, in
/// logical pixels.
struct GlyphPiece {
    std::size_t font = 0; ///< see QtFontFace::rawFont
    std::vector<quint32> glyphs;
    std::vector<QPointF> places;
};

/// A font made ready for fast drawing and measuring of short texts: each sign is looked up once and then
/// known with its glyph and advance. Signs that the font lacks come from others; codes of symbol fonts become
/// signs where the installed font does not hold them. Lines in scripts that need shaping go through the
/// toolkit's text layout.
class QtFontFace final : public FontFace
{
public:
    explicit QtFontFace(const FontSpec& traits);

    double width(StringView text) const override;
    double height() const override { return ascent_ + descent_; }
    double ascent() const override { return ascent_; }

    const FontSpec& traits() const { return traits_; }

    /// Whether the text's glyphs depend on their neighbours; `pieces` is not for such a text but `layOut`.
    static bool needsShaping(StringView text);
    /// The glyphs of a line. The result is good until the next call.
    std::span<const GlyphPiece> pieces(StringView text) const;
    /// The shaped line for a ratio, in pixels of that ratio.
    void layOut(QTextLayout& layout, StringView text, double ratio) const;

    /// One of the fonts that pieces name, for a pixel ratio.
    const QRawFont& rawFont(std::size_t font, double ratio) const;

    /// From the base line to the middle of the lines, and their thickness, in logical pixels.
    double underlinePosition() const { return underlinePosition_; }
    double strikeOutPosition() const { return ascent_ * StrikeOutHeight; }
    double lineThickness() const { return lineThickness_; }

private:
    static constexpr double StrikeOutHeight = -0.3;
    static constexpr std::size_t DirectSigns = 256;

    struct Glyph {
        quint32 index = 0;
        std::uint32_t font = 0;
        double advance = -1; ///< below 0: not looked up yet
    };
    struct ScaledFonts {
        double ratio;
        std::vector<QRawFont> fonts;
    };

    void readMetrics();
    const Glyph& glyph(char16_t sign) const;
    Glyph find(char16_t sign) const;
    Glyph findSymbol(char16_t code) const;
    bool take(std::size_t font, char16_t sign, Glyph& rGlyph) const;
    Glyph findElsewhere(char16_t sign) const;
    std::size_t fontNumber(const QRawFont& font) const;

    FontSpec traits_;
    QFont font_;
    bool symbols_;
    double ascent_ = 0;
    double descent_ = 0;
    double underlinePosition_ = 0;
    double lineThickness_ = 1;
    mutable std::vector<QRawFont> fonts_; ///< at ratio 1; the first is the font itself
    mutable std::deque<ScaledFonts> scaled_;
    mutable std::array<Glyph, DirectSigns> direct_;
    mutable std::unordered_map<char16_t, Glyph> others_;
    mutable std::vector<GlyphPiece> pieces_;
    mutable std::size_t pieceCount_ = 0;
};

} // namespace phial::qt
