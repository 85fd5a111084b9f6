#include "molmasse/Mistakes.h"

#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "chem/cls_DataElements.h"
#include "core/CoreFiles.h"
#include "core/CoreNumbers.h"
#include "core/CoreRoot.h"
#include "core/NativePath.h"
#include "molmasse/MassJudge.h"
#include "molmasse/SaltParts.h"
#include "molmasse/TrainerData.h"
#include "support/AppSession.h"
#include "support/CaseTable.h"
#include "support/Places.h"

#include <gtest/gtest.h>
#include <optional>

namespace molmasse
{
namespace
{

using phial::String;
using phial::StringView;

constexpr std::pair<Mistake, StringView> MistakeNames[] = {
    {Mistake::IndexForgotten, u"IndexForgotten"}, {Mistake::BracketForgotten, u"BracketForgotten"},
    {Mistake::PartForgotten, u"PartForgotten"},   {Mistake::FactorForgotten, u"FactorForgotten"},
    {Mistake::OneElementOnly, u"OneElementOnly"}, {Mistake::AtomsCounted, u"AtomsCounted"},
    {Mistake::AtomicNumbers, u"AtomicNumbers"},   {Mistake::CommaShifted, u"CommaShifted"},
    {Mistake::RoundedTooFar, u"RoundedTooFar"},
};

// The columns of tests/vectors/mistakes.txt behind the name.
struct MistakeCase : phial::test::CaseRow {
    const String& formula() const { return columns[0]; }
    double answer() const { return phial::CoreInvariant::Parse(columns[1]); }
    std::optional<Diagnosis> diagnosis() const
    {
        for (const auto& [mistake, word] : MistakeNames) {
            if (columns[2] == word) {
                return Diagnosis{mistake, columns[3], columns[4]};
            }
        }
        EXPECT_EQ(columns[2], u"none");
        return std::nullopt;
    }
};

std::vector<MistakeCase> mistakeCases()
{
    std::vector<MistakeCase> cases;
    for (phial::test::CaseRow& row : phial::test::readCaseTable("mistakes.txt", 5)) {
        cases.push_back({std::move(row)});
    }
    return cases;
}

class Mistakes : public phial::test::AppSession
{
protected:
    Mistakes()
    {
        const String file =
            phial::systemPath(phial::test::treeFolder()) + u"\\Resources\\data\\elements2.dat";
        table.IMPORT2(file);
    }

    phial::cls_DataElements table;
    MassSource source{[this](const String& formula) { return table.MOL(formula); },
                      [this](const String& formula) { return table.exactMass(formula).value_or(0); },
                      [this](const String& symbol) { return table.ITEM(symbol, false)->PROTONS(); }};
};

class MistakeTable : public Mistakes, public testing::WithParamInterface<MistakeCase>
{
};

INSTANTIATE_TEST_SUITE_P(Vectors, MistakeTable, testing::ValuesIn(mistakeCases()),
                         phial::test::caseName<testing::TestParamInfo<MistakeCase>>);

TEST_P(MistakeTable, IsTold)
{
    const MistakeCase& given = GetParam();
    ASSERT_FALSE(isRight(given.answer(), table.MOL(withoutDots(given.formula()))));
    EXPECT_EQ(mistakeOf(given.formula(), given.answer(), source), given.diagnosis());
}

TEST_F(Mistakes, OfAnElementAreNotItsOwnMass)
{
    EXPECT_EQ(mistakeOf(u"Cl2", 35.5, source), (Diagnosis{Mistake::IndexForgotten, u"Cl", u"2"}));
    EXPECT_EQ(mistakeOf(u"Fe", 100, source), std::nullopt);
}

TEST_F(Mistakes, AreNotSeenWhereNothingIsCounted)
{
    EXPECT_EQ(mistakeOf(u"Na(OH)", 5, source), std::nullopt);
    EXPECT_EQ(mistakeOf(u")(", 5, source), std::nullopt);
    EXPECT_EQ(mistakeOf(u"", 5, source), std::nullopt);
}

TEST_F(Mistakes, ThatLieNearerWin)
{
    // A forgotten bracket gives 57.1; twice the last atom alone gives 58.1.
    EXPECT_EQ(mistakeOf(u"Ca(OH)2", 58.12, source), (Diagnosis{Mistake::BracketForgotten, u"", u"2"}));
    // The mass of the atoms N is 28.0 and that of the answer's neighbour CO in CO(NH2)2 the same.
    EXPECT_EQ(mistakeOf(u"CO(NH2)2", 28, source), (Diagnosis{Mistake::OneElementOnly, u"N", u""}));
}

TEST_F(Mistakes, AreToldInBothLanguagesWithoutTheSolution)
{
    phial::LNG()->CURRENT(phial::ID_Language_German);
    const Diagnosis index{Mistake::IndexForgotten, u"H", u"2"};
    EXPECT_EQ(explained(index), u"Denk an die kleine 2 hinter H.");
    EXPECT_EQ(explained({Mistake::BracketForgotten, u"", u"3"}),
              u"Die 3 hinter der Klammer gilt für alles in der Klammer.");
    for (const auto& [mistake, name] : MistakeNames) {
        EXPECT_FALSE(explained({mistake, u"H", u"2"}).empty()) << phial::toUtf8(name);
        EXPECT_LE(explained({mistake, u"", u""}).size(), 75U) << "it stands in one line";
    }
    phial::LNG()->CURRENT(phial::ID_Language_English);
    EXPECT_EQ(explained(index), u"Mind the small 2 behind H.");
}

} // namespace
} // namespace molmasse
