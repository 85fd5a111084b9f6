#include "dialogs/ElementCount.h"

#include "support/CaseTable.h"

#include <gtest/gtest.h>

namespace phial
{

namespace
{

class ElementCountCases : public ::testing::TestWithParam<test::CaseRow>
{
};

TEST_P(ElementCountCases, CountUpOrAreTyped)
{
    const auto& columns = GetParam().columns;
    EXPECT_EQ(countedUp(columns[0], columns[1]).value_or(u"typed"), columns[2]);
}

INSTANTIATE_TEST_SUITE_P(Terms, ElementCountCases,
                         ::testing::ValuesIn(test::readCaseTable("elementcount.txt", 3)),
                         test::caseName<::testing::TestParamInfo<test::CaseRow>>);

TEST(ElementCount, WithoutASymbolNothingIsCounted)
{
    EXPECT_FALSE(countedUp(u"H2", u""));
}

} // namespace

} // namespace phial
