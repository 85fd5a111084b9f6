#include "qt/desktop/QtFontFace.h"

#include "qt/base/QtText.h"
#include "qt/desktop/FontCatalogue.h"
#include "qt/desktop/SymbolSigns.h"

#include <QGlyphRun>
#include <QTextLine>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace phial::qt
{

namespace
{

constexpr int MeasuringRatio = 16; // shaped texts are measured this much larger, since pixel sizes are whole
constexpr char16_t PrivateCodes = 0xF000; // where symbol fonts keep their codes

struct Range {
    char16_t first;
    char16_t last;
};

// Scripts that join, reorder or stack, and halves of signs beyond 16 bits.
constexpr Range ShapedRanges[] = {
    {0x0300, 0x036F}, {0x0590, 0x109F}, {0x1100, 0x11FF}, {0x1700, 0x1CFF}, {0x1DC0, 0x1DFF},
    {0x200C, 0x200F}, {0x202A, 0x202E}, {0x2066, 0x2069}, {0x20D0, 0x20FF}, {0xA800, 0xABFF},
    {0xD800, 0xDFFF}, {0xFB1D, 0xFDFF}, {0xFE00, 0xFE2F}, {0xFE70, 0xFEFE},
};

int readSigned(const QByteArray& table, qsizetype place)
{
    const auto high = static_cast<unsigned char>(table[place]);
    const auto low = static_cast<unsigned char>(table[place + 1]);
    return static_cast<std::int16_t>((high << 8U) | low);
}

QFont toolkitFont(const FontSpec& traits, double ratio)
{
    QFont font = fontCatalogue().font(traits);
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(traits.pixelSize() * ratio))));
    font.setUnderline(false);
    font.setStrikeOut(false);
    font.setStyleStrategy(QFont::NoSubpixelAntialias);
    return font;
}

QRawFont sized(const QRawFont& font, double pixelSize)
{
    QRawFont copy = font;
    copy.setPixelSize(pixelSize);
    return copy;
}

void layOutLine(QTextLayout& layout)
{
    layout.setCacheEnabled(true);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
}

} // namespace

QtFontFace::QtFontFace(const FontSpec& traits)
    : traits_(traits), font_(toolkitFont(traits, 1)), symbols_(isSymbolFont(traits.name))
{
    fonts_.push_back(sized(QRawFont::fromFont(font_), traits_.pixelSize()));
    readMetrics();
}

// The figures for line heights that layouts expect or the font's own, which do not depend on how a rasteriser
// rounds them, in whole pixels so that lines of text stay crisp.
void QtFontFace::readMetrics()
{
    constexpr qsizetype AscentPlace = 4;
    constexpr qsizetype DescentPlace = 6;
    const QRawFont& font = fonts_.front();
    const QByteArray table = font.fontTable("hhea");
    const double unit = font.unitsPerEm() > 0 ? traits_.pixelSize() / font.unitsPerEm() : 0;
    if (const auto lines = designedLines(traits_.name)) {
        ascent_ = std::round(lines->ascent * traits_.pixelSize());
        descent_ = std::round(lines->descent * traits_.pixelSize());
    } else if (table.size() >= DescentPlace + 2 && unit > 0) {
        ascent_ = std::round(readSigned(table, AscentPlace) * unit);
        descent_ = std::round(-readSigned(table, DescentPlace) * unit);
    } else {
        ascent_ = std::round(font.ascent());
        descent_ = std::round(font.descent());
    }
    underlinePosition_ = std::max(1.0, std::round(font.underlinePosition()));
    lineThickness_ = std::max(1.0, std::round(font.lineThickness()));
}

bool QtFontFace::needsShaping(StringView text)
{
    return std::any_of(text.begin(), text.end(), [](char16_t unit) {
        return unit >= ShapedRanges[0].first &&
               std::any_of(std::begin(ShapedRanges), std::end(ShapedRanges),
                           [unit](Range range) { return unit >= range.first && unit <= range.last; });
    });
}

void QtFontFace::layOut(QTextLayout& layout, StringView text, double ratio) const
{
    layout.setFont(toolkitFont(traits_, ratio));
    layout.setText(toQt(text));
    layOutLine(layout);
}

double QtFontFace::width(StringView text) const
{
    if (needsShaping(text)) {
        QTextLayout layout;
        layOut(layout, text, MeasuringRatio);
        return layout.lineAt(0).horizontalAdvance() / MeasuringRatio;
    }
    double width = 0;
    for (const char16_t sign : text) {
        width += glyph(sign).advance;
    }
    return width;
}

