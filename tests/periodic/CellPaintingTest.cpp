#include "periodic/CellPainting.h"

#include "chem/cls_DataElement.h"
#include "chem/cls_DataElements.h"
#include "core/CoreColors.h"
#include "core/Locale.h"
#include "core/NativePath.h"
#include "headless/FixedTextMetrics.h"
#include "headless/RecordingBackend.h"
#include "media/MediaTest.h"
#include "periodic/PeriodicSheet.h"
#include "support/Places.h"
#include "visual/DrawDevice.h"

#include <cmath>
#include <gmock/gmock-more-matchers.h>

namespace phial
{

namespace
{

using ::testing::HasSubstr;
using ::testing::Not;

std::string written(Colour colour)
{
    char text[8];
    std::snprintf(text, sizeof text, "#%02X%02X%02X", static_cast<unsigned>(colour.red()),
                  static_cast<unsigned>(colour.green()), static_cast<unsigned>(colour.blue()));
    return text;
}

/// Cells painted one by one upon a device that writes down what is drawn.
class CellPainting : public MediaTest
{
protected:
    CellPainting()
    {
        elements.IMPORT(systemPath(test::sourceFolder() / "resources" / "data" / "elements2.dat"));
        sheet.style.fontName = u"Calibri";
        fill(32);
    }

    void fill(double edge)
    {
        sheet.grid = {edge, edge};
        sheet.fill(elements);
    }

    const PeriodicSheet::Cell& cell(StringView symbol) const
    {
        return *std::find_if(sheet.cells().begin(), sheet.cells().end(),
                             [=](const PeriodicSheet::Cell& each) { return each.painted.symbol == symbol; });
    }
    std::string painted(StringView symbol, const CellLook& look = {})
    {
        recorder->forget();
        cell(symbol).painted.paint(device, sheet.style, look);
        return recorder->text();
    }
    /// What is painted with a marked sheet, as a tile too.
    std::string marked(StringView symbol)
    {
        recorder->forget();
        sheet.paintCell(device, *sheet.cellOf(cell(symbol).painted.element.get()), false);
        return recorder->text();
    }

