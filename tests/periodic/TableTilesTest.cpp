#include "PeriodicTableTest.h"
#include "support/Raises.h"

#include <gmock/gmock-more-matchers.h>

namespace phial
{

namespace
{

using ::testing::HasSubstr;

class TableTiles : public PeriodicTableTest
{
protected:
    TableTiles()
    {
        load();
        table->MODE(enm_PSEMode::ID_PSEMode_Place);
    }
    static PixelPoint home(std::int32_t slot) { return {(slot * 1.5 + 3) * TableCell, 9 * TableCell}; }
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
        return {(column + 1) * TableCell, (row + 2) * TableCell};
    }
};

TEST_F(TableTiles, FillElevenSlotsAndNoMore)
{
    for (int tile = 0; tile < 11; ++tile) {
        table->DRAGADD(tile == 0 ? u"O" : u"N");
    }
    const std::string before = drawn();
    table->DRAGADD(u"Fe");
    EXPECT_EQ(drawn(), before);
    EXPECT_EQ(table->parts().size(), 118U + 11U);
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

TEST_F(TableTiles, AreDraggedOverTheTableAsItHasBeenPaintedLast)
{
    table->DRAGADD(u"O");
    drawn();
    Control& control = *table;
    const auto move = [&](double way) {
        control.pointerMove({PointerButton::Left, 0, home(0).x + way, home(0).y});
        return drawn();
    };
    const auto has = [](const std::string& all, const char* part) {
        return all.find(part) != std::string::npos;
    };
    control.pointerDown({PointerButton::Left, 0, home(0).x + 3, home(0).y + 4});
    move(50);
    EXPECT_TRUE(has(move(60), "image")) << "of the table without the tile";
    table->BACKCOLOR(QBColor(12));
    EXPECT_TRUE(has(drawn(), "clear #FF0000"));
    EXPECT_FALSE(has(move(70), "image")) << "which has the old ground";
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

TEST_F(TableTiles, FollowTheCellsThatLoadingBringsBack)
{
    table->FIXEDSIZE(true);
    table->Move(0, 0, 19 * 65, 12.5 * 65);
    table->DRAGADD(u"O");
    table->FIXEDSIZE(false);
    load();
    EXPECT_THAT(cell("O"), HasSubstr("clip 96,288 32x32\n"));
}

TEST_F(TableTiles, OfATableThatFailsToLoadStandAmongItsOwnCells)
{
    const auto other = form->add<ctl_PSE>(u"frm_Q");
    other->MODE(enm_PSEMode::ID_PSEMode_Place);
    other->FIXEDSIZE(true);
    other->Move(0, 0, 19 * 65, 12.5 * 65);
    EXPECT_RAISES(other->LOAD(u"C:\\missing.dat"), FileNotFound);
    other->DRAGADD(u"O");
    EXPECT_EQ(other->parts().front().area, (PixelRectangle{192, 576, 64, 64}));
}

TEST_F(TableTiles, AddedBeforeTheFileIsLoadedHaveTheirElementAfterwards)
{
    const auto other = form->add<ctl_PSE>(u"frm_Q");
    other->MODE(enm_PSEMode::ID_PSEMode_Place);
    other->DRAGADD(u"O");
    other->LOAD(elementFile());
    EXPECT_THAT(outside.visual().drawing(*other), HasSubstr("text 96,311.875 \" 8\""));
}

TEST_F(TableTiles, AreNotPaintedOverByACellThatIsPointedAt)
{
    table->DRAGADD(u"O");
    drag(home(0), cornerOf(15, 1));
    table->MODE(enm_PSEMode::ID_PSEMode_Normal);
    drawn();
    point(15, 1);
    const std::string all = outside.visual().drawing(*table);
    EXPECT_THAT(all.substr(all.rfind("clip 512,96")), HasSubstr("gradient"));
}

TEST_F(TableTiles, InTheHandAreBackWhereTheyWereWhenTheTableGoes)
{
    table->DRAGADD(u"O");
    Control& control = *table;
    control.pointerDown({PointerButton::Left, 0, home(0).x + 3, home(0).y + 4});
    control.pointerMove({PointerButton::Left, 0, 300, 100});
    table->hidden();
    EXPECT_THAT(cell("O"), HasSubstr("clip 96,288 32x32\n"));
    control.pointerMove({PointerButton::None, 0, 200, 100});
    EXPECT_THAT(cell("O"), HasSubstr("clip 96,288 32x32\n"));
}

TEST_F(TableTiles, InTheHandAreBackWhereTheyWereWhenNoReleaseHasCome)
{
    table->DRAGADD(u"O");
    Control& control = *table;
    control.pointerDown({PointerButton::Left, 0, home(0).x + 3, home(0).y + 4});
    control.pointerMove({PointerButton::Left, 0, 300, 100});
    control.pointerMove({PointerButton::None, 0, 310, 100});
    EXPECT_THAT(cell("O"), HasSubstr("clip 96,288 32x32\n"));
    drag(home(0), cornerOf(15, 1));
    EXPECT_EQ(table->DRAGSYMBOLDROP(0), u"O");
}

TEST_F(TableTiles, StayInTheHandWhileAnotherButtonIsPressed)
{
    table->DRAGADD(u"O");
    Control& control = *table;
    control.pointerDown({PointerButton::Left, 0, home(0).x + 3, home(0).y + 4});
    control.pointerDown({PointerButton::Right, 0, 300, 100});
    control.pointerUp({PointerButton::Right, 0, 300, 100});
    const PixelPoint target = cornerOf(15, 1);
    control.pointerUp({PointerButton::Left, 0, target.x + 3, target.y + 4});
    EXPECT_EQ(table->DRAGSYMBOLDROP(0), u"O");
}

TEST_F(TableTiles, ReleasesBesideThemAreToldAsInTheOtherMode)
{
    table->MODE(enm_PSEMode::ID_PSEMode_Normal);
    press(over(0, 0));
    table->MODE(enm_PSEMode::ID_PSEMode_Place);
    press(over(1, 1));
    EXPECT_EQ(log, (std::vector<std::string>{"click H", "outside"}));
}

} // namespace

} // namespace phial
