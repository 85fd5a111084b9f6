#include "mascot/AtomFace.h"

#include "visual/DrawingTest.h"

#include <limits>

namespace phial
{

namespace
{

using AtomFaceTest = test::DrawingTest;

struct Opening {
    double open;
    double upper;
    double lower;
};

TEST(MouthShape, FollowsHowFarItIsOpen)
{
    for (const Opening& row : {Opening{0, -0.1, 0.3}, Opening{0.01, -0.1, 0.3}, Opening{-0.01, -0.1, 0.3},
                               Opening{5, 0.25, 0.5}, Opening{0.2, 0.01, 0.02}, Opening{-3, 0.3, -0.1},
                               Opening{-1, 0.1, 0.1}, Opening{-1.5, 0.15, 0.05}, Opening{-2, 0.2, 0.0}}) {
        const MouthShape shape = mouthShape(row.open);
        EXPECT_NEAR(shape.upper, row.upper, 1e-12) << row.open;
        EXPECT_NEAR(shape.lower, row.lower, 1e-12) << row.open;
    }
}

TEST_F(AtomFaceTest, ClosedEyesAreLines)
{
    AtomFace face{QBColor(9)};
    face.paint(device);
    EXPECT_THAT(drawn(), testing::StartsWith("line 31,31 - 37,31 #0000FF\nline 63,31 - 69,31 #0000FF\n"));
}

TEST_F(AtomFaceTest, EyesLookWhereTheyAreTurned)
{
    AtomFace face{QBColor(0), 4, {0, 90}};
    face.paint(device);
    EXPECT_THAT(drawn(), testing::StartsWith("arc 38,31 r4x4 fill #000000 line #000000\n"
                                             "arc 66,35 r4x4 fill #000000 line #000000\n"));
}

TEST_F(AtomFaceTest, AnEyeThatLooksAheadGoesWithTheOther)
{
    AtomFace face{QBColor(0), 4, {180, EyesAhead}};
    face.paint(device);
    EXPECT_THAT(drawn(), testing::StartsWith("arc 30,31 r4x4 fill #000000 line #000000\n"
                                             "arc 62,31 r4x4 fill #000000 line #000000\n"));
    recorder->forget();
    face.gaze = {EyesAhead, 180};
    face.paint(device);
    EXPECT_THAT(drawn(), testing::StartsWith("arc 34,31 r4x4 fill #000000 line #000000\n"
                                             "arc 62,31 r4x4 fill #000000 line #000000\n"));
}

TEST_F(AtomFaceTest, LargeEyesCannotLookAside)
{
    AtomFace face{QBColor(0), 12, {0, 0}};
    face.paint(device);
    EXPECT_THAT(drawn(), testing::StartsWith("arc 34,31 r12x12 fill #000000 line #000000\n"
                                             "arc 66,31 r12x12 fill #000000 line #000000\n"));
}

TEST_F(AtomFaceTest, EyesAlmostTooLargeStillLookAside)
{
    AtomFace face{QBColor(0), 11, {0, 0}};
    face.paint(device);
    EXPECT_THAT(drawn(), testing::StartsWith("arc 34,31 r11x11")) << "half a pixel goes to the even one";
    recorder->forget();
    face.eyeSize = 10;
    face.paint(device);
    EXPECT_THAT(drawn(), testing::StartsWith("arc 35,31 r10x10"));
}

TEST_F(AtomFaceTest, AnAngleBeyondAllTurnsIsStillOne)
{
    AtomFace face{QBColor(0), 4, {std::numeric_limits<std::int32_t>::max(), 0}};
    face.paint(device);
    EXPECT_THAT(drawn(), testing::HasSubstr("arc 70,31 r4x4"));
}

/// The primitives of the mouth alone.
std::string mouth(std::string all)
{
    return all.substr(all.find("arc 51,62"));
}

TEST_F(AtomFaceTest, AnOpenMouthIsTwoDarkHalvesAndTheirCurves)
{
    AtomFace{QBColor(0), 4, {}, 5, 8}.paint(device);
    EXPECT_EQ(mouth(drawn()), "arc 51,62 r8x2 0..3.142 pie fill #320000 line #320000\n"
                              "arc 51,62 r8x4 3.142..6.283 pie fill #320000 line #320000\n"
                              "arc 51,62 r8x2 0..3.142 open line #320000\n"
                              "arc 51,62 r8x4 3.142..6.283 open line #320000\n");
}

TEST_F(AtomFaceTest, ASmileIsADarkHalfWithARedOneUponIt)
{
    AtomFace{QBColor(0), 4, {}, 0, 10}.paint(device);
    EXPECT_EQ(mouth(drawn()), "arc 51,62 r10x3 3.142..6.283 pie fill #320000 line #320000\n"
                              "arc 51,62 r10x1 3.142..6.283 pie fill #FF0000 line #FF0000\n"
                              "arc 51,62 r10x3 3.142..6.283 open line #320000\n");
}

TEST_F(AtomFaceTest, AFrownIsTheSameUpsideDown)
{
    AtomFace{QBColor(0), 4, {}, -3, 10}.paint(device);
    EXPECT_EQ(mouth(drawn()), "arc 51,62 r10x3 0..3.142 pie fill #320000 line #320000\n"
                              "arc 51,62 r10x1 0..3.142 pie fill #FF0000 line #FF0000\n"
                              "arc 51,62 r10x3 0..3.142 open line #320000\n");
}

} // namespace

} // namespace phial
