#include "molmasse/Working.h"

#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "chem/cls_DataElements.h"
#include "core/NativePath.h"
#include "support/AppSession.h"
#include "support/Places.h"

#include <gmock/gmock-more-matchers.h>

namespace molmasse
{
namespace
{

class Working : public phial::test::AppSession
{
protected:
    Working()
    {
        outside.environment().set(u"LANG", u"de_DE.UTF-8");
        table.IMPORT2(phial::systemPath(phial::test::treeFolder()) + u"\\Resources\\data\\elements2.dat");
    }

    phial::cls_DataElements table;
};

TEST_F(Working, AddsUpTheElementsInTheOrderOfTheFormula)
{
    EXPECT_EQ(workedLine(table, u"H2O"), u"2 · 1,0 + 16,0 = 2,0 + 16,0 = 18,0\u00A0g/mol");
    EXPECT_EQ(workedLine(table, u"Ca(OH)2"),
              u"40,1 + 2 · 16,0 + 2 · 1,0 = 40,1 + 32,0 + 2,0 = 74,1\u00A0g/mol");
    EXPECT_EQ(workedLine(table, u"C8H18"), u"8 · 12,0 + 18 · 1,0 = 96,0 + 18,0 = 114,0\u00A0g/mol");
}

TEST_F(Working, AddsUpThePartsOfAHydrate)
{
    EXPECT_EQ(workedLine(table, u"CuSO4*5H2O"), u"159,6 + 5 · 18,0 = 159,6 + 90,0 = 249,6\u00A0g/mol");
    EXPECT_EQ(workedLine(table, u"KCl*MgCl2*6H2O"),
              u"74,6 + 95,3 + 6 · 18,0 = 74,6 + 95,3 + 108,0 = 277,9\u00A0g/mol");
}

TEST_F(Working, HasNoStepThatTellsNothing)
{
    EXPECT_EQ(workedLine(table, u"O2"), u"2 · 16,0 = 32,0\u00A0g/mol");
    EXPECT_EQ(workedLine(table, u"NaCl"), u"23,0 + 35,5 = 58,5\u00A0g/mol");
}

TEST_F(Working, CountsAtomsWithTheirMassesOrWithout)
{
    EXPECT_EQ(atomsCounted(table, u"CH3COOH", AtomMasses::Hidden), u"2 \u00D7 C<br>4 \u00D7 H<br>2 \u00D7 O");
    EXPECT_EQ(
        atomsCounted(table, u"NaOH", AtomMasses::Shown),
        u"1 \u00D7 Na (23,0\u00A0g/mol)<br>1 \u00D7 O (16,0\u00A0g/mol)<br>1 \u00D7 H (1,0\u00A0g/mol)");
}

TEST_F(Working, ListsTheMassesOfTheTasksElementsWithTheirNames)
{
    const std::vector<learning::ListedTask> tasks{{u"NaCl", {}, {}}, {u"H2O", {}, {}}};
    const auto spoken = [&] {
        std::vector<phial::String> names;
        for (const learning::ReferenceEntry& entry : massesOfElements(table, tasks)) {
            names.push_back(entry.spoken);
        }
        return names;
    };
    using ::testing::ElementsAre;
    phial::LNG()->CURRENT(phial::ID_Language_German);
    EXPECT_THAT(spoken(), ElementsAre(u"Wasserstoff: 1,0\u00A0g/mol", u"Sauerstoff: 16,0\u00A0g/mol",
                                      u"Natrium: 23,0\u00A0g/mol", u"Chlor: 35,5\u00A0g/mol"));
    phial::LNG()->CURRENT(phial::ID_Language_English);
    EXPECT_THAT(spoken(), ElementsAre(u"Hydrogen: 1.0\u00A0g/mol", u"Oxygen: 16.0\u00A0g/mol",
                                      u"Sodium: 23.0\u00A0g/mol", u"Chlorine: 35.5\u00A0g/mol"));
}

} // namespace
} // namespace molmasse
