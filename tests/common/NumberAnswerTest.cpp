#include "common/NumberAnswer.h"

#include <gtest/gtest.h>

namespace learning
{
namespace
{

TEST(TypedNumber, TakesCommaAndPointAndOuterBlanks)
{
    EXPECT_EQ(typedNumber(u"18,5"), 18.5);
    EXPECT_EQ(typedNumber(u" 18.5 "), 18.5);
    EXPECT_EQ(typedNumber(u"18"), 18);
}

TEST(TypedNumber, IsNoneForWhatIsNoNumber)
{
    EXPECT_EQ(typedNumber(u""), std::nullopt);
    EXPECT_EQ(typedNumber(u"viel"), std::nullopt);
}

} // namespace
} // namespace learning
