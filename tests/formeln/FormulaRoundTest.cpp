#include "FormulaTrainerTest.h"
#include "app/cls_Language.h"
#include "common/AppPictures.h"
#include "visual/ListView.h"

#include <gtest/gtest.h>

namespace formeln
{
namespace
{

using FormulaRound = FormulaTrainerTest;

TEST_F(FormulaRound, AsksForTheFormulaOfAName)
{
    begin();
    EXPECT_EQ(seen(u"lab_Asked"), u"Wie lautet die Formel?");
    EXPECT_EQ(seen(u"lab_Substance"), u"Natriumsulfat");
    EXPECT_FALSE(isSeen(u"trm_Formula"));
    EXPECT_FALSE(isSeen(u"txt_Name"));
    EXPECT_FALSE(isSeen(u"pan_Equation"));
    EXPECT_TRUE(isSeen(u"but_Table"));
    EXPECT_EQ(focused(), u"trm_Answer");
}

TEST_F(FormulaRound, DrawsTheFormulaWhileItIsTyped)
{
    begin();
    type(u"Na2SO4");
    EXPECT_EQ(typed(), u"Na2SO4");
    type(u"{enter}");
    EXPECT_TRUE(contains(seen(u"lab_Feedback"), u"Richtig!")) << phial::toUtf8(seen(u"lab_Feedback"));
}

TEST_F(FormulaRound, ShowsTheFirstOfSeveralNames)
{
    begin();
    type(u"Na2SO4{enter}{enter}");
    EXPECT_EQ(seen(u"lab_Substance"), u"Calciumhydroxid");
    EXPECT_EQ(typed(), u"");
}

TEST_F(FormulaRound, ExplainsAForgottenBracket)
{
    begin();
    type(u"Na2SO4{enter}{enter}CaOH2{enter}");
    EXPECT_TRUE(contains(seen(u"lab_Feedback"), u"Klammer")) << phial::toUtf8(seen(u"lab_Feedback"));
}

TEST_F(FormulaRound, AnUnreadableFormulaCostsNoTry)
{
    begin();
    type(u"Na2SO{(}{enter}");
    EXPECT_FALSE(contains(seen(u"lab_Feedback"), u"Versuch")) << phial::toUtf8(seen(u"lab_Feedback"));
    type(u"{bs}4{enter}");
    EXPECT_TRUE(contains(seen(u"lab_Feedback"), u"10 Punkte")) << phial::toUtf8(seen(u"lab_Feedback"));
}

TEST_F(FormulaRound, AsksForTheNameOfAFormula)
{
    askForNames();
    begin();
    EXPECT_EQ(seen(u"lab_Asked"), u"Wie heißt dieser Stoff?");
    EXPECT_FALSE(isSeen(u"lab_Substance"));
    EXPECT_FALSE(isSeen(u"trm_Answer"));
    EXPECT_FALSE(isSeen(u"but_Table"));
    EXPECT_TRUE(isSeen(u"trm_Formula"));
    EXPECT_EQ(focused(), u"txt_Name");
}

TEST_F(FormulaRound, KnowsWhoseNameWasTyped)
{
    askForNames();
    begin();
    const bool isSulfate = term(u"trm_Formula") == u"Na2SO4";
    nameField().Text(isSulfate ? u"Löschkalk" : u"Natriumsulfat");
    touch(u"but_Check");
    EXPECT_TRUE(contains(seen(u"lab_Feedback"), u"So heißt")) << phial::toUtf8(seen(u"lab_Feedback"));
}

TEST_F(FormulaRound, AMisspeltNameCostsNoTry)
{
    askForNames();
    begin(1);
    EXPECT_EQ(term(u"trm_Formula"), u"SO4^2-");
    nameField().Text(u"Sulfta");
    touch(u"but_Check");
    nameField().Text(u"Sulfat-Jon");
    touch(u"but_Check");
    EXPECT_TRUE(contains(seen(u"lab_Feedback"), u"Fast!")) << phial::toUtf8(seen(u"lab_Feedback"));
    nameField().Text(u"sulfat");
    touch(u"but_Check");
    EXPECT_TRUE(contains(seen(u"lab_Feedback"), u"Richtig!")) << phial::toUtf8(seen(u"lab_Feedback"));
}

TEST_F(FormulaRound, AsksForTheFactorsOfAnEquation)
{
    begin(2);
    EXPECT_FALSE(isSeen(u"pan_Substance"));
    EXPECT_EQ(seen(u"lab_Equation"), u"Rosten: Welche Faktoren fehlen?");
    EXPECT_EQ(term(u"trm_Substance", 0), u"Fe");
    EXPECT_EQ(term(u"trm_Substance", 1), u"O2");
    EXPECT_EQ(term(u"trm_Substance", 2), u"Fe2O3");
    EXPECT_EQ(term(u"trm_Sign", 1), u" + ");
    EXPECT_EQ(term(u"trm_Sign", 2), u"->");
    EXPECT_FALSE(isSeen(u"txt_Factor", 3));
    type(u"4{tab}3{tab}2{enter}");
    EXPECT_TRUE(contains(seen(u"lab_Feedback"), u"Richtig!")) << phial::toUtf8(seen(u"lab_Feedback"));
    EXPECT_TRUE(factor(0).Locked());
}

TEST_F(FormulaRound, FactorsMustBeTheSmallest)
{
    begin(2);
    type(u"8{tab}6{tab}4{enter}");
    EXPECT_TRUE(contains(seen(u"lab_Feedback"), u"kleiner")) << phial::toUtf8(seen(u"lab_Feedback"));
}

TEST_F(FormulaRound, AFactorMustBeTyped)
{
    begin(2);
    touch(u"but_Check");
    EXPECT_TRUE(contains(seen(u"lab_Feedback"), u"ganze Zahlen")) << phial::toUtf8(seen(u"lab_Feedback"));
    for (const auto* text : {u"0", u"x", u"1,5", u"-2"}) {
        factor(0).Text(text);
        touch(u"but_Check");
        EXPECT_TRUE(contains(seen(u"lab_Feedback"), u"ganze Zahlen")) << phial::toUtf8(text);
    }
}

TEST_F(FormulaRound, AMissedTaskIsAskedInTheSameWayAgain)
{
    askForNames();
    begin(1);
    for (int attempt = 0; attempt < 3; ++attempt) {
        nameField().Text(phial::String(u"Gold") + phial::String(static_cast<std::size_t>(attempt), u'!'));
        touch(u"but_Check");
    }
    expectRankBox();
    touch(u"but_Check");
    outside.random().numbers({0.0});
    touch(u"but_Missed");
    EXPECT_TRUE(isSeen(u"trm_Formula"));
    EXPECT_EQ(term(u"trm_Formula"), u"SO4^2-");
}

TEST_F(FormulaRound, SpeaksTheSystemsLanguageWhereNoneIsChosen)
{
    begin();
    touch(u"but_Hint");
    EXPECT_TRUE(contains(seen(u"lab_Hint"), u"Natrium")) << phial::toUtf8(seen(u"lab_Hint"));
    type(u"CU{enter}");
    EXPECT_TRUE(contains(seen(u"lab_Feedback"), u"Cu ist Kupfer.")) << phial::toUtf8(seen(u"lab_Feedback"));
}

TEST_F(FormulaRound, SpeaksEnglish)
{
    phial::LNG()->CURRENT(phial::ID_Language_English);
    begin();
    EXPECT_EQ(seen(u"lab_Asked"), u"What is the formula?");
    EXPECT_EQ(seen(u"lab_Substance"), u"sodium sulfate");
}

TEST_F(FormulaRound, SaysItsRemarkInTheLanguageThatIsChosenAfterwards)
{
    begin(2);
    type(u"2{tab}3{tab}1{enter}");
    EXPECT_TRUE(contains(seen(u"lab_Feedback"), u"Sauerstoff: links 6, rechts 3."));
    touch(u"but_Language");
    EXPECT_TRUE(contains(seen(u"lab_Feedback"), u"Oxygen: 6 on the left, 3 on the right."))
        << phial::toUtf8(seen(u"lab_Feedback"));
}

TEST_F(FormulaRound, SaysItsRemarkOnANameInTheLanguageThatIsChosenAfterwards)
{
    askForNames();
    begin(1);
    nameField().Text(u"Sulfat-Jon");
    touch(u"but_Check");
    EXPECT_TRUE(contains(seen(u"lab_Feedback"), u"Fast!"));
    touch(u"but_Language");
    EXPECT_TRUE(contains(seen(u"lab_Feedback"), u"Nearly!")) << phial::toUtf8(seen(u"lab_Feedback"));
}

TEST_F(FormulaRound, TellsTheSolutionOfOneSubstance)
{
    begin(1);
    type(u"XeF2{enter}{bs}4{enter}{bs}6{enter}");
    EXPECT_TRUE(contains(seen(u"lab_Feedback"), u"Schade. Richtig wäre SO"))
        << phial::toUtf8(seen(u"lab_Feedback"));
}

TEST_F(FormulaRound, CallsEachFactorByItsSubstance)
{
    begin(2);
    const auto field = form().control<phial::ctl_QVInput>(u"txt_Factor", 2);
    EXPECT_EQ(field->frame().AccessibleName(), u"Faktor vor F e zwei O drei");
    EXPECT_EQ(field->TEXT(), u"Faktor vor Fe\u2082O\u2083");
}

TEST_F(FormulaRound, PicturesSayWhatIsMissing)
{
    open({});
    std::vector<phial::String> names;
    learning::showEachState([] { return std::make_unique<FormulaTrainer>(loadFormulaData()); },
                            learning::PictureTour::Round,
                            [&](phial::StringView name, const phial::Form&) { names.emplace_back(name); });
    EXPECT_EQ(names, (std::vector<phial::String>{u"formeln-missing-de", u"formeln-missing-en"}));
}

TEST_F(FormulaRound, TellsWhatIsMissing)
{
    open({});
    EXPECT_TRUE(contains(seen(u"lab_Missing"), u"aufgaben.txt"));
}

} // namespace
} // namespace formeln
