#include "app/UserTest.h"
#include "app/cls_Language.h"
#include "app/frm_DialogUser.h"
#include "headless/Hand.h"
#include "support/MarkedWaves.h"
#include "visual/ComboBox.h"
#include "visual/ScrollBar.h"
#include "visual/Shape.h"
#include "visual/ctl_CmdBar.h"

#include <gmock/gmock-matchers.h>
#include <string>

namespace phial
{

namespace
{

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

constexpr StringView NoName = u"Ohne Namen geht's leider nicht!";
constexpr StringView NameTooShort = u"Das iss aber 'n bisschen kurz! (Bitte mindestens 3 Zeichen eingeben!)";
constexpr StringView NameTooLong = u"Iss das nich 'n bisschen viel? (Bitte maximal 20 Zeichen eingeben!)";

class DialogUser : public UserTest
{
protected:
    /// Opens the dialog and plays the pupil before it; gives what SCREENNAMEINPUT answers.
    bool play(const std::function<void()>& pupil)
    {
        outside.visual().onModal(u"frm_DialogUser", [&](Form& form) {
            dialog = form.shared_from_this();
            pupil();
        });
        return QVAPP()->USER()->SCREENNAMEINPUT();
    }
    /// The same with the abort that ends most tests.
    void look(const std::function<void()>& pupil)
    {
        play([&] {
            pupil();
            abort();
        });
    }

    template <typename Class>
    std::shared_ptr<Class> get(StringView name, std::int32_t index = -1)
    {
        return dialog->control<Class>(name, index);
    }
    String name() { return get<TextBox>(u"txt_Screenname")->Text(); }
    void enter(const String& text) { get<TextBox>(u"txt_Screenname")->Text(text); }
    void confirm() { headless::clickButton(*get<ctl_CmdBar>(u"bar_Buttons"), u"DIALOG.OK();"); }
    void abort() { headless::clickButton(*get<ctl_CmdBar>(u"bar_Buttons"), u"DIALOG.ABORT();"); }

    std::shared_ptr<PictureBox> avatars() { return get<PictureBox>(u"pic_Avatars"); }
    std::shared_ptr<ScrollBar> bar() { return get<ScrollBar>(u"srl_Avatars"); }
    void clickCell(std::int32_t column, std::int32_t row)
    {
        headless::click(*avatars(), column * 50 + 25, row * 50 + 25);
    }
    PixelPoint marker()
    {
        const auto shape = get<Shape>(u"shp_Avatar");
        return {shape->Left(), shape->Top()};
    }
    /// The avatar that a confirmation takes over.
    String confirmedAvatar()
    {
        enter(u"Maxi");
        confirm();
        return QVAPP()->USER()->AVATAR();
    }
    bool isInView(std::int32_t row)
    {
        const double top = row * 50 + avatars()->Top();
        return top >= 0 && top + 50 <= get<PictureBox>(u"pic_AvatarHolder")->Height();
    }

