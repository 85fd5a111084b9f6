#include "app/cls_App.h"
#include "app/cls_AppTools.h"
#include "app/cls_AppURL.h"
#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "core/NativePath.h"
#include "desk/frm_ToolLookUp.h"
#include "desk/frm_ToolQuiz.h"
#include "headless/Hand.h"
#include "headless/RecordingBackend.h"
#include "support/AppSession.h"
#include "support/Places.h"
#include "visual/VisualHost.h"

#include <gtest/gtest.h>

namespace phial::test
{

namespace
{

class LookUp : public AppSession
{
protected:
    LookUp()
    {
        LNG()->CURRENT(ID_Language_German);
        QVAPP()->URL()->ROOT(systemPath(treeFolder()) + u"\\");
    }

    static void press(Form& form, StringView key)
    {
        headless::clickButton(*form.control<Control>(u"bar_Buttons"), key);
    }
    static ListView& list(Form& form) { return *form.control<ListView>(u"lst_Found"); }
    static String state(Form& form) { return form.control<Label>(u"lab_State")->Caption(); }
    static void seek(Form& form, StringView text)
    {
        form.control<TextBox>(u"txt_Sought")->Text(String(text));
    }
    static void strikeWithControl(Form& form, char16_t letter)
    {
        headless::strike(form, {.character = letter, .Shift = ShiftMask::Control});
    }
    String clipboard() { return outside.visual().clipboardText(); }
};

TEST_F(LookUp, OpensFromEachSheetAtThatSheet)
{
    String chosen;
    const auto note = [&](Form& form) {
        chosen = form.control<ComboBox>(u"cbo_Sheets")->Text();
        press(form, u"DIALOG.OK();");
    };
    outside.visual().onModal(u"frm_ToolGroupNames", [&](Form& form) {
        outside.visual().onModal(u"frm_ToolLookUp", note);
        press(form, u"SHEET.LOOKUP();");
        press(form, u"DIALOG.OK();");
    });
    QVAPP()->TOOLS()->GROUPNAMES();
    EXPECT_EQ(chosen, u"Namen von Gruppen");
    outside.visual().onModal(u"frm_ToolOxValues", [&](Form& form) {
        outside.visual().onModal(u"frm_ToolLookUp", note);
        strikeWithControl(form, u'f');
        press(form, u"DIALOG.OK();");
    });
    QVAPP()->TOOLS()->OxValues();
    EXPECT_EQ(chosen, u"Oxidationszahlen");
    outside.visual().onModal(u"frm_ToolpHRules", [&](Form& form) {
        outside.visual().onModal(u"frm_ToolLookUp", note);
        press(form, u"SHEET.LOOKUP();");
        press(form, u"DIALOG.OK();");
    });
    QVAPP()->TOOLS()->pHRules();
    EXPECT_EQ(chosen, u"Säuren und pH-Wert");
    QVAPP()->TOOLS()->PERIODICSYSTEM();
    outside.visual().onModal(u"frm_ToolLookUp", note);
    const auto sheet = visualHost().forms().Item(u"frm_ToolPeriodensystem");
    press(*sheet, u"SHEET.LOOKUP();");
    EXPECT_EQ(chosen, u"Periodensystem");
    press(*sheet, u"DIALOG.OK();");
}

TEST_F(LookUp, WhatIsTypedNarrowsTheTable)
{
    frm_ToolLookUp lookUp;
    Form& form = lookUp.form();
    form.Show();
    EXPECT_EQ(list(form).ITEMS()->Count(), 201);
    EXPECT_EQ(state(form), u"201 Einträge");
    seek(form, u"sulfit");
    ASSERT_EQ(list(form).ITEMS()->Count(), 1);
    EXPECT_EQ(list(form).COLUMNHEADERS()->Item(1)->Text(), u"Eintrag");
    EXPECT_EQ(list(form).ITEMS()->Item(1)->Title(), u"-sulfit");
    EXPECT_EQ(list(form).ITEMS()->Item(1)->Cell(2), u"SO₃²⁻");
    EXPECT_EQ(list(form).ITEMS()->Item(1)->Cell(3), u"Namen von Gruppen");
    EXPECT_EQ(list(form).ITEMS()->Item(1)->Spoken(2), u"Sulfit: S O drei, zweifach negativ geladen");
    EXPECT_EQ(state(form), u"1 Eintrag");
    form.control<ComboBox>(u"cbo_Sheets")->ListIndex(1);
    EXPECT_EQ(state(form), u"0 Einträge") << "another sheet";
    form.discard();
}

TEST_F(LookUp, KeepsWhatIsSoughtInTheOtherLanguage)
{
    frm_ToolLookUp lookUp(ReferenceSheet::Groups);
    Form& form = lookUp.form();
    form.Show();
    seek(form, u"sulfit");
    LNG()->CURRENT(ID_Language_English);
    EXPECT_EQ(form.control<ComboBox>(u"cbo_Sheets")->Text(), u"Names of groups");
    ASSERT_EQ(list(form).ITEMS()->Count(), 1);
    EXPECT_EQ(list(form).ITEMS()->Item(1)->Title(), u"-sulfite");
    EXPECT_EQ(list(form).COLUMNHEADERS()->Item(2)->Text(), u"Details");
    form.discard();
}

TEST_F(LookUp, TheChosenRowIsCopiedOrAllOfThem)
{
    frm_ToolLookUp lookUp(ReferenceSheet::Groups);
    Form& form = lookUp.form();
    form.Show();
    seek(form, u"sulfi");
    press(form, u"SHEET.COPY();");
    EXPECT_EQ(clipboard(), u"-sulfid\tS²⁻\tNamen von Gruppen\r\n-sulfit\tSO₃²⁻\tNamen von Gruppen\r\n");
    EXPECT_EQ(state(form), u"2 Einträge kopiert");
    form.control<TextBox>(u"txt_Sought")->frame().SetFocus();
    headless::strike(form, {.key = Key::Down});
    EXPECT_EQ(list(form).ListIndex(), 1) << "the first row is chosen when one goes down to the table";
    strikeWithControl(form, u'x');
    EXPECT_EQ(state(form), u"2 Einträge kopiert") << "another key";
    strikeWithControl(form, u'c');
    EXPECT_EQ(clipboard(), u"-sulfid\tS²⁻\tNamen von Gruppen\r\n");
    list(form).ListIndex(2);
    strikeWithControl(form, u'c');
    EXPECT_EQ(clipboard(), u"-sulfit\tSO₃²⁻\tNamen von Gruppen\r\n");
    EXPECT_EQ(state(form), u"Kopiert: -sulfit");
    strikeWithControl(form, u'f');
    EXPECT_TRUE(form.control<TextBox>(u"txt_Sought")->frame().hasFocus());
    seek(form, u"xyz");
    press(form, u"SHEET.COPY();");
    EXPECT_EQ(clipboard(), u"-sulfit\tSO₃²⁻\tNamen von Gruppen\r\n") << "nothing has been found";
    form.discard();
}

TEST_F(LookUp, PrintsWhatIsFoundAndSaysWhereItCannot)
{
    frm_ToolLookUp lookUp(ReferenceSheet::Groups);
    Form& form = lookUp.form();
    form.Show();
    seek(form, u"sulfit");
    press(form, u"SHEET.PRINT();");
    ASSERT_EQ(outside.visual().printed().size(), 1U);
    EXPECT_EQ(outside.visual().printed()[0].title, u"Namen von Gruppen");
    outside.visual().hasPrinter(false);
    press(form, u"SHEET.PRINT();");
    EXPECT_EQ(state(form), u"Es konnte nicht gedruckt werden.");
    form.discard();
}

TEST_F(LookUp, PractisesWhatIsFound)
{
    frm_ToolLookUp lookUp(ReferenceSheet::Groups);
    Form& form = lookUp.form();
    form.Show();
    seek(form, u"sulfat");
    bool asked = false;
    outside.visual().onModal(u"frm_ToolQuiz", [&](Form& quiz) {
        asked = true;
        headless::strike(quiz, {.key = Key::Escape});
    });
    press(form, u"SHEET.QUIZ();");
    EXPECT_TRUE(asked);
    seek(form, u"dichromat");
    press(form, u"SHEET.QUIZ();");
    EXPECT_EQ(state(form), u"Dazu gibt es keine Fragen.");
    form.discard();
}

// Practice.

class Quiz : public AppSession
{
protected:
    Quiz()
    {
        LNG()->CURRENT(ID_Language_German);
        form().Show();
    }
    ~Quiz() override { form().discard(); }