std::span<const GlyphPiece> QtFontFace::pieces(StringView text) const
{
    pieceCount_ = 0;
    double x = 0;
    for (const char16_t sign : text) {
        const Glyph& found = glyph(sign);
        if (pieceCount_ == 0 || pieces_[pieceCount_ - 1].font != found.font) {
            if (pieceCount_ == pieces_.size()) {
                pieces_.emplace_back();
            }
            GlyphPiece& begun = pieces_[pieceCount_++];
            begun.font = found.font;
            begun.glyphs.clear();
            begun.places.clear();
        }
        GlyphPiece& piece = pieces_[pieceCount_ - 1];
        piece.glyphs.push_back(found.index);
        piece.places.emplace_back(x, 0);
        x += found.advance;
    }
    return {pieces_.data(), pieceCount_};
}

const QRawFont& QtFontFace::rawFont(std::size_t font, double ratio) const
{
    auto scaled = std::find_if(scaled_.begin(), scaled_.end(),
                               [ratio](const ScaledFonts& fonts) { return fonts.ratio == ratio; });
    if (scaled == scaled_.end()) {
        scaled_.push_back({ratio, {}});
        scaled = std::prev(scaled_.end());
    }
    while (scaled->fonts.size() <= font) {
        scaled->fonts.push_back(sized(fonts_[scaled->fonts.size()], traits_.pixelSize() * ratio));
    }
    return scaled->fonts[font];
}

const QtFontFace::Glyph& QtFontFace::glyph(char16_t sign) const
{
    Glyph& known = sign < DirectSigns ? direct_[sign] : others_[sign];
    if (known.advance < 0) {
        known = find(sign);
    }
    return known;
}

QtFontFace::Glyph QtFontFace::find(char16_t sign) const
{
    if (symbols_) {
        return findSymbol(sign);
    }
    Glyph glyph;
    return take(0, sign, glyph) ? glyph : findElsewhere(sign);
}

// A true symbol font keeps its codes in the private area. One that stands in for it may hold the sign under
// its own number, or nothing of use.
QtFontFace::Glyph QtFontFace::findSymbol(char16_t code) const
{
    Glyph glyph;
    const char16_t sign = symbolSign(traits_.name, code);
    if (code < DirectSigns && take(0, static_cast<char16_t>(PrivateCodes + code), glyph)) {
        return glyph;
    }
    if (sign != 0) {
        return take(0, sign, glyph) ? glyph : findElsewhere(sign);
    }
    return take(0, code, glyph) ? glyph : findElsewhere(code);
}

bool QtFontFace::take(std::size_t font, char16_t sign, Glyph& rGlyph) const
{
    const QRawFont& raw = fonts_[font];
    const QChar character(sign);
    quint32 index = 0;
    int count = 1;
    if (!raw.glyphIndexesForChars(&character, 1, &index, &count) || count != 1 || index == 0) {
        return false;
    }
    QPointF advance;
    raw.advancesForGlyphIndexes(&index, &advance, 1, QRawFont::UseDesignMetrics);
    rGlyph = {index, static_cast<std::uint32_t>(font), std::max(advance.x(), 0.0)};
    return true;
}

// Asks the toolkit's text layout, which knows the fonts that stand in. Control characters have no glyph and
// no width.
QtFontFace::Glyph QtFontFace::findElsewhere(char16_t sign) const
{
    Glyph glyph;
    glyph.advance = 0;
    if (sign < u' ') {
        return glyph;
    }
    QTextLayout layout(QString(QChar(sign)), font_);
    layOutLine(layout);
    const QList<QGlyphRun> runs = layout.glyphRuns();
    if (!runs.isEmpty()) {
        const QRawFont font = sized(runs.front().rawFont(), traits_.pixelSize());
        if (!take(fontNumber(font), sign, glyph)) {
            glyph.advance = traits_.pixelSize() / 2;
        }
    }
    return glyph;
}

std::size_t QtFontFace::fontNumber(const QRawFont& font) const
{
    const auto known = std::find(fonts_.begin(), fonts_.end(), font);
    if (known != fonts_.end()) {
        return static_cast<std::size_t>(std::distance(fonts_.begin(), known));
    }
    fonts_.push_back(font);
    return fonts_.size() - 1;
}

} // namespace phial::qt
