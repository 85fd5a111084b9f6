#include "mascot/AtomGaze.h"

#include "headless/FixedRandom.h"

#include <gtest/gtest.h>
#include <limits>

namespace phial
{

namespace
{

using EyeMove = enm_DrAtomEyeMove;

/// Eyes, and the random numbers that move them.
class Gaze : public ::testing::Test
{
protected:
    void step(EyeMove move, std::int32_t direction = EyesAhead, int frames = 1)
    {
        for (int frame = 0; frame < frames; ++frame) {
            gaze.step(move, direction, random);
        }
    }

    headless::FixedRandom random;
    AtomGaze gaze;
};

TEST_F(Gaze, EyesThatDoNotMoveLookWhereTheyAreTold)
{
    step(EyeMove::ID_DrAtomEyeMove_None, 40);
    EXPECT_EQ(gaze, (AtomGaze{40, 40}));
    step(static_cast<EyeMove>(6), 90);
    EXPECT_EQ(gaze, (AtomGaze{90, 90})) << "a way that has no name";
}

TEST_F(Gaze, RollsBy30DegreesAFrame)
{
    gaze = {300, 0};
    step(EyeMove::ID_DrAtomEyeMove_RollingRight, 7);
    EXPECT_EQ(gaze, (AtomGaze{330, 30}));
    step(EyeMove::ID_DrAtomEyeMove_RollingRight, 7);
    EXPECT_EQ(gaze, (AtomGaze{0, 60}));
    step(EyeMove::ID_DrAtomEyeMove_RollingLeft, 7, 3);
    EXPECT_EQ(gaze, (AtomGaze{270, 330}));
}

TEST_F(Gaze, RollsFromStraightAheadAsFromAnyAngle)
{
    step(EyeMove::ID_DrAtomEyeMove_RollingRight);
    EXPECT_EQ(gaze.left, -70);
    gaze = {};
    step(EyeMove::ID_DrAtomEyeMove_RollingLeft);
    EXPECT_EQ(gaze.left, 230);
}

TEST_F(Gaze, InsaneEyesGoEachForItselfInEveryFrame)
{
    random.numbers({0.25, 0.5, 0.75, 0.0});
    step(EyeMove::ID_DrAtomEyeMove_Insane);
    EXPECT_EQ(gaze, (AtomGaze{90, 180}));
    step(EyeMove::ID_DrAtomEyeMove_Insane);
    EXPECT_EQ(gaze, (AtomGaze{270, 0}));
}

TEST_F(Gaze, InsaneAnglesAreRoundedHalvesToTheEvenNeighbour)
{
    random.numbers({0.5 / 360, 1.5 / 360});
    step(EyeMove::ID_DrAtomEyeMove_Insane);
    EXPECT_EQ(gaze, (AtomGaze{0, 2}));
}

TEST_F(Gaze, SmoothEyesStayIn97Of100Frames)
{
    gaze = {40, 40};
    random.numbers({0.03});
    step(EyeMove::ID_DrAtomEyeMove_Smooth, 0, 50);
    EXPECT_EQ(gaze, (AtomGaze{40, 40}));
}

TEST_F(Gaze, SmoothEyesLookAheadAfter60Of100Changes)
{
    gaze = {40, 40};
    random.numbers({0.0299, 0.5999, /* the next frame */ 0.0299, 0.6, 0.25});
    step(EyeMove::ID_DrAtomEyeMove_Smooth);
    EXPECT_EQ(gaze, (AtomGaze{EyesAhead, EyesAhead}));
    step(EyeMove::ID_DrAtomEyeMove_Smooth);
    EXPECT_EQ(gaze, (AtomGaze{90, 90})) << "both in the same direction";
}

TEST_F(Gaze, EachEyeFollowsThePointerFromItsOwnPlace)
{
    gaze.follow(PixelPoint{50, 31});
    EXPECT_EQ(gaze, (AtomGaze{0, 180}));
    gaze.follow(PixelPoint{34, 100});
    EXPECT_EQ(gaze.left, 90);
    EXPECT_EQ(gaze.right, 115);
    gaze.follow(PixelPoint{34, 31});
    EXPECT_EQ(gaze, (AtomGaze{270, 180})) << "no way at all is upward";
}

TEST_F(Gaze, WithoutAPointerTheEyesLookAhead)
{
    gaze = {40, 40};
    gaze.follow(std::nullopt);
    EXPECT_EQ(gaze, AtomGaze());
}

TEST_F(Gaze, APointerFarAwayHasAnAngleToo)
{
    gaze.follow(PixelPoint{-1e12, 31});
    EXPECT_EQ(gaze, (AtomGaze{180, 180}));
    gaze.follow(PixelPoint{34, std::numeric_limits<double>::infinity()});
    EXPECT_EQ(gaze.left, 90);
}

TEST(AngleTowards, GoesClockwiseFromTheRight)
{
    EXPECT_EQ(angleTowards(10, 0), 0);
    EXPECT_EQ(angleTowards(100, 100), 45);
    EXPECT_EQ(angleTowards(0, 10), 90);
    EXPECT_EQ(angleTowards(-100, 100), 135);
    EXPECT_EQ(angleTowards(-10, 0), 180);
    EXPECT_EQ(angleTowards(-100, -100), 225);
    EXPECT_EQ(angleTowards(0, -10), 270);
    EXPECT_EQ(angleTowards(100, -100), 315);
    EXPECT_EQ(angleTowards(0, 0), 270);
}

TEST(AngleTowards, RoundsTheDistanceFirst)
{
    EXPECT_EQ(angleTowards(10, 10), 44) << "14.14 is taken as 14";
    EXPECT_EQ(angleTowards(1, 1), 0) << "1.41 is taken as 1";
    EXPECT_EQ(angleTowards(-1, 1), 180);
    EXPECT_EQ(angleTowards(1, -1), 360);
    EXPECT_EQ(angleTowards(100, 5), 0) << "100.12 is taken as 100";
}

} // namespace

} // namespace phial
