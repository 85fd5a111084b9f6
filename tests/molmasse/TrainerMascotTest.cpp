#include "app/Settings.h"
#include "app/cls_AppUser.h"
#include "app/cls_Language.h"
#include "common/FrameLayout.h"
#include "common/MascotTexts.h"
#include "core/CoreRegistry.h"
#include "core/CoreRoot.h"
#include "core/CoreStringList.h"
#include "mascot/ctl_Bubble.h"
#include "mascot/ctl_DrAtom.h"
#include "molmasse/TrainerTest.h"

#include <gmock/gmock-more-matchers.h>
#include <set>

namespace molmasse
{
namespace
{

using learning::MascotMoment;
using phial::String;
using phial::StringView;

/// The trainer in a window with room beside its page, and a pupil named Uli.
class TrainerMascot : public TrainerTest
{
protected:
    TrainerMascot()
    {
        install(Elements, "[leicht] Leicht | Easy\nH2O\nNaCl\nHCl\nO2\n");
        open();
        form().innerSize({1080, 640});
        phial::coreRoot().CoreRegistry().CoreRegistryWrite().WriteList(
            phial::SettingsHive::CurrentUser, phial::settings::path(u"Config\\ScreenNameMRU"),
            phial::CoreStringList({u"Uli:fox"}));
        phial::QVAPP()->USER()->SCREENNAME(u"Uli");
    }