    cls_DataElements elements;
    PeriodicSheet sheet;
    std::shared_ptr<headless::RecordingBackend> recorder = std::make_shared<headless::RecordingBackend>(
        PixelSize{100, 100}, std::make_shared<headless::FixedTextMetrics>());
    DrawDevice device{recorder};
};

TEST_F(CellPainting, HasTheColourOfTheShell)
{
    const std::pair<StringView, Colour> firsts[] = {
        {u"H", RGB(157, 152, 140)},  {u"Li", RGB(255, 150, 255)}, {u"Na", RGB(150, 255, 150)},
        {u"K", RGB(255, 150, 150)},  {u"Rb", RGB(150, 150, 255)}, {u"Cs", RGB(255, 255, 150)},
        {u"Fr", RGB(200, 100, 200)},
    };
    for (const auto& [symbol, base] : firsts) {
        EXPECT_EQ(cell(symbol).painted.base, base);
        EXPECT_THAT(painted(symbol), HasSubstr(written(CoreColors::Lighten(base, 20)) + " to " +
                                               written(CoreColors::Darken(base, 20)) + " 45 256\n"))
            << toUtf8(symbol);
    }
}

// PaleGround, grey, hovered, highlighted: all sixteen.

struct LookCase {
    bool pale, grey, hovered, highlighted;
    const char* ground; ///< the gradient's colours, or the white box
    const char* edge;   ///< of the lines at the left and above, with their width
    const char* text;   ///< colour of the symbol
};

constexpr const char* WhiteGround = "box 256,160 32x32 fill #FFFFFF\n";
constexpr const char* NoEdge = "";
constexpr const char* FullGround = "gradient 256,160 32x32 #ABFFAB to #78CC78 45 256\n";
constexpr const char* FullEdge = "line 257,161 - 257,190 #B3FFB3 w2\n";
constexpr const char* PaleGround = "gradient 256,160 32x32 #E6FFE6 to #D6F0D6 45 256\n";
constexpr const char* PaleEdge = "line 257,161 - 257,190 #E8FFE8\n";
constexpr const char* GreyGround = "gradient 256,160 32x32 #C0C0C0 to #C0C0C0 45 256\n";
constexpr const char* GreyEdge = "line 257,161 - 257,190 #C6C6C6 w2\n";
constexpr const char* PaleGreyEdge = "line 257,161 - 257,190 #C6C6C6\n";
constexpr const char* BlackInk = "#000000";
constexpr const char* PaleInk = "#B2B2B2";

constexpr LookCase Looks[] = {
    {false, false, false, false, FullGround, FullEdge, BlackInk},
    {false, false, false, true, FullGround, FullEdge, BlackInk},
    {false, false, true, false, WhiteGround, NoEdge, BlackInk},
    {false, false, true, true, WhiteGround, NoEdge, BlackInk},
    {false, true, false, false, GreyGround, GreyEdge, BlackInk},
    {false, true, false, true, GreyGround, GreyEdge, BlackInk},
    {false, true, true, false, WhiteGround, NoEdge, BlackInk},
    {false, true, true, true, WhiteGround, NoEdge, BlackInk},
    {true, false, false, false, PaleGround, PaleEdge, PaleInk},
    {true, false, false, true, PaleGround, PaleEdge, PaleInk},
    {true, false, true, false, WhiteGround, NoEdge, PaleInk},
    {true, false, true, true, WhiteGround, NoEdge, PaleInk},
    {true, true, false, false, GreyGround, PaleGreyEdge, PaleInk},
    {true, true, false, true, GreyGround, PaleGreyEdge, PaleInk},
    {true, true, true, false, WhiteGround, NoEdge, PaleInk},
    {true, true, true, true, WhiteGround, NoEdge, PaleInk},
};

TEST_F(CellPainting, HasSixteenLooks)
{
    for (const LookCase& look : Looks) {
        SCOPED_TRACE(&look - Looks);
        CellLook given;
        given.isPale = look.pale;
        given.isGrey = look.grey;
        given.isHovered = look.hovered;
        given.isHighlighted = look.highlighted;
        const std::string all = painted(u"Fe", given);
        EXPECT_THAT(all, HasSubstr(look.ground));
        EXPECT_THAT(all, HasSubstr(look.edge));
        EXPECT_THAT(all, HasSubstr(std::string("\"Fe\" Calibri 10 ") + look.text));
        EXPECT_THAT(all,
                    HasSubstr(std::string("\" 26\" Small Fonts 6.5 ") + (look.pale ? "#FFB2B2" : "#FF0000")));
        EXPECT_THAT(
            all, HasSubstr(std::string("\" 55,8\" Small Fonts 6.5 ") + (look.pale ? "#C0C9C0" : "#2D4C2D")));
        EXPECT_EQ(all.find("gradient") == std::string::npos, look.hovered);
        EXPECT_EQ(all.find("line 257,161") == std::string::npos, look.hovered);
        EXPECT_EQ(all.find("#FFCC00 w3") != std::string::npos, look.highlighted);
        EXPECT_EQ(device.DrawWidth(), 1);
    }
}

TEST_F(CellPainting, LaysAFurtherFrameUponThatOfTheHighlight)
{
    sheet.marks.highlight = u"Fe";
    sheet.marks.frames->Add(u"Fe", 0x0000FF);
    EXPECT_THAT(marked(u"Fe"), HasSubstr("box 256,160 32x32 line #FFCC00 w3\n"
                                         "box 256,160 32x32 line #FF0000 w3\n"
                                         "clip none\n"));
    EXPECT_EQ(device.DrawWidth(), 1);
}

TEST_F(CellPainting, FramesATakenTileInBlackAndWhite)
{
    CellLook look;
    look.isTaken = true;
    EXPECT_THAT(painted(u"Fe", look), HasSubstr("box 256,160 32x32 line #000000 w3\n"
                                                "box 258.5,162.5 27x27 line #FFFFFF w2\n"
                                                "clip none\n"));
    EXPECT_EQ(device.DrawWidth(), 1);
}

TEST_F(CellPainting, SignsGrowWithTheCellAndStayInItsCorner)
{
    sheet.style.colours = &CellColours::of(TableColours::Distinct);
    const auto sign = [&](StringView symbol) {
        const std::string all = painted(symbol);
        const std::size_t end = all.rfind("clip none");
        const std::size_t begin = all.rfind('\n', end - 2) + 1;
        return all.substr(begin, end - begin);
    };
    EXPECT_EQ(sign(u"Fe"), "box 280,184 5x5 fill #000000\n");
    fill(64);
    EXPECT_EQ(sign(u"Fe"), "box 563,371 10x10 fill #000000\n");
    EXPECT_EQ(sign(u"O"), "arc 1080,248 r5x5 line #5A0032 w2\n");
    EXPECT_EQ(sign(u"Hg"), "polygon 824,498 827.5,504 828,506.5 826,509 822,509 820,506.5 820.5,504 "
                           "fill #00008B line #00008B\n");
    EXPECT_EQ(device.DrawWidth(), 1);
}

TEST_F(CellPainting, LeavesThePlaceOfATileWithoutTextButWithItsFrames)
{
    sheet.marks.isPlacing = true;
    sheet.marks.highlight = u"Fe";
    const std::string place = marked(u"Fe");
    EXPECT_THAT(place, HasSubstr(PaleGround));
    EXPECT_THAT(place, Not(HasSubstr("text")));
    EXPECT_THAT(place, HasSubstr("#FFCC00 w3"));
}

// Texts.

TEST_F(CellPainting, HasALargerSymbolWhereItIsOver15Points)
{
    fill(48);
    EXPECT_THAT(painted(u"O"), HasSubstr("\"O\" Calibri 15 "));
    EXPECT_THAT(painted(u"O"), HasSubstr("\"*\" Calibri 12 "));
    EXPECT_THAT(painted(u"O"), HasSubstr("\" 8\" Calibri 9.75 "));
    fill(64);
    EXPECT_THAT(painted(u"O"), HasSubstr("\"O\" Calibri 24 "));
    EXPECT_THAT(painted(u"O"), HasSubstr("\"*\" Calibri 16 ")); // of the size before it is enlarged
    EXPECT_THAT(painted(u"O"), HasSubstr("\" 8\" Calibri 13 "));
    sheet.style.showsNames = true;
    EXPECT_THAT(painted(u"Fe"), HasSubstr("\"Eisen\" Calibri 15.84 "));
}

TEST_F(CellPainting, SetsANameThatIsTooWideSmallerUpToTheHalf)
{
    sheet.style.showsNames = true;
    EXPECT_THAT(painted(u"Xe"), HasSubstr("\"Xenon\" Calibri 6.6 ")); // 5 letters: 16.5 wide of 28
    cell(u"Xe").painted.element->NAME(u"Zehnzeichen");                // 36.3 wide
    EXPECT_THAT(painted(u"Xe"), HasSubstr("\"Zehnzeichen\" Calibri 5.091 "));
    cell(u"Xe").painted.element->NAME(u"DreissigZeichenSindAllzuVieleNo");
    EXPECT_THAT(painted(u"Xe"), HasSubstr("Calibri 3.3 "));
}

TEST_F(CellPainting, WritesMassesWithTheDecimalSignOfThePlace)
{
    EXPECT_THAT(painted(u"Fe"), HasSubstr("\" 55,8\""));
    Locale english;
    english.decimalSign = u'.';
    const LocaleBinding binding(english);
    EXPECT_THAT(painted(u"Fe"), HasSubstr("\" 55.8\""));
}

TEST_F(CellPainting, TakesNoTraitOfTheDevicesFont)
{
    const std::string plain = painted(u"Fe");
    device.FontBold(true);
    device.FontSize(20);
    device.FontName(u"Tahoma");
    EXPECT_EQ(painted(u"Fe"), plain);
}

TEST_F(CellPainting, PutsAnUnknownSymbolOnAGreyTile)
{
    DragTile& tile = *sheet.tiles.add(u"Zz", sheet.grid);
    tile.element = nullptr;
    DragTile& known = *sheet.tiles.add(u"Na", sheet.grid);
    known.element = elements.ITEM(Variant(u"Na"), false);
    recorder->forget();
    sheet.paint(device, nullptr);
    const std::string all = recorder->text();
    const std::string ground = written(CoreColors::Lighten(QBColor(7), 20));
    EXPECT_THAT(all, HasSubstr("gradient 96,288 32x32 " + ground));
    EXPECT_THAT(all, HasSubstr("gradient 144,288 32x32 #ABFFAB"));
}

} // namespace

} // namespace phial
