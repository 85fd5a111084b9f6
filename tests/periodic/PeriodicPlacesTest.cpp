#include "periodic/PeriodicPlaces.h"

#include "periodic/NameLines.h"

#include <cmath>
#include <gtest/gtest.h>

namespace phial
{

namespace
{

/// Elements that stand side by side, with the shells that deviate named.
struct PlacesInARow {
    std::int32_t first;
    std::int32_t last;
    std::int32_t row;
    std::int32_t column; ///< of the first
};

constexpr PlacesInARow Table[] = {
    {1, 1, 0, 0},   {2, 2, 0, 17},  {3, 4, 1, 0},    {5, 10, 1, 12},   {11, 12, 2, 0},    {13, 18, 2, 12},
    {19, 36, 3, 0}, {37, 54, 4, 0}, {55, 56, 5, 0},  {57, 57, 5, 2},   {58, 71, 8, 4},    {72, 86, 5, 3},
    {87, 88, 6, 0}, {89, 89, 6, 2}, {90, 103, 9, 4}, {104, 112, 6, 3}, {113, 118, 6, 12},
};

/// The shell that a place in the upper part has: that of the period, and one less in the columns 2 to 11.
std::int32_t shellOf(const ElementPlace& place)
{
    switch (place.row) {
    case 8:
        return 4;
    case 9:
        return 5;
    default:
        return place.column >= 2 && place.column <= 11 ? place.row : place.row + 1;
    }
}

TEST(PeriodicPlaces, AreThoseOfEachElement)
{
    std::int32_t expected = 1;
    for (const PlacesInARow& run : Table) {
        for (std::int32_t position = run.first; position <= run.last; ++position, ++expected) {
            ASSERT_EQ(position, expected);
            const auto place = placeOf(position);
            ASSERT_TRUE(place) << position;
            EXPECT_EQ(place->row, run.row) << position;
            EXPECT_EQ(place->column, run.column + position - run.first) << position;
            EXPECT_EQ(place->shell, shellOf(*place)) << position;
        }
    }
    EXPECT_EQ(expected, 119);
}

TEST(PeriodicPlaces, AreNoneOutside)
{
    EXPECT_FALSE(placeOf(0));
    EXPECT_FALSE(placeOf(-1));
    EXPECT_FALSE(placeOf(119));
}

TEST(TableGrid, HasTwoRowsAndAColumnBeforeTheElements)
{
    const TableGrid grid;
    EXPECT_EQ(grid.cell(0, 0), (PixelRectangle{32, 64, 32, 32}));
    EXPECT_EQ(grid.cell(17, 9), (PixelRectangle{18 * 32, 11 * 32, 32, 32}));
    EXPECT_EQ(grid.area(3, 10, 2, 1), (PixelRectangle{96, 320, 64, 32}));
    EXPECT_EQ(grid.offset(), (PixelPoint{32, 64}));
}

TEST(TableGrid, LeavesNoGapsAndDoesNotDriftInCellsOfOddSize)
{
    const TableGrid grid{30.4, 27.7};
    for (std::int32_t column = 0; column < 17; ++column) {
        EXPECT_EQ(grid.cell(column, 0).right(), grid.cell(column + 1, 0).left);
        EXPECT_EQ(grid.cell(column, 0).left, std::round((column + 1) * 30.4));
    }
    for (std::int32_t row = 0; row < 9; ++row) {
        EXPECT_EQ(grid.cell(0, row).bottom(), grid.cell(0, row + 1).top);
    }
}

TEST(TableGrid, ScalesByTheSmallerEdge)
{
    EXPECT_FLOAT_EQ(TableGrid{}.scale(), 1);
    EXPECT_FLOAT_EQ((TableGrid{64, 40}.scale()), 1.25);
    EXPECT_FLOAT_EQ((TableGrid{16, 40}.scale()), 0.5);
}

TEST(NameLines, BreakNamesThatAreTooLong)
{
    EXPECT_EQ(linesOf(u"Wasserstoff"), (NameLines{u"Wasser-", u"stoff"}));
    EXPECT_EQ(linesOf(u"Rutherfordium"), (NameLines{u"Ruther-", u"fordium"}));
    EXPECT_EQ(linesOf(u"Molybdän"), (NameLines{u"Molyb-", u"dän"}));
    EXPECT_EQ(linesOf(u"Neon"), (NameLines{u"Neon", u""}));
    EXPECT_EQ(linesOf(u""), (NameLines{u"", u""}));
}

/// Two of the table's names are those of older files.
TEST(NameLines, StandAsTheyWereGivenAlsoWhereLettersLack)
{
    EXPECT_EQ(linesOf(u"Meitnerium"), (NameLines{u"Meit-", u"rium"}));
    EXPECT_EQ(linesOf(u"Copernicum"), (NameLines{u"Coperni-", u"cum"}));
    EXPECT_EQ(linesOf(u"Molybdaen"), (NameLines{u"Molyb-", u"daen"}));
}

} // namespace

} // namespace phial
