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

} // namespace

} // namespace phial
