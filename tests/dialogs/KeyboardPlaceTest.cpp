#include "dialogs/KeyboardPlace.h"

#include "support/CaseTable.h"

#include <gmock/gmock-matchers.h>
#include <gtest/gtest.h>
#include <sstream>

namespace phial::test
{

namespace
{

namespace place = keyboard_place;

std::vector<double> numbersIn(const String& text)
{
    std::istringstream stream(toUtf8(text));
    std::vector<double> numbers;
    for (double number = 0; stream >> number;) {
        numbers.push_back(number);
    }
    return numbers;
}

PixelPoint pointIn(const std::vector<double>& numbers)
{
    return {numbers.at(0), numbers.at(1)};
}

PixelRectangle areaIn(const std::vector<double>& numbers)
{
    return {numbers.at(0), numbers.at(1), numbers.at(2), numbers.at(3)};
}

std::vector<double> listed(PixelPoint point)
{
    return {point.x, point.y};
}

class KeyboardPlaces : public ::testing::TestWithParam<CaseRow>
{
};

TEST_P(KeyboardPlaces, AreAsTheTableSays)
{
    const auto& columns = GetParam().columns;
    const String& what = columns.at(0);
    const PixelPoint lengths = pointIn(numbersIn(columns.at(1)));
    const PixelSize keyboard{lengths.x, lengths.y};
    const PixelRectangle screen = areaIn(numbersIn(columns.at(2)));
    const std::vector<double> given = numbersIn(columns.at(3));
    std::vector<double> found;
    if (what == u"centred") {
        found = listed(place::centredOn(pointIn(given), keyboard));
    } else if (what == u"beside") {
        found = listed(place::besideTarget(areaIn(given), keyboard, screen));
    } else if (what == u"aside") {
        if (const auto corner = place::besideKept(areaIn(given), keyboard, screen)) {
            found = listed(*corner);
        }
    } else if (what == u"kept") {
        found = listed(place::keptOnScreen(pointIn(given), keyboard, screen));
    } else if (what == u"dragged") {
        found = listed(place::draggedTo(pointIn(given), keyboard, screen));
    } else if (what == u"scale") {
        found = {place::scaleFor({keyboard, given.at(0)}, {screen, given.at(1), given.at(2)})};
    }
    const std::vector<double> expected = numbersIn(columns.at(4));
    EXPECT_THAT(found, ::testing::Pointwise(::testing::DoubleNear(1e-9), expected));
}

INSTANTIATE_TEST_SUITE_P(Table, KeyboardPlaces, ::testing::ValuesIn(readCaseTable("keyboard_places.txt", 5)),
                         caseName<::testing::TestParamInfo<CaseRow>>);

constexpr PixelSize Keyboard{750, 340};
constexpr PixelRectangle Screen{0, 0, 1920, 1080};
constexpr PixelRectangle Target{800, 100, 200, 40};

constexpr PixelRectangle Kept{800, 20, 300, 120};

TEST(KeyboardOpening, IsBesideWhatIsKeptInSight)
{
    EXPECT_EQ(place::openingPlace({Target, {10, 10}, {}, Kept}, Keyboard, Screen), (PixelPoint{1112, 20}));
    const PixelRectangle low{0, 0, 1024, 600};
    EXPECT_EQ(place::openingPlace({Target, {10, 10}, {}, Kept}, Keyboard, low), (PixelPoint{38, 20}));
    const PixelRectangle narrow{700, 0, 800, 1080};
    EXPECT_EQ(place::openingPlace({Target, {10, 10}, {}, Kept}, Keyboard, narrow), (PixelPoint{700, 140}))
        << "there is no room beside it";
}

TEST(KeyboardOpening, WhereItWasLeftItHidesNothingOfWhatIsKept)
{
    EXPECT_EQ(place::openingPlace({Target, {10, 10}, PixelPoint{0, 300}, Kept}, Keyboard, Screen),
              (PixelPoint{0, 300}));
    EXPECT_EQ(place::openingPlace({Target, {10, 10}, PixelPoint{1000, 141}, Kept}, Keyboard, Screen),
              (PixelPoint{1000, 141}));
    EXPECT_EQ(place::openingPlace({{}, {10, 10}, PixelPoint{1000, 139}, Kept}, Keyboard, Screen),
              (PixelPoint{1112, 20}));
}

TEST(KeyboardOpening, IsBesideTheTarget)
{
    EXPECT_EQ(place::openingPlace({Target, {10, 10}, {}}, Keyboard, Screen), (PixelPoint{525, 140}));
}

TEST(KeyboardOpening, IsAroundThePointerWithoutATarget)
{
    EXPECT_EQ(place::openingPlace({{}, {960, 540}, {}}, Keyboard, Screen), (PixelPoint{585, 370}));
    EXPECT_EQ(place::openingPlace({{}, {0, 1079}, {}}, Keyboard, Screen), (PixelPoint{0, 710}));
}

TEST(KeyboardOpening, CountsWhereItsMiddleWasLeft)
{
    // The middle's left and top edge of the screen: on it the keyboard is brought in, beyond it is forgotten.
    constexpr PixelPoint Beside{525, 140};
    EXPECT_EQ(place::openingPlace({Target, {}, PixelPoint{-375, 600}}, Keyboard, Screen),
              (PixelPoint{0, 600}));
    EXPECT_EQ(place::openingPlace({Target, {}, PixelPoint{-376, 600}}, Keyboard, Screen), Beside);
    EXPECT_EQ(place::openingPlace({{}, {960, 540}, PixelPoint{10, -170}}, Keyboard, Screen),
              (PixelPoint{10, 0}));
    EXPECT_EQ(place::openingPlace({{}, {960, 540}, PixelPoint{10, -171}}, Keyboard, Screen),
              (PixelPoint{585, 370}));
}

TEST(KeyboardOpening, IsWhereTheUserLeftTheLastOne)
{
    constexpr PixelPoint AtTheEdge{1170, 740};
    EXPECT_EQ(place::openingPlace({Target, {}, AtTheEdge}, Keyboard, Screen), AtTheEdge);
    EXPECT_EQ(place::openingPlace({{}, {960, 540}, AtTheEdge}, Keyboard, Screen), AtTheEdge);
}

TEST(KeyboardOpening, NeverHidesTheTargetForThat)
{
    EXPECT_EQ(place::openingPlace({Target, {}, PixelPoint{700, 120}}, Keyboard, Screen),
              (PixelPoint{525, 140}));
    EXPECT_EQ(place::openingPlace({Target, {}, PixelPoint{1000, 100}}, Keyboard, Screen),
              (PixelPoint{1000, 100}));
    EXPECT_EQ(place::openingPlace({Target, {}, PixelPoint{999, 100}}, Keyboard, Screen),
              (PixelPoint{525, 140}));
    EXPECT_EQ(place::openingPlace({Target, {}, PixelPoint{525, 139}}, Keyboard, Screen),
              (PixelPoint{525, 140}));
}

TEST(KeyboardOpening, StaysOnTheScreenOfTheTarget)
{
    constexpr PixelRectangle Second{1920, 0, 1920, 1080};
    EXPECT_EQ(place::openingPlace({Target, {}, PixelPoint{2000, 500}}, Keyboard, Screen),
              (PixelPoint{525, 140}));
    EXPECT_EQ(place::openingPlace({{}, {2880, 540}, PixelPoint{100, 100}}, Keyboard, Second),
              (PixelPoint{2505, 370}));
}

TEST(KeyboardOpening, ALargerOneIsBroughtIntoSightWhereASmallerOneStood)
{
    EXPECT_EQ(place::openingPlace({{}, {}, PixelPoint{1170, 740}}, {900, 408}, Screen),
              (PixelPoint{1020, 672}));
}

TEST(KeyboardDrag, BeginsBeyondTenPixelsInEitherDirection)
{
    EXPECT_FALSE(place::isDrag({100, 100}, {110, 110}));
    EXPECT_FALSE(place::isDrag({100, 100}, {90, 90}));
    EXPECT_TRUE(place::isDrag({100, 100}, {111, 100}));
    EXPECT_TRUE(place::isDrag({100, 100}, {89, 100}));
    EXPECT_TRUE(place::isDrag({100, 100}, {100, 111}));
    EXPECT_TRUE(place::isDrag({100, 100}, {100, 89}));
}

} // namespace

} // namespace phial::test
