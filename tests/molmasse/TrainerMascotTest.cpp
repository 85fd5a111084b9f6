#include "app/Settings.h"
#include "app/cls_AppUser.h"
#include "app/cls_Language.h"
#include "common/FrameLayout.h"
#include "common/MascotTexts.h"
#include "common/MissedTasks.h"
#include "core/CoreRegistry.h"
#include "core/CoreRoot.h"
#include "core/CoreStringList.h"
#include "mascot/ctl_Bubble.h"
#include "mascot/ctl_DrAtom.h"
#include "molmasse/TrainerTest.h"
#include "visual/Markup.h"

#include <gmock/gmock-more-matchers.h>
#include <set>

namespace molmasse
{
namespace
{

using learning::MascotMoment;
using phial::String;
using phial::StringView;
using Mood = phial::enm_DrAtomMood;

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

TEST_F(TrainerMascot, SmilesAtWhoeverSitsDown)
{
    trainer->welcome();
    EXPECT_EQ(atom().MOOD(), Mood::ID_DrAtomMood_Happy);
    EXPECT_EQ(said(), u"");
}

TEST_F(TrainerMascot, GreetsByNameInBothLanguages)
{
    for (const auto language : {phial::ID_Language_German, phial::ID_Language_English}) {
        trainer.reset();
        phial::LNG()->CURRENT(language);
        open();
        form().innerSize({1080, 640});
        trainer->welcome();
        touch(u"but_Level", 0);
        EXPECT_TRUE(isOf(MascotMoment::Greeting)) << phial::toUtf8(said());
        EXPECT_NE(said().find(u"Uli"), String::npos);
    }
}

TEST_F(TrainerMascot, GreetsOnceAndThenEachPupil)
{
    const auto leave = [this] {
        answerLeaving(u"but_Leave");
        type(u"{esc}");
        silence();
    };
    touch(u"but_Level", 0);
    EXPECT_TRUE(isOf(MascotMoment::Greeting));
    leave();
    touch(u"but_Level", 0);
    EXPECT_TRUE(isOf(MascotMoment::RoundBegins));
    leave();
    phial::QVAPP()->USER()->SCREENNAME(u"Ada");
    touch(u"but_Level", 0);
    EXPECT_NE(said().find(u"Ada"), String::npos);
    EXPECT_FALSE(isOf(MascotMoment::RoundBegins));
}

/// Whatever the balloon says can be read on the page, and is said once by screen readers.
TEST_F(TrainerMascot, SaysNothingThatDoesNotStandOnThePage)
{
    const auto page = [this](StringView label) { return phial::plainMarkup(seen(label)); };
    const auto spoken = [this] {
        return form().control<phial::ctl_Label>(u"lab_Feedback")->frame().announcement();
    };
    touch(u"but_Level", 0);
    ASSERT_NE(said(), u"");
    EXPECT_EQ(seen(u"lab_Feedback"), said());
    EXPECT_EQ(spoken(), said() + u"\nAufgabe 1 von 4\n, H zwei O");
    type(u"18,0{enter}");
    EXPECT_EQ(seen(u"lab_Feedback").find(u"Richtig!"), 0U) << "the verdict takes its place";
    type(u"{enter}");
    EXPECT_EQ(seen(u"lab_Feedback"), u"") << "of the round's first task only";
    type(u"58,4{enter}{enter}36,5{enter}");
    ASSERT_TRUE(isOf(MascotMoment::Streak));
    EXPECT_NE(seen(u"lab_Feedback").find(said()), String::npos);
    EXPECT_NE(spoken().find(said()), String::npos);
    type(u"{enter}7{enter}9{enter}");
    ASSERT_NE(said(), u"");
    EXPECT_EQ(said(), seen(u"lab_Hint")) << "nothing can be told of how it was come by";
    type(u"3{enter}");
    expectRankBox();
    type(u"{enter}");
    EXPECT_EQ(said(), seen(u"lab_Praise") + u"<br>" + seen(u"lab_Solved"));
    EXPECT_EQ(form().control<phial::ctl_Label>(u"lab_Praise")->frame().announcement(),
              page(u"lab_Praise") + u"\n" + page(u"lab_Result") + u"\n" + page(u"lab_Solved"));
    EXPECT_EQ(atom().frame().announcement(), u"") << "the page has said it all";
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
    touch(u"but_Level", 0);
    const String text = said();
    ASSERT_NE(text, u"");
    form().innerSize({900, 640});
    EXPECT_FALSE(atom().Visible());
    EXPECT_EQ(said(), u"");
    form().innerSize({1080, 640});
    EXPECT_TRUE(atom().Visible());
    EXPECT_EQ(said(), text) << "it has waited";
    form().innerSize({900, 640});
    type(u"18,0{enter}{enter}58,4{enter}{enter}36,5{enter}"); // a streak
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
    EXPECT_EQ(atom().MOOD(), Mood::ID_DrAtomMood_Happy);
    EXPECT_EQ(said(), u"");
    type(u"{enter}");
    EXPECT_EQ(atom().MOOD(), Mood::ID_DrAtomMood_Neutral);
    type(u"58,4{enter}{enter}");
    EXPECT_EQ(said(), u"");
    type(u"36,5{enter}");
    EXPECT_TRUE(isOf(MascotMoment::Streak));
    silence();
    type(u"{enter}32,0{enter}");
    EXPECT_EQ(said(), u"") << "the next one begins";
}

TEST_F(TrainerMascot, AnAnswerThatIsNoneEndsNoStreak)
{
    begin();
    type(u"18,0{enter}{enter}58,4{enter}{enter}x{enter}");
    outside.advance(0.1);
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
    EXPECT_EQ(atom().MOOD(), Mood::ID_DrAtomMood_Surprised);
    EXPECT_EQ(said(), u"");
    type(u"17{enter}"); // the index was forgotten
    type(u"16,999{enter}");
    EXPECT_EQ(said(), u"Denk an die kleine 2 hinter H.");
    EXPECT_NE(seen(u"lab_Feedback").find(said()), String::npos);
    EXPECT_EQ(atom().frame().announcement(), u"") << "the page is said already";
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
    EXPECT_NE(atom().MOOD(), Mood::ID_DrAtomMood_Happy) << "who enters is not thinking";
    outside.advance(2);
    EXPECT_EQ(atom().MOOD(), Mood::ID_DrAtomMood_Happy);
}

TEST_F(TrainerMascot, DoesNotSmileAtSomeoneInAnotherWindow)
{
    begin();
    const auto other = std::make_shared<phial::Form>(u"frm_Other");
    other->Show();
    outside.advance(60);
    EXPECT_EQ(atom().MOOD(), Mood::ID_DrAtomMood_Neutral);
    other->discard();
    form().SetFocus();
    outside.advance(31); // 91 seconds in all
    EXPECT_EQ(atom().MOOD(), Mood::ID_DrAtomMood_Happy);
}

TEST_F(TrainerMascot, TheLastTextIsNotOfAnotherLanguage)
{
    touch(u"but_Level", 0);
    ASSERT_NE(said(), u"");
    touch(u"but_Language");
    outside.advance(0.1);
    type(u"{F3}");
    EXPECT_EQ(said(), u"");
}

TEST_F(TrainerMascot, LooksCalmAfterTheThirdTry)
{
    begin();
    type(u"1{enter}");
    EXPECT_EQ(atom().MOOD(), Mood::ID_DrAtomMood_Surprised);
    type(u"2{enter}");
    silence();
    type(u"3{enter}");
    EXPECT_EQ(atom().MOOD(), Mood::ID_DrAtomMood_Neutral);
    EXPECT_EQ(said(), u"");
}

TEST_F(TrainerMascot, SmilesAtTheHint)
{
    begin();
    type(u"{F5}");
    EXPECT_EQ(atom().MOOD(), Mood::ID_DrAtomMood_Happy);
    EXPECT_EQ(said(), u"") << "the page tells it";
}

TEST_F(TrainerMascot, SmilesAtWhoeverThinksLong)
{
    begin();
    outside.advance(44);
    EXPECT_EQ(atom().MOOD(), Mood::ID_DrAtomMood_Neutral);
    type(u"1");
    outside.advance(44);
    EXPECT_EQ(atom().MOOD(), Mood::ID_DrAtomMood_Neutral) << "who types is not thinking";
    outside.advance(1.5);
    EXPECT_EQ(atom().MOOD(), Mood::ID_DrAtomMood_Happy);
    EXPECT_EQ(said(), u"");
    type(u"2{enter}");
    ASSERT_EQ(atom().MOOD(), Mood::ID_DrAtomMood_Surprised);
    type(u"18,0{enter}");
    silence();
    atom().MOOD(Mood::ID_DrAtomMood_Neutral);
    outside.advance(100);
    EXPECT_EQ(atom().MOOD(), Mood::ID_DrAtomMood_Neutral) << "the task is decided";
}

TEST_F(TrainerMascot, IsSilentWhileSomeoneTypes)
{
    touch(u"but_Level", 0);
    EXPECT_NE(said(), u"");
    type(u"1");
    outside.advance(0.1);
    EXPECT_EQ(said(), u"");
}

struct RoundEnd {
    String answers;
    String word;
};

TEST_F(TrainerMascot, TellsAboutTheRoundAtItsEndWhatThePageTells)
{
    const String missed = u"1{enter}2{enter}3{enter}{enter}";
    const RoundEnd ends[] = {
        {u"18,0{enter}{enter}58,4{enter}{enter}36,5{enter}{enter}32,0{enter}{enter}",
         u"Ausgezeichnet!<br>4 von 4 Formeln gelöst"},
        {u"18,0{enter}{enter}" + missed + missed + missed,
         u"1 von 4 Formeln gelöst<br>Übung macht den Meister!"},
        {missed + missed + missed + missed, u"Übung macht den Meister!<br>0 von 4 Formeln gelöst"},
    };
    for (const RoundEnd& end : ends) {
        trainer.reset();
        learning::MissedTasks(u"Uli").forget();
        open();
        form().innerSize({1080, 640});
        begin();
        expectRankBox();
        type(end.answers);
        EXPECT_EQ(said(), end.word) << phial::toUtf8(said());
    }
}

TEST_F(TrainerMascot, ItsLastTextComesBackByClickAndKey)
{
    touch(u"but_Level", 0);
    const String text = said();
    silence();
    ASSERT_NE(text, u"");
    atom().click();
    EXPECT_EQ(said(), text);
    EXPECT_EQ(atom().frame().announcement(), phial::plainMarkup(text)) << "who asks for it hears it again";
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
    type(u"{F3}");
    EXPECT_GE(atom().BUBBLETIME, 8);
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
    touch(u"but_Level", 0);
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
            EXPECT_GT(bar, 0U);
            EXPECT_LT(bar + 1, both.size());
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