    static QuizQuestion made(StringView text, std::size_t right)
    {
        return {.question = String(text),
                .choices = {{u"a", {}}, {u"b", u"Be"}, {u"c", {}}, {u"d", {}}},
                .right = right};
    }
    Form& form() { return quiz.form(); }
    Colour verdictColour() { return form().control<ctl_Label>(u"lab_Verdict")->ForeColor(); }
    String caption(StringView label) { return form().control<ctl_Label>(label)->Caption(); }
    ctl_Button& choice(std::int32_t number) { return *form().control<ctl_Button>(u"but_Choice", number); }
    CommandBarButton& next() { return *form().control<ctl_CmdBar>(u"bar_Buttons")->BUTTONS()->Item(1); }
    void goOn() { headless::clickButton(*form().control<Control>(u"bar_Buttons"), u"QUIZ.NEXT();"); }

    int rounds = 0;
    frm_ToolQuiz quiz{[this] {
        ++rounds;
        return std::vector{made(u"Eins?", 1), made(u"Zwei?", 0)};
    }};
};

TEST_F(Quiz, AsksAndSaysWhetherItWasRight)
{
    EXPECT_EQ(caption(u"lab_Progress"), u"Frage 1 von 2");
    EXPECT_EQ(caption(u"lab_Question"), u"Eins?");
    EXPECT_EQ(choice(1).frame().AccessibleName(), u"Be");
    EXPECT_FALSE(next().Enabled()) << "an answer comes first";
    EXPECT_FALSE(choice(1).Accent());
    choice(1).click();
    EXPECT_EQ(caption(u"lab_Verdict"), u"✓ Richtig.");
    EXPECT_EQ(verdictColour(), Palette::Right);
    EXPECT_EQ(quiz.right(), 1U);
    EXPECT_TRUE(choice(1).Accent());
    EXPECT_FALSE(choice(0).Accent());
    EXPECT_EQ(choice(1).Caption(), u"✓ b");
    EXPECT_TRUE(next().Enabled());
    choice(2).click();
    EXPECT_EQ(caption(u"lab_Verdict"), u"✓ Richtig.") << "the first answer counts";
    goOn();
    EXPECT_EQ(caption(u"lab_Question"), u"Zwei?");
    EXPECT_EQ(choice(1).Caption(), u"b");
    headless::strike(form(), {.character = u'4'});
    EXPECT_EQ(caption(u"lab_Verdict"), u"Noch nicht. Richtig ist a.");
    EXPECT_EQ(verdictColour(), Palette::TryAgain);
    EXPECT_EQ(quiz.right(), 1U);
    EXPECT_EQ(choice(3).Caption(), u"✗ d");
    EXPECT_EQ(choice(0).Caption(), u"✓ a");
    goOn();
    EXPECT_EQ(caption(u"lab_Question"), u"1 von 2 richtig.");
    EXPECT_EQ(caption(u"lab_Progress"), u"");
    EXPECT_FALSE(choice(0).Visible());
    EXPECT_EQ(next().face(), u"Noch einmal");
    headless::strike(form(), {.character = u'1'});
    EXPECT_EQ(quiz.right(), 1U) << "it is over";
    goOn();
    EXPECT_EQ(rounds, 2);
    EXPECT_EQ(caption(u"lab_Progress"), u"Frage 1 von 2");
    EXPECT_EQ(quiz.right(), 0U);
    EXPECT_TRUE(choice(0).Visible());
}

TEST_F(Quiz, NothingGoesOnWithoutAnAnswer)
{
    headless::strike(form(), {.character = u'5'});
    headless::strike(form(), {.character = u'0'});
    goOn();
    EXPECT_EQ(caption(u"lab_Question"), u"Eins?");
}

TEST_F(Quiz, TheFirstChoiceHasTheFirstKey)
{
    headless::strike(form(), {.character = u'1'});
    EXPECT_EQ(choice(0).Caption(), u"✗ a");
}

TEST_F(Quiz, IsClosedByItsButton)
{
    headless::clickButton(*form().control<Control>(u"bar_Buttons"), u"DIALOG.OK();");
    EXPECT_FALSE(form().isLoaded());
}

TEST_F(Quiz, ReturnGoesOnBehindAnAnswer)
{
    headless::strike(form(), {.character = u'2'});
    EXPECT_TRUE(form().control<Control>(u"bar_Buttons")->frame().hasFocus());
    LNG()->CURRENT(ID_Language_English);
    EXPECT_EQ(caption(u"lab_Verdict"), u"✓ Right.");
    EXPECT_EQ(next().face(), u"Next");
    EXPECT_EQ(form().Caption(), u"Practise");
}

} // namespace

} // namespace phial::test
