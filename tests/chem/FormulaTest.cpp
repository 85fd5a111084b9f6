#include "chem/cls_DataElements.h"
#include "core/CoreNumbers.h"
#include "core/NativePath.h"
#include "support/CaseTable.h"
#include "support/FormulaReference.h"
#include "support/HeadlessSession.h"
#include "support/Places.h"
#include "support/Raises.h"

#include <gtest/gtest.h>
#include <random>

namespace phial
{
namespace
{

using test::CaseRow;
using test::FormulaReference;

String joined(const CoreStringList& list)
{
    String text;
    for (const String& entry : list) {
        text += text.empty() ? entry : u", " + entry;
    }
    return text;
}

// "C 2, H 4, O 2"
String listed(const CoreTokenList& tokens)
{
    CoreStringList list;
    for (std::int32_t index = 1; index <= tokens.Count(); ++index) {
        const CoreToken& token = tokens.Item(index);
        list.Add(token.Name() + u" " + token.Values().Item(1).toText());
    }
    return joined(list);
}

class Formula : public test::HeadlessSession
{
protected:
    Formula() { table.IMPORT2(systemPath(test::treeFolder()) + u"\\Resources\\data\\elements2.dat"); }

    cls_DataElements table;
};

// The columns of tests/vectors/formulas.txt behind the name.
struct FormulaCase : CaseRow {
    const String& formula() const { return columns[0]; }
    const String& symbols() const { return columns[1]; }
    const String& counts() const { return columns[2]; }
    const String& mass() const { return columns[3]; }
};

std::vector<FormulaCase> formulaCases()
{
    std::vector<FormulaCase> cases;
    for (CaseRow& row : test::readCaseTable("formulas.txt", 4)) {
        cases.push_back({std::move(row)});
    }
    return cases;
}

class FormulaTable : public Formula, public testing::WithParamInterface<FormulaCase>
{
};

INSTANTIATE_TEST_SUITE_P(Vectors, FormulaTable, testing::ValuesIn(formulaCases()),
                         test::caseName<testing::TestParamInfo<FormulaCase>>);

TEST_P(FormulaTable, ListsTheSymbols)
{
    EXPECT_EQ(joined(table.ELEMENTS(GetParam().formula())), GetParam().symbols());
}

TEST_P(FormulaTable, CountsTheAtoms)
{
    if (GetParam().counts() == u"overflow") {
        EXPECT_RAISES(table.ELEMENTSCOUNT(GetParam().formula()), Overflow);
    } else {
        EXPECT_EQ(listed(table.ELEMENTSCOUNT(GetParam().formula())), GetParam().counts());
    }
}

TEST_P(FormulaTable, WeighsTheFormula)
{
    const String& mass = GetParam().mass();
    if (mass == u"overflow") {
        EXPECT_RAISES(table.MOL(GetParam().formula()), Overflow);
    } else if (mass == u"asks") {
        outside.dialogs().expectInput(u"12,5");
        EXPECT_EQ(table.MOL(GetParam().formula()), 12.5);
    } else {
        EXPECT_NEAR(table.MOL(GetParam().formula()), CoreInvariant::Parse(mass), 1e-6);
    }
}

TEST_F(Formula, AsksForTheWholeFormulaAtItsFirstUnknownElement)
{
    outside.dialogs().expectInput(
        u"293,5", u"Ich kenne das Element 'Uuo' leider nicht. Gibt daher die molare Masse für "
                  u"H2UuoXx3 ein:");
    EXPECT_EQ(table.MOL(u"H2UuoXx3"), 293.5);
    ASSERT_EQ(outside.dialogs().shown().size(), 1U);
    EXPECT_EQ(outside.dialogs().shown()[0].title, u"");
    EXPECT_EQ(outside.dialogs().shown()[0].detail, u"");
}

TEST_F(Formula, WeighsNothingWhenTheUserCancels)
{
    outside.dialogs().expectInput(u"");
    EXPECT_EQ(table.MOL(u"Xx"), 0);
}

TEST_F(Formula, TakesTheMassFromAnElementWhoseSymbolHasAnotherCase)
{
    cls_DataElements own;
    own.CREATE(u"NA", u"Natrium", 11, 23.0);
    EXPECT_EQ(own.MOL(u"Na2"), 46.0);
}

TEST_F(Formula, IsCountedWithoutATable)
{
    EXPECT_EQ(listed(cls_DataElements().ELEMENTSCOUNT(u"Ca(OH)2")), u"Ca 1, O 2, H 2");
}

TEST_F(Formula, IsCountedAsTheSimpleReferenceDoes)
{
    constexpr StringView Alphabet = u"CHONaClbe()()()0123459* ";
    std::mt19937 random(20'240'501); // NOLINT(cert-msc51-cpp): the same formulas every time
    std::uniform_int_distribution<std::size_t> pick(0, Alphabet.size() - 1);
    for (int round = 0; round < 20'000; ++round) {
        String formula;
        for (std::size_t length = pick(random); length > 0; --length) {
            formula += Alphabet[pick(random)];
        }
        String expected;
        try {
            for (const auto& [symbol, count] : FormulaReference::count(formula)) {
                expected += (expected.empty() ? u"" : u", ") + symbol + u" " + Variant(count).toText();
            }
        } catch (const RuntimeError&) {
            EXPECT_RAISES(table.ELEMENTSCOUNT(formula), Overflow);
            continue;
        }
        EXPECT_EQ(listed(table.ELEMENTSCOUNT(formula)), expected) << toUtf8(formula);
    }
}

} // namespace
} // namespace phial
