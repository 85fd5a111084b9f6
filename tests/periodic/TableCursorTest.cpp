#include "periodic/TableCursor.h"

#include "periodic/PeriodicPlaces.h"
#include "support/CaseTable.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <sstream>

namespace phial
{

namespace
{

const std::vector<String>& allSymbols()
{
    static const auto all = [] {
        std::istringstream words(
            "H He Li Be B C N O F Ne Na Mg Al Si P S Cl Ar K Ca Sc Ti V Cr Mn Fe Co Ni Cu Zn Ga Ge As Se Br "
            "Kr Rb Sr Y Zr Nb Mo Tc Ru Rh Pd Ag Cd In Sn Sb Te I Xe Cs Ba La Ce Pr Nd Pm Sm Eu Gd Tb Dy Ho "
            "Er Tm Yb Lu Hf Ta W Re Os Ir Pt Au Hg Tl Pb Bi Po At Rn Fr Ra Ac Th Pa U Np Pu Am Cm Bk Cf Es "
            "Fm Md No Lr Rf Db Sg Bh Hs Mt Ds Rg Cn Nh Fl Mc Lv Ts Og");
        std::vector<String> symbols;
        for (std::string word; words >> word;) {
            symbols.push_back(fromUtf8(word));
        }
        return symbols;
    }();
    return all;
}

std::size_t indexOf(StringView symbol)
{
    const auto& all = allSymbols();
    return static_cast<std::size_t>(std::ranges::find(all, symbol) - all.begin());
}

std::vector<CursorStop> stopsOfElements(std::int32_t count = 118)
{
    std::vector<CursorStop> stops;
    for (std::int32_t position = 1; position <= count; ++position) {
        const auto place = placeOf(position);
        stops.push_back({double{1} * place->row, double{1} * place->column, true, stops.size()});
    }
    return stops;
}

CursorStep stepOf(StringView word)
{
    const std::map<StringView, KeyEvent> keys = {
        {u"left", {static_cast<std::int32_t>(Key::Left)}},
        {u"right", {static_cast<std::int32_t>(Key::Right)}},
        {u"up", {static_cast<std::int32_t>(Key::Up)}},
        {u"down", {static_cast<std::int32_t>(Key::Down)}},
        {u"home", {static_cast<std::int32_t>(Key::Home)}},
        {u"end", {static_cast<std::int32_t>(Key::End)}},
        {u"first", {static_cast<std::int32_t>(Key::Home), ShiftMask::Control}},
        {u"last", {static_cast<std::int32_t>(Key::End), ShiftMask::Control}},
    };
    return cursorStepOf(keys.at(word)).value();
}

class TableMoves : public testing::TestWithParam<test::CaseRow>
{
};

TEST_P(TableMoves, LeadWhereTheTableSays)
{
    const auto& columns = GetParam().columns;
    const auto stops = stopsOfElements();
    const std::size_t reached = stopAfter(stops, indexOf(columns[0]), stepOf(columns[1]));
    EXPECT_EQ(toUtf8(allSymbols()[reached]), toUtf8(columns[2]));
}

INSTANTIATE_TEST_SUITE_P(Vectors, TableMoves, testing::ValuesIn(test::readCaseTable("table_moves.txt", 3)),
                         test::caseName<testing::TestParamInfo<test::CaseRow>>);

TEST(TableCursor, EveryElementIsReachedByArrowsAlone)
{
    const auto stops = stopsOfElements();
    std::vector<bool> isReached(stops.size());
    std::vector<std::size_t> open{0};
    while (!open.empty()) {
        const std::size_t at = open.back();
        open.pop_back();
        if (isReached[at]) {
            continue;
        }
        isReached[at] = true;
        for (const CursorStep step :
             {CursorStep::Left, CursorStep::Right, CursorStep::Up, CursorStep::Down}) {
            open.push_back(stopAfter(stops, at, step));
        }
    }
    EXPECT_EQ(std::ranges::count(isReached, true), 118);
}

TEST(TableCursor, OtherKeysAreNone)
{
    const auto key = [](Key code, std::int32_t shift = 0) {
        return cursorStepOf({static_cast<std::int32_t>(code), shift});
    };
    EXPECT_FALSE(key(Key::PageUp));
    EXPECT_FALSE(key(Key::Tab));
    EXPECT_FALSE(key(Key::Left, ShiftMask::Control));
    EXPECT_FALSE(key(Key::Left, ShiftMask::Shift));
    EXPECT_FALSE(key(Key::Home, ShiftMask::Alt));
}

/// Three tiles at home, behind the elements; the second stands between two columns.
std::vector<CursorStop> stopsWithTiles()
{
    auto stops = stopsOfElements();
    for (const double column : {2.0, 3.5, 5.0}) {
        stops.push_back({7, column, false, stops.size()});
    }
    return stops;
}

TEST(TableCursor, TheRowOfTilesLiesBetweenThePeriodsAndTheLanthanides)
{
    using enum CursorStep;
    const auto stops = stopsWithTiles();
    const auto from = [&](StringView symbol, CursorStep step) {
        return stopAfter(stops, indexOf(symbol), step);
    };
    constexpr std::size_t Tile = 118;
    EXPECT_EQ(from(u"Fr", Down), Tile);
    EXPECT_EQ(from(u"Og", Down), Tile + 2);
    EXPECT_EQ(from(u"Rf", Down), Tile + 1);
    EXPECT_EQ(from(u"Ce", Up), Tile + 1) << "nearer than the one a whole column away";
    EXPECT_EQ(stopAfter(stops, Tile + 1, Up), indexOf(u"Rf")) << "the left one of two";
    EXPECT_EQ(stopAfter(stops, Tile + 1, Down), indexOf(u"Ce"));
    EXPECT_EQ(stopAfter(stops, Tile, Right), Tile + 1);
    EXPECT_EQ(stopAfter(stops, Tile + 2, Right), Tile + 2);
    EXPECT_EQ(stopAfter(stops, Tile, Left), Tile);
    EXPECT_EQ(stopAfter(stops, Tile, RowEnd), Tile + 2);
    EXPECT_EQ(stopAfter(stops, Tile, CursorStep::First), 0U);
    EXPECT_EQ(stopAfter(stops, Tile, Last), indexOf(u"Og"));
}

TEST(TableCursor, ShorterTablesHaveTheirWaysToo)
{
    const auto stops = stopsOfElements(103);
    EXPECT_EQ(stopAfter(stops, indexOf(u"Hf"), CursorStep::Down), indexOf(u"Ce"));
    EXPECT_EQ(stopAfter(stops, indexOf(u"Lr"), CursorStep::Right), indexOf(u"Lr"));
    EXPECT_EQ(stopAfter(stops, indexOf(u"Ra"), CursorStep::Right), indexOf(u"Ac"));
}

TEST(TableCursor, TheNearestStopIsFoundForAPlaceThatHasGone)
{
    const auto stops = stopsWithTiles();
    EXPECT_EQ(nearestStop(stops, {7, 3.6}), 119U);
    EXPECT_EQ(nearestStop(stops, {0, 17}), 1U);
    EXPECT_EQ(nearestStop({}, {0, 17}), std::nullopt);
}

class LetterJumps : public testing::Test
{
protected:
    /// Types letters that are so many seconds apart.
    std::string typed(std::u16string_view letters, double apart)
    {
        for (const char16_t letter : letters) {
            seconds_ += apart;
            at_ = search_.find(letter, seconds_, allSymbols(), at_);
        }
        return at_ ? toUtf8(allSymbols()[*at_]) : "";
    }

