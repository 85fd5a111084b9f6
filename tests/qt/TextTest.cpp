#include "DesktopSession.h"
#include "qt/desktop/LineEnds.h"
#include "qt/desktop/SymbolSigns.h"
#include "visual/DrawDevice.h"

#include <QFontDatabase>

using namespace phial;
using namespace phial::qt;

namespace
{

class TextTest : public DesktopSession
{
protected:
    static std::shared_ptr<const FontFace> face(const FontSpec& font)
    {
        return visualHost().metrics().face(font);
    }

    // What the text covers when it is drawn in black on nothing.
    static std::size_t inkOf(const FontSpec& font, StringView text)
    {
        const auto backend = visualHost().createSurface({100, 40}, 1);
        backend->text({10, 5}, text, *visualHost().metrics().face(font), {QBColor(0)});
        std::size_t ink = 0;
        for (const std::uint32_t pixel : std::as_const(*backend->picture()).pixels()) {
            ink += pixel >> 24U;
        }
        return ink;
    }
};

TEST_F(TextTest, AnEqualFontGivesTheSameFaceAgain)
{
    FontSpec font;
    EXPECT_EQ(face(font), face(font));
    font.bold = true;
    EXPECT_NE(face(font), face(FontSpec()));
}

TEST_F(TextTest, WidthsAddUp)
{
    const auto tahoma = face(FontSpec());
    EXPECT_DOUBLE_EQ(tahoma->width(u"H2O"), tahoma->width(u"H") + tahoma->width(u"2") + tahoma->width(u"O"));
    EXPECT_EQ(tahoma->width(u""), 0);
}

TEST_F(TextTest, LinesHaveWholeHeights)
{
    for (const double size : {6.0, 8.0, 9.5, 12.0, 24.0}) {
        FontSpec font;
        font.size = size;
        const double height = face(font)->height();
        EXPECT_EQ(height, std::round(height));
        EXPECT_GT(height, font.pixelSize());
        EXPECT_LT(face(font)->ascent(), height);
    }
}

/// The heights that the real font has, whatever stands for it: layouts measure their lines by them.
TEST_F(TextTest, ASubstituteHasTheLinesOfTheFontThatItStandsFor)
{
    const auto lines = [](StringView name) {
        const auto found = face({.name = String(name), .size = 75}); // 100 pixels
        return std::pair(found->ascent(), found->height());
    };
    EXPECT_EQ(lines(u"Calibri"), std::pair(95.0, 122.0));
    EXPECT_EQ(lines(u"Tahoma"), std::pair(100.0, 121.0));
}

TEST_F(TextTest, AnUnknownNameGivesASubstitute)
{
    FontSpec font;
    font.name = u"No Such Font";
    EXPECT_GT(face(font)->width(u"Wasser"), 10);
    EXPECT_FALSE(visualHost().metrics().hasFont(font.name));
}

TEST_F(TextTest, AFontCanBeHadWhereItsTwinIsInstalled)
{
    ASSERT_TRUE(QFontDatabase::families().contains(QStringLiteral("Carlito")));
    ASSERT_FALSE(QFontDatabase::families().contains(QStringLiteral("Calibri")));
    EXPECT_TRUE(visualHost().metrics().hasFont(u"Calibri"));
    EXPECT_FALSE(visualHost().metrics().hasFont(u"Verdana")) << "what stands for it looks different";
}

TEST_F(TextTest, SignsThatAFontLacksComeFromAnother)
{
    EXPECT_GT(inkOf(FontSpec(), u"水"), 0U);
    EXPECT_GT(face(FontSpec())->width(u"⇌"), 3);
}

TEST_F(TextTest, ControlCharactersTakeNoPlace)
{
    EXPECT_EQ(face(FontSpec())->width(String(u"a\0\x01\x1F", 4)), face(FontSpec())->width(u"a"));
}

TEST_F(TextTest, ScriptsThatNeedShapingAreMeasuredAndDrawn)
{
    const StringView arabic = u"سلام";
    EXPECT_GT(face(FontSpec())->width(arabic), 5);
    EXPECT_GT(face(FontSpec())->width(u"\U0001D54F"), 0); // beyond 16 bits
    EXPECT_GT(inkOf(FontSpec(), u"e\u0301"), 0U);
}

TEST_F(TextTest, SymbolFontsShowTheirSigns)
{
    for (const auto& [name, code] : {std::pair(u"Symbol", u'»'), std::pair(u"Marlett", u'i'),
                                     std::pair(u"Wingdings", u'à'), std::pair(u"Wingdings", u'ß')}) {
        FontSpec font;
        font.name = name;
        EXPECT_TRUE(isSymbolFont(font.name));
        EXPECT_GT(inkOf(font, StringView(&code, 1)), 0U);
        EXPECT_NE(inkOf(font, StringView(&code, 1)), inkOf(FontSpec(), StringView(&code, 1)));
    }
}

TEST_F(TextTest, TheArrowsPointInTheirDirections)
{
    EXPECT_EQ(symbolSign(u"Wingdings", u'à'), u'→');
    EXPECT_EQ(symbolSign(u"wingdings", u'ß'), u'←');
    EXPECT_EQ(symbolSign(u"SYMBOL", u'»'), u'≈');
    EXPECT_EQ(symbolSign(u"Tahoma", u'»'), 0);
}

TEST_F(TextTest, UnderlinedAndStruckTextHasLines)
{
    FontSpec font;
    font.underline = true;
    EXPECT_GT(inkOf(font, u"   "), 0U);
    font.underline = false;
    font.strikethrough = true;
    EXPECT_GT(inkOf(font, u"   "), 0U);
}

TEST(LineEnds, MovePositionsAlong)
{
    const StringView text = u"ab\r\nc\r\n";
    EXPECT_EQ(withSingleEnds(text), u"ab\nc\n");
    EXPECT_EQ(withDoubleEnds(u"ab\nc\r\n"), text);
    EXPECT_EQ(toSingleEnds(text, 0), 0);
    EXPECT_EQ(toSingleEnds(text, 2), 2);
    EXPECT_EQ(toSingleEnds(text, 4), 3);
    EXPECT_EQ(toSingleEnds(text, 7), 5);
    EXPECT_EQ(toDoubleEnds(text, 2), 2);
    EXPECT_EQ(toDoubleEnds(text, 3), 4);
    EXPECT_EQ(toDoubleEnds(text, 5), 7);
}

TEST(LineEnds, PositionsComeBack)
{
    const StringView text = u"\r\n\r\na\r\nbc";
    for (const std::int32_t position : {0, 2, 4, 5, 7, 8, 9}) {
        EXPECT_EQ(toDoubleEnds(text, toSingleEnds(text, position)), position);
    }
}

} // namespace
