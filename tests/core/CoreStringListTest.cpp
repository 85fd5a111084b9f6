#include "core/CoreStringList.h"

#include "core/RandomSource.h"
#include "core/SessionState.h"
#include "support/Raises.h"

#include <gtest/gtest.h>
#include <memory>

namespace phial
{
namespace
{

/// Gives one number for ever.
class SameNumber : public RandomSource
{
public:
    explicit SameNumber(double number) : number_(number) {}
    double next() override { return number_; }
    void seed(double /*value*/) override {}

private:
    double number_;
};

String randomItem(const CoreStringList& list, double number)
{
    Platform platform;
    platform.random = std::make_shared<SameNumber>(number);
    const SessionState session(std::move(platform));
    return list.RandomItem();
}

TEST(CoreStringListTest, EntriesStayInOrderTheEmptyOneIncluded)
{
    CoreStringList list;
    list.Setup(1);
    list.Add(u"E:\\Source\\");
    list.Setup(8);
    list.Add(u"");
    list.Add(u"..\\");
    EXPECT_EQ(list, (CoreStringList{u"E:\\Source\\", u"", u"..\\"}));
    EXPECT_EQ(list.SetupNumber(), 8);
}

TEST(CoreStringListTest, PositionsCountFromOne)
{
    const CoreStringList list{u"a", u"b"};
    EXPECT_EQ(list.Item(1), u"a");
    EXPECT_EQ(list.Item(2), u"b");
    EXPECT_RAISES(list.Item(0), IndexOutOfBounds);
    EXPECT_RAISES(list.Item(3), IndexOutOfBounds);
}

TEST(CoreStringListTest, InsertMovesTheRestUp)
{
    CoreStringList list{u"b"};
    list.Insert(u"a", 1);
    list.Insert(u"c", 3);
    EXPECT_EQ(list, (CoreStringList{u"a", u"b", u"c"}));
    EXPECT_RAISES(list.Insert(u"x", 0), IndexOutOfBounds);
    EXPECT_RAISES(list.Insert(u"x", 5), IndexOutOfBounds);
}

TEST(CoreStringListTest, LookUpsDisregardCase)
{
    CoreStringList list{u"Anna", u"\u00C4nne", u"ANNA"};
    EXPECT_TRUE(list.Exists(u"\u00E4NNE"));
    EXPECT_FALSE(list.Exists(u"Anne"));
    list.Remove(u"anna");
    EXPECT_EQ(list, (CoreStringList{u"\u00C4nne", u"ANNA"}));
}

TEST(CoreStringListTest, RemovingWhatIsMissingDoesNothing)
{
    CoreStringList list{u"a"};
    list.Remove(u"b");
    EXPECT_EQ(list.Count(), 1);
    EXPECT_RAISES(list.RemoveAt(2), IndexOutOfBounds);
    list.RemoveAt(1);
    EXPECT_EQ(list.Count(), 0);
}

TEST(CoreStringListTest, AListCanBeAddedToItself)
{
    CoreStringList list{u"a", u"b"};
    list.AddList(list);
    EXPECT_EQ(list, (CoreStringList{u"a", u"b", u"a", u"b"}));
}

TEST(CoreStringListTest, SortDisregardsCaseAndKeepsEqualEntriesInOrder)
{
    CoreStringList list{u"beta", u"Alpha", u"ALPHA", u"", u"alpha"};
    list.Sort();
    EXPECT_EQ(list, (CoreStringList{u"", u"Alpha", u"ALPHA", u"alpha", u"beta"}));
}

TEST(CoreStringListTest, TheFirstOfNothingIsTheEmptyText)
{
    CoreStringList list{u"a"};
    EXPECT_EQ(list.First(), u"a");
    list.Clear();
    EXPECT_EQ(list.First(), u"");
}

TEST(CoreStringListTest, EveryEntryCanBeDrawn)
{
    const CoreStringList list{u"a", u"b", u"c"};
    EXPECT_EQ(randomItem(list, 0), u"a");
    EXPECT_EQ(randomItem(list, 0.5), u"b");
    EXPECT_EQ(randomItem(list, 0.999999), u"c");
}

TEST(CoreStringListTest, ARandomEntryOfNothingIsTheEmptyText)
{
    EXPECT_EQ(randomItem({}, 0.5), u"");
}

} // namespace
} // namespace phial
