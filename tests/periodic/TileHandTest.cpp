#include "periodic/TileHand.h"

#include <gtest/gtest.h>
#include <ostream>

namespace phial
{

void PrintTo(const TileHand::Act& act, std::ostream* stream)
{
    *stream << "deed " << static_cast<int>(act.deed) << " of " << act.slot;
}

namespace
{

using enum TileHand::Deed;
using Act = TileHand::Act;
using Target = DragTile::Target;

class TileHands : public testing::Test
{
protected:
    TileHands()
    {
        tiles_.add(u"O", grid_);
        tiles_.add(u"N", grid_);
    }

    PixelPoint middleOf(std::int32_t slot) const
    {
        const PixelRectangle& area = tiles_.at(slot).area;
        return {area.left + 16, area.top + 16};
    }
    PixelPoint middleOf(Target cell) const
    {
        const PixelRectangle area = grid_.cell(cell.column, cell.row);
        return {area.left + 16, area.top + 16};
    }
    Act drag(PixelPoint from, PixelPoint to)
    {
        hand_.press(from, Slack);
        hand_.move({(from.x + to.x) / 2, (from.y + to.y) / 2});
        return hand_.release(to, std::nullopt, grid_);
    }
    Act tap(PixelPoint at, std::optional<Target> cell = std::nullopt)
    {
        hand_.press(at, Slack);
        return hand_.release(at, cell, grid_);
    }
    bool isHome(std::int32_t slot) const
    {
        return !tiles_.at(slot).target && tiles_.at(slot).area == DragTiles::homeOf(slot, grid_);
    }
    std::optional<Target> targetOf(std::int32_t slot) const { return tiles_.at(slot).target; }

    static constexpr double Slack = 4;
    static constexpr Target Nitrogen{14, 1};
    static constexpr Target Oxygen{15, 1};

