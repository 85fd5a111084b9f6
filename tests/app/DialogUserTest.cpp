#include "app/DialogUserTest.h"

#include "app/cls_Language.h"
#include "support/MarkedWaves.h"
#include "visual/ComboBox.h"

#include <gmock/gmock-matchers.h>
#include <string>

namespace phial
{

namespace
{

using ::testing::ElementsAre;
using ::testing::HasSubstr;

constexpr StringView NoName = u"Ohne Namen geht's leider nicht!";
constexpr StringView NameTooShort = u"Das iss aber 'n bisschen kurz! (Bitte mindestens 3 Zeichen eingeben!)";
constexpr StringView NameTooLong = u"Iss das nich 'n bisschen viel? (Bitte maximal 20 Zeichen eingeben!)";

TEST_F(DialogUserTest, OffersNamesToChooseFromWhereNobodyHasBeenHere)
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

TEST_F(DialogUserTest, OffersNamesInTheLanguageInForceAndEachIsTaken)
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

TEST_F(DialogUserTest, BeginsWithTheLatestEntry)
{
    makeAvatars(4);
    storeNames({u"Maxi:a04", u"Uli:a02"});
    look([&] {
        EXPECT_EQ(name(), u"Maxi");
        EXPECT_EQ(marker(), (PixelPoint{51, 51}));
    });
}

TEST_F(DialogUserTest, ShowsTheSixLatestEntriesAndKeepsTheSeventh)
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

TEST_F(DialogUserTest, EmptyPlacesSaySoInTheLanguageInForce)
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

TEST_F(DialogUserTest, TakesNamesOfThreeToTwentyCharacters)
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

TEST_F(DialogUserTest, WarnsAboutOtherNamesAndStaysOpen)
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

TEST_F(DialogUserTest, JudgesANameWithoutItsOuterBlanks)
{
    EXPECT_TRUE(play([&] {
        enter(u"   " + String(20, u'x') + u"  ");
        confirm();
    }));
    EXPECT_EQ(QVAPP()->USER()->SCREENNAME(), String(20, u'x'));
}

TEST_F(DialogUserTest, PlaysASoundWithEachWarning)
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

TEST_F(DialogUserTest, OpensTheKeyboardForTheNameInTouchMode)
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

TEST_F(DialogUserTest, MakesTheNameReadyForTypingWithoutTouchMode)
{
    look([&] {
        headless::click(*get<TextBox>(u"txt_Screenname"));
        EXPECT_THAT(outside.textBoxes().prepared(), ElementsAre(get<TextBox>(u"txt_Screenname").get()));
    });
}

TEST_F(DialogUserTest, TakesUnusualNamesAsTheyAre)
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

TEST_F(DialogUserTest, ShowsANameAsItWasTyped)
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

TEST_F(DialogUserTest, BearsWhateverStandsInTheListOfNames)
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

TEST_F(DialogUserTest, AStoreThatCannotBeWrittenKeepsItsListAndTheNameLastsForThisRun)
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

TEST_F(DialogUserTest, AbortAndTheFramesCloseLeaveEverythingAsItWas)
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

TEST_F(DialogUserTest, ClickOnALatestEntryTakesNameAndAvatar)
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

TEST_F(DialogUserTest, DoubleClickOnALatestEntryConfirms)
{
    makeAvatars(3);
    storeNames({u"Anna:a01", u"Bert:a03"});
    EXPECT_TRUE(play([&] { headless::doubleClick(*get<ctl_Label>(u"lab_Last", 1)); }));
    EXPECT_EQ(QVAPP()->USER()->SCREENNAME(), u"Bert");
    EXPECT_EQ(QVAPP()->USER()->AVATAR(), u"a03");
    EXPECT_EQ(storedNames(), CoreStringList({u"Bert:a03", u"Anna:a01"}));
}

TEST_F(DialogUserTest, DoubleClickOnAnEmptyPlaceDoesNothing)
{
    look([&] {
        headless::doubleClick(*get<PictureBox>(u"pic_Last", 0));
        EXPECT_TRUE(dialog->Visible());
    });
}

TEST_F(DialogUserTest, IsServedByTheKeyboardAlone)
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

TEST_F(DialogUserTest, ReturnOnALatestEntryTakesItAndConfirms)
{
    makeAvatars(4);
    storeNames({u"Anna:a01", u"Bert:a03"});
    EXPECT_TRUE(play([&] { headless::type(*dialog, u"{TAB}{TAB}{ENTER}"); }));
    EXPECT_EQ(QVAPP()->USER()->SCREENNAME(), u"Bert");
}

} // namespace

} // namespace phial
