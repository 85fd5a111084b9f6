#include "molmasse/SaltParts.h"

#include <gtest/gtest.h>

namespace molmasse
{
namespace
{

using Parts = std::vector<SaltPart>;

TEST(SaltParts, AreWhatStandsBetweenTheDots)
{
    EXPECT_EQ(saltParts(u"CuSO4*5H2O"), (Parts{{u"CuSO4", 1}, {u"H2O", 5}}));
    EXPECT_EQ(saltParts(u"CuSO4\u00B75H2O"), (Parts{{u"CuSO4", 1}, {u"H2O", 5}}));
    EXPECT_EQ(saltParts(u"KCl*MgCl2*6H2O"), (Parts{{u"KCl", 1}, {u"MgCl2", 1}, {u"H2O", 6}}));
    EXPECT_EQ(saltParts(u"FeSO4*(NH4)2SO4*6H2O"), (Parts{{u"FeSO4", 1}, {u"(NH4)2SO4", 1}, {u"H2O", 6}}));
    EXPECT_EQ(saltParts(u"KAl(SO4)2*12H2O"), (Parts{{u"KAl(SO4)2", 1}, {u"H2O", 12}}));
}

TEST(SaltParts, LeaveAFormulaWithoutADotAsItStands)
{
    EXPECT_EQ(saltParts(u"Ca(OH)2"), (Parts{{u"Ca(OH)2", 1}}));
    EXPECT_EQ(saltParts(u"Na(OH)"), (Parts{{u"Na(OH)", 1}}));
    EXPECT_EQ(withoutDots(u")("), u")(");
}

TEST(SaltParts, AreNoneWhereTheyCannotBeCounted)
{
    EXPECT_EQ(saltParts(u"CaSO4*0.5H2O"), Parts());
    EXPECT_EQ(saltParts(u"CaSO4*"), Parts());
    EXPECT_EQ(saltParts(u"*"), Parts());
    EXPECT_EQ(saltParts(u"CuSO4**5H2O"), Parts());
    EXPECT_EQ(saltParts(u"CH3*"), Parts()) << "a radical";
    EXPECT_EQ(withoutDots(u"CaSO4*"), u"");
}

TEST(SaltParts, AreOneFormulaWhereAtomsAreCounted)
{
    EXPECT_EQ(withoutDots(u"CuSO4*5H2O"), u"CuSO4(H2O)5");
    EXPECT_EQ(withoutDots(u"KCl*MgCl2*6H2O"), u"KClMgCl2(H2O)6");
    EXPECT_EQ(withoutDots(u"H2O"), u"H2O");
}

} // namespace
} // namespace molmasse
