#include "core/CoreTokenList.h"

#include "core/NumberText.h"
#include "support/Raises.h"

#include <gtest/gtest.h>

namespace phial
{
namespace
{

TEST(CoreTokenListTest, TokensKeepTheirOrderAndNames)
{
    CoreTokenList list;
    list.Add(u"C", 2.0);
    list.Add(u"H", 4.0);
    ASSERT_EQ(list.Count(), 2);
    EXPECT_EQ(list.Item(1).Name(), u"C");
    EXPECT_EQ(list.Item(2).Name(), u"H");
    EXPECT_EQ(list.Item(2).Values().Item(1), Variant(4.0));
}

TEST(CoreTokenListTest, ATokenHasSeveralValues)
{
    CoreTokenList list;
    list.Add(u"lab_Name.CAPTION", {u"Hallo", u"Hello"});
    CoreValueList& values = list.Item(u"LAB_NAME.caption").Values();
    EXPECT_EQ(values.Count(), 2);
    EXPECT_EQ(values.Item(1), Variant(u"Hallo"));
    EXPECT_EQ(values.Item(2), Variant(u"Hello"));
    values.SetItem(2, u"Hi");
    EXPECT_EQ(list.Item(1).Values().Item(2), Variant(u"Hi"));
    EXPECT_RAISES(values.Item(0), IndexOutOfBounds);
    EXPECT_RAISES(values.Item(3), IndexOutOfBounds);
    EXPECT_RAISES(values.SetItem(3, 1), IndexOutOfBounds);
}

TEST(CoreTokenListTest, ATokenMayHaveNoValue)
{
    CoreTokenList list;
    EXPECT_EQ(list.Add(u"a", std::initializer_list<Variant>{}).Values().Count(), 0);
}

TEST(CoreTokenListTest, NamesAreFoundWhateverTheirCase)
{
    CoreTokenList list;
    list.Add(u"EMBEDDED", u"");
    EXPECT_TRUE(list.Exists(u"embedded"));
    EXPECT_EQ(list.IndexOf(u"Embedded"), 1);
    EXPECT_EQ(list.IndexOf(u"NOSOUND"), 0);
}

TEST(CoreTokenListTest, AKnownNameKeepsItsPositionAndGetsTheNewValues)
{
    CoreTokenList list;
    list.Add(u"a", 1);
    list.Add(u"b", 2);
    list.Add(u"A", 3);
    EXPECT_EQ(list.Count(), 2);
    EXPECT_EQ(list.Item(1).Name(), u"a");
    EXPECT_EQ(list.Item(1).Values().Item(1), Variant(3));
}

TEST(CoreTokenListTest, PositionZeroIsAHarmlessScratchToken)
{
    CoreTokenList list;
    EXPECT_TRUE(list.Item(0).Values().Item(1).isEmpty());
    list.Item(0).Values().SetItem(1, 5);
    EXPECT_TRUE(list.Item(0).Values().Item(1).isEmpty());
    EXPECT_EQ(list.Count(), 0);

    list.Add(u"a", 1);
    list.Item(0).Values().SetItem(1, 5);
    EXPECT_EQ(list.Item(1).Values().Item(1), Variant(1));
    EXPECT_FALSE(list.Exists(u""));
    EXPECT_TRUE(list.Item(u"missing").Values().Item(1).isEmpty());
}

TEST(CoreTokenListTest, TheScratchTokenOfAConstantListReadsAsEmpty)
{
    const CoreTokenList list;
    EXPECT_TRUE(list.Item(0).Values().Item(1).isEmpty());
    EXPECT_TRUE(list.Item(u"missing").Values().Item(1).isEmpty());
}

TEST(CoreTokenListTest, OtherPositionsOutsideRaise)
{
    CoreTokenList list;
    list.Add(u"a", 1);
    EXPECT_RAISES(list.Item(2), IndexOutOfBounds);
    EXPECT_RAISES(list.Item(-1), IndexOutOfBounds);
}

TEST(CoreTokenListTest, LongListsFindEveryName)
{
    CoreTokenList list;
    for (std::int32_t i = 1; i <= 5000; ++i) {
        list.Add(u"Name" + plainText(i), i);
        ASSERT_EQ(list.IndexOf(u"NAME" + plainText(i)), i);
    }
    list.Add(u"name77", -1);
    EXPECT_EQ(list.Count(), 5000);
    for (std::int32_t i = 1; i <= 5000; ++i) {
        ASSERT_EQ(list.IndexOf(u"name" + plainText(i)), i);
    }
    EXPECT_FALSE(list.Exists(u"Name0"));
    EXPECT_EQ(list.Item(u"Name77").Values().Item(1), Variant(-1));
}

TEST(CoreTokenListTest, ACopyIsAListOfItsOwn)
{
    CoreTokenList list;
    list.Add(u"a", 1);
    CoreTokenList copy = list;
    copy.Add(u"b", 2);
    copy.Item(1).Values().SetItem(1, 9);
    EXPECT_EQ(list.Count(), 1);
    EXPECT_EQ(list.Item(1).Values().Item(1), Variant(1));
}

} // namespace
} // namespace phial
