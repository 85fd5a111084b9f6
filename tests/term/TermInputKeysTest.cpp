#include "term/TermField.h"
#include "visual/VisualHost.h"

namespace phial::test
{
namespace
{

class TermInputKeys : public TermFieldTest
{
protected:
    void type(StringView notation) { headless::type(*form, notation); }
};

TEST_F(TermInputKeys, TypesAtTheCaret)
{
    edit(u"", 0);
    type(u"SO4{^}2-");
    EXPECT_EQ(shown(), u"SO4^2-|");
    EXPECT_EQ(log, std::vector<std::string>(6, "changed"));
    type(u"{left 3}x");
    EXPECT_EQ(shown(), u"SO4x|^2-");
}

TEST_F(TermInputKeys, SignsAreTypedAndAreNoKeysForMoving)
{
    edit(u"", 0);
    const StringView signs = u"#$%&'()!\".,-+*/";
    for (const char16_t sign : signs) {
        headless::strike(*form, {sign});
    }
    EXPECT_EQ(field->Term(), signs);
    headless::strike(*form, {u'{'});
    EXPECT_EQ(field->Term().back(), u'{');
}

/// Keys that edit, in a field with a caret ("|"), and what is seen behind them.
struct EditingRow {
    const char* name;
    StringView before;
    StringView keys;
    StringView after;
    std::size_t changes;
};

class EditingKeys : public TermInputKeys, public ::testing::WithParamInterface<EditingRow>
{
};

TEST_P(EditingKeys, DoAsTheyAreNamed)
{
    const EditingRow& row = GetParam();
    const std::size_t caret = row.before.find(u'|');
    edit(String(row.before.substr(0, caret)) += row.before.substr(caret + 1),
         static_cast<std::int32_t>(caret));
    type(row.keys);
    EXPECT_EQ(shown(), row.after);
    EXPECT_EQ(log, std::vector<std::string>(row.changes, "changed"));
}

INSTANTIATE_TEST_SUITE_P(
    Table, EditingKeys,
    ::testing::Values(EditingRow{"BackspaceTakesTheCharacterBefore", u"H2|O", u"{bs}", u"H|O", 1},
                      EditingRow{"AndTheOneBeforeIt", u"H2|O", u"{bs 2}", u"|O", 2},
                      EditingRow{"BackspaceAtTheBeginningDoesNothing", u"|O", u"{bs}", u"|O", 0},
                      EditingRow{"DeleteTakesTheCharacterBehind", u"H|2O", u"{del}", u"H|O", 1},
                      EditingRow{"AndTheOneBehindIt", u"H|2O", u"{del 2}", u"H|", 2},
                      EditingRow{"DeleteAtTheEndDoesNothing", u"H|", u"{del}", u"H|", 0},
                      EditingRow{"LeftGoesBack", u"H|2O", u"{left}", u"|H2O", 0},
                      EditingRow{"LeftEndsAtTheBeginning", u"H|2O", u"{left 2}", u"|H2O", 0},
                      EditingRow{"RightGoesOn", u"|H2O", u"{right}", u"H|2O", 0},
                      EditingRow{"RightEndsAtTheEnd", u"H2|O", u"{right 2}", u"H2O|", 0},
                      EditingRow{"EndGoesBehindTheLast", u"|H2O", u"{end}", u"H2O|", 0},
                      EditingRow{"HomeGoesBeforeTheFirst", u"H2O|", u"{home}", u"|H2O", 0}),
    [](const auto& instance) { return instance.param.name; });

TEST_F(TermInputKeys, TheCaretIsHeldToAShorterTerm)
{
    edit(u"C6H12O6", 7);
    field->Term(u"CO");
    type(u"{bs}");
    EXPECT_EQ(shown(), u"C|");
}

TEST_F(TermInputKeys, APairIsOneCharacter)
{
    edit(u"", 0);
    headless::commit(*form, u"\U0001F600");
    EXPECT_EQ(field->Term(), u"\U0001F600");
    EXPECT_THAT(log, ElementsAre("changed")) << "once, and not for its first half";
    type(u"a{left 2}");
    EXPECT_EQ(shown(), u"|\U0001F600a");
    type(u"{del}");
    EXPECT_EQ(shown(), u"|a");
}

TEST_F(TermInputKeys, ALockedFieldTakesNoKey)
{
    edit(u"H2O", 1);
    field->LOCKED(true);
    type(u"x{bs}{del}{left}{right}{home}{end}{enter}{esc}^v^x^z^y");
    EXPECT_EQ(shown(), u"H|2O");
    EXPECT_THAT(log, IsEmpty());
    field->LOCKED(false);
    type(u"x");
    EXPECT_EQ(shown(), u"Hx|2O");
}

TEST_F(TermInputKeys, ReturnAndEscapeAreToldWhenTheyComeUp)
{
    edit(u"H2O", 3);
    headless::press(*form, {0, Key::Return, 0});
    EXPECT_THAT(log, IsEmpty());
    headless::letGo(*form, {0, Key::Return, 0});
    EXPECT_THAT(log, ElementsAre("enter"));
    type(u"{esc}");
    EXPECT_THAT(log, ElementsAre("enter", "cancel"));
    EXPECT_EQ(field->Term(), u"H2O");
    EXPECT_TRUE(field->frame().hasFocus());
}

TEST_F(TermInputKeys, AKeyThatWentDownElsewhereIsNotTold)
{
    edit(u"H2O", 3);
    headless::letGo(*form, {0, Key::Return, 0});
    headless::letGo(*form, {0, Key::Escape, 0});
    EXPECT_THAT(log, IsEmpty());
    headless::press(*form, {0, Key::Return, 0});
    headless::letGo(*form, {0, Key::Escape, 0});
    EXPECT_THAT(log, IsEmpty());
    other->SetFocus();
    field->SetFocus();
    headless::letGo(*form, {0, Key::Return, 0});
    EXPECT_THAT(log, IsEmpty()) << "the focus has been elsewhere since";
    KeyEvent held{13, 0, true};
    field->keyDown(held);
    KeyEvent up{13, 0};
    field->keyUp(up);
    EXPECT_THAT(log, IsEmpty()) << "held since before";
}

TEST_F(TermInputKeys, ReturnGivesTheFieldTheFocusAndEscapeDoesNot)
{
    for (const Key key : {Key::Escape, Key::Return}) {
        ASSERT_FALSE(field->frame().hasFocus());
        KeyEvent down{static_cast<std::int32_t>(key), 0};
        field->keyDown(down);
        KeyEvent up{static_cast<std::int32_t>(key), 0};
        field->keyUp(up);
    }
    EXPECT_TRUE(field->frame().hasFocus());
    EXPECT_THAT(log, ElementsAre("cancel", "enter"));
}

TEST_F(TermInputKeys, ReturnThatWentDownBeforeTheLockIsNotTold)
{
    edit(u"H2O", 3);
    headless::press(*form, {0, Key::Return, 0});
    field->LOCKED(true);
    headless::letGo(*form, {0, Key::Return, 0});
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(TermInputKeys, AHiddenFormGivesItTheFocusBackAndForgetsWhatWasHeld)
{
    edit(u"H2O", 3);
    headless::press(*form, {0, Key::Return, 0});
    form->Hide();
    EXPECT_FALSE(field->frame().hasFocus());
    form->Show();
    EXPECT_TRUE(field->frame().hasFocus());
    headless::letGo(*form, {0, Key::Return, 0});
    EXPECT_THAT(log, IsEmpty()) << "it went down in front of what is no longer there";
    type(u"x");
    EXPECT_EQ(shown(), u"H2Ox|");
}

TEST_F(TermInputKeys, ADefaultButtonIsPressedAsWell)
{
    const auto button = form->add<ctl_Button>(u"but_OK");
    connections += button->CLICK.connect([this] { log.push_back("pressed"); });
    form->DefaultControl(button);
    edit(u"H2O", 3);
    type(u"{enter}");
    EXPECT_THAT(log, ElementsAre("pressed", "enter"));
}

TEST_F(TermInputKeys, StepsAreUndoneAndDoneAgain)
{
    edit(u"H2O", 3);
    type(u"2{home}x");
    type(u"^z");
    EXPECT_EQ(shown(), u"|H2O2");
    type(u"^z");
    EXPECT_EQ(shown(), u"H2O|");
    type(u"^y");
    EXPECT_EQ(shown(), u"H2O2|");
    type(u"^+z");
    EXPECT_EQ(shown(), u"x|H2O2");
    EXPECT_EQ(log.size(), 6U) << "each of them is a change";
    type(u"^y");
    EXPECT_EQ(log.size(), 6U);
}

TEST_F(TermInputKeys, WhatTheProgramSetsIsNotUndone)
{
    edit(u"H2O", 3);
    type(u"2");
    field->Term(u"NaCl");
    type(u"^z");
    EXPECT_EQ(field->Term(), u"NaCl");
}

TEST_F(TermInputKeys, TheWholeTermIsCutAndUndone)
{
    edit(u"NaCl", 2);
    type(u"^x");
    EXPECT_EQ(field->Term(), u"");
    EXPECT_EQ(visualHost().clipboardText(), u"NaCl");
    EXPECT_THAT(log, ElementsAre("changed"));
    type(u"^x");
    EXPECT_EQ(visualHost().clipboardText(), u"NaCl") << "nothing is no term to copy";
    EXPECT_EQ(log.size(), 1U);
    type(u"^z");
    EXPECT_EQ(shown(), u"Na|Cl");
}

TEST_F(TermInputKeys, PastesAtTheCaret)
{
    visualHost().clipboardText(u"OH");
    edit(u"Na", 2);
    type(u"^v");
    EXPECT_EQ(shown(), u"NaOH|");
    EXPECT_THAT(log, ElementsAre("changed"));
    visualHost().clipboardText(u"");
    type(u"^v");
    EXPECT_EQ(log.size(), 1U);
}

TEST_F(TermInputKeys, PastesWhatOtherProgramsRaiseAndLower)
{
    edit(u"", 0);
    visualHost().clipboardText(u"SO\u2084\u00B2\u207B");
    type(u"^v");
    EXPECT_EQ(shown(), u"SO4^2-|");
    visualHost().clipboard(u"H2O", u"<p>H<sub>2</sub>O</p>");
    type(u"{home}^v");
    EXPECT_EQ(shown(), u"H2O|SO4^2-");
}

TEST_F(TermInputKeys, CopiesForOtherProgramsAndForTermFields)
{
    edit(u"§SO4^2-", 0);
    type(u"^c");
    EXPECT_EQ(visualHost().clipboardText(), u"SO\u2084\u00B2\u207B");
    EXPECT_NE(visualHost().clipboardHtml().find(u"SO<sub>4</sub><sup>2-</sup>"), String::npos);
    type(u"{end}^v");
    EXPECT_EQ(shown(), u"§SO4^2-§SO4^2-|");
}

TEST_F(TermInputKeys, ALockedFieldCanBeCopied)
{
    edit(u"NaCl", 2);
    field->LOCKED(true);
    type(u"^c");
    EXPECT_EQ(visualHost().clipboardText(), u"NaCl");
    EXPECT_EQ(shown(), u"Na|Cl");
}

TEST_F(TermInputKeys, ItsCommandsGoNoFurther)
{
    edit(u"NaCl", 2);
    for (const bool isLocked : {false, true}) {
        field->LOCKED(isLocked);
        for (const char16_t key : {u'C', u'V', u'X', u'Y', u'Z'}) {
            KeyEvent event{key, ShiftMask::Control};
            field->keyDown(event);
            EXPECT_EQ(event.KeyCode, 0) << static_cast<int>(key);
        }
    }
    KeyEvent unknown{u'A', ShiftMask::Control};
    field->keyDown(unknown);
    EXPECT_EQ(unknown.KeyCode, u'A');
}

TEST_F(TermInputKeys, OtherCommandsDoNothing)
{
    edit(u"NaCl", 2);
    type(u"^a%c+^c");
    EXPECT_EQ(shown(), u"Na|Cl");
    EXPECT_EQ(visualHost().clipboardText(), u"");
    EXPECT_THAT(log, IsEmpty());
    headless::strike(*form, {u'z', Key::None, ShiftMask::Control | ShiftMask::Alt});
    EXPECT_EQ(shown(), u"Naz|Cl") << "AltGr types";
}

TEST_F(TermInputKeys, AHandlerMayTakeTheFieldAway)
{
    edit(u"", 0);
    connections += field->CHANGED.connect([this] {
        form->remove(*field);
        field.reset();
    });
    type(u"a");
    EXPECT_EQ(field, nullptr);
}

TEST_F(TermInputKeys, AHandlerMayCloseTheForm)
{
    edit(u"", 0);
    connections += field->ENTER.connect([this] { form->Unload(); });
    type(u"{enter}");
    EXPECT_FALSE(form->Visible());
    EXPECT_THAT(log, ElementsAre("enter"));
}

} // namespace
} // namespace phial::test
