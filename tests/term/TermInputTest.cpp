#include "term/TermField.h"
#include "visual/FrameMembers.h"
#include "visual/PictureBox.h"
#include "visual/VisualHost.h"

namespace phial::test
{
namespace
{

class TermInputTest : public TermFieldTest
{
};

TEST_F(TermInputTest, AFreshFieldShowsWaterInTahomaEight)
{
    const auto fresh = form->add<clt_TermInput>(u"trm_Fresh");
    EXPECT_EQ(fresh->Term(), u"H2O");
    EXPECT_EQ(fresh->CARET(), 0);
    EXPECT_EQ(fresh->TEXTFONT()->Name(), u"Tahoma");
    EXPECT_EQ(fresh->TEXTFONT()->Size(), 8);
    EXPECT_EQ(fresh->TEXTALIGN(), TEXTALIGN::MiddleLeft);
    EXPECT_FALSE(fresh->LOCKED());
    EXPECT_FALSE(fresh->OLEDRAGAUTO());
    EXPECT_FALSE(fresh->CTRLID().empty());
    EXPECT_NE(fresh->CTRLID(), field->CTRLID());
}

TEST_F(TermInputTest, HasElevenMembersOfItsOwnInThisOrder)
{
    const MemberTable members = field->members();
    std::vector<String> names;
    for (const Member& member : members.last(11)) {
        names.emplace_back(member.name);
    }
    EXPECT_EQ(names, (std::vector<String>{u"CTRLID", u"OLEDRAGAUTO", u"Term", u"LOCKED", u"TEXTALIGN",
                                          u"TEXTFONT", u"TEXTCOLOR", u"BACKCOLOR", u"UserControl_Initialize",
                                          u"REDRAW", u"OLEDrag"}));
    EXPECT_EQ(members.size(), std::size(FrameMembers) + 11) << "beside those of every control";
    setMember(*field, u"term", u"NaCl");
    EXPECT_EQ(getMember(*field, u"TERM").toText(), u"NaCl");
    callMember(*field, u"redraw");
}

TEST_F(TermInputTest, WhatIsAsByDefaultIsNotKept)
{
    PropertyBag bag;
    form->add<clt_TermInput>(u"trm_Fresh")->writeProperties(bag);
    EXPECT_THAT(bag.keys(), ElementsAre(u"TEXTFONT"));
}

TEST_F(TermInputTest, PropertiesGoIntoTheirBagAndComeBack)
{
    field->Term(u"SO4^2-");
    field->TEXTALIGN(TEXTALIGN::BottomCentre);
    field->TEXTCOLOR(RGB(1, 2, 3));
    field->BACKCOLOR(RGB(4, 5, 6));
    field->LOCKED(true);
    field->OLEDRAGAUTO(true);
    PropertyBag bag;
    field->writeProperties(bag);
    EXPECT_EQ(bag.ReadProperty(u"TERM").toText(), u"SO4^2-");
    for (const StringView key : {u"TEXTALIGN", u"T1", u"M1", u"LOCKED", u"OLEDRAGAUTO", u"TEXTFONT"}) {
        EXPECT_TRUE(bag.Exists(key)) << toUtf8(key);
    }
    EXPECT_EQ(bag.Count(), 7U);

    const auto again = form->add<clt_TermInput>(u"trm_Again");
    again->readProperties(bag);
    EXPECT_EQ(again->Term(), u"SO4^2-");
    EXPECT_EQ(again->frame().textEntry()->text, u"SO4^2-");
    EXPECT_EQ(again->TEXTALIGN(), TEXTALIGN::BottomCentre);
    EXPECT_EQ(again->TEXTCOLOR(), RGB(1, 2, 3));
    EXPECT_EQ(again->BACKCOLOR(), RGB(4, 5, 6));
    EXPECT_TRUE(again->LOCKED());
    EXPECT_TRUE(again->OLEDRAGAUTO());
    EXPECT_EQ(again->TEXTFONT()->Size(), 20);
    again->readProperties(PropertyBag());
    EXPECT_EQ(again->Term(), u"H2O");
    EXPECT_FALSE(again->LOCKED());
    EXPECT_EQ(again->TEXTFONT()->Size(), 8);
}

TEST_F(TermInputTest, EveryWriterTellsItsProperty)
{
    std::vector<String> told;
    connections += field->PropertyChanged.connect([&](const String& name) { told.push_back(name); });
    field->OLEDRAGAUTO(true);
    field->Term(u"O2");
    field->LOCKED(true);
    field->TEXTALIGN(TEXTALIGN::TopLeft);
    field->TEXTFONT()->Bold(true);
    field->TEXTCOLOR(RGB(1, 2, 3));
    field->BACKCOLOR(RGB(1, 2, 3));
    EXPECT_THAT(told, ElementsAre(u"OLEDRAGAUTO", u"Term", u"LOCKED", u"TEXTALIGN", u"TEXTFONT", u"TEXTCOLOR",
                                  u"BACKCOLOR"));
    EXPECT_THAT(log, IsEmpty()) << "the program's own changes are no CHANGED";
}

TEST_F(TermInputTest, NoFontBringsBackTheFirst)
{
    field->TEXTFONT(nullptr);
    EXPECT_EQ(field->TEXTFONT()->Size(), 8);
}

TEST_F(TermInputTest, StandsOnAGroundOfItsOwn)
{
    field->BACKCOLOR(RGB(10, 20, 30));
    field->TEXTCOLOR(RGB(1, 2, 3));
    EXPECT_TRUE(drawn().starts_with("clear #0A141E")) << drawn();
    EXPECT_NE(drawn().find("\"H\" Tahoma 20 #010203"), std::string::npos) << drawn();
    EXPECT_TRUE(field->surface().hits({190, 35}));
    EXPECT_FALSE(field->surface().MaskPicture());
}

TEST_F(TermInputTest, TheAnchorFollowsTheAlignment)
{
    field->Term(u"AB");
    EXPECT_NE(drawn().find("text 0,8 \"AB\""), std::string::npos);
    field->TEXTALIGN(TEXTALIGN::MiddleCentre);
    EXPECT_NE(drawn().find("text 90,8 \"AB\""), std::string::npos);
    field->TEXTALIGN(TEXTALIGN::BottomRight);
    EXPECT_NE(drawn().find("text 180,15 \"AB\""), std::string::npos);
    field->TEXTALIGN(TEXTALIGN::TopLeft);
    EXPECT_NE(drawn().find("text 0,0 \"AB\""), std::string::npos);
    field->Move(0, 0, 100, 60);
    field->TEXTALIGN(TEXTALIGN::MiddleRight);
    EXPECT_NE(drawn().find("text 80,18 \"AB\""), std::string::npos);
}

TEST_F(TermInputTest, TheTermStandsOffItsEdgesByTheInset)
{
    outside.display().blinksCaret(false);
    field->inset(6);
    EXPECT_EQ(field->inset(), 6);
    edit(u"AB", 0);
    EXPECT_EQ(caretX(), 6);
    EXPECT_NE(drawn().find("text 6,8 \"AB\""), std::string::npos);
    field->TEXTALIGN(TEXTALIGN::MiddleCentre);
    EXPECT_NE(drawn().find("text 90,8 \"AB\""), std::string::npos);
    field->TEXTALIGN(TEXTALIGN::MiddleRight);
    EXPECT_NE(drawn().find("text 174,8 \"AB\""), std::string::npos);
    field->CARET(2);
    EXPECT_EQ(caretX(), 194);
}

TEST_F(TermInputTest, AChangeByOtherMeansIsTheUsers)
{
    int changes = 0;
    const Connection changed = field->CHANGED.connect([&] { ++changes; });
    edit(u"H2S", 1);
    field->edit(0, 3, u"H2SO4");
    EXPECT_EQ(shown(), u"H2SO4|");
    EXPECT_EQ(changes, 1);
    field->edit(0, 5, u"H2SO4");
    EXPECT_EQ(changes, 1) << "nothing has changed";
    field->LOCKED(true);
    field->edit(0, 5, {});
    EXPECT_EQ(shown(), u"H2SO4|");
    EXPECT_EQ(changes, 1);
}

TEST_F(TermInputTest, AtTheFarEdgeTheCaretHasAPixelToStandOn)
{
    outside.display().blinksCaret(false);
    field->TEXTALIGN(TEXTALIGN::MiddleRight);
    edit(u"AB", 2);
    EXPECT_EQ(caretX(), 199);
    field->CARET(1);
    EXPECT_EQ(caretX(), 190);
}

TEST_F(TermInputTest, ThePictureIsDrawnWhenItIsNeededOrWhenToldTo)
{
    drawn();
    const auto lines = [&] { return outside.visual().recording(field->surface().image(1))->lines().size(); };
    const std::size_t before = lines();
    field->REDRAW();
    EXPECT_GT(lines(), before);
}

TEST_F(TermInputTest, APairIsDrawnAsOne)
{
    field->Term(u"\U0001F600");
    EXPECT_NE(drawn().find("\"\xF0\x9F\x98\x80\""), std::string::npos) << drawn();
}

TEST_F(TermInputTest, TheCaretBlinksWhileTheFieldHasTheFocus)
{
    EXPECT_EQ(caretX(), std::nullopt);
    edit(u"H2O", 2);
    EXPECT_EQ(caretX(), std::nullopt);
    outside.advance(0.499);
    EXPECT_EQ(caretX(), std::nullopt);
    outside.advance(0.001);
    EXPECT_EQ(caretX(), 19);
    outside.advance(0.5);
    EXPECT_EQ(caretX(), std::nullopt);
    outside.advance(0.5);
    EXPECT_EQ(caretX(), 19);
    other->SetFocus();
    EXPECT_EQ(caretX(), std::nullopt);
    outside.advance(0.5);
    EXPECT_EQ(caretX(), std::nullopt);
    field->SetFocus();
    EXPECT_EQ(caretX(), std::nullopt) << "it begins with the dark phase";
}

TEST_F(TermInputTest, ThePhaseBeginsAnewWithTheFocus)
{
    edit(u"H2O", 2);
    outside.advance(0.3);
    other->SetFocus();
    field->SetFocus();
    outside.advance(0.4);
    EXPECT_EQ(caretX(), std::nullopt);
    outside.advance(0.1);
    EXPECT_EQ(caretX(), 19);
}

TEST_F(TermInputTest, TheCaretGoesWhileAnotherWindowIsActiveAndComesBack)
{
    edit(u"H2O", 1);
    outside.advance(0.5);
    EXPECT_EQ(caretX(), 10);
    form->inputDeactivate();
    EXPECT_EQ(caretX(), std::nullopt);
    for (int tick = 0; tick < 4; ++tick) {
        outside.advance(0.5);
        EXPECT_EQ(caretX(), std::nullopt);
    }
    EXPECT_TRUE(field->frame().hasFocus());
    form->inputActivate();
    EXPECT_EQ(caretX(), 10) << "at once, in the phase that it has reached";
    outside.advance(0.5);
    EXPECT_EQ(caretX(), std::nullopt);
    outside.advance(0.5);
    EXPECT_EQ(caretX(), 10);
}

TEST_F(TermInputTest, ACaretThatDoesNotBlinkGoesWithItsWindowToo)
{
    outside.display().blinksCaret(false);
    edit(u"H2O", 1);
    const auto dialog = std::make_shared<Form>(u"frm_Other");
    dialog->Show();
    EXPECT_EQ(caretX(), std::nullopt);
    dialog->Unload();
    form->inputActivate();
    EXPECT_EQ(caretX(), 10);
    other->SetFocus();
    form->inputDeactivate();
    EXPECT_EQ(caretX(), std::nullopt);
}

TEST_F(TermInputTest, AnOpenersCaretGoesAtTheNextTickWhenItIsNotTold)
{
    edit(u"H2O", 1);
    outside.advance(0.5);
    drawn();
    form->abortBegun();
    form->inputDeactivate();
    outside.advance(1);
    EXPECT_EQ(caretX(), std::nullopt);
}

TEST_F(TermInputTest, WhatIsTypedShowsTheCaretForAWholePhase)
{
    edit(u"", 0);
    headless::type(*form, u"a");
    EXPECT_EQ(caretX(), 10);
    outside.advance(0.4);
    headless::type(*form, u"{left}");
    outside.advance(0.4);
    EXPECT_EQ(caretX(), 0);
    outside.advance(0.1);
    EXPECT_EQ(caretX(), std::nullopt);
}

TEST_F(TermInputTest, WhereTheDesktopLetsNoCaretBlinkItStands)
{
    outside.display().blinksCaret(false);
    edit(u"H2O", 1);
    EXPECT_EQ(caretX(), 10);
    for (int tick = 0; tick < 5; ++tick) {
        outside.advance(0.5);
        EXPECT_EQ(caretX(), 10);
    }
    outside.display().blinksCaret(true);
    outside.advance(0.5);
    EXPECT_EQ(caretX(), std::nullopt) << "asked at each tick";
    outside.display().reducesMotion(true);
    outside.advance(0.5);
    EXPECT_EQ(caretX(), 10);
    outside.advance(0.5);
    EXPECT_EQ(caretX(), 10);
}

TEST_F(TermInputTest, NothingTicksForAFieldThatIsNotSeenOrHasEnded)
{
    outside.display().blinksCaret(false);
    edit(u"H2O", 1);
    field->Visible(false);
    field->Visible(true);
    outside.advance(0.5);
    EXPECT_EQ(caretX(), std::nullopt) << "hiding has taken the focus away";
    field->SetFocus();
    EXPECT_EQ(caretX(), 10);
    form->remove(*field);
    outside.advance(2);
}

TEST_F(TermInputTest, TheCaretBlinksAgainWhenItsFormIsShownAgain)
{
    edit(u"H2O", 1);
    form->Hide();
    outside.advance(2);
    form->Show();
    EXPECT_TRUE(field->frame().hasFocus());
    EXPECT_EQ(caretX(), std::nullopt);
    outside.advance(0.5);
    EXPECT_EQ(caretX(), 10);
    outside.advance(0.5);
    EXPECT_EQ(caretX(), std::nullopt);
}

TEST_F(TermInputTest, AFieldThatIsDisabledWhileItsFormIsHiddenHasNoCaret)
{
    edit(u"H2O", 1);
    outside.advance(0.5);
    form->Hide();
    field->Enabled(false);
    form->Show();
    for (int tick = 0; tick < 3; ++tick) {
        EXPECT_FALSE(field->frame().hasFocus());
        EXPECT_EQ(caretX(), std::nullopt) << tick;
        outside.advance(0.5);
    }
}

TEST_F(TermInputTest, TheCaretBlinksAgainWhenWhatHoldsItIsShownAgain)
{
    const auto holder = form->add<PictureBox>(u"pic_Holder");
    field = form->add<clt_TermInput>(u"trm_Inner", holder->container());
    field->Move(10, 20, 200, 40);
    edit(u"", 0);
    holder->Visible(false);
    outside.advance(2);
    holder->Visible(true);
    EXPECT_FALSE(field->frame().hasFocus()) << "hiding has taken the focus away";
    field->SetFocus();
    EXPECT_EQ(caretX(), std::nullopt);
    outside.advance(0.5);
    EXPECT_EQ(caretX(), 0);
}

TEST_F(TermInputTest, AnEmptyTermHasItsCaretAtZero)
{
    edit(u"", 0);
    outside.advance(0.5);
    EXPECT_EQ(caretX(), 0);
    headless::click(*field, 150, 20);
    EXPECT_EQ(field->CARET(), 0);
    EXPECT_EQ(caretX(), 0);
}

TEST_F(TermInputTest, ACaretWithoutAPlaceIsShownAtTheNearestBefore)
{
    edit(u"a(1)/(2)->b", 4);
    outside.advance(0.5);
    EXPECT_EQ(field->CARET(), 4);
    EXPECT_EQ(caretX(), 10);
    headless::type(*form, u"{right 5}");
    EXPECT_EQ(field->CARET(), 9);
    EXPECT_EQ(caretX(), 20) << "behind the fraction, before the arrow";
}

TEST_F(TermInputTest, TheTermThatIsSetLeavesTheCaretsIndexAlone)
{
    edit(u"C6H12O6", 7);
    field->Term(u"CO");
    EXPECT_EQ(shown(), u"CO|");
    field->CARET(1);
    field->Term(u"NaCl");
    EXPECT_EQ(shown(), u"N|aCl");
    field->CARET(99);
    EXPECT_EQ(shown(), u"NaCl|");
    field->CARET(-3);
    EXPECT_EQ(shown(), u"|NaCl");
}

class LongTerms : public TermFieldTest
{
protected:
    LongTerms() { outside.display().blinksCaret(false); }
    const String Long = String(50, u'a'); ///< 500 pixels
};

TEST_F(LongTerms, TheCaretStaysInSight)
{
    for (const auto align : {TEXTALIGN::MiddleLeft, TEXTALIGN::MiddleCentre, TEXTALIGN::MiddleRight}) {
        field->TEXTALIGN(align);
        edit(Long, 0);
        for (int caret = 0; caret <= 50; ++caret) {
            field->CARET(caret);
            ASSERT_TRUE(caretX().has_value()) << caret;
            EXPECT_GE(*caretX(), 0) << caret;
            EXPECT_LT(*caretX(), 200) << caret;
        }
        EXPECT_EQ(caretX(), 197) << "no gap behind the term";
        field->CARET(0);
        EXPECT_EQ(caretX(), 2);
    }
}

TEST_F(LongTerms, MoveNoFurtherThanTheyMust)
{
    edit(Long, 30);
    EXPECT_EQ(caretX(), 197);
    field->CARET(20);
    EXPECT_EQ(caretX(), 97);
    field->CARET(9);
    EXPECT_EQ(caretX(), 2);
    field->CARET(25);
    EXPECT_EQ(caretX(), 162);
}

TEST_F(LongTerms, KeepTheInsetAtBothEnds)
{
    field->inset(6);
    edit(Long, 50);
    EXPECT_EQ(caretX(), 193);
    field->CARET(0);
    EXPECT_EQ(caretX(), 6);
    edit(String(19, u'a'), 19); // 190 pixels, of which 188 have room
    EXPECT_EQ(caretX(), 193);
}

TEST_F(LongTerms, ATermThatFitsAgainStandsAtItsAnchor)
{
    edit(Long, 50);
    field->Term(u"H2O");
    EXPECT_NE(drawn().find("text 0,8 \"H\""), std::string::npos) << drawn();
    field->Term(Long);
    field->Move(10, 20, 600, 40);
    EXPECT_NE(drawn().find("text 0,8 \"aaa"), std::string::npos) << drawn();
}

TEST_F(LongTerms, APressTakesThePlaceThatIsSeen)
{
    edit(Long, 50);
    headless::click(*field, 197 - 100, 20);
    EXPECT_EQ(field->CARET(), 40);
    EXPECT_EQ(caretX(), 97);
}

TEST_F(LongTerms, AnAnchorAtTheSignForTheCurrentPointIsOneToo)
{
    field->TEXTALIGN(TEXTALIGN::MiddleRight);
    edit(Long, 25);
    for (int width = 180; width < 220; ++width) {
        field->Move(10, 20, width, 40);
        for (const int caret : {0, 20, 40, 25}) {
            field->CARET(caret);
            const auto& places = field->frame().textEntry()->caretArea;
            EXPECT_EQ(caretX(), places.left) << width << " " << caret;
        }
    }
}

TEST_F(TermInputTest, TellsItsTextAndCaretToScreenReaders)
{
    edit(u"SO4^2-", 3);
    EXPECT_EQ(field->role(), PartRole::Editable);
    EXPECT_EQ(*field->frame().textEntry(), (TextEntry{u"SO4^2-", 3, {29, 3, 1, 33}, false}));
    headless::type(*form, u"{bs}");
    EXPECT_EQ(*field->frame().textEntry(), (TextEntry{u"SO^2-", 2, {20, 3, 1, 33}, false}));
    field->LOCKED(true);
    EXPECT_FALSE(field->frame().takesText());
    EXPECT_TRUE(makeControl<clt_TermInput>()->frame().textEntry().has_value());
}

TEST_F(TermInputTest, WhatIsComposedIsShownAtTheCaretUntilItIsTyped)
{
    edit(u"SO4", 3);
    outside.display().blinksCaret(false);
    headless::compose(*form, u"x");
    EXPECT_EQ(field->Term(), u"SO4");
    EXPECT_NE(drawn().find("\"x\""), std::string::npos) << drawn();
    EXPECT_EQ(field->frame().textEntry()->caretArea.left, 39);
    headless::commit(*form, u"^2-");
    EXPECT_EQ(shown(), u"SO4^2-|");
    EXPECT_EQ(drawn().find("\"x\""), std::string::npos) << drawn();
    headless::compose(*form, u"x");
    other->SetFocus();
    EXPECT_EQ(drawn().find("\"x\""), std::string::npos) << drawn();
}

TEST_F(TermInputTest, WhatIsComposedGoesAlongWithTheCaret)
{
    edit(u"SO4", 3);
    headless::compose(*form, u"x");
    field->CARET(0);
    EXPECT_NE(drawn().find("text 0,8 \"xSO\""), std::string::npos) << drawn();
    EXPECT_EQ(field->frame().textEntry()->caretArea.left, 10);
}

TEST_F(TermInputTest, ALockedFieldTakesNothingThatIsComposed)
{
    edit(u"SO4", 3);
    headless::compose(*form, u"x");
    field->LOCKED(true);
    EXPECT_EQ(drawn().find("\"x\""), std::string::npos) << drawn();
    headless::commit(*form, u"y");
    EXPECT_EQ(field->Term(), u"SO4");
}

} // namespace
} // namespace phial::test
