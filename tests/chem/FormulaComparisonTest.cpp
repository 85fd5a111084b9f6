#include "chem/formula/FormulaComparison.h"

#include "FormulaTexts.h"
#include "chem/formula/FormulaSpeech.h"

#include <gtest/gtest.h>

namespace phial
{
namespace
{

using enum FormulaLikeness;

using test::formula;

FormulaComparison compare(StringView given, StringView right)
{
    return compareFormulas(formula(given), formula(right));
}

TEST(FormulaComparison, TakesEveryNotationForTheSame)
{
    EXPECT_EQ(compare(u"SO₄²⁻", u"SO4^2-").likeness, Same);
    EXPECT_EQ(compare(u"NaCl(aq)", u"NaCl").likeness, Same) << "a state makes no difference";
    EXPECT_EQ(compare(u"CuSO4.5H2O", u"CuSO4*5H2O").likeness, Same);
    EXPECT_EQ(compare(u"CH3-CH3", u"CH3CH3").likeness, Same);
    EXPECT_EQ(compare(u"e-", u"e^-").likeness, Same);
}

TEST(FormulaComparison, KnowsTheSameAtomsWrittenOtherwise)
{
    EXPECT_EQ(compare(u"N2H4O3", u"NH4NO3").likeness, WrittenOtherwise);
    EXPECT_EQ(compare(u"C2H6O", u"C2H5OH").likeness, WrittenOtherwise);
    EXPECT_TRUE(compare(u"Ca(OH)(OH)", u"Ca(OH)2").likeness == WrittenOtherwise);
    EXPECT_FALSE(compare(u"ClNa", u"NaCl").isInOrder);
    EXPECT_TRUE(compare(u"[Na]Cl", u"NaCl").isInOrder);
}

TEST(FormulaComparison, KnowsAWrongFactor)
{
    EXPECT_EQ(compare(u"2H2O", u"H2O").likeness, FactorWrong);
}

TEST(FormulaComparison, KnowsAWrongCharge)
{
    const FormulaComparison wrong = compare(u"SO4^-", u"SO4^2-");
    EXPECT_EQ(wrong.likeness, ChargeWrong);
    EXPECT_EQ(wrong.givenCharge, -1);
    EXPECT_EQ(wrong.rightCharge, -2);
    EXPECT_EQ(compare(u"SO4", u"SO4^2-").likeness, ChargeWrong);
}

TEST(FormulaComparison, KnowsAForgottenBracket)
{
    EXPECT_EQ(compare(u"CaOH2", u"Ca(OH)2").likeness, BracketForgotten);
    EXPECT_EQ(compare(u"NH42SO4", u"(NH4)2SO4").likeness, BracketForgotten);
    EXPECT_EQ(compare(u"CaOH", u"Ca(OH)2").likeness, CountsWrong);
    EXPECT_EQ(compare(u"H2O2", u"H2O").likeness, CountsWrong) << "no bracket to forget";
}

TEST(FormulaComparison, TellsWhichElementsAreNotAsMany)
{
    const FormulaComparison wrong = compare(u"Al2SO4", u"Al2(SO4)3");
    EXPECT_EQ(wrong.likeness, CountsWrong);
    ASSERT_EQ(wrong.differences.size(), 2U);
    EXPECT_EQ(wrong.differences[0].element, 8);
    EXPECT_EQ(wrong.differences[0].given, (Rational{4, 1}));
    EXPECT_EQ(wrong.differences[0].right, (Rational{12, 1}));
    EXPECT_EQ(wrong.differences[1].element, 16);
}

TEST(FormulaComparison, TellsWhichElementsAreMissing)
{
    const FormulaComparison wrong = compare(u"NaBr", u"NaCl");
    EXPECT_EQ(wrong.likeness, ElementsWrong);
    ASSERT_EQ(wrong.differences.size(), 2U);
    EXPECT_EQ(wrong.differences[0].element, 17);
    EXPECT_EQ(wrong.differences[0].given, (Rational{0, 1}));
    EXPECT_EQ(wrong.differences[1].element, 35);
    EXPECT_EQ(compare(u"n", u"e-").likeness, ElementsWrong);
    EXPECT_EQ(compare(u"D2O", u"H2O").likeness, ElementsWrong) << "isotopes count by themselves";
}

TEST(FormulaSpeech, ReadsAFormulaAloud)
{
    EXPECT_EQ(spokenInGerman(formula(u"SO4^2-")), u"Sulfat: S O vier, zweifach negativ geladen");
    EXPECT_EQ(spokenInEnglish(formula(u"SO4^2-")), u"sulfate: S O four, charge two minus");
    EXPECT_EQ(spokenInGerman(formula(u"Ca(OH)2")), u"Calciumhydroxid: C a Klammer auf O H Klammer zu zwei");
    EXPECT_EQ(spokenInGerman(formula(u"CuSO4*5H2O")),
              u"Kupfer(II)-sulfat-Pentahydrat: C u S O vier mal fünf H zwei O");
    EXPECT_EQ(spokenInGerman(formula(u"^14C")), u"C 14");
    EXPECT_EQ(spokenInGerman(formula(u"C17H36")), u"C 17 H 36");
    EXPECT_EQ(spokenInGerman(formula(u"P^10+")), u"P, Ladung zehn plus");
    EXPECT_EQ(spokenInGerman(formula(u"CH3*")), u"C H drei, Radikal");
    EXPECT_EQ(spokenInGerman(formula(u"2e-")), u"zwei Elektron");
    EXPECT_EQ(spokenInGerman(formula(u"n")), u"Neutron");
    EXPECT_EQ(
        spokenInEnglish(formula(u"NaXe[{N}](aq)")),
        u"N a X e open square bracket open curly bracket N close curly bracket close square bracket, in "
        u"solution");
}

TEST(FormulaSpeech, ReadsAnEquationAloud)
{
    const FormulaReading reading = readEquation(u"H2 + 1/2 O2 -> H2O");
    ASSERT_TRUE(reading);
    EXPECT_EQ(spokenInGerman(reading.tree), u"H zwei plus ein halb O zwei reagiert zu H zwei O");
    EXPECT_EQ(spokenInEnglish(reading.tree), u"H two plus one half O two reacts to H two O");
    EXPECT_EQ(spokenInGerman(readEquation(u"N2 + 3/2 H2 <-> NH3").tree),
              u"N zwei plus drei durch zwei H zwei steht im Gleichgewicht mit N H drei");
}

} // namespace
} // namespace phial