    TableGrid grid_;
    DragTiles tiles_;
    TileHand hand_{tiles_};
};

TEST_F(TileHands, DragsATileToTheCellBeneathIt)
{
    EXPECT_EQ(drag(middleOf(0), middleOf(Oxygen)), (Act{Dropped, 0}));
    EXPECT_EQ(targetOf(0), Oxygen);
    EXPECT_EQ(hand_.taken(), std::nullopt);
    EXPECT_EQ(hand_.held(), std::nullopt);
}

TEST_F(TileHands, DragsATileHome)
{
    drag(middleOf(0), middleOf(Oxygen));
    EXPECT_EQ(drag(middleOf(0), {-40, 5}), (Act{SentHome, 0}));
    EXPECT_TRUE(isHome(0));
}

TEST_F(TileHands, TakesByATapAndPutsDownByAnother)
{
    EXPECT_EQ(tap(middleOf(0)), (Act{Taken, 0}));
    EXPECT_EQ(hand_.taken(), 0);
    EXPECT_EQ(tap(middleOf(Oxygen), Oxygen), (Act{Dropped, 0}));
    EXPECT_EQ(targetOf(0), Oxygen);
    EXPECT_EQ(hand_.taken(), std::nullopt);
    EXPECT_EQ(tap(middleOf(0), Oxygen), (Act{Taken, 0})) << "from the table as well";
    EXPECT_EQ(tap(middleOf(Nitrogen), Nitrogen), (Act{Dropped, 0}));
    EXPECT_EQ(targetOf(0), Nitrogen);
}

TEST_F(TileHands, ATapOnTheTakenTileLetsItGo)
{
    tap(middleOf(1));
    EXPECT_EQ(tap(middleOf(1)), (Act{LetGo, 1}));
    EXPECT_TRUE(isHome(1)) << "where it was taken";
    EXPECT_EQ(hand_.taken(), std::nullopt);
    tap(middleOf(1));
    tap(middleOf(Oxygen), Oxygen);
    tap(middleOf(1), Oxygen);
    EXPECT_EQ(tap(middleOf(1), Oxygen), (Act{LetGo, 1}));
    EXPECT_EQ(targetOf(1), Oxygen);
}

TEST_F(TileHands, ATapOnItsHomeSendsTheTakenTileThere)
{
    drag(middleOf(1), middleOf(Oxygen));
    tap(middleOf(1), Oxygen);
    const PixelRectangle home = DragTiles::homeOf(1, grid_);
    EXPECT_EQ(tap({home.left + 3, home.top + 3}), (Act{SentHome, 1}));
    EXPECT_TRUE(isHome(1));
    EXPECT_EQ(hand_.taken(), std::nullopt);
}

TEST_F(TileHands, ATapElsewhereLetsGo)
{
    drag(middleOf(0), middleOf(Oxygen));
    tap(middleOf(0), Oxygen);
    EXPECT_EQ(tap({1, 1}), (Act{LetGo, 0}));
    EXPECT_EQ(targetOf(0), Oxygen);
    EXPECT_EQ(tap({1, 1}), Act{});
}

TEST_F(TileHands, ATapOnAnotherTileTakesThatOne)
{
    tap(middleOf(0));
    EXPECT_EQ(tap(middleOf(1)), (Act{Taken, 1}));
    EXPECT_EQ(hand_.taken(), 1);
    EXPECT_TRUE(isHome(0));
}

TEST_F(TileHands, AHandThatTremblesTapsAndOneThatGoesFurtherDrags)
{
    const PixelPoint at = middleOf(0);
    hand_.press(at, Slack);
    hand_.move({at.x + 4, at.y - 4});
    EXPECT_EQ(hand_.release({at.x - 4, at.y}, std::nullopt, grid_), (Act{Taken, 0}));
    hand_.letGo(grid_);
    hand_.press(at, Slack);
    hand_.move({at.x, at.y + 4.5});
    EXPECT_EQ(hand_.release(at, std::nullopt, grid_), (Act{LetGo, 0})) << "it had been away";
    EXPECT_TRUE(isHome(0));
    EXPECT_EQ(hand_.taken(), std::nullopt);
}

TEST_F(TileHands, ATapOnATileMovesNoTile)
{
    tap(middleOf(1)); // its home lies between two columns
    EXPECT_TRUE(isHome(1));
    drag(middleOf(1), middleOf(Oxygen));
    tap(middleOf(1), Oxygen);
    EXPECT_EQ(targetOf(1), Oxygen);
}

TEST_F(TileHands, ATileThatIsLetGoInTheTilesOwnRowGoesHome)
{
    EXPECT_EQ(drag(middleOf(1), middleOf(Target{12, 7})), (Act{LetGo, 1})) << "from where it is";
    EXPECT_TRUE(isHome(1));
    drag(middleOf(1), middleOf(Oxygen));
    EXPECT_EQ(drag(middleOf(1), middleOf(Target{12, 7})), (Act{SentHome, 1}));
    EXPECT_TRUE(isHome(1));
}

TEST_F(TileHands, ATileStaysUpToTheEdgesOfTheTableAndGoesHomeBeyond)
{
    for (const Target inside :
         {Target{0, 0}, Target{17, 0}, Target{0, 9}, Target{17, 9}, Target{0, 6}, Target{9, 8}}) {
        EXPECT_EQ(drag(middleOf(0), middleOf(inside)), (Act{Dropped, 0}));
        EXPECT_EQ(targetOf(0), inside) << inside.column << ", " << inside.row;
    }
    for (const Target outside : {Target{-1, 3}, Target{18, 3}, Target{3, -1}, Target{3, 10}, Target{3, 7}}) {
        EXPECT_EQ(drag(middleOf(0), middleOf(outside)), (Act{SentHome, 0}))
            << outside.column << ", " << outside.row;
        EXPECT_TRUE(isHome(0));
        drag(middleOf(0), middleOf(Oxygen));
    }
}

TEST_F(TileHands, APressThatStraysFromACellPutsNothing)
{
    tap(middleOf(0));
    const PixelPoint cell = middleOf(Oxygen);
    hand_.press({cell.x - 5, cell.y}, Slack);
    EXPECT_EQ(hand_.release(cell, Oxygen, grid_), Act{});
    EXPECT_EQ(hand_.taken(), 0);
}

TEST_F(TileHands, ADragLetsGoOfAnotherTakenTile)
{
    tap(middleOf(0));
    EXPECT_EQ(drag(middleOf(1), middleOf(Oxygen)), (Act{Dropped, 1}));
    EXPECT_EQ(hand_.taken(), std::nullopt);
    EXPECT_TRUE(isHome(0));
}

TEST_F(TileHands, ADragOfTheTakenTileDropsIt)
{
    tap(middleOf(0));
    EXPECT_EQ(drag(middleOf(0), middleOf(Oxygen)), (Act{Dropped, 0}));
    EXPECT_EQ(hand_.taken(), std::nullopt);
    EXPECT_EQ(targetOf(0), Oxygen);
}

TEST_F(TileHands, KeysTakePutAndLetGo)
{
    EXPECT_EQ(hand_.choose(Oxygen, grid_), Act{}) << "nothing to put";
    EXPECT_EQ(hand_.choose(1, grid_), (Act{Taken, 1}));
    EXPECT_TRUE(isHome(1)) << "marked, not moved";
    EXPECT_EQ(hand_.choose(1, grid_), (Act{LetGo, 1}));
    hand_.choose(1, grid_);
    EXPECT_EQ(hand_.choose(0, grid_), (Act{Taken, 0}));
    EXPECT_EQ(hand_.choose(Oxygen, grid_), (Act{Dropped, 0}));
    EXPECT_EQ(targetOf(0), Oxygen);
    EXPECT_EQ(hand_.letGo(grid_), Act{});
    EXPECT_EQ(hand_.sendHome(0, grid_), (Act{SentHome, 0}));
    EXPECT_TRUE(isHome(0));
}

TEST_F(TileHands, WhatIsSentHomeOrForgottenIsTakenNoMore)
{
    hand_.choose(0, grid_);
    hand_.sendHome(0, grid_);
    EXPECT_EQ(hand_.taken(), std::nullopt);
    hand_.choose(0, grid_);
    hand_.forget(1);
    EXPECT_EQ(hand_.taken(), 0);
    hand_.forget(0);
    EXPECT_EQ(hand_.taken(), std::nullopt);
    hand_.press(middleOf(0), Slack);
    EXPECT_EQ(hand_.held(), 0);
    hand_.forget(0);
    EXPECT_EQ(hand_.held(), std::nullopt);
    EXPECT_EQ(hand_.release({0, 0}, std::nullopt, grid_), Act{});
    hand_.choose(1, grid_);
    hand_.press(middleOf(0), Slack);
    hand_.forget();
    EXPECT_EQ(hand_.taken(), std::nullopt);
    EXPECT_EQ(hand_.held(), std::nullopt);
    EXPECT_EQ(hand_.release(middleOf(0), std::nullopt, grid_), Act{});
}

TEST_F(TileHands, MovesTellWhetherThereIsSomethingNew)
{
    EXPECT_FALSE(hand_.move({5, 5})) << "nothing is pressed";
    const PixelPoint at = middleOf(0);
    hand_.press(at, Slack);
    EXPECT_FALSE(hand_.move(at));
    EXPECT_TRUE(hand_.move({at.x + 2.4, at.y}));
    EXPECT_EQ(tiles_.at(0).area.left, DragTiles::homeOf(0, grid_).left + 2);
    EXPECT_FALSE(hand_.move({at.x + 2.4, at.y}));
}

} // namespace

} // namespace phial
