#include "formeln/NameJudge.h"

#include <gtest/gtest.h>

namespace formeln
{
namespace
{

using phial::String;
using phial::StringView;

NameMatch match(StringView typed, StringView column, bool ionMayBeLeftOut = false)
{
    return matchOf(typed, namesIn(column), ionMayBeLeftOut);
}

TEST(NameJudge, ReadsSeveralNamesOfAColumn)
{
    EXPECT_EQ(namesIn(u" Wasser / Dihydrogenoxid "), (std::vector<String>{u"Wasser", u"Dihydrogenoxid"}));
    EXPECT_EQ(namesIn(u"Wasser //"), std::vector<String>{u"Wasser"});
    EXPECT_TRUE(namesIn(u"  ").empty());
}

TEST(NameJudge, TakesAnyOfTheNames)
{
    EXPECT_EQ(match(u"Gips", u"Calciumsulfat-Dihydrat / Gips"), NameMatch::Same);
    EXPECT_EQ(match(u"Calciumsulfat-Dihydrat", u"Calciumsulfat-Dihydrat / Gips"), NameMatch::Same);
}

TEST(NameJudge, MakesNoDifferenceOfCapitalsBlanksAndHyphens)
{
    EXPECT_EQ(match(u"eisen (III) oxid", u"Eisen(III)-oxid"), NameMatch::Same);
    EXPECT_EQ(match(u"EISEN(III)OXID", u"Eisen(III)-oxid"), NameMatch::Same);
    EXPECT_EQ(match(u"Eisen(III)\u2011oxid", u"Eisen(III)-oxid"), NameMatch::Same);
}

TEST(NameJudge, MakesNoDifferenceOfOlderAndForeignSpellings)
{
    EXPECT_EQ(match(u"Kalziumkarbonat", u"Calciumcarbonat"), NameMatch::Same);
    EXPECT_EQ(match(u"Äthanol", u"Ethanol"), NameMatch::Same);
    EXPECT_EQ(match(u"sodium sulphate", u"sodium sulfate"), NameMatch::Same);
    EXPECT_EQ(match(u"Zinkoxyd", u"Zinkoxid"), NameMatch::Same);
    EXPECT_EQ(match(u"Flußsäure", u"Flusssäure"), NameMatch::Same);
}

TEST(NameJudge, LeavesOutIonOnlyWhereItMay)
{
    EXPECT_EQ(match(u"Sulfat", u"Sulfat-Ion", true), NameMatch::Same);
    EXPECT_EQ(match(u"Natrium", u"Natrium-Ion", false), NameMatch::IonMissing);
}

TEST(NameJudge, KnowsWhatWasMixedUp)
{
    EXPECT_EQ(match(u"Natriumsulfit", u"Natriumsulfat"), NameMatch::OtherEnding);
    EXPECT_EQ(match(u"Natriumsulfid", u"Natriumsulfat"), NameMatch::OtherEnding);
    EXPECT_EQ(match(u"sodium sulfide", u"sodium sulfate"), NameMatch::OtherEnding);
    EXPECT_EQ(match(u"Propen", u"Propan"), NameMatch::OtherEnding);
    EXPECT_EQ(match(u"Eisenoxid", u"Eisen(III)-oxid"), NameMatch::NumeralWrong);
    EXPECT_EQ(match(u"Eisen(II)-oxid", u"Eisen(III)-oxid"), NameMatch::NumeralWrong);
    EXPECT_EQ(match(u"Schwefeloxid", u"Schwefeldioxid"), NameMatch::CountWrong);
    EXPECT_EQ(match(u"Schwefeltrioxid", u"Schwefeldioxid"), NameMatch::CountWrong);
    EXPECT_EQ(match(u"Natriumcarbonat", u"Natriumhydrogencarbonat"), NameMatch::HydrogenWrong);
    EXPECT_EQ(match(u"Dihydrogenphosphat-Ion", u"Hydrogenphosphat-Ion"), NameMatch::HydrogenWrong);
}

TEST(NameJudge, SeesASlipOfTheFinger)
{
    EXPECT_EQ(match(u"Natriumclorid", u"Natriumchlorid"), NameMatch::Misspelt);
    EXPECT_EQ(match(u"Natrimclorid", u"Natriumchlorid"), NameMatch::Misspelt);
    EXPECT_EQ(match(u"Natrimclord", u"Natriumchlorid"), NameMatch::Other);
    EXPECT_EQ(match(u"Brm", u"Brom"), NameMatch::Other) << "in a short name each letter counts";
    EXPECT_EQ(match(u"Schwefelsäue", u"Schwefelsäure"), NameMatch::Misspelt);
}

TEST(NameJudge, TellsApartWhatIsFarAway)
{
    EXPECT_EQ(match(u"Kaliumchlorid", u"Natriumbromid"), NameMatch::Other);
    EXPECT_EQ(match({}, u"Natriumbromid"), NameMatch::Other);
    EXPECT_EQ(match(u"(", u"Eisen(III)-oxid"), NameMatch::Other);
}

TEST(NameJudge, TheBestOfSeveralNamesCounts)
{
    EXPECT_EQ(match(u"Kohlendioxid", u"Kohlenstoffdioxid / Kohlendioxid"), NameMatch::Same);
    EXPECT_EQ(match(u"Kohlenoxid", u"Kohlenstoffdioxid / Kohlendioxid"), NameMatch::CountWrong);
}

} // namespace
} // namespace formeln
