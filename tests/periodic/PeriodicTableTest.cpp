#include "chem/cls_DataElement.h"
#include "core/CoreSystem.h"
#include "core/CoreWindowOps.h"
#include "core/NativePath.h"
#include "headless/Hand.h"
#include "mascot/ctl_Bubble.h"
#include "media/MediaTest.h"
#include "periodic/SheetMode.h"
#include "periodic/ctl_PSE.h"
#include "support/Places.h"
#include "support/Raises.h"
#include "visual/Form.h"
#include "visual/PictureBox.h"

#include <gmock/gmock-more-matchers.h>

namespace phial
{

namespace
{

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

constexpr double Cell = 32;

/// A fresh table on a form, with the installed elements at hand.
class PeriodicTable : public MediaTest
{
protected:
    PeriodicTable()
    {
        form->ScaleMode(ScaleUnit::Pixels);
        table = form->add<ctl_PSE>(u"frm_P");
        connections += table->CLICK.connect([this](const auto& element) { tell("click", *element); });
        connections += table->CLICKAGAIN.connect([this](const auto& element) { tell("again", *element); });
        connections += table->CLICKOUTSIDE.connect([this] { log.emplace_back("outside"); });
    }

    ~PeriodicTable() override { form->discard(); }

    void tell(const char* what, const cls_DataElement& element)
    {
        log.push_back(what + (" " + toUtf8(element.SYMBOL())));
    }

    static String elementFile()
    {
        return systemPath(test::sourceFolder() / "resources" / "data" / "elements2.dat");
    }
    void load() { table->LOAD(elementFile()); }
    std::string drawn()
    {
        const std::string all = outside.visual().drawing(*table);
        return all.substr(all.rfind("clear"));
    }
    /// What is drawn of the cell with this text.
    std::string cell(const std::string& text)
    {
        const std::string all = drawn();
        const std::size_t at = all.find("\"" + text + "\" Calibri");
        if (at == std::string::npos) {
            return "";
        }
        const std::size_t begin = all.rfind("\nclip", at) + 1;
        const std::string end = "clip none\n";
        return all.substr(begin, all.find(end, at) + end.size() - begin);
    }
    /// The middle of an element's cell.
    static PointerEvent over(std::int32_t column, std::int32_t row)
    {
        return {PointerButton::Left, 0, (column + 1.5) * Cell, (row + 2.5) * Cell};
    }
    void point(std::int32_t column, std::int32_t row)
    {
        PointerEvent event = over(column, row);
        event.Button = PointerButton::None;
        static_cast<Control&>(*table).pointerMove(event);
    }
    void press(const PointerEvent& event)
    {
        Control& control = *table;
        control.pointerDown(event);
        control.pointerUp(event);
    }

