#include "core/Variant.h"

#include "support/OddValues.h"
#include "support/Raises.h"

#include <gtest/gtest.h>
#include <limits>

namespace phial
{
namespace
{

TEST(VariantTest, KindFollowsTheExactType)
{
    EXPECT_EQ(Variant().kind(), Variant::Kind::Empty);
    EXPECT_EQ(Variant(true).kind(), Variant::Kind::Boolean);
    EXPECT_EQ(Variant(1).kind(), Variant::Kind::Whole);
    EXPECT_EQ(Variant(1.0).kind(), Variant::Kind::Real);
    EXPECT_EQ(Variant(Moment{1}).kind(), Variant::Kind::Moment);
    EXPECT_EQ(Variant(u"True").kind(), Variant::Kind::Text);
    EXPECT_EQ(Variant(Variant::Array{1, u"a"}).kind(), Variant::Kind::Array);
    EXPECT_EQ(Variant(ObjectPtr()).kind(), Variant::Kind::Object);
}

TEST(VariantTest, IntegersOfOtherSizesAreWholeWhileTheyFit)
{
    EXPECT_EQ(Variant(std::size_t{7}).kind(), Variant::Kind::Whole);
    EXPECT_EQ(Variant(std::int64_t{-7}), Variant(-7));
    EXPECT_EQ(Variant(std::uint8_t{255}), Variant(255));
    EXPECT_EQ(Variant(2147483647L), Variant(2147483647));
    EXPECT_EQ(Variant(2147483648L).kind(), Variant::Kind::Real);
    EXPECT_EQ(Variant(2147483648L), Variant(2147483648.0));
    static_assert(!std::is_constructible_v<Variant, char16_t>, "a character is no number");
}

TEST(VariantTest, ContentOfAnotherKindRaises)
{
    EXPECT_RAISES(Variant(1).text(), TypeMismatch);
    EXPECT_RAISES(Variant(u"a").array(), TypeMismatch);
    EXPECT_RAISES(Variant().object(), TypeMismatch);
}

TEST(VariantTest, TheEmptyValueIsFalseZeroAndNoText)
{
    const Variant empty;
    EXPECT_FALSE(empty.toBoolean());
    EXPECT_EQ(empty.toWhole(), 0);
    EXPECT_EQ(empty.toReal(), 0);
    EXPECT_EQ(empty.toText(), u"");
    EXPECT_EQ(empty.toMoment(), Moment{0});
}

TEST(VariantTest, TrueIsMinusOne)
{
    EXPECT_EQ(Variant(true).toWhole(), -1);
    EXPECT_EQ(Variant(true).toText(), u"True");
    EXPECT_EQ(Variant(false).toText(), u"False");
}

TEST(VariantTest, TextsAreReadAsNumbersOrRaise)
{
    EXPECT_EQ(Variant(u" 2,5 ").toReal(), 2.5);
    EXPECT_EQ(Variant(u"2.5").toWhole(), 2);
    EXPECT_EQ(Variant(u"1.234,5").toReal(), 1234.5);
    EXPECT_RAISES(Variant(u"2,5 g").toReal(), TypeMismatch);
    EXPECT_RAISES(Variant(u"").toWhole(), TypeMismatch);
    EXPECT_RAISES(Variant(u"1E999").toReal(), Overflow);
}

TEST(VariantTest, TextsAreReadAsBooleans)
{
    EXPECT_TRUE(Variant(u"true").toBoolean());
    EXPECT_FALSE(Variant(u"FALSE").toBoolean());
    EXPECT_TRUE(Variant(u"-1").toBoolean());
    EXPECT_FALSE(Variant(u"0").toBoolean());
    EXPECT_RAISES(Variant(u"ja").toBoolean(), TypeMismatch);
}

TEST(VariantTest, RealsAreRoundedHalfToEvenAndChecked)
{
    EXPECT_EQ(Variant(2.5).toWhole(), 2);
    EXPECT_EQ(Variant(-3.5).toWhole(), -4);
    EXPECT_RAISES(Variant(3e9).toWhole(), Overflow);
}

TEST(VariantTest, MomentsAsTextLeaveOutWhatIsZero)
{
    EXPECT_EQ(Variant(Moment::fromCalendar({2024, 12, 31, 18, 30, 5})).toText(), u"31.12.2024 18:30:05");
    EXPECT_EQ(Variant(Moment::fromCalendar({2024, 12, 31})).toText(), u"31.12.2024");
    EXPECT_EQ(Variant(Moment{0.25}).toText(), u"06:00:00");
}

TEST(VariantTest, MomentsAreReadFromTexts)
{
    const Moment evening = Moment::fromCalendar({2024, 12, 31, 18, 30, 5});
    EXPECT_EQ(Variant(u"31.12.2024 18:30:05").toMoment(), evening);
    EXPECT_EQ(Variant(u"31-12-2024 18:30:05").toMoment(), evening);
    EXPECT_EQ(Variant(u"2024-12-31 18:30:05").toMoment(), evening);
    EXPECT_EQ(Variant(u"31/12/2024").toMoment(), Moment::fromCalendar({2024, 12, 31}));
    EXPECT_EQ(Variant(u"06:00").toMoment(), Moment{0.25});
    EXPECT_EQ(Variant(u"2,5").toMoment(), Moment{2.5});
}

TEST(VariantTest, TextsThatAreNoMomentRaise)
{
    for (const StringView text : {u"", u"gestern", u"31.12.", u"32.01.2024", u"1.1.2024x", u"1.1-2024",
                                  u"25:00", u"12:", u"31.12.2024 x", u"99999.1.1"}) {
        EXPECT_RAISES(Variant(text).toMoment(), TypeMismatch);
    }
}

TEST(VariantTest, ArraysAndObjectsAreNoText)
{
    EXPECT_RAISES(Variant(Variant::Array{}).toText(), TypeMismatch);
    EXPECT_RAISES(Variant(ObjectPtr()).toReal(), TypeMismatch);
}

TEST(VariantTest, NumbersAreEqualByValue)
{
    EXPECT_EQ(Variant(1), Variant(1.0));
    EXPECT_NE(Variant(1), Variant(1.5));
    EXPECT_NE(Variant(std::numeric_limits<double>::quiet_NaN()),
              Variant(std::numeric_limits<double>::quiet_NaN()));
}

TEST(VariantTest, ANumberNeverEqualsAText)
{
    EXPECT_NE(Variant(1), Variant(u"1"));
    EXPECT_NE(Variant(true), Variant(-1));
    EXPECT_NE(Variant(), Variant(0));
    EXPECT_NE(Variant(), Variant(u""));
    EXPECT_NE(Variant(Moment{1}), Variant(1.0));
}

TEST(VariantTest, ArraysAreEqualByContentAndObjectsByIdentity)
{
    EXPECT_EQ(Variant(Variant::Array{1, u"a"}), Variant(Variant::Array{1.0, u"a"}));
    EXPECT_NE(Variant(Variant::Array{1}), Variant(Variant::Array{1, 2}));
    const auto one = std::make_shared<test::Something>();
    EXPECT_EQ(Variant(ObjectPtr(one)), Variant(ObjectPtr(one)));
    EXPECT_NE(Variant(ObjectPtr(one)), Variant(ObjectPtr(std::make_shared<test::Something>())));
}

} // namespace
} // namespace phial
