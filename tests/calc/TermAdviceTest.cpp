#include "calc/TermAdvice.h"

#include "calc/ExpressionSolver.h"
#include "calc/TermReading.h"
#include "support/CaseTable.h"

#include <gtest/gtest.h>

namespace phial
{

namespace
{

String half(const String& both, bool isGerman)
{
    const std::size_t bar = both.find(u'|');
    return isGerman ? both.substr(0, bar) : both.substr(bar + 1);
}

const std::vector<Variant> Variables = {Variant(u"A"), Variant(2.5), Variant(u"N2"), Variant(-3.0)};
const std::vector<String> Names = {u"A", u"N2"};
const std::vector<PieceReading> Readings = {{u"A", u"2,5 mol"}, {u"18,015", u"18,015 g/mol"}};

std::optional<TermFlaw> flawOf(StringView term)
{
    ExpressionSolver solver;
    return flawIn(term, Names, solver, Variables);
}

class TermAdviceCases : public ::testing::TestWithParam<test::CaseRow>
{
};

} // namespace

TEST_P(TermAdviceCases, TheTermIsReadAndAdvisedOn)
{
    const auto& columns = GetParam().columns;
    const auto flaw = flawOf(columns[0]);
    EXPECT_EQ(flaw ? std::to_string(flaw->place) : "-", toUtf8(columns[1]));
    EXPECT_EQ(flaw ? toUtf8(half(adviceOn(*flaw), true)) : "", toUtf8(columns[2]));
    EXPECT_EQ(toUtf8(trimmed(readableTerm(columns[0], Readings))), toUtf8(columns[3]));
    EXPECT_EQ(toUtf8(half(spokenTerm(columns[0], Readings), true)), toUtf8(columns[4]));
}

INSTANTIATE_TEST_SUITE_P(TermAdvice, TermAdviceCases,
                         ::testing::ValuesIn(test::readCaseTable("term_advice.txt", 5)),
                         test::caseName<::testing::TestParamInfo<test::CaseRow>>);

TEST(TermAdvice, SpeaksEnglishToo)
{
    EXPECT_EQ(half(adviceOn(*flawOf(u"3*")), false), u"A number is missing after *.");
    EXPECT_EQ(half(adviceOn(*flawOf(u"2(3)")), false),
              u"A times sign is missing between 2 and (, so 2 does not count.");
    EXPECT_EQ(half(spokenTerm(u"2*A^-3-1E+5", Readings), false),
              u"2 times 2,5 mol to the power of minus 3 minus 1 times 10 to the power of 5");
}

TEST(TermAdvice, EveryFlawHasASentenceInBothLanguages)
{
    for (int kind = 0; kind <= static_cast<int>(TermFlaw::Kind::TooLarge); ++kind) {
        const String both = adviceOn({static_cast<TermFlaw::Kind>(kind), 0, u"*", u"("});
        EXPECT_TRUE(half(both, true).ends_with(u'.')) << kind;
        EXPECT_TRUE(half(both, false).ends_with(u'.')) << kind;
        EXPECT_NE(half(both, true), half(both, false)) << kind;
    }
}

TEST(TermAdvice, TellsTheInnermostBracketsThatCannotBeWorkedOut)
{
    using Kind = TermFlaw::Kind;
    EXPECT_EQ(flawOf(u"(1/0)"), (TermFlaw{Kind::DivisionByZero, 0, u"1/0"}));
    EXPECT_EQ(flawOf(u"3+(2/(1-1))"), (TermFlaw{Kind::DivisionByZero, 2, u"2/(1-1)"}));
    EXPECT_EQ(flawOf(u"2*(3)+(1/0)"), (TermFlaw{Kind::DivisionByZero, 6, u"1/0"}));
    EXPECT_EQ(flawOf(u"2*(1/0"), (TermFlaw{Kind::DivisionByZero, 2, u"1/0"})) << "not closed";
    EXPECT_EQ(flawOf(u"1+log(0)"), (TermFlaw{Kind::NoLogarithm, 5, u"log(0)"}));
    EXPECT_EQ(flawOf(u"2/(3-3)"), (TermFlaw{Kind::DivisionByZero, 0, u"2/(3-3)"}));
}

TEST(TermAdvice, CountsBracketsThatAreOpen)
{
    EXPECT_EQ(flawIn(u"((2))", Names), std::nullopt);
    EXPECT_EQ(flawIn(u"(2))", Names), (TermFlaw{TermFlaw::Kind::BracketTooMany, 3, u")"}));
    const auto begun = flawIn(u"log(", Names);
    EXPECT_TRUE(!begun || begun->kind != TermFlaw::Kind::UnknownName);
}

TEST(TermAdvice, AVariableThatIsNoNumberDoesNotRaise)
{
    ExpressionSolver solver;
    const std::vector<Variant> variables = {Variant(u"A"), Variant(u"Wasser")};
    EXPECT_EQ(flawIn(u"A*2", Names, solver, variables), std::nullopt);
}

} // namespace phial
