#include "app/cls_App.h"
#include "app/cls_AppDialog.h"
#include "app/cls_AppURL.h"
#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "dialogs/frm_DialogMiniHTML.h"
#include "headless/Hand.h"
#include "support/AppSession.h"
#include "visual/ctl_CmdBar.h"
#include "visual/ctl_Label.h"
#include "visual/ctl_Title.h"

#include <functional>

namespace phial::test
{

namespace
{

class DialogMiniHTML : public AppSession
{
protected:
    DialogMiniHTML() { LNG()->CURRENT(ID_Language_German); }

    /// The next dialog is played so.
    void play(const std::function<void(Form&)>& user)
    {
        outside.visual().onModal(u"frm_DialogMiniHTML", user);
    }
    static std::shared_ptr<ctl_MiniHTMLInput> input(Form& form)
    {
        return form.control<ctl_MiniHTMLInput>(u"txt_Input");
    }
    static std::shared_ptr<ctl_Title> header(Form& form) { return form.control<ctl_Title>(u"bar_Header"); }
    static String preview(Form& form) { return form.control<ctl_Label>(u"lab_Preview")->Caption(); }
    static void accept(Form& form) { form.control<ctl_CmdBar>(u"bar_Buttons")->inputButton(1); }

    template <typename... Texts>
    Variant ask(Texts... texts)
    {
        return QVAPP()->DIALOG()->MINIHTMLINPUT(texts...);
    }
};

TEST_F(DialogMiniHTML, ShowsWhatItWasGiven)
{
    play([](Form& form) {
        EXPECT_EQ(input(form)->TEXT(), u"H<sub>2</sub>O");
        EXPECT_EQ(header(form)->Title(), u"Notiz");
        EXPECT_FALSE(header(form)->Icon());
        EXPECT_EQ(form.control<ctl_Label>(u"lab_Text")->Caption(), u"Was <b>siehst</b> du?");
        accept(form);
    });
    EXPECT_EQ(ask(u"H<sub>2</sub>O", u"Notiz", u"Was <b>siehst</b> du?"), Variant(u"H<sub>2</sub>O"));
}

TEST_F(DialogMiniHTML, AllArgumentsMayBeLeftOut)
{
    play([](Form& form) {
        EXPECT_EQ(input(form)->TEXT(), u"");
        EXPECT_EQ(header(form)->Title(), u"Text eingeben");
        EXPECT_EQ(form.control<ctl_Label>(u"lab_Text")->Caption(), u"");
        accept(form);
    });
    ask();
}

TEST_F(DialogMiniHTML, UsesSeveralLinesAndBeginsInThem)
{
    play([](Form& form) {
        EXPECT_TRUE(input(form)->MULTILINE());
        EXPECT_GT(input(form)->Height(), 200);
        EXPECT_EQ(form.ActiveControl(), input(form));
        EXPECT_EQ(form.keyboardFocus()->field().get(), &input(form)->input());
        headless::type(form, u"a~b");
        accept(form);
    });
    EXPECT_EQ(ask(), Variant(u"a\r\nb"));
}

TEST_F(DialogMiniHTML, AnAcceptedEmptyTextIsNoAbort)
{
    play([](Form& form) {
        input(form)->TEXT(u"");
        accept(form);
    });
    const Variant answer = ask(u"alt");
    EXPECT_FALSE(answer.isEmpty());
    EXPECT_EQ(answer, Variant(u""));
}

TEST_F(DialogMiniHTML, AnyButtonAccepts)
{
    play([](Form& form) {
        const auto bar = form.control<ctl_CmdBar>(u"bar_Buttons");
        bar->BUTTONS()->Add(u"DIALOG.ABORT();", u"?");
        input(form)->TEXT(u"neu");
        bar->inputButton(2);
    });
    EXPECT_EQ(ask(u"alt"), Variant(u"neu"));
}

TEST_F(DialogMiniHTML, CrossEscapeAndTheFramesCloseGiveUp)
{
    const std::function<void(Form&)> ways[] = {
        [](Form& form) { header(form)->activatePart(0); },
        [](Form& form) { headless::type(form, u"{esc}"); },
        [](Form& form) { form.inputClose(); },
    };
    for (const auto& giveUp : ways) {
        play([&](Form& form) {
            input(form)->TEXT(u"neu");
            giveUp(form);
        });
        EXPECT_TRUE(ask(u"alt").isEmpty());
    }
}

TEST_F(DialogMiniHTML, GivenUpItHasNoTextAndIsNotAccepted)
{
    frm_DialogMiniHTML dialog;
    dialog.pText(u"alt");
    play([](Form& form) { header(form)->activatePart(0); });
    dialog.Show();
    EXPECT_FALSE(dialog.Accepted());
    EXPECT_EQ(dialog.ResultText(), u"");
}

TEST_F(DialogMiniHTML, AcceptedItHasTheTextAsItStands)
{
    frm_DialogMiniHTML dialog;
    dialog.pText(u" <b>x</i> ");
    play(accept);
    dialog.Show();
    EXPECT_TRUE(dialog.Accepted());
    EXPECT_EQ(dialog.ResultText(), u" <b>x</i> ");
}

TEST_F(DialogMiniHTML, ThePreviewFollowsEachChange)
{
    play([](Form& form) {
        EXPECT_EQ(preview(form), u"H2O");
        TextBox& box = input(form)->input();
        box.SelStart(1);
        box.SelLength(1);
        headless::type(form, u"^b");
        EXPECT_EQ(preview(form), u"H<b>2</b>O");
        accept(form);
    });
    ask(u"H2O");
}

TEST_F(DialogMiniHTML, AnotherLanguageChangesItsWordsAndNotTheUsers)
{
    play([](Form& form) {
        LNG()->CURRENT(ID_Language_English);
        EXPECT_EQ(form.Caption(), u"Enter a text");
        EXPECT_EQ(header(form)->Title(), u"Titel|title");
        EXPECT_EQ(input(form)->TEXT(), u"eins|one");
        EXPECT_EQ(preview(form), u"eins|one");
        EXPECT_EQ(form.control<ctl_Label>(u"lab_Text")->Caption(), u"Frage|question");
        accept(form);
    });
    EXPECT_EQ(ask(u"eins|one", u"Titel|title", u"Frage|question"), Variant(u"eins|one"));
}

TEST_F(DialogMiniHTML, TheIconIsAPictureOfTheResourcesOrOfAnyPath)
{
    QVAPP()->URL()->RESOURCEGFX(path(u"gfx\\"));
    outside.visual().addPicture(folder.native() / "gfx" / "note.png",
                                std::make_shared<Picture>(PixelSize{16, 16}));
    int shown = 0;
    for (const String& icon : {String(u"note.png"), path(u"gfx\\note.png")}) {
        play([&](Form& form) {
            shown += header(form)->Icon() ? 1 : 0;
            accept(form);
        });
        ask(u"", u"", u"", icon);
    }
    EXPECT_EQ(shown, 2);
}

TEST_F(DialogMiniHTML, AnIconThatIsNotThereIsLeftOut)
{
    play([](Form& form) {
        EXPECT_FALSE(header(form)->Icon());
        accept(form);
    });
    EXPECT_EQ(ask(u"x", u"", u"", u"missing.png"), Variant(u"x"));
}

TEST_F(DialogMiniHTML, EachCallHasAFormOfItsOwn)
{
    play([this](Form& outer) {
        play([](Form& inner) {
            EXPECT_EQ(input(inner)->TEXT(), u"innen");
            accept(inner);
        });
        EXPECT_EQ(ask(u"innen"), Variant(u"innen"));
        EXPECT_EQ(input(outer)->TEXT(), u"außen");
        header(outer)->activatePart(0);
    });
    EXPECT_TRUE(ask(u"außen").isEmpty());
}

} // namespace

} // namespace phial::test
