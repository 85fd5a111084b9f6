#include "PeriodicTableTest.h"

#include "app/cls_AppConfig.h"
#include "periodic/SheetMode.h"
#include "support/Raises.h"
#include "support/TemporaryFolder.h"
#include "visual/VisualHost.h"

#include <cmath>
#include <gmock/gmock-more-matchers.h>

namespace phial
{

namespace
{

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

class PeriodicTable : public PeriodicTableTest
{
};

TEST_F(PeriodicTable, IsFreshWithTheseValues)
{
    EXPECT_EQ(table->BACKCOLOR(), RGB(255, 255, 255));
    EXPECT_EQ(table->HIGHLIGHT(), u"");
    EXPECT_FALSE(table->FIXEDSIZE());
    EXPECT_EQ(table->MODE(), enm_PSEMode::ID_PSEMode_Normal);
    EXPECT_FALSE(table->ELEKTRONENZUSTAND());
    EXPECT_EQ(table->BUBBLE(), nullptr);
    EXPECT_EQ(table->FADED()->Count(), 0);
    EXPECT_EQ(table->GONE()->Count(), 0);
    EXPECT_EQ(table->HIGHLIGHTS()->Count(), 0);
}

TEST_F(PeriodicTable, KeepsFourProperties)
{
    table->BACKCOLOR(RGB(1, 2, 3));
    table->FIXEDSIZE(true);
    table->MODE(enm_PSEMode::ID_PSEMode_Place);
    table->ELEKTRONENZUSTAND(true);
    PropertyBag bag;
    table->writeProperties(bag);
    EXPECT_EQ(bag.ReadProperty(u"ElektronenZustand").toText(), Variant(true).toText());
    const auto other = form->add<ctl_PSE>(u"frm_Q");
    other->readProperties(bag);
    EXPECT_EQ(other->BACKCOLOR(), RGB(1, 2, 3));
    EXPECT_TRUE(other->FIXEDSIZE());
    EXPECT_EQ(other->MODE(), enm_PSEMode::ID_PSEMode_Place);
    EXPECT_TRUE(other->ELEKTRONENZUSTAND());
    EXPECT_EQ(other->HIGHLIGHT(), u"");
}

TEST_F(PeriodicTable, HasTheSizeOfItsCells)
{
    table->Move(10, 20, 100, 100);
    EXPECT_EQ(table->Width(), 19 * 32 + 1);
    EXPECT_EQ(table->Height(), 12.5 * 32 + 1);
    EXPECT_EQ(table->Left(), 10);
    EXPECT_EQ(table->Top(), 20);
}

TEST_F(PeriodicTable, OfFixedSizeFitsItsCells)
{
    load();
    table->FIXEDSIZE(true);
    table->Move(0, 0, 19 * 65, 12.5 * 49);
    EXPECT_EQ(table->Width(), 19 * 65);
    EXPECT_THAT(cell("H"),
                HasSubstr("\"H\" Calibri 15 ")); // 10 points for 32 pixels; the smaller edge has 48
    table->FIXEDSIZE(false);
    EXPECT_EQ(table->Width(), 19 * 64 + 1);
    EXPECT_EQ(table->Height(), 12.5 * 48 + 1);
}

TEST_F(PeriodicTable, LoadingBringsBackCellsOfTheUsualSizeUnlessItIsFixed)
{
    table->FIXEDSIZE(true);
    table->Move(0, 0, 19 * 65, 12.5 * 65);
    load();
    EXPECT_EQ(table->parts().front().area, (PixelRectangle{64, 128, 64, 64}));
    table->FIXEDSIZE(false);
    load();
    EXPECT_EQ(table->Width(), 19 * 32 + 1);
    EXPECT_EQ(table->parts().front().area, (PixelRectangle{32, 64, 32, 32}));
}

TEST_F(PeriodicTable, ShowsNothingBeforeItsFileIsLoaded)
{
    EXPECT_THAT(drawn(), Not(HasSubstr("text")));
    EXPECT_THAT(table->parts(), IsEmpty());
    table->REDRAW();
    press(over(0, 0));
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(PeriodicTable, OfAMissingFileStaysEmptyAndTakesTheNextOne)
{
    EXPECT_RAISES(table->LOAD(u"C:\\missing.dat"), FileNotFound);
    EXPECT_THAT(table->parts(), IsEmpty());
    load();
    EXPECT_EQ(table->parts().size(), 118U);
}

TEST_F(PeriodicTable, OfAnEmptyFileTakesTheNextOne)
{
    const test::TemporaryFolder place;
    place.write("none.dat", "");
    ignoringErrors([&] { table->LOAD(systemPath(place.native() / "none.dat")); });
    load();
    EXPECT_EQ(table->parts().size(), 118U);
}

TEST_F(PeriodicTable, ReadsItsFileOnce)
{
    load();
    table->LOAD(u"C:\\missing.dat");
    EXPECT_EQ(table->parts().size(), 118U);
}

TEST_F(PeriodicTable, LeavesOutElementsThatTheFileLacks)
{
    const test::TemporaryFolder place;
    std::string text;
    for (int number = 1; number <= 103; ++number) {
        text += "X" + std::to_string(number) + "\nName\n1\n";
    }
    place.write("some.dat", text);
    load();
    const auto all = table->parts();
    const auto other = form->add<ctl_PSE>(u"frm_Q");
    other->LOAD(systemPath(place.native() / "some.dat"));
    const auto some = other->parts();
    ASSERT_EQ(some.size(), 103U);
    for (std::size_t at = 0; at < some.size(); ++at) {
        EXPECT_EQ(some[at].area, all[at].area);
    }
}

// What is drawn.

TEST_F(PeriodicTable, DrawsACellInItsSteps)
{
    load();
    EXPECT_EQ(cell("O"), "clip 512,96 32x32\n"
                         "gradient 512,96 32x32 #FFABFF to #CC78CC 45 256\n"
                         "line 542,97 - 542,126 #B86CB8 w2\n"
                         "line 542,126 - 513,126 #B86CB8 w2\n"
                         "line 542,97 - 513,97 #FFB3FF w2\n"
                         "line 513,97 - 513,126 #FFB3FF w2\n"
                         "box 512,96 32x32 line #000000\n"
                         "text 512,119.875 \" 8\" Small Fonts 6.5 #FF0000\n"
                         "text 512,95 \" 16\" Small Fonts 6.5 #4C2D4C\n"
                         "text 525,105 \"O\" Calibri 10 #FF0000\n"
                         "text 532,102 \"*\" Calibri 8 #000000\n"
                         "clip none\n");
    EXPECT_THAT(cell("Hg"), HasSubstr("\"Hg\" Calibri 10 #0000FF\n"));
    EXPECT_THAT(cell("Hg"), Not(HasSubstr("\"*\"")));
    EXPECT_THAT(cell("Br"), HasSubstr("\"*\" Calibri 8 #000000\n"));
}

TEST_F(PeriodicTable, DrawsPaleAndHighlightedCells)
{
    load();
    table->HIGHLIGHT(u"Hg");
    EXPECT_EQ(cell("Fe"), "clip 256,160 32x32\n"
                          "gradient 256,160 32x32 #E6FFE6 to #D6F0D6 45 256\n"
                          "line 286,161 - 286,190 #C1D8C1\n"
                          "line 286,190 - 257,190 #C1D8C1\n"
                          "line 286,161 - 257,161 #E8FFE8\n"
                          "line 257,161 - 257,190 #E8FFE8\n"
                          "box 256,160 32x32 line #B2B2B2\n"
                          "text 256,183.875 \" 26\" Small Fonts 6.5 #FFB2B2\n"
                          "text 256,159 \" 55,8\" Small Fonts 6.5 #C0C9C0\n"
                          "text 267,169 \"Fe\" Calibri 10 #B2B2B2\n"
                          "clip none\n");
    EXPECT_THAT(cell("Hg"), HasSubstr("w2\n"));
    EXPECT_THAT(cell("Hg"), HasSubstr("box 384,224 32x32 line #FFCC00 w3\nclip none\n"));
}

TEST_F(PeriodicTable, IsPaleButForItsHighlightAndElseButForItsFadedElements)
{
    load();
    const auto fullCells = [&] { // whose edges are two pixels wide, each of the four
        const std::string all = drawn();
        std::size_t edges = 0;
        for (std::size_t at = all.find(" w2\n"); at != std::string::npos; at = all.find(" w2\n", at + 1)) {
            ++edges;
        }
        return edges / 4;
    };
    EXPECT_EQ(fullCells(), 118U);
    table->HIGHLIGHT(u"Hg");
    EXPECT_EQ(fullCells(), 1U);
    EXPECT_THAT(cell("Hg"), HasSubstr(" w2\n"));
    table->FADED()->Add(u"Fe");
    table->FADED()->Add(u"Hg");
    table->REDRAW();
    EXPECT_EQ(fullCells(), 1U) << "the highlight stands above";
    table->HIGHLIGHT(u"");
    EXPECT_EQ(fullCells(), 116U);
    table->FADED()->Clear();
    table->REDRAW();
    EXPECT_EQ(fullCells(), 118U);
}

TEST_F(PeriodicTable, DrawsGreyCellsAndFurtherFrames)
{
    load();
    table->GONE()->Add(u"Fe");
    table->HIGHLIGHTS()->Add(u"Fe", 0x0000FF);
    table->REDRAW();
    EXPECT_THAT(cell("Fe"), HasSubstr("gradient 256,160 32x32 #C0C0C0 to #C0C0C0 45 256\n"));
    EXPECT_THAT(cell("Fe"), HasSubstr("box 256,160 32x32 line #FF0000 w3\nclip none\n"));
}

TEST_F(PeriodicTable, ShowsNamesIfTheSheetModeSaysSoWhileItLoads)
{
    {
        const NamesSheet names;
        load();
    }
    EXPECT_THAT(cell("Sauer-"), HasSubstr("\"Sauer-\" Calibri 6.6 #FF0000\n"));
    EXPECT_THAT(cell("Sauer-"), HasSubstr("\"stoff\" Calibri 6.6 #FF0000\n"));
    EXPECT_THAT(cell("Sauer-"), Not(HasSubstr("\"*\"")));
    EXPECT_THAT(cell("Eisen"), HasSubstr("\"Eisen\" Calibri 6.6 #000000\n"));
    table->REDRAW();
    EXPECT_NE(cell("Eisen"), "");
    const auto other = form->add<ctl_PSE>(u"frm_Q");
    other->LOAD(elementFile());
    EXPECT_NE(outside.visual().drawing(*other).find("\"Fe\""), std::string::npos);
}

TEST_F(PeriodicTable, ForgetsTheSheetModeWhereLoadingFails)
{
    EXPECT_RAISES((NamesSheet(), table->LOAD(u"C:\\missing.dat")), FileNotFound);
    EXPECT_FALSE(SheetMode::current()->showsNames());
}

TEST_F(PeriodicTable, TakesSmallFontsForSmallCells)
{
    load();
    table->FIXEDSIZE(true);
    for (const double edge : {38.0, 38.4}) { // 6/5 of 32 is 38.4
        table->Move(0, 0, 19 * (edge + 1), 12.5 * (edge + 1));
        EXPECT_EQ(cell("O").find("Small Fonts") != std::string::npos, edge < 38.4) << edge;
    }
}

TEST_F(PeriodicTable, ShowsElectronStatesFromTheNextRedrawOn)
{
    load();
    drawn();
    table->ELEKTRONENZUSTAND(true);
    EXPECT_EQ(drawn().find("\"d\""), std::string::npos);
    table->REDRAW();
    const std::string all = drawn();
    EXPECT_NE(all.find("\"10\" Calibri"), std::string::npos);
    std::size_t count = 0;
    for (std::size_t at = all.find("\"f\""); at != std::string::npos; at = all.find("\"f\"", at + 1)) {
        ++count;
    }
    EXPECT_EQ(count, 14U);
}

TEST_F(PeriodicTable, HasCaptions)
{
    load();
    const std::string all = drawn();
    for (const char* const text : {"I", "VIII", "VIIIa", "IIa", "Haupt-", "Gruppen", "Nebengruppen",
                                   "Lanthanide", "Actinide", "Periode", "1", "7"}) {
        EXPECT_NE(all.find("\"" + std::string(text) + "\" Calibri"), std::string::npos) << text;
    }
}

TEST_F(PeriodicTable, IsDrawnAgainForAnotherHighlightOnly)
{
    load();
    drawn();
    table->HIGHLIGHT(u"O");
    const std::size_t once = outside.visual().drawing(*table).size();
    table->HIGHLIGHT(u"O");
    EXPECT_EQ(outside.visual().drawing(*table).size(), once);
    table->HIGHLIGHT(u"o");
    EXPECT_GT(outside.visual().drawing(*table).size(), once);
}

// The pointer.

TEST_F(PeriodicTable, TellsClicksOnElementsAndBesideThem)
{
    load();
    press(BesideTable); // before any element
    press(over(0, 0));
    press(over(17, 0));
    press(over(17, 0));
    press(BesideTable);
    press(BesideTable);
    press(over(17, 0)); // still the last one
    EXPECT_THAT(log, ElementsAre("click H", "click He", "again He", "outside", "outside", "again He"));
}

TEST_F(PeriodicTable, ClicksTheElementOnWhichItIsReleased)
{
    load();
    Control& control = *table;
    control.pointerDown(over(0, 0));
    control.pointerUp(over(17, 0));
    control.pointerDown(over(17, 0));
    control.pointerUp(BesideTable);
    EXPECT_THAT(log, ElementsAre("click He", "outside"));
}

TEST_F(PeriodicTable, ClicksWithTheLeftButtonOnly)
{
    load();
    PointerEvent event = over(0, 0);
    event.Button = PointerButton::Right;
    press(event);
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(PeriodicTable, HoveringPaintsTwoCellsAndNoMore)
{
    load();
    drawn();
    point(0, 0);
    const auto cells = [&] {
        const std::string all = outside.visual().drawing(*table);
        std::size_t count = 0;
        for (std::size_t at = all.find("clip"); at != std::string::npos; at = all.find("clip", at + 1)) {
            ++count;
        }
        return count;
    };
    const std::size_t before = cells();
    point(17, 0);
    EXPECT_EQ(cells(), before + 4); // "clip" and "unclip" of both
    point(17, 0);
    EXPECT_EQ(cells(), before + 4);
}

TEST_F(PeriodicTable, WhitensTheCellUnderThePointerButNotUnderAFinger)
{
    load();
    drawn();
    point(0, 0);
    EXPECT_THAT(outside.visual().drawing(*table), HasSubstr("box 32,64 32x32 fill #FFFFFF"));
    point(17, 0);
    QVAPP()->CONFIG()->TOUCHMODE(true);
    table->REDRAW();
    drawn();
    const std::size_t before = outside.visual().drawing(*table).size();
    point(0, 0);
    const std::string touched = outside.visual().drawing(*table).substr(before);
    EXPECT_THAT(touched, HasSubstr("gradient 32,64 32x32"));
    EXPECT_THAT(touched, Not(HasSubstr("fill #FFFFFF")));
}

TEST_F(PeriodicTable, ShowsNothingWhereItHasNoRoom)
{
    load();
    table->FIXEDSIZE(true);
    table->Move(0, 0, 10, 8);
    EXPECT_THAT(drawn(), Not(HasSubstr("text")));
    EXPECT_EQ(table->parts().front().area.width, 0);
    table->Move(0, 0, 19 * 33, 12.5 * 33);
    EXPECT_NE(cell("H"), "");
}

TEST_F(PeriodicTable, PlacesTheLinesOfANameByTheirHeight)
{
    {
        const NamesSheet names;
        load();
    }
    const double middle = 3.5 * TableCell; // of oxygen's row
    const double height = visualHost().metrics().face({.name = u"Calibri", .size = 6.6})->height();
    const std::string sauerstoff = cell("Sauer-");
    const auto top = [&](const char* line) {
        const std::size_t at = sauerstoff.rfind("text ", sauerstoff.find(line));
        return std::stod(sauerstoff.substr(sauerstoff.find(',', at) + 1));
    };
    EXPECT_EQ(top("Sauer-"), std::trunc(middle - height / 1.3));
    EXPECT_EQ(top("stoff"), std::trunc(middle - height / 3.8));
}

TEST_F(PeriodicTable, ClicksSoundButNotTheSameOneAgain)
{
    soundOn(true);
    sound(u"click\\a.wav", 0.1, 3);
    load();
    press(over(0, 0));
    EXPECT_THAT(heard(), ElementsAre(3));
    press(over(0, 0));
    press(BesideTable);
    EXPECT_THAT(heard(), ElementsAre(3));
}

// For screen readers.

TEST_F(PeriodicTable, TellsItsCells)
{
    load();
    const auto parts = table->parts();
    ASSERT_EQ(parts.size(), 118U);
    EXPECT_EQ(parts[7].name, u"Sauerstoff, O, 8, 16,0 Gramm pro Mol, Gas");
    EXPECT_EQ(parts[7].row, 2);
    EXPECT_EQ(parts[7].column, 16);
    EXPECT_EQ(parts[79].name, u"Quecksilber, Hg, 80, 200,6 Gramm pro Mol, Flüssigkeit");
    EXPECT_EQ(parts[57].row, 8); // cerium, in the first row below the table
    LNG()->CURRENT(ID_Language_English);
    EXPECT_EQ(table->parts()[25].name, u"Iron, Fe, 26, 55.8 grams per mole, solid");
    table->activatePart(25);
    table->activatePart(118);
    EXPECT_THAT(log, ElementsAre("click Fe"));
}

} // namespace

} // namespace phial