    LetterSearch search_;
    double seconds_ = 100;
    std::optional<std::size_t> at_ = 0;
};

TEST_F(LetterJumps, QuickLettersSpellASymbol)
{
    EXPECT_EQ(typed(u"cl", 0.5), "Cl");
    EXPECT_EQ(typed(u"NA", 1.0), "Na");
    EXPECT_EQ(typed(u"ho", 0.9), "Ho");
}

TEST_F(LetterJumps, SlowOnesBeginAnew)
{
    EXPECT_EQ(typed(u"cl", 1.01), "Li");
    EXPECT_EQ(typed(u"s", 2), "S") << "the symbol itself, not silicon";
    EXPECT_EQ(typed(u"x", 2), "Xe");
    EXPECT_EQ(typed(u"d", 2), "Dy") << "the first that begins so";
}

TEST_F(LetterJumps, TheSameLetterGoesRound)
{
    EXPECT_EQ(typed(u"c", 2), "C");
    EXPECT_EQ(typed(u"c", 0.2), "Cl");
    EXPECT_EQ(typed(u"c", 2), "Ca");
    EXPECT_EQ(typed(u"k", 2), "K");
    EXPECT_EQ(typed(u"k", 2), "Kr");
    EXPECT_EQ(typed(u"k", 2), "K");
}

TEST_F(LetterJumps, WhatBeginsNothingLeadsNowhere)
{
    EXPECT_EQ(typed(u"q", 2), "");
    EXPECT_EQ(typed(u"1", 2), "");
    at_ = 5;
    EXPECT_EQ(typed(u"f", 2), "F");
    EXPECT_EQ(typed(u"q", 0.1), "");
    EXPECT_EQ(typed(u"e", 0.1), "Eu") << "no letter before it any more";
}

TEST_F(LetterJumps, WithoutSymbolsThereIsNone)
{
    EXPECT_EQ(search_.find(u'c', 1, {}, std::nullopt), std::nullopt);
    const std::vector<String> symbols{u"", u"Cl", u""};
    EXPECT_EQ(search_.find(u'c', 5, symbols, 0), 1U);
    EXPECT_EQ(search_.find(u'c', 9, symbols, 7), 1U) << "from a place that has gone";
}

} // namespace

} // namespace phial