    std::shared_ptr<Form> dialog;
};

TEST_F(DialogUser, OffersNamesToChooseFromWhereNobodyHasBeenHere)
{
    LNG()->CURRENT(ID_Language_German);
    EXPECT_TRUE(play([&] {
        const auto names = get<ComboBox>(u"cbo_Names");
        ASSERT_TRUE(names->frame().isReachable());
        EXPECT_EQ(names->ListIndex(), -1);
        EXPECT_LE(get<TextBox>(u"txt_Screenname")->Left() + get<TextBox>(u"txt_Screenname")->Width(),
                  names->Left());
        names->inputChoice(2);
        EXPECT_EQ(name(), u"Kluge Eule");
        confirm();
    }));
    EXPECT_EQ(QVAPP()->USER()->SCREENNAME(), u"Kluge Eule");
    look([&] { EXPECT_FALSE(get<ComboBox>(u"cbo_Names")->frame().isReachable()) << "there is a name now"; });
}

TEST_F(DialogUser, OffersNamesInTheLanguageInForceAndEachIsTaken)
{
    for (const auto language : {ID_Language_German, ID_Language_English}) {
        look([&] {
            LNG()->CURRENT(language);
            const auto names = get<ComboBox>(u"cbo_Names");
            EXPECT_EQ(names->List(0), language == ID_Language_German ? u"Schlauer Fuchs" : u"Clever Fox");
            EXPECT_EQ(names->ListCount(), 12);
            for (std::int32_t at = 0; at < names->ListCount(); ++at) {
                EXPECT_GE(names->List(at).size(), 3U);
                EXPECT_LE(names->List(at).size(), 20U);
                EXPECT_EQ(names->List(at).find(u':'), String::npos);
            }
        });
    }
}

TEST_F(DialogUser, BeginsWithTheLoginAndTheFirstAvatar)
{
    makeAvatars(4);
    outside.machine().UserName(u"login");
    look([&] {
        EXPECT_EQ(name(), u"login");
        EXPECT_EQ(marker(), (PixelPoint{1, 1}));
        EXPECT_TRUE(get<Shape>(u"shp_Avatar")->Visible());
    });
}

TEST_F(DialogUser, BeginsWithTheLatestEntry)
{
    makeAvatars(4);
    storeNames({u"Maxi:a04", u"Uli:a02"});
    look([&] {
        EXPECT_EQ(name(), u"Maxi");
        EXPECT_EQ(marker(), (PixelPoint{51, 51}));
    });
}

TEST_F(DialogUser, UnknownAvatarOfTheLatestEntryLeavesTheFirstSelected)
{
    makeAvatars(4);
    storeNames({u"Maxi:gone"});
    EXPECT_TRUE(play([&] {
        EXPECT_EQ(name(), u"Maxi");
        confirm();
    }));
    EXPECT_EQ(QVAPP()->USER()->AVATAR(), u"a01");
}

TEST_F(DialogUser, ShowsTheSixLatestEntriesAndKeepsTheSeventh)
{
    makeAvatars(2);
    storeNames({u"Anna:a01", u"Bert:a02", u"Cleo:a01", u"Dora:a01", u"Emil:a01", u"Fred:a01", u"Gert:a02"});
    play([&] {
        EXPECT_EQ(get<ctl_Label>(u"lab_Last", 0)->Caption(), u"Anna");
        EXPECT_EQ(get<PictureBox>(u"pic_Last", 1)->Tag(), u"a02");
        EXPECT_EQ(get<ctl_Label>(u"lab_Last", 5)->Caption(), u"Fred");
        EXPECT_EQ(dialog->find(u"lab_Last", 6), nullptr);
        confirm();
    });
    EXPECT_EQ(storedNames().Count(), 7);
    EXPECT_EQ(storedNames().Item(7), u"Gert:a02");
}

TEST_F(DialogUser, EmptyPlacesSaySoInTheLanguageInForce)
{
    LNG()->CURRENT(ID_Language_German);
    storeNames({u"Anna:a01"});
    look([&] {
        EXPECT_EQ(get<ctl_Label>(u"Label1")->Caption(), u"Dein Name:");
        EXPECT_EQ(get<ctl_Label>(u"lab_Last", 1)->Caption(), u"Noch Niemand");
        LNG()->CURRENT(ID_Language_English);
        EXPECT_EQ(get<ctl_Label>(u"Label1")->Caption(), u"Your name:");
        EXPECT_EQ(get<ctl_Label>(u"lab_Last", 1)->Caption(), u"Nobody yet");
        EXPECT_EQ(get<ctl_Label>(u"lab_Last", 0)->Caption(), u"Anna");
    });
}

TEST_F(DialogUser, TakesNamesOfThreeToTwentyCharacters)
{
    for (const std::size_t length : {3U, 20U}) {
        const String text(length, u'x');
        EXPECT_TRUE(play([&] {
            enter(text);
            confirm();
        }));
        EXPECT_EQ(QVAPP()->USER()->SCREENNAME(), text);
        EXPECT_EQ(storedNames().First(), text + u":");
    }
}

TEST_F(DialogUser, WarnsAboutOtherNamesAndStaysOpen)
{
    const std::pair<String, StringView> cases[] = {
        {u"", NoName},
        {u"   ", NoName},
        {u"xy", NameTooShort},
        {String(21, u'x'), NameTooLong},
        {u"  xy  ", NameTooShort},
        {String(10'000, u'x'), NameTooLong},
    };
    for (const auto& [text, warning] : cases) {
        expectError(warning);
        EXPECT_FALSE(play([&, &text = text] {
            enter(text);
            confirm();
            EXPECT_TRUE(dialog->Visible());
            abort();
        }));
    }
    EXPECT_EQ(storedNames().Count(), 0);
    EXPECT_EQ(QVAPP()->USER()->SCREENNAME(), u"pupil");
}

TEST_F(DialogUser, JudgesANameWithoutItsOuterBlanks)
{
    EXPECT_TRUE(play([&] {
        enter(u"   " + String(20, u'x') + u"  ");
        confirm();
    }));
    EXPECT_EQ(QVAPP()->USER()->SCREENNAME(), String(20, u'x'));
}

TEST_F(DialogUser, PlaysASoundWithEachWarning)
{
    folder.write("sfx/wrong/a.wav", test::markedWave(0.5, 7));
    QVAPP()->URL()->RESOURCESFX(path(u"sfx\\"));
    expectError(NameTooShort);
    look([&] {
        enter(u"xy");
        confirm();
    });
    outside.advance(0.1);
    ASSERT_EQ(outside.audio().heard().size(), 1U);
    EXPECT_EQ(test::markOf(*outside.audio().heard()[0].sound), 7);
}

TEST_F(DialogUser, OpensTheKeyboardForTheNameInTouchMode)
{
    LNG()->CURRENT(ID_Language_German);
    QVAPP()->CONFIG()->TOUCHMODE(true);
    outside.visual().onModal(u"frm_DialogKeyboard", [](Form& keyboard) {
        EXPECT_EQ(keyboard.control<ctl_Label>(u"lab_Title")->Caption(), u"Dein Name");
        keyboard.control<TextBox>(u"txt_Input")->Text(u"getippt");
        headless::strike(keyboard, {.key = Key::Return});
    });
    look([&] {
        headless::click(*get<TextBox>(u"txt_Screenname"));
        EXPECT_EQ(name(), u"getippt");
    });
}

TEST_F(DialogUser, MakesTheNameReadyForTypingWithoutTouchMode)
{
    look([&] {
        headless::click(*get<TextBox>(u"txt_Screenname"));
        EXPECT_THAT(outside.textBoxes().prepared(), ElementsAre(get<TextBox>(u"txt_Screenname").get()));
    });
}

TEST_F(DialogUser, TakesUnusualNamesAsTheyAre)
{
    makeAvatars(1);
    for (const String& text : {String(u"a:b"), String(u"\u0634\u0645\u0633"), String(u"\U0001F9EA\U0001F9EA"),
                               String(u"x\x0001\x0007"), String(u"<b>x</b>")}) {
        EXPECT_TRUE(play([&] {
            enter(text);
            confirm();
        }));
        EXPECT_EQ(QVAPP()->USER()->SCREENNAME(), text);
        EXPECT_EQ(storedNames().First(), text + u":a01");
    }
}

TEST_F(DialogUser, ShowsANameAsItWasTyped)
{
    makeAvatars(1);
    storeNames({u"<b>x</b>:a01"});
    look([&] {
        const auto label = get<ctl_Label>(u"lab_Last", 0);
        EXPECT_THAT(outside.visual().drawing(*label), HasSubstr("<b>x</b>"));
        EXPECT_EQ(label->accessibleText(), u"<b>x</b>");
        headless::click(*label);
        EXPECT_EQ(name(), u"<b>x</b>");
    });
}

TEST_F(DialogUser, BearsWhateverStandsInTheListOfNames)
{
    makeAvatars(2);
    const String names[] = {String(10'000, u'x'),
                            u"a:b:c",
                            u"\u0634\u0645\u0633\u202Eab",
                            u"\U0001F9EA\xD83E",
                            String{u'\1', u'\r', u'\n', u'\t', u'\0'},
                            u"Maxi|Mini",
                            String(10'000, u'\n') + u"x"};
    for (const String& stored : names) {
        storeNames({stored + u":a02"});
        const String expected = stored.substr(0, stored.find(u':'));
        look([&] {
            EXPECT_EQ(name(), expected);
            outside.visual().drawing(*get<ctl_Label>(u"lab_Last", 0));
            for (const auto language : {ID_Language_English, ID_Language_German}) {
                LNG()->CURRENT(language);
                EXPECT_EQ(get<ctl_Label>(u"lab_Last", 0)->Caption(), expected);
                EXPECT_EQ(name(), expected);
            }
        });
        EXPECT_EQ(storedNames(), CoreStringList({stored + u":a02"}));
    }
}

TEST_F(DialogUser, AStoreThatCannotBeWrittenKeepsItsListAndTheNameLastsForThisRun)
{
    makeAvatars(2);
    storeNames({u"Anna:a01", u"Bert:a02"});
    outside.settings().refuseWrites();
    EXPECT_TRUE(play([&] {
        enter(u"Cleo");
        clickCell(1, 0);
        confirm();
    }));
    EXPECT_EQ(QVAPP()->USER()->SCREENNAME(), u"Cleo");
    EXPECT_EQ(QVAPP()->USER()->AVATAR(), u"a02");
    EXPECT_EQ(storedNames(), CoreStringList({u"Anna:a01", u"Bert:a02"}));
}

TEST_F(DialogUser, AbortAndTheFramesCloseLeaveEverythingAsItWas)
{
    makeAvatars(2);
    storeNames({u"Maxi:a02"});
    const auto enterAnother = [&] {
        enter(u"Another");
        clickCell(0, 0);
    };
    EXPECT_FALSE(play([&] {
        enterAnother();
        abort();
    }));
    EXPECT_FALSE(play([&] {
        enterAnother();
        dialog->inputClose();
    }));
    EXPECT_EQ(QVAPP()->USER()->SCREENNAME(), u"Maxi");
    EXPECT_EQ(QVAPP()->USER()->AVATAR(), u"a02");
    EXPECT_EQ(storedNames(), CoreStringList({u"Maxi:a02"}));
}

TEST_F(DialogUser, ClickTakesTheAvatarOfTheCell)
{
    makeAvatars(5);
    play([&] {
        clickCell(1, 1);
        EXPECT_EQ(marker(), (PixelPoint{51, 51}));
        EXPECT_EQ(confirmedAvatar(), u"a04");
    });
}

TEST_F(DialogUser, ClickBesideTheLastAvatarDoesNothing)
{
    makeAvatars(3);
    play([&] {
        clickCell(0, 1);
        clickCell(1, 1);
        EXPECT_EQ(marker(), (PixelPoint{1, 51}));
        EXPECT_EQ(confirmedAvatar(), u"a03");
    });
}

TEST_F(DialogUser, ClickOnALatestEntryTakesNameAndAvatar)
{
    makeAvatars(3);
    storeNames({u"Anna:a01", u"Bert:a03"});
    play([&] {
        headless::click(*get<PictureBox>(u"pic_Last", 1));
        EXPECT_EQ(name(), u"Bert");
        EXPECT_EQ(marker(), (PixelPoint{1, 51}));
        headless::click(*get<ctl_Label>(u"lab_Last", 0));
        EXPECT_EQ(name(), u"Anna");
        headless::click(*get<PictureBox>(u"pic_Last", 2));
        EXPECT_EQ(name(), u"Anna");
        abort();
    });
}

TEST_F(DialogUser, DoubleClickOnALatestEntryConfirms)
{
    makeAvatars(3);
    storeNames({u"Anna:a01", u"Bert:a03"});
    EXPECT_TRUE(play([&] { headless::doubleClick(*get<ctl_Label>(u"lab_Last", 1)); }));
    EXPECT_EQ(QVAPP()->USER()->SCREENNAME(), u"Bert");
    EXPECT_EQ(QVAPP()->USER()->AVATAR(), u"a03");
    EXPECT_EQ(storedNames(), CoreStringList({u"Bert:a03", u"Anna:a01"}));
}

TEST_F(DialogUser, DoubleClickOnAnEmptyPlaceDoesNothing)
{
    look([&] {
        headless::doubleClick(*get<PictureBox>(u"pic_Last", 0));
        EXPECT_TRUE(dialog->Visible());
    });
}

TEST_F(DialogUser, ListHasARowForTwoAvatars)
{
    const std::pair<std::int32_t, double> heights[] = {{0, 0}, {1, 50}, {2, 50}, {5, 150}, {12, 300}};
    for (const auto& [count, height] : heights) {
        makeAvatars(count);
        look([&, height = height] {
            EXPECT_EQ(avatars()->Height(), height);
            EXPECT_FALSE(bar()->Enabled());
        });
    }
}

TEST_F(DialogUser, LongListIsScrolledByTheDifferenceOfTheHeights)
{
    makeAvatars(30);
    look([&] {
        EXPECT_TRUE(bar()->Enabled());
        EXPECT_EQ(bar()->Max(), 15 * 50 - 300);
        bar()->inputScroll(120);
        EXPECT_EQ(avatars()->Top(), -120);
        headless::turnWheel(*avatars(), -1);
        EXPECT_EQ(avatars()->Top(), -170);
        headless::turnWheel(*get<Shape>(u"shp_Avatar"), 100);
        EXPECT_EQ(avatars()->Top(), 0);
        headless::turnWheel(*avatars(), -100);
        EXPECT_EQ(avatars()->Top(), -450);
    });
}

TEST_F(DialogUser, OnlyTheAvatarsInViewArePainted)
{
    makeAvatars(30);
    look([&] {
        const auto painted = [&] { return outside.visual().drawing(*avatars()); };
        EXPECT_THAT(painted(), HasSubstr("1,1 48x48"));
        EXPECT_THAT(painted(), HasSubstr("51,251 48x48"));
        EXPECT_THAT(painted(), Not(HasSubstr(",301 ")));
        bar()->inputScroll(120);
        EXPECT_THAT(painted(), HasSubstr("1,-19 48x48")) << "row 2 has gone by its upper part";
        EXPECT_THAT(painted(), HasSubstr("51,281 48x48"));
    });
}

TEST_F(DialogUser, DraggingTheListScrollsItAndSelectsNothing)
{
    makeAvatars(30);
    look([&] {
        headless::drag(*avatars(), {20, 280}, {20, 80});
        EXPECT_EQ(avatars()->Top(), -200);
        EXPECT_EQ(marker(), (PixelPoint{1, 1}));
        headless::drag(*avatars(), {70, 225}, {72, 228});
        EXPECT_EQ(avatars()->Top(), -200);
        EXPECT_EQ(marker(), (PixelPoint{51, 201}));
    });
}

TEST_F(DialogUser, SelectedAvatarIsInView)
{
    makeAvatars(30);
    storeNames({u"Maxi:a30"});
    look([&] {
        EXPECT_EQ(avatars()->Top(), -450);
        headless::click(*get<PictureBox>(u"pic_Last", 0));
        EXPECT_TRUE(isInView(14));
    });
}

TEST_F(DialogUser, KeysMoveTheMarkAndTheList)
{
    makeAvatars(30);
    look([&] {
        avatars()->SetFocus();
        headless::type(*dialog, u"{DOWN}{RIGHT}");
        EXPECT_EQ(marker(), (PixelPoint{51, 51}));
        headless::type(*dialog, u"{UP}{LEFT}{LEFT}{UP}");
        EXPECT_EQ(marker(), (PixelPoint{1, 1}));
        headless::type(*dialog, u"{END}");
        EXPECT_EQ(marker(), (PixelPoint{51, 701}));
        EXPECT_TRUE(isInView(14));
        headless::type(*dialog, u"{PGUP}");
        EXPECT_EQ(marker(), (PixelPoint{51, 401}));
        EXPECT_TRUE(isInView(8));
        headless::type(*dialog, u"{HOME}{PGDN}");
        EXPECT_EQ(marker(), (PixelPoint{1, 301}));
    });
}

TEST_F(DialogUser, IsServedByTheKeyboardAlone)
{
    makeAvatars(4);
    storeNames({u"Anna:a01", u"Bert:a03"});
    EXPECT_TRUE(play([&] {
        EXPECT_EQ(dialog->ActiveControl(), get<TextBox>(u"txt_Screenname"));
        headless::type(*dialog, u"Cleo");
        EXPECT_EQ(name(), u"Cleo");
        headless::type(*dialog, u"{TAB}{TAB} ");
        EXPECT_EQ(name(), u"Bert");
        headless::type(*dialog, u"{TAB}{RIGHT}{ENTER}");
    }));
    EXPECT_EQ(QVAPP()->USER()->SCREENNAME(), u"Bert");
    EXPECT_EQ(QVAPP()->USER()->AVATAR(), u"a04");
    EXPECT_FALSE(play([&] { headless::type(*dialog, u"{ESC}"); }));
}

TEST_F(DialogUser, ReturnOnALatestEntryTakesItAndConfirms)
{
    makeAvatars(4);
    storeNames({u"Anna:a01", u"Bert:a03"});
    EXPECT_TRUE(play([&] { headless::type(*dialog, u"{TAB}{TAB}{ENTER}"); }));
    EXPECT_EQ(QVAPP()->USER()->SCREENNAME(), u"Bert");
}

TEST_F(DialogUser, WorksWithoutAnyAvatar)
{
    QVAPP()->URL()->RESOURCEAVATARS(path(u"nowhere\\"));
    makeAvatars(0);
    EXPECT_TRUE(play([&] {
        EXPECT_FALSE(get<Shape>(u"shp_Avatar")->Visible());
        avatars()->SetFocus();
        headless::type(*dialog, u"{DOWN}{END}");
        enter(u"Maxi");
        confirm();
    }));
    EXPECT_EQ(QVAPP()->USER()->AVATAR(), u"");
    EXPECT_EQ(storedNames().First(), u"Maxi:");
}

TEST_F(DialogUser, BrokenPictureCanBeChosenLikeAnyOther)
{
    makeFile(u"avatar\\a02.gif", u"no picture");
    makeAvatars(1);
    play([&] {
        clickCell(1, 0);
        EXPECT_EQ(confirmedAvatar(), u"a02");
    });
}

TEST_F(DialogUser, ReachesTheLastOfFiveThousandAvatars)
{
    constexpr std::int32_t Many = 5000;
    makeAvatars(Many);
    play([&] {
        EXPECT_EQ(avatars()->Height(), Many / 2 * 50);
        EXPECT_LE(avatars()->surface().image(2.3)->Height(), get<PictureBox>(u"pic_AvatarHolder")->Height());
        avatars()->SetFocus();
        headless::type(*dialog, u"{END}");
        EXPECT_TRUE(isInView(Many / 2 - 1));
        EXPECT_EQ(confirmedAvatar(), QVAPP()->USER()->AVATARID(Many));
    });
}

} // namespace

} // namespace phial