    std::vector<std::string> log;
    std::shared_ptr<Form> form = std::make_shared<Form>(u"frm_Test");
    std::shared_ptr<ctl_PSE> table;
    Connections connections;
};

constexpr PointerEvent Beside{PointerButton::Left, 0, 8 * Cell, 2.5 * Cell};

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

TEST(SheetMarks, TellWhoIsPale)
{
    SheetMarks marks;
    EXPECT_FALSE(marks.isPale(u"O", false));
    marks.faded->Add(u"N");
    EXPECT_FALSE(marks.isPale(u"O", false));
    EXPECT_TRUE(marks.isPale(u"N", false));
    marks.highlight = u"N";
    EXPECT_TRUE(marks.isPale(u"O", false));
    EXPECT_FALSE(marks.isPale(u"N", false));
    marks.isPlacing = true;
    EXPECT_TRUE(marks.isPale(u"O", false));
    EXPECT_FALSE(marks.isPale(u"N", false)); // faded, and so no empty place
    marks.highlight = u"O";
    EXPECT_TRUE(marks.isPale(u"O", false)); // the highlight does not count
    EXPECT_FALSE(marks.isPale(u"O", true));
    EXPECT_TRUE(marks.isPale(u"N", true));
    marks.highlight.clear();
    EXPECT_TRUE(marks.isPale(u"N", true));
    EXPECT_FALSE(marks.isPale(u"H", true));
}

TEST(SheetMarks, TellGreyEmptyAndFramed)
{
    SheetMarks marks;
    marks.gone->Add(u"O");
    marks.frames->Add(u"O", 0x0000FF);
    marks.frames->Add(u"N", Variant());
    marks.highlight = u"O";
    const CellLook oxygen = marks.lookOf(u"O", false);
    EXPECT_TRUE(oxygen.isGrey);
    EXPECT_TRUE(oxygen.isHighlighted);
    EXPECT_FALSE(oxygen.isEmpty);
    EXPECT_EQ(oxygen.frame, RGB(255, 0, 0));
    EXPECT_EQ(marks.lookOf(u"N", false).frame, std::nullopt);
    EXPECT_EQ(marks.lookOf(u"H", false).frame, std::nullopt);
    marks.isPlacing = true;
    EXPECT_TRUE(marks.lookOf(u"N", false).isEmpty);
    EXPECT_FALSE(marks.lookOf(u"N", true).isEmpty);
}

// The pointer.

TEST_F(PeriodicTable, TellsClicksOnElementsAndBesideThem)
{
    load();
    press(Beside); // before any element
    press(over(0, 0));
    press(over(17, 0));
    press(over(17, 0));
    press(Beside);
    press(Beside);
    press(over(17, 0)); // still the last one
    EXPECT_THAT(log, ElementsAre("click H", "click He", "again He", "outside", "outside", "again He"));
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

TEST_F(PeriodicTable, ClicksSoundButNotTheSameOneAgain)
{
    soundOn(true);
    sound(u"click\\a.wav", 0.1, 3);
    load();
    press(over(0, 0));
    EXPECT_THAT(heard(), ElementsAre(3));
    press(over(0, 0));
    press(Beside);
    EXPECT_THAT(heard(), ElementsAre(3));
}

// The bubble.

class TableBubble : public PeriodicTable
{
protected:
    TableBubble()
    {
        table->Move(10, 20);
        bubble = form->add<ctl_Bubble>(u"ctl_Bubble1");
        bubble->Move(0, 0, 100, 80);
        bubble->Visible(false);
        table->BUBBLE(bubble);
        load();
    }
    static constexpr double Tick = 0.1;

    std::shared_ptr<ctl_Bubble> bubble;
};

TEST_F(TableBubble, ComesAtTheFifthTickOnTheSameElement)
{
    point(0, 0);
    outside.advance(4.5 * Tick);
    EXPECT_FALSE(bubble->Visible());
    outside.advance(Tick);
    EXPECT_TRUE(bubble->Visible());
    EXPECT_EQ(bubble->TEXT(),
              u" Name:         Wasserstoff\r Symbol:      H\r Protonen:  1\r mol.Masse: 1 g/mol");
    EXPECT_EQ(bubble->Left(), 10 + 48 + 5);
    EXPECT_EQ(bubble->Top(), 20 + 80 + 5);
    EXPECT_EQ(bubble->ZIPSIDE(), enm_BallonZipSide::ID_BallonZipSide_LeftTop);
}

TEST_F(TableBubble, CountsAnewOnAnotherElement)
{
    point(0, 0);
    outside.advance(4.5 * Tick);
    point(17, 0);
    outside.advance(4.5 * Tick);
    EXPECT_FALSE(bubble->Visible());
    outside.advance(Tick);
    EXPECT_TRUE(bubble->Visible());
    EXPECT_EQ(bubble->ZIPSIDE(), enm_BallonZipSide::ID_BallonZipSide_RightTop);
    point(0, 0); // the old text goes at once
    EXPECT_FALSE(bubble->Visible());
}

TEST_F(TableBubble, StaysWhileThePointerIsOverItInTheCell)
{
    point(0, 0);
    outside.advance(6 * Tick);
    const CoreWindowOps& windows = coreRoot().CoreSystem().CoreWindowOps();
    const std::int32_t left = windows.ScreenLeft(table->hWnd());
    const std::int32_t top = windows.ScreenTop(table->hWnd());
    outside.display().moveCursor(left + 48, top + 80);
    static_cast<Control&>(*table).pointerLeave();
    outside.advance(3 * Tick);
    EXPECT_TRUE(bubble->Visible());
    outside.display().moveCursor(left + 48 + 32, top + 80); // on the bubble, but beyond the cell
    outside.advance(Tick);
    EXPECT_FALSE(bubble->Visible());
}

TEST_F(TableBubble, GoesWhenThePointerLeaves)
{
    point(0, 0);
    outside.advance(6 * Tick);
    outside.display().moveCursor(900, 700);
    static_cast<Control&>(*table).pointerLeave();
    EXPECT_FALSE(bubble->Visible());
    press(over(1, 1));
    table->MODE(enm_PSEMode::ID_PSEMode_Place);
    EXPECT_FALSE(bubble->Visible());
    outside.advance(6 * Tick);
    EXPECT_FALSE(bubble->Visible());
}

TEST_F(TableBubble, FollowsItsContainersUnits)
{
    form->ScaleMode(ScaleUnit::Twips);
    const auto frame = form->add<PictureBox>(u"pic_Frame");
    frame->Move(30 * 15, 40 * 15, 300 * 15, 300 * 15);
    bubble->frame().container(*frame->container());
    point(0, 0);
    const PixelRectangle place = bubble->frame().pixelRectangle();
    EXPECT_EQ(place.left, 10 + 48 + 5 - 30);
    EXPECT_EQ(place.top, 20 + 80 + 5 - 40);
}

// Tiles.

class TableTiles : public PeriodicTable
{
protected:
    TableTiles()
    {
        load();
        table->MODE(enm_PSEMode::ID_PSEMode_Place);
    }
    static PixelPoint home(std::int32_t slot) { return {(slot * 1.5 + 3) * Cell, 9 * Cell}; }
    /// Drags what lies at a point, held 3 and 4 pixels from its corner, to another corner.
    void drag(PixelPoint from, PixelPoint to)
    {
        Control& control = *table;
        control.pointerDown({PointerButton::Left, 0, from.x + 3, from.y + 4});
        control.pointerMove({PointerButton::Left, 0, from.x + 50, from.y - 10});
        control.pointerUp({PointerButton::Left, 0, to.x + 3, to.y + 4});
    }
    static PixelPoint cornerOf(std::int32_t column, std::int32_t row)
    {
        return {(column + 1) * Cell, (row + 2) * Cell};
    }
};

TEST_F(TableTiles, FillElevenSlotsAndNoMore)
{
    for (int tile = 0; tile < 12; ++tile) {
        table->DRAGADD(tile == 0 ? u"O" : u"N");
    }
    EXPECT_EQ(table->DRAGSYMBOL(0), u"O");
    EXPECT_EQ(table->DRAGSYMBOL(10), u"N");
    EXPECT_RAISES(table->DRAGSYMBOL(11), IndexOutOfBounds);
    EXPECT_RAISES(table->DRAGSYMBOL(-1), IndexOutOfBounds);
    EXPECT_RAISES(table->DRAGSYMBOLDROP(11), IndexOutOfBounds);
    EXPECT_RAISES(table->DRAGRESET(11), IndexOutOfBounds);
    table->DRAGCLEAR();
    EXPECT_EQ(table->DRAGSYMBOL(0), u"");
    table->DRAGADD(u"Fe");
    EXPECT_EQ(table->DRAGSYMBOL(0), u"Fe");
}

TEST_F(TableTiles, SnapToTheCellOnWhichTheirMiddleLies)
{
    table->DRAGADD(u"O");
    const PixelPoint target = cornerOf(14, 1);
    drag(home(0), {target.x - 15, target.y + 15});
    EXPECT_EQ(table->DRAGSYMBOLDROP(0), u"N");
    EXPECT_THAT(cell("O"), HasSubstr("clip 480,96 32x32\n"));
    drag(target, cornerOf(15, 1));
    EXPECT_EQ(table->DRAGSYMBOLDROP(0), u"O");
}

TEST_F(TableTiles, GoHomeWhenTheyAreLetGoOutside)
{
    table->DRAGADD(u"O");
    drag(home(0), cornerOf(15, 1));
    EXPECT_EQ(table->DRAGSYMBOLDROP(0), u"O");
    drag(cornerOf(15, 1), {-20, 5});
    EXPECT_EQ(table->DRAGSYMBOLDROP(0), u"");
    EXPECT_THAT(cell("O"), HasSubstr("clip 96,288 32x32\n"));
}

TEST_F(TableTiles, StayOnAPlaceWithoutAnElement)
{
    table->DRAGADD(u"O");
    drag(home(0), cornerOf(15, 1));
    drag(cornerOf(15, 1), cornerOf(8, 1));
    EXPECT_EQ(table->DRAGSYMBOLDROP(0), u"");
    EXPECT_THAT(cell("O"), HasSubstr("clip 288,96 32x32\n"));
}

TEST_F(TableTiles, AreSentHome)
{
    table->DRAGADD(u"O");
    drag(home(0), cornerOf(15, 1));
    table->DRAGRESET(0);
    EXPECT_EQ(table->DRAGSYMBOLDROP(0), u"");
    EXPECT_THAT(cell("O"), HasSubstr("clip 96,288 32x32\n"));
}

TEST_F(TableTiles, OfUnknownSymbolsShowTheirText)
{
    table->DRAGADD(u"Xy");
    EXPECT_THAT(cell("Xy"), HasSubstr("clip 96,288 32x32\n"));
    EXPECT_EQ(cell("Xy").find("Small Fonts"), std::string::npos);
}

TEST_F(TableTiles, TheFirstLiesOnTopAndIsTakenFirst)
{
    table->DRAGADD(u"O");
    table->DRAGADD(u"N");
    drag(home(1), cornerOf(4, 8));
    drag(home(0), cornerOf(4, 8));
    const std::string all = drawn();
    EXPECT_LT(all.find("\"N\" Calibri"), all.find("\"O\" Calibri"));
    drag(cornerOf(4, 8), cornerOf(5, 8));
    EXPECT_EQ(table->DRAGSYMBOLDROP(0), u"Pr");
    EXPECT_EQ(table->DRAGSYMBOLDROP(1), u"Ce");
}

TEST_F(TableTiles, FollowTheTablesSize)
{
    table->DRAGADD(u"O");
    table->DRAGADD(u"N");
    drag(home(0), cornerOf(15, 1));
    table->FIXEDSIZE(true);
    table->Move(0, 0, 19 * 65, 12.5 * 65);
    EXPECT_THAT(cell("O"), HasSubstr("clip 1024,192 64x64\n"));
    EXPECT_THAT(cell("N"), HasSubstr("clip 288,576 64x64\n"));
    EXPECT_EQ(table->DRAGSYMBOLDROP(0), u"O");
}

TEST_F(TableTiles, PlacesAreEmptyUnlessTheyAreFaded)
{
    table->FADED()->Add(u"O");
    table->REDRAW();
    EXPECT_EQ(cell("N"), "");
    EXPECT_THAT(cell("O"), HasSubstr("#FF0000"));
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
    EXPECT_EQ(table->parts()[25].name, u"Eisen, Fe, 26, 55,8 grams per mole, solid");
    table->activatePart(25);
    table->activatePart(118);
    EXPECT_THAT(log, ElementsAre("click Fe"));
}

} // namespace

} // namespace phial