    phial::ctl_DrAtom& atom() { return *form().control<phial::ctl_DrAtom>(u"atm_Mascot"); }
    phial::ctl_Bubble& balloon() { return *form().control<phial::ctl_Bubble>(u"bub_Mascot"); }
    /// What the balloon says; empty without one.
    String said() { return balloon().Visible() ? balloon().TEXT() : String(); }
    bool isOf(MascotMoment moment)
    {
        const auto texts = learning::mascotTexts(moment);
        return std::ranges::any_of(texts, [&](StringView both) {
            return phial::LNG()->TRANSLATE(String(both.substr(0, both.find(u'|'))),
                                           String(both.substr(both.find(u'|') + 1)), {u"Uli"}) == said();
        });
    }
    /// Nothing is said any more.
    void silence()
    {
        atom().BUBBLECANCEL = true;
        outside.advance(0.1);
        ASSERT_EQ(said(), u"");
    }
    void begin()
    {
        touch(u"but_Level", 0);
        silence();
    }
};

TEST_F(TrainerMascot, GreetsByNameInBothLanguages)
{
    trainer->welcome();
    EXPECT_TRUE(isOf(MascotMoment::Greeting));
    EXPECT_NE(said().find(u"Uli"), String::npos);
    silence();
    phial::LNG()->CURRENT(phial::ID_Language_English);
    touch(u"but_Level", 0);
    EXPECT_TRUE(isOf(MascotMoment::RoundBegins));
    EXPECT_NE(said().find(u"Uli"), String::npos);
}

TEST_F(TrainerMascot, StandsBesideThePageAndIsNoStopOfTheTabKey)
{
    trainer->welcome();
    const double left = learning::arrange({1080, 640}).page.x + 32;
    EXPECT_TRUE(atom().Visible());
    EXPECT_LE(atom().frame().pixelRectangle().right(), left);
    EXPECT_LE(balloon().frame().pixelRectangle().right(), left);
    EXPECT_LE(balloon().frame().pixelRectangle().bottom(), atom().frame().pixelRectangle().top);
    EXPECT_FALSE(atom().frame().canFocus());
    EXPECT_FALSE(balloon().frame().canFocus());
}

TEST_F(TrainerMascot, IsAwayWhereTheWindowHasNoRoomForIt)
{
    trainer->welcome();
    const String text = said();
    form().innerSize({900, 640});
    EXPECT_FALSE(atom().Visible());
    EXPECT_EQ(said(), u"");
    form().innerSize({1080, 640});
    EXPECT_TRUE(atom().Visible());
    EXPECT_EQ(said(), text) << "it has waited";
    form().innerSize({900, 640});
    touch(u"but_Level", 0);
    EXPECT_EQ(said(), u"");
    form().innerSize({1080, 640});
    EXPECT_EQ(said(), u"") << "that is over";
}

TEST_F(TrainerMascot, HasRoomOnTheScreensOfSchools)
{
    for (const phial::PixelSize size : {phial::PixelSize{1024, 572}, {1366, 740}, {1920, 1050}}) {
        form().innerSize(size);
        EXPECT_TRUE(atom().Visible()) << size.width;
    }
}

TEST_F(TrainerMascot, ReactsToRightAnswersByItsMoodAndPraisesAStreakOfThree)
{
    begin();
    type(u"18,0{enter}");
    EXPECT_EQ(atom().MOOD(), phial::enm_DrAtomMood::ID_DrAtomMood_Happy);
    EXPECT_EQ(said(), u"");
    type(u"{enter}");
    EXPECT_EQ(atom().MOOD(), phial::enm_DrAtomMood::ID_DrAtomMood_Neutral);
    type(u"58,4{enter}{enter}");
    EXPECT_EQ(said(), u"");
    type(u"36,5{enter}");
    EXPECT_TRUE(isOf(MascotMoment::Streak));
}

TEST_F(TrainerMascot, AWrongAnswerEndsAStreak)
{
    begin();
    type(u"18,0{enter}{enter}1{enter}58,4{enter}{enter}36,5{enter}");
    EXPECT_EQ(said(), u"");
}

TEST_F(TrainerMascot, SaysAtTheSecondWrongTryWhatThePageTellsOfIt)
{
    begin();
    type(u"17,0{enter}");
    EXPECT_EQ(atom().MOOD(), phial::enm_DrAtomMood::ID_DrAtomMood_Surprised);
    EXPECT_EQ(said(), u"");
    type(u"17{enter}"); // the index was forgotten
    const String told = atom().frame().announcement();
    type(u"16,999{enter}");
    EXPECT_EQ(said(), u"Denk an die kleine 2 hinter H.");
    EXPECT_NE(seen(u"lab_Feedback").find(said()), String::npos);
    EXPECT_EQ(atom().frame().announcement(), told) << "the page is said already";
}

TEST_F(TrainerMascot, RestsWhileItIsAway)
{
    begin();
    form().innerSize({900, 640});
    type(u"18,0{enter}{enter}1{enter}");
    outside.advance(0.1);
    const auto drawn = outside.visual().drawing(atom());
    outside.advance(5);
    EXPECT_EQ(outside.visual().drawing(atom()), drawn);
}

TEST_F(TrainerMascot, IsSilentWhileSomeoneEntersByTheTouchPad)
{
    touch(u"but_Level", 0);
    EXPECT_NE(said(), u"");
    outside.advance(44);
    touchPad(u"1");
    outside.advance(0.1);
    EXPECT_EQ(said(), u"");
    outside.advance(44);
    EXPECT_EQ(said(), u"") << "who enters is not thinking";
    outside.advance(2);
    EXPECT_TRUE(isOf(MascotMoment::LongThinking));
}

TEST_F(TrainerMascot, DoesNotDisturbInAnotherWindow)
{
    begin();
    const auto other = std::make_shared<phial::Form>(u"frm_Other");
    other->Show();
    outside.advance(60);
    EXPECT_EQ(said(), u"");
    other->discard();
    form().SetFocus();
    outside.advance(31); // 91 seconds in all
    EXPECT_TRUE(isOf(MascotMoment::LongThinking));
}

TEST_F(TrainerMascot, OfHalfARoundItSaysNotThatMostIsDone)
{
    begin();
    expectRankBox();
    type(u"18,0{enter}{enter}1{enter}2{enter}3{enter}{enter}36,5{enter}{enter}1{enter}2{enter}3{enter}{"
         u"enter}");
    EXPECT_TRUE(isOf(MascotMoment::FewSolved)) << phial::toUtf8(said());
}

TEST_F(TrainerMascot, TheLastTextIsNotOfAnotherLanguage)
{
    trainer->welcome();
    touch(u"but_Language");
    outside.advance(0.1);
    type(u"{F3}");
    EXPECT_EQ(said(), u"");
}

TEST_F(TrainerMascot, ConsolesAfterTheThirdTry)
{
    begin();
    type(u"1{enter}2{enter}3{enter}");
    EXPECT_TRUE(isOf(MascotMoment::Missed));
    EXPECT_EQ(atom().frame().announcement(), said());
}

TEST_F(TrainerMascot, WelcomesTheHint)
{
    begin();
    type(u"{F1}");
    EXPECT_TRUE(isOf(MascotMoment::Hint));
}

TEST_F(TrainerMascot, OffersPatienceToWhoeverThinksLong)
{
    begin();
    outside.advance(44);
    EXPECT_EQ(said(), u"");
    type(u"1");
    outside.advance(44);
    EXPECT_EQ(said(), u"") << "who types is not thinking";
    outside.advance(1.5);
    EXPECT_TRUE(isOf(MascotMoment::LongThinking));
    silence();
    outside.advance(100);
    EXPECT_EQ(said(), u"") << "once is enough";
    type(u"8,0{enter}");
    silence();
    outside.advance(100);
    EXPECT_EQ(said(), u"") << "the task is decided";
}

TEST_F(TrainerMascot, IsSilentWhileSomeoneTypes)
{
    touch(u"but_Level", 0);
    EXPECT_NE(said(), u"");
    type(u"1");
    outside.advance(0.1);
    EXPECT_EQ(said(), u"");
}

TEST_F(TrainerMascot, TellsAboutTheRoundAtItsEnd)
{
    begin();
    expectRankBox();
    type(u"18,0{enter}{enter}1{enter}2{enter}3{enter}{enter}36,5{enter}{enter}32,0{enter}{enter}");
    EXPECT_TRUE(isOf(MascotMoment::ManySolved)) << phial::toUtf8(said());
}

TEST_F(TrainerMascot, ItsLastTextComesBackByClickAndKey)
{
    trainer->welcome();
    const String text = said();
    silence();
    atom().click();
    EXPECT_EQ(said(), text);
    atom().click();
    outside.advance(0.1);
    EXPECT_EQ(said(), u"") << "a click on it while it talks ends the text";
    type(u"{F3}");
    EXPECT_EQ(said(), text);
}

TEST_F(TrainerMascot, TheSwitchGoesThroughItsChoicesAndIsRemembered)
{
    begin();
    EXPECT_EQ(buttonText(u"but_Mascot"), u"Maskottchen: an");
    touch(u"but_Mascot");
    EXPECT_EQ(buttonText(u"but_Mascot"), u"Maskottchen: langsam");
    type(u"{F1}");
    const double slow = atom().BUBBLETIME;
    EXPECT_GE(slow, 8);
    touch(u"but_Mascot");
    EXPECT_FALSE(atom().moves());
    touch(u"but_Mascot");
    EXPECT_FALSE(atom().Visible());
    EXPECT_FALSE(balloon().Visible());
    trainer.reset();
    open();
    form().innerSize({1080, 640});
    EXPECT_FALSE(atom().Visible());
    EXPECT_EQ(buttonText(u"but_Mascot"), u"Maskottchen: aus");
    trainer->welcome();
    EXPECT_EQ(said(), u"");
    touch(u"but_Mascot");
    EXPECT_TRUE(atom().Visible());
    EXPECT_TRUE(atom().moves());
}

TEST(MascotWords, NoneComesTwiceInARow)
{
    learning::MascotWords words;
    for (std::size_t at = 0; at < learning::MascotMoments; ++at) {
        const auto moment = static_cast<MascotMoment>(at);
        StringView last;
        std::set<String> all;
        for (int turn = 0; turn < 12; ++turn) {
            const StringView text = words.next(moment);
            EXPECT_NE(text, last) << at;
            last = text;
            all.insert(String(text));
        }
        EXPECT_EQ(all.size(), learning::mascotTexts(moment).size());
        EXPECT_GE(all.size(), 2U);
    }
}

TEST(MascotWords, TextsAreShortAndInBothLanguages)
{
    constexpr std::size_t Longest = 66;
    for (std::size_t at = 0; at < learning::MascotMoments; ++at) {
        for (const StringView both : learning::mascotTexts(static_cast<MascotMoment>(at))) {
            const auto bar = both.find(u'|');
            ASSERT_NE(bar, StringView::npos);
            EXPECT_LE(bar, Longest);
            EXPECT_LE(both.size() - bar - 1, Longest);
            EXPECT_EQ(both.substr(0, bar).find(u"{1}") == StringView::npos,
                      both.substr(bar).find(u"{1}") == StringView::npos)
                << phial::toUtf8(both);
        }
    }
}

} // namespace
} // namespace molmasse
