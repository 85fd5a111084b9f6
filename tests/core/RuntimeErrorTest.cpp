#include "core/RuntimeError.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace phial
{
namespace
{

TEST(RuntimeErrorTest, TakesItsDescriptionFromTheTable)
{
    const RuntimeError error(ErrorNumber::DivisionByZero);
    EXPECT_EQ(error.Number(), 11);
    EXPECT_EQ(error.Description(), u"Division by zero");
    EXPECT_STREQ(error.what(), "Division by zero");
}

TEST(RuntimeErrorTest, KeepsADescriptionOfItsOwn)
{
    const RuntimeError error(1234, u"Stra\u00DFe gesperrt");
    EXPECT_EQ(error.Number(), 1234);
    EXPECT_STREQ(error.what(), "Stra\xC3\x9F"
                               "e gesperrt");
}

TEST(RuntimeErrorTest, EveryNamedNumberHasADescription)
{
    for (const std::int32_t number : {5, 6, 9, 11, 13, 53, 91, 438}) {
        EXPECT_NE(errorDescription(number), u"Unknown error") << number;
    }
    EXPECT_EQ(errorDescription(7), u"Unknown error");
}

TEST(RuntimeErrorTest, IgnoringErrorsTellsWhetherTheStatementRanThrough)
{
    bool after = false;
    EXPECT_FALSE(ignoringErrors([&] {
        throw RuntimeError(ErrorNumber::Overflow);
        after = true;
    }));
    EXPECT_FALSE(after);
    EXPECT_FALSE(ignoringErrors([] { throw std::out_of_range("list"); }));
    EXPECT_TRUE(ignoringErrors([] {}));
}

} // namespace
} // namespace phial
