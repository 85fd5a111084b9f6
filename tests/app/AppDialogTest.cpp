#include "app/AppTest.h"
#include "app/cls_AppDialog.h"
#include "app/cls_Language.h"
#include "app/screen/frm_Resource.h"
#include "core/CoreParameters.h"
#include "core/Locale.h"
#include "core/NativePath.h"
#include "core/RuntimeError.h"
#include "headless/Hand.h"
#include "support/Places.h"
#include "term/clt_TermInput.h"
#include "visual/Form.h"
#include "visual/Label.h"
#include "visual/PictureBox.h"
#include "visual/TextBox.h"
#include "visual/UserControl.h"
#include "visual/ctl_Button.h"
#include "visual/ctl_Label.h"
#include "visual/ctl_Title.h"

#include <gmock/gmock-more-matchers.h>

namespace phial
{

namespace
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class AppDialog : public AppTest
{
protected:
    AppDialog() { LNG()->CURRENT(ID_Language_German); }

    cls_AppDialog& dialog() { return *QVAPP()->DIALOG(); }
    void touchMode(bool value) { QVAPP()->CONFIG()->TOUCHMODE(value); }

    /// The next keyboard is played so.
    void play(const std::function<void(Form&)>& user)
    {
        outside.visual().onModal(u"frm_DialogKeyboard", user);
    }
    /// Likewise the next pad for numbers.
    void playPad(const std::function<void(Form&)>& user)
    {
        outside.visual().onModal(u"frm_DialogNumericTouch", user);
    }
    static void confirm(Form& keyboard) { headless::strike(keyboard, {.key = Key::Return}); }
    static void abort(Form& keyboard) { headless::strike(keyboard, {.key = Key::Escape}); }
    static std::shared_ptr<TextBox> input(Form& keyboard) { return keyboard.control<TextBox>(u"txt_Input"); }

    const std::shared_ptr<TextBox> box = makeControl<TextBox>();
};

TEST_F(AppDialog, TextInputWritesToTheControlAndSaysThatItWasConfirmed)
{
    touchMode(true);
    box->Text(u"alt");
    play([](Form& keyboard) {
        EXPECT_EQ(input(keyboard)->Text(), u"alt");
        EXPECT_EQ(keyboard.control<ctl_Label>(u"lab_Title")->Caption(), u"Titel");
        input(keyboard)->Text(u"neu");
        confirm(keyboard);
    });
    EXPECT_TRUE(dialog().TEXTINPUT(box, u"Titel"));
    EXPECT_EQ(box->Text(), u"neu");
}

TEST_F(AppDialog, TextInputThatIsGivenUpChangesNothing)
{
    touchMode(true);
    box->Text(u"alt");
    play([](Form& keyboard) {
        input(keyboard)->Text(u"neu");
        abort(keyboard);
    });
    EXPECT_FALSE(dialog().TEXTINPUT(box, u""));
    EXPECT_EQ(box->Text(), u"alt");
}

TEST_F(AppDialog, EachTextInputHasAFormOfItsOwn)
{
    touchMode(true);
    play([](Form& keyboard) {
        keyboard.Tag(u"first");
        confirm(keyboard);
    });
    EXPECT_TRUE(dialog().TEXTINPUT(box, u""));
    play([](Form& keyboard) {
        EXPECT_EQ(keyboard.Tag(), u"");
        abort(keyboard);
    });
    EXPECT_FALSE(dialog().TEXTINPUT(box, u""));
}

TEST_F(AppDialog, TextInputWithoutTouchModeMakesATextBoxReadyAndIsFalse)
{
    EXPECT_FALSE(dialog().TEXTINPUT(box, u"Titel"));
    EXPECT_THAT(outside.textBoxes().prepared(), ElementsAre(box.get()));
}

TEST_F(AppDialog, TextInputWithoutTouchModeLeavesEverythingElseAlone)
{
    EXPECT_FALSE(dialog().TEXTINPUT(makeControl<Label>(), u"Titel"));
    EXPECT_FALSE(dialog().TEXTINPUT(nullptr, u"Titel"));
    EXPECT_THAT(outside.textBoxes().prepared(), IsEmpty());
}

TEST_F(AppDialog, TextInputAsksForTheModeAtEachCall)
{
    EXPECT_FALSE(dialog().TEXTINPUT(box, u""));
    touchMode(true);
    play(confirm);
    EXPECT_TRUE(dialog().TEXTINPUT(box, u""));
    touchMode(false);
    EXPECT_FALSE(dialog().TEXTINPUT(box, u""));
}

TEST_F(AppDialog, HelpImagesShowsTheFolderAndGivesNothing)
{
    makeFile(u"Hilfe\\a.bmp", u"");
    makeFile(u"Hilfe\\b.bmp", u"");
    outside.visual().onModal(u"frm_DialogHelpImages", [](Form& help) {
        EXPECT_EQ(help.control<ctl_Title>(u"bar_Header")->Title(), u"Salze");
        EXPECT_EQ(help.control<ctl_Title>(u"bar_Header")->TextRight(), u"1 / 2");
        EXPECT_FALSE(help.control<ctl_Button>(u"but_Delete")->Visible());
        abort(help);
    });
    EXPECT_TRUE(dialog().HELPIMAGES(u"Salze", path(u"Hilfe\\")).isEmpty());
}

TEST_F(AppDialog, HelpImagesTakesItsOptionsAndTheProgramsOwnHelp)
{
    CoreParameters more;
    more.Set(u"delete", true);
    QVAPP()->URL()->DATAAPP(path(u"app\\"));
    makeFile(u"app\\Hilfe\\a.bmp", u"");
    outside.visual().onModal(u"frm_DialogHelpImages", [](Form& help) {
        EXPECT_TRUE(help.control<ctl_Button>(u"but_Delete")->Visible());
        EXPECT_TRUE(help.control<PictureBox>(u"pic_Viewer", 1)
                        ->frame()
                        .AccessibleName()
                        .starts_with(u"Seite 1 von 1"));
        abort(help);
    });
    EXPECT_TRUE(dialog().HELPIMAGES(u"", u"", &more).isEmpty());
}

TEST_F(AppDialog, TextInputWithoutAControlStillAsks)
{
    touchMode(true);
    play([](Form& keyboard) {
        input(keyboard)->Text(u"x");
        confirm(keyboard);
    });
    EXPECT_TRUE(dialog().TEXTINPUT(nullptr, u""));
}

TEST_F(AppDialog, AControlThatGoesMeanwhileIsWrittenToNowhere)
{
    touchMode(true);
    ObjectPtr own = makeControl<TextBox>();
    const std::weak_ptr<Object> watched = own;
    play([&](Form& keyboard) {
        own.reset();
        EXPECT_TRUE(watched.expired());
        input(keyboard)->Text(u"x");
        confirm(keyboard);
    });
    EXPECT_TRUE(dialog().TEXTINPUT(own, u""));
}

TEST_F(AppDialog, TextInputDirectGivesTheNewTextInAnyMode)
{
    for (const bool mode : {false, true}) {
        touchMode(mode);
        play([](Form& keyboard) {
            EXPECT_EQ(input(keyboard)->Text(), u"alt");
            input(keyboard)->Text(u"neu");
            confirm(keyboard);
        });
        EXPECT_EQ(dialog().TEXTINPUTDIRECT(u"alt", u"Titel"), u"neu");
    }
}

TEST_F(AppDialog, TextInputDirectGivesTheOldTextWhenItIsGivenUp)
{
    play([](Form& keyboard) {
        input(keyboard)->Text(u"neu");
        abort(keyboard);
    });
    EXPECT_EQ(dialog().TEXTINPUTDIRECT(u"alt\nzwei", u""), u"alt\nzwei");
}

TEST_F(AppDialog, TextInputDirectKeepsSeveralLines)
{
    play(confirm);
    EXPECT_EQ(dialog().TEXTINPUTDIRECT(u"a\nb", u""), u"a\r\nb");
}

TEST_F(AppDialog, TextInputDirectOpensAtThePointerSinceNobodySeesItsBox)
{
    outside.display().resize(1920, 1080);
    outside.display().moveCursor(960, 540);
    play([](Form& keyboard) {
        EXPECT_DOUBLE_EQ(keyboard.Left(), 585 * TwipsPerPixel);
        EXPECT_DOUBLE_EQ(keyboard.Top(), 370 * TwipsPerPixel);
        abort(keyboard);
    });
    dialog().TEXTINPUTDIRECT(u"", u"");
}

TEST_F(AppDialog, ATextInputWithinAnotherOneLeavesItsTextAlone)
{
    play([this](Form& outer) {
        play([](Form& inner) {
            input(inner)->Text(u"innen");
            confirm(inner);
        });
        EXPECT_EQ(dialog().TEXTINPUTDIRECT(u"zwei", u""), u"innen");
        abort(outer);
    });
    EXPECT_EQ(dialog().TEXTINPUTDIRECT(u"eins", u""), u"eins");
}

TEST_F(AppDialog, NumberInputWritesToTheControlAndSaysThatItWasConfirmed)
{
    touchMode(true);
    box->Text(u"2,50");
    playPad([](Form& pad) {
        EXPECT_EQ(input(pad)->Text(), u"2,5");
        EXPECT_EQ(pad.control<ctl_Label>(u"lab_Title")->Caption(), u"Titel");
        input(pad)->Text(u"3.50");
        confirm(pad);
    });
    EXPECT_TRUE(dialog().NUMBERINPUT(box, u"Titel"));
    EXPECT_EQ(box->Text(), u"3,5");
}

TEST_F(AppDialog, NumberInputThatIsGivenUpChangesNothing)
{
    touchMode(true);
    box->Text(u"2,50");
    playPad([](Form& pad) {
        input(pad)->Text(u"7");
        abort(pad);
    });
    EXPECT_FALSE(dialog().NUMBERINPUT(box, u""));
    EXPECT_EQ(box->Text(), u"2,50");
}

TEST_F(AppDialog, NumberInputWithoutTouchModeMakesATextBoxReadyAndIsFalse)
{
    EXPECT_FALSE(dialog().NUMBERINPUT(box, u"Titel"));
    EXPECT_THAT(outside.textBoxes().prepared(), ElementsAre(box.get()));
    EXPECT_FALSE(dialog().NUMBERINPUT(makeControl<Label>(), u"Titel"));
    EXPECT_FALSE(dialog().NUMBERINPUT(nullptr, u"Titel"));
    EXPECT_THAT(outside.textBoxes().prepared(), ElementsAre(box.get()));
}

TEST_F(AppDialog, NumberInputDirectGivesTheNewNumberInAnyMode)
{
    for (const bool mode : {false, true}) {
        touchMode(mode);
        playPad([](Form& pad) {
            EXPECT_EQ(input(pad)->Text(), u"2,5");
            input(pad)->Text(u"-3,25");
            confirm(pad);
        });
        EXPECT_DOUBLE_EQ(dialog().NUMBERINPUTDIRECT(2.5, u"Titel"), -3.25);
    }
}

TEST_F(AppDialog, NumberInputDirectGivesTheOldNumberWhenItIsGivenUpOrConfirmedUntouched)
{
    constexpr double Small = 0.000018;
    playPad([](Form& pad) {
        input(pad)->Text(u"7");
        abort(pad);
    });
    EXPECT_DOUBLE_EQ(dialog().NUMBERINPUTDIRECT(Small, u""), Small);
    playPad(confirm);
    EXPECT_DOUBLE_EQ(dialog().NUMBERINPUTDIRECT(Small, u""), Small);
    playPad(abort);
    EXPECT_DOUBLE_EQ(dialog().NUMBERINPUTDIRECT(6.022E23, u""), 6.022E23);
    playPad(abort);
    EXPECT_EQ(dialog().NUMBERINPUTDIRECT(1.0 / 3, u""), 0.333333333333333) << "through a text of 15 digits";
}

TEST_F(AppDialog, NumberInputDirectReadsItsTextInEachLocale)
{
    Locale american;
    american.decimalSign = u'.';
    const LocaleBinding binding(american);
    playPad([](Form& pad) {
        EXPECT_EQ(input(pad)->Text(), u"2.5");
        input(pad)->Text(u"3,5");
        confirm(pad);
    });
    EXPECT_DOUBLE_EQ(dialog().NUMBERINPUTDIRECT(2.5, u""), 3.5);
}

TEST_F(AppDialog, NumberInputDirectOpensAtThePointerSinceNobodySeesItsBox)
{
    outside.display().resize(1920, 1080);
    outside.display().moveCursor(960, 540);
    playPad([](Form& pad) {
        EXPECT_DOUBLE_EQ(pad.Left(), (960 - 111) * TwipsPerPixel);
        EXPECT_DOUBLE_EQ(pad.Top(), 370 * TwipsPerPixel);
        abort(pad);
    });
    dialog().NUMBERINPUTDIRECT(1, u"");
}

TEST_F(AppDialog, ANumberInputWithinAnotherInputLeavesItsTextAlone)
{
    playPad([this](Form& outer) {
        playPad([](Form& inner) {
            input(inner)->Text(u"2");
            confirm(inner);
        });
        EXPECT_DOUBLE_EQ(dialog().NUMBERINPUTDIRECT(1, u""), 2);
        abort(outer);
    });
    EXPECT_DOUBLE_EQ(dialog().NUMBERINPUTDIRECT(7, u""), 7);
    play([this](Form& outer) {
        playPad([](Form& inner) {
            input(inner)->Text(u"2");
            confirm(inner);
        });
        EXPECT_DOUBLE_EQ(dialog().NUMBERINPUTDIRECT(1, u""), 2);
        abort(outer);
    });
    EXPECT_EQ(dialog().TEXTINPUTDIRECT(u"eins", u""), u"eins");
}

// Terms.

/// Each of the two keyboards for terms.
struct TermCalls {
    StringView form;
    bool (cls_AppDialog::*input)(const ObjectPtr&, const String&) const;
    String (cls_AppDialog::*direct)(const String&, const String&, const String&) const;
};

class AppDialogTerms : public AppDialog, public ::testing::WithParamInterface<TermCalls>
{
protected:
    AppDialogTerms() { QVAPP()->URL()->ROOT(systemPath(test::treeFolder()) + u"\\"); }

