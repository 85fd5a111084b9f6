#include "common/FormulaCard.h"

#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "chem/cls_DataElements.h"
#include "support/AppSession.h"
#include "visual/DesignedForm.h"

#include <gtest/gtest.h>

namespace learning
{
namespace
{

using phial::String;

TEST(FormulaLine, LowersIndicesAndRaisesCharges)
{
    EXPECT_EQ(formulaLine(u"H2O"), u"H\u2082O");
    EXPECT_EQ(formulaLine(u"Ca3(PO4)2"), u"Ca\u2083(PO\u2084)\u2082");
    EXPECT_EQ(formulaLine(u"C12H22O11"), u"C\u2081\u2082H\u2082\u2082O\u2081\u2081");
    EXPECT_EQ(formulaLine(u"2H2O"), u"2H\u2082O");
    EXPECT_EQ(formulaLine(u"CuSO4*5H2O"), u"CuSO\u2084\u00B75H\u2082O");
    EXPECT_EQ(formulaLine(u"SO4^2-"), u"SO₄²⁻");
    EXPECT_EQ(formulaLine(u"Fe + O2 -> Fe2O3"), u"Fe + O₂ → Fe₂O₃");
    EXPECT_EQ(formulaLine(u"Wasser"), u"Wasser");
    EXPECT_EQ(formulaLine(u""), u"");
}

constexpr phial::ControlDesign CardControls[] = {
    phial::design<phial::ctl_Pannel>(u"pan_Task", {0, 0, 900, 600}),
    FormulaCard::card(),
    FormulaCard::formula(),
    FormulaCard::name(),
};
constexpr phial::FormDesign CardDesign{.name = u"frm_Card", .size = {900, 600}, .controls = CardControls};

/// A card on a form of its own, in German; a sign is half its size in points wide here.
class FormulaCardTest : public phial::test::AppSession
{
protected:
    FormulaCardTest() { phial::LNG()->CURRENT(phial::ID_Language_German); }
    void TearDown() override
    {
        form.reset();
        AppSession::TearDown();
    }

    const phial::ctl_TermLabel& formula() const
    {
        return *(*form)->control<phial::ctl_TermLabel>(u"trm_Formula");
    }
    String name() const { return (*form)->control<phial::ctl_Label>(u"lab_Name")->Caption(); }

    std::optional<phial::DesignedForm> form{std::in_place, CardDesign};
    FormulaCard card{**form};
};

TEST_F(FormulaCardTest, ShowsTheFormulaAsLargeAsItFits)
{
    card.show({u"H2O", u"Wasser", u"Water"});
    EXPECT_EQ(formula().Term(), u"H2O");
    const double large = formula().TEXTFONT()->Size();
    card.show({u"C17H33COOHC17H33COOHC17H33COOH", {}, {}});
    EXPECT_LT(formula().TEXTFONT()->Size(), large);
}

TEST_F(FormulaCardTest, SaysTheNameInTheLanguageInForce)
{
    card.show({u"H2O", u"Wasser", u"Water"});
    EXPECT_EQ(name(), u"Wasser");
    EXPECT_EQ(card.spoken(), u"Wasser, H zwei O");
    phial::LNG()->CURRENT(phial::ID_Language_English);
    card.TRANSLATE();
    EXPECT_EQ(name(), u"Water");
    EXPECT_EQ(card.spoken(), u"Water, H two O");
}

TEST_F(FormulaCardTest, SaysAHydrateInWords)
{
    card.show({u"CuSO4*5H2O", u"Kupfer(II)-sulfat-Pentahydrat", u"copper(II) sulfate pentahydrate"});
    EXPECT_EQ(card.spoken(), u"Kupfer(II)-sulfat-Pentahydrat, C u S O vier mal fünf H zwei O");
}

TEST_F(FormulaCardTest, RefusesWhatItCannotShow)
{
    phial::cls_DataElements elements;
    folder.write("elements2.dat", "H\nWasserstoff\n1.008\n1\n1\nO\nSauerstoff\n15.999\n2\n16\n");
    elements.IMPORT2(path(u"elements2.dat"));
    EXPECT_EQ(FormulaCard::faultOf(u"O(OH)2", elements), std::nullopt);
    EXPECT_EQ(FormulaCard::faultOf(u"wasser", elements), TaskFault::NoTask);
    EXPECT_EQ(FormulaCard::faultOf(u"H2Xy", elements), TaskFault::UnknownElement);
    EXPECT_EQ(FormulaCard::faultOf(String(100, u'H'), elements), TaskFault::TooLong);
    EXPECT_EQ(FormulaCard::faultOf(u"Xy2"), std::nullopt);
    EXPECT_EQ(FormulaCard::faultOf(u"H(O)99999999999"), TaskFault::NoTask) << "counts what nobody can";
}

} // namespace
} // namespace learning
