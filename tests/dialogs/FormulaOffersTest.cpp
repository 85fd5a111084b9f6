#include "dialogs/FormulaOffers.h"

#include "chem/formula/FormulaNames.h"
#include "dialogs/OfferChoice.h"
#include "support/AppSession.h"

#include <gmock/gmock-more-matchers.h>

namespace phial::test
{

namespace
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr std::size_t Many = 1000;

std::vector<std::string> offered(StringView before, std::size_t most = Many)
{
    std::vector<std::string> all;
    for (const FormulaName* each : offersBehind(before, most).formulas) {
        all.push_back(toUtf8(each->formula));
    }
    return all;
}

TEST(FormulaOffers, GoOnAsWhatHasBeenBegun)
{
    EXPECT_THAT(offered(u"H2S"), ElementsAre("H2SO3", "H2SO4", "H2S"));
    EXPECT_THAT(offered(u"H2SO4"), ElementsAre("H2SO4")) << "what is there already";
    EXPECT_THAT(offered(u"NaHC"), ElementsAre("NaHCO3"));
    EXPECT_THAT(offered(u"(NH"), ElementsAre("(NH4)2CO3", "(NH4)2SO4"));
    EXPECT_THAT(offered(u"Fe^"), ElementsAre("Fe^2+", "Fe^3+"));
    EXPECT_THAT(offered(u"CaSO4*"), ElementsAre("CaSO4*2H2O"));
}

TEST(FormulaOffers, ShortOnesStandFirst)
{
    const auto all = offered(u"Na", 3);
    EXPECT_THAT(all, ElementsAre("NaF", "Na2O", "NaCl"));
}

TEST(FormulaOffers, FindWhatWasTypedInCapitals)
{
    EXPECT_THAT(offered(u"NACL"), ElementsAre("NaCl", "NaClO"));
    EXPECT_THAT(offered(u"nacl"), ElementsAre("NaCl", "NaClO"));
    EXPECT_EQ(offered(u"CO", 2), (std::vector<std::string>{"CO2", "CO3^2-"})) << "no cobalt before these";
}

TEST(FormulaOffers, TellHowMuchHasBeenBegun)
{
    EXPECT_EQ(offersBehind(u"2H2S", Many).length, 3U) << "without the factor";
    EXPECT_EQ(offersBehind(u"H2 + O2 -> 2NaH", Many).length, 3U);
    EXPECT_EQ(offersBehind(u"Na^+ + SO4^2-", Many).length, 6U) << "the sign of a charge divides nothing";
    EXPECT_EQ(offersBehind(u"H2+NaH", Many).length, 3U);
    EXPECT_EQ(offersBehind(u"(NaH", Many).length, 3U) << "the bracket is the term's own";
    EXPECT_EQ(offersBehind(u"((NH4", Many).length, 4U);
}

TEST(FormulaOffers, AreNoneWithoutAFormula)
{
    for (const StringView before : {u"", u"2", u"12^2", u"H2 ", u"H2 + ", u"(", u"Qq", u"H2->", u"^"}) {
        EXPECT_THAT(offered(before), IsEmpty()) << toUtf8(before);
        EXPECT_EQ(offersBehind(before, Many).length, 0U) << toUtf8(before);
    }
    EXPECT_THAT(offered(u"H2S", 0), IsEmpty());
}

class OfferChoice : public AppSession
{
};

TEST_F(OfferChoice, ProgramsGiveLeaveAndUsersMayDoWithout)
{
    EXPECT_FALSE(OfferLeave::current()->isGiven);
    EXPECT_TRUE(wantsOffers());
    wantOffers(false);
    EXPECT_FALSE(wantsOffers());
    wantOffers(true);
    EXPECT_TRUE(wantsOffers());
}

} // namespace

} // namespace phial::test