    void playTerm(const std::function<void(Form&)>& user)
    {
        outside.visual().onModal(String(GetParam().form), user);
    }
    static std::shared_ptr<clt_TermInput> field(Form& keyboard)
    {
        return keyboard.control<clt_TermInput>(u"txt_Input");
    }
    bool input(const ObjectPtr& target) { return (dialog().*GetParam().input)(target, u"Titel"); }
    String direct(const String& preset, const String& onAbort)
    {
        return (dialog().*GetParam().direct)(preset, u"Titel", onAbort);
    }
};

TEST_P(AppDialogTerms, OpenInAnyModeAndWriteTheTerm)
{
    for (const bool mode : {false, true}) {
        touchMode(mode);
        const auto term = makeControl<clt_TermInput>();
        term->Term(u"H2");
        playTerm([](Form& keyboard) {
            EXPECT_EQ(field(keyboard)->Term(), u"H2");
            EXPECT_EQ(keyboard.control<ctl_Label>(u"lab_Title")->Caption(), u"Titel");
            field(keyboard)->Term(u"H2O");
            confirm(keyboard);
        });
        EXPECT_TRUE(input(term));
        EXPECT_EQ(term->Term(), u"H2O");
    }
}

TEST_P(AppDialogTerms, GivenUpTheyChangeNothing)
{
    box->Text(u"H2");
    playTerm([](Form& keyboard) {
        field(keyboard)->Term(u"H2O");
        abort(keyboard);
    });
    EXPECT_FALSE(input(box));
    EXPECT_EQ(box->Text(), u"H2");
}

TEST_P(AppDialogTerms, DirectlyTheyGiveTheNewTerm)
{
    playTerm([](Form& keyboard) {
        EXPECT_EQ(field(keyboard)->Term(), u"H2");
        field(keyboard)->Term(u"H2O");
        confirm(keyboard);
    });
    EXPECT_EQ(direct(u"H2", u"PRESET"), u"H2O");
}

TEST_P(AppDialogTerms, DirectlyGivenUpTheyGiveThePresetOrWhatTheCallerWants)
{
    const auto givenUp = [&](const String& onAbort) {
        playTerm([](Form& keyboard) {
            field(keyboard)->Term(u"H2O");
            abort(keyboard);
        });
        return direct(u"H2", onAbort);
    };
    EXPECT_EQ(givenUp(u"PRESET"), u"H2");
    EXPECT_EQ(givenUp(u""), u"");
    EXPECT_EQ(givenUp(u"preset"), u"preset") << "exactly that word";
}

TEST_P(AppDialogTerms, ACallWithinAnotherOneLeavesItsTermAlone)
{
    playTerm([this](Form& outer) {
        playTerm([](Form& inner) {
            field(inner)->Term(u"O2");
            confirm(inner);
        });
        EXPECT_EQ(direct(u"O", u"PRESET"), u"O2");
        EXPECT_EQ(field(outer)->Term(), u"H");
        abort(outer);
    });
    EXPECT_EQ(direct(u"H", u"PRESET"), u"H");
}

INSTANTIATE_TEST_SUITE_P(Keyboards, AppDialogTerms,
                         ::testing::Values(TermCalls{u"frm_DialogKeyboardTerm", &cls_AppDialog::TERMINPUT,
                                                     &cls_AppDialog::TERMINPUTDIRECT},
                                           TermCalls{u"frm_DialogKeyboardPSE", &cls_AppDialog::PSEINPUT,
                                                     &cls_AppDialog::PSEINPUTDIRECT}),
                         [](const auto& row) { return toUtf8(row.param.form); });

TEST_F(AppDialog, TheScratchTermStandsOnTheResourceForm)
{
    outside.visual().onModal(u"frm_DialogKeyboardTerm", abort);
    EXPECT_EQ(dialog().TERMINPUTDIRECT(u"H2", u""), u"H2");
    EXPECT_TRUE(session->sharedForm<frm_Resource>()->form().control<clt_TermInput>(u"ctl_Term"));
}

TEST_F(AppDialog, AFormThatFailsToLoadTellsItsCaller)
{
    touchMode(true);
    outside.visual().surfacesFrom(
        [](PixelSize) -> std::shared_ptr<DrawBackend> { throw RuntimeError(ErrorNumber::InvalidArgument); });
    EXPECT_THROW(dialog().TEXTINPUT(box, u""), RuntimeError);
    outside.visual().surfacesFrom({});
}

TEST_F(AppDialog, TheScratchBoxStandsOnTheResourceForm)
{
    play(confirm);
    dialog().TEXTINPUTDIRECT(u"x", u"");
    const auto scratch = session->sharedForm<frm_Resource>()->form().control<TextBox>(u"txt_NumberInput");
    EXPECT_EQ(scratch->Text(), u"");
    EXPECT_FALSE(session->sharedForm<frm_Resource>()->form().Visible());
}

} // namespace

} // namespace phial
