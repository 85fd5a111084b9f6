#include "core/KeptRecords.h"

#include <gmock/gmock-more-matchers.h>
#include <gtest/gtest.h>

namespace phial
{
namespace
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using Reason = KeptRecord::Reason;

KeptRecord damaged(StringView file)
{
    return {Reason::Damaged, String(file), String(file) + u".damaged"};
}

TEST(KeptRecords, AreToldOnce)
{
    KeptRecords kept;
    EXPECT_THAT(kept.takeUntold(), IsEmpty());
    kept.add(damaged(u"a"));
    kept.add(damaged(u"b"));
    EXPECT_THAT(kept.takeUntold(), ElementsAre(damaged(u"a"), damaged(u"b")));
    EXPECT_THAT(kept.takeUntold(), IsEmpty());
    kept.add(damaged(u"c"));
    EXPECT_THAT(kept.takeUntold(), ElementsAre(damaged(u"c")));
    EXPECT_THAT(kept.all(), ElementsAre(damaged(u"a"), damaged(u"b"), damaged(u"c")));
}

TEST(KeptRecords, RememberTheLatestOnly)
{
    KeptRecords kept;
    for (std::size_t count = 0; count <= KeptRecords::Most; ++count) {
        kept.add(damaged(count == 0 ? u"first" : u"later"));
    }
    EXPECT_THAT(kept.all(), SizeIs(KeptRecords::Most));
    EXPECT_EQ(kept.all().front(), damaged(u"later"));
    EXPECT_THAT(kept.takeUntold(), SizeIs(KeptRecords::Most));
}

TEST(KeptRecords, KnowWhatHasGoneAndTellItOnce)
{
    KeptRecords kept;
    EXPECT_FALSE(kept.missed("/lists/a"));
    kept.saw("/lists/a");
    EXPECT_TRUE(kept.missed("/lists/a"));
    EXPECT_TRUE(kept.missed("/lists/a"));
    EXPECT_TRUE(kept.missed("/lists/A")) << "in another spelling";
    EXPECT_THAT(kept.all(), ElementsAre(KeptRecord{Reason::Gone, u"\\lists\\a", u""}));
    kept.saw("/lists/a");
    EXPECT_TRUE(kept.missed("/lists/A"));
    EXPECT_EQ(kept.all().size(), 2U) << "it was back meanwhile";
}

} // namespace
} // namespace phial
