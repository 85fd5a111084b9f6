#include "mascot/DrAtomTest.h"
#include "media/cls_AppMedia.h"
#include "support/MarkedWaves.h"
#include "visual/Label.h"
#include "visual/Markup.h"

namespace phial
{

namespace
{

using ::testing::ElementsAre;
using Mood = enm_DrAtomMood;
using Mode = enm_DrAtomBubbleMode;

class DrAtomTalk : public DrAtomTest
{
protected:
    DrAtomTalk() { form->Show(); }

    /// How many ticks pass until the text is over.
    int ticksOfTalk()
    {
        int count = 0;
        for (; atom->BUSY() && count < 10'000; ++count) {
            ticks();
        }
        return count;
    }
};

TEST_F(DrAtomTalk, SaysATextInItsBalloon)
{
    atom->BUBBLESAY(nullptr, u"Hallo!");
    EXPECT_TRUE(atom->BUSY());
    EXPECT_EQ(atom->BUBBLEMODE, Mode::ID_DrAtomBubbleMode_Say);
    EXPECT_EQ(atom->BUBBLEMODELAST, Mode::ID_DrAtomBubbleMode_Say);
    EXPECT_EQ(atom->BUBBLETEXT, u"Hallo!");
    EXPECT_EQ(atom->BUBBLETEXTLAST, u"Hallo!");
    EXPECT_TRUE(bubble->Visible());
    EXPECT_EQ(bubble->TEXT(), u"Hallo!");
    EXPECT_EQ(bubble->TEXTCOLOR(), RGB(0, 0, 0));
    EXPECT_FALSE(bubble->TEXTFONT()->Bold());
    EXPECT_EQ(bubble->BORDERCOLOR(), RGB(128, 128, 0));
    EXPECT_EQ(bubble->FILLCOLOR(), RGB(255, 255, 150));
    EXPECT_EQ(atom->MOOD(), Mood::ID_DrAtomMood_Custom) << "the look comes with the next tick";
    ticks();
    EXPECT_EQ(atom->MOOD(), Mood::ID_DrAtomMood_Happy);
}

TEST_F(DrAtomTalk, ATextOf500LettersIsLaidOutFourTimes)
{
    String text;
    while (text.size() < 500) {
        text += u"Natrium und Chlor geben Salz. ";
    }
    text.resize(500);
    bubble->AUTOSIZE(true);
    const auto label = bubble->container()->controls().front();
    headless::FixedTextMetrics& metrics = outside.visual().metrics();
    const auto asked = [&](const auto& work) {
        const std::size_t before = metrics.asked();
        work();
        return metrics.asked() - before;
    };
    const std::size_t once = asked([&] { MarkupLayout(text, FontSpec{}, metrics, 300); });
    const std::size_t all = asked([&] {
        atom->BUBBLESAY(nullptr, text);
        outside.visual().drawing(*bubble);
        outside.visual().drawing(*label);
    });
    EXPECT_EQ(all / once, 4U) << "for 300, 250 and 200 pixels, and for its picture";
}

TEST_F(DrAtomTalk, AnErrorLooksAngryInItsBalloonToo)
{
    atom->BUBBLEERROR(nullptr, u"Nein");
    EXPECT_EQ(atom->BUBBLEMODE, Mode::ID_DrAtomBubbleMode_Error);
    EXPECT_EQ(bubble->TEXTCOLOR(), RGB(255, 255, 255));
    EXPECT_TRUE(bubble->TEXTFONT()->Bold());
    EXPECT_EQ(bubble->BORDERCOLOR(), RGB(128, 0, 0));
    EXPECT_EQ(bubble->FILLCOLOR(), RGB(255, 0, 0));
    ticks();
    EXPECT_EQ(atom->MOOD(), Mood::ID_DrAtomMood_Angry);
}

TEST_F(DrAtomTalk, ReadingTimeFollowsTheLength)
{
    const auto timeOf = [this](std::size_t letters, double factor = 1) {
        atom->BUBBLESAYSPEED(nullptr, String(letters, u'a'), false, factor);
        return atom->BUBBLETIME;
    };
    EXPECT_DOUBLE_EQ(timeOf(0), 4);
    EXPECT_DOUBLE_EQ(timeOf(14), 4);
    EXPECT_DOUBLE_EQ(timeOf(22), 6);
    EXPECT_DOUBLE_EQ(timeOf(110), 30);
    EXPECT_DOUBLE_EQ(timeOf(164), 164 / 5.5 * 1.5);
    EXPECT_DOUBLE_EQ(timeOf(165), 30) << "from 30 on it is not made longer";
    EXPECT_DOUBLE_EQ(timeOf(220), 40);
    EXPECT_DOUBLE_EQ(timeOf(0, 2), 2);
    EXPECT_DOUBLE_EQ(timeOf(44, 2), 3);
    EXPECT_DOUBLE_EQ(timeOf(22, 0.5), 24);
    EXPECT_DOUBLE_EQ(timeOf(0, 0.5), 8);
}

TEST_F(DrAtomTalk, AUnitOfTimeIsTenTicks)
{
    atom->BUBBLESAY(nullptr, u"Ja");
    const int shortest = ticksOfTalk();
    EXPECT_GE(shortest, 40);
    EXPECT_LE(shortest, 41) << "tenths do not add up exactly";
    EXPECT_FALSE(bubble->Visible());
    EXPECT_EQ(atom->BUBBLETIME, 0);
    EXPECT_EQ(atom->MOOD(), Mood::ID_DrAtomMood_Custom);
    atom->BUBBLESAY(nullptr, String(44, u'a'));
    EXPECT_NEAR(ticksOfTalk(), 120, 1);
}

TEST_F(DrAtomTalk, TheMouthTalksByTwoRandomNumbersATick)
{
    atom->BUBBLESAY(nullptr, u"Ja");
    outside.random().numbers({0.25, 0.75, 0.9});
    told.clear();
    ticks();
    EXPECT_EQ(atom->MOUTHOPEN(), 0.25 * 3 + 1);
    EXPECT_EQ(atom->MOUTHSIZE(), 11);
    ticks();
    EXPECT_EQ(atom->MOUTHOPEN(), 0.25 * 3 + 1) << "the third one was for a blink";
    EXPECT_THAT(told, ElementsAre(u"MOOD")) << "a talking mouth tells nothing";
}

TEST_F(DrAtomTalk, BehindATalkTheLookIsTheOneFromBefore)
{
    atom->MOUTHSIZE(3);
    atom->MOUTHOPEN(2);
    atom->EYECOLOR(QBColor(1));
    atom->BUBBLESAY(nullptr, u"Ja");
    ticksOfTalk();
    EXPECT_EQ(atom->MOUTHSIZE(), 3);
    EXPECT_EQ(atom->MOUTHOPEN(), 2);
    EXPECT_EQ(atom->EYECOLOR(), QBColor(1));
}

TEST_F(DrAtomTalk, AMascotDesignedWithAMoodKeepsItAndItsBalloon)
{
    for (const Mood designed : {Mood::ID_DrAtomMood_Neutral, Mood::ID_DrAtomMood_Happy}) {
        PropertyBag design;
        design.WriteProperty(u"MOOD", static_cast<std::int32_t>(designed));
        design.WriteProperty(u"BUBLE", u"bub_Host");
        design.WriteProperty(u"MOUTHSIZE", 9);
        atom->readProperties(design);
        atom->BUBBLESAY(nullptr, u"Ja");
        ticks(3);
        EXPECT_EQ(atom->MOOD(), Mood::ID_DrAtomMood_Happy);
        ticksOfTalk();
        EXPECT_EQ(atom->MOOD(), designed);
        EXPECT_EQ(atom->BUBBLE(), u"bub_Host");
        EXPECT_EQ(atom->MOUTHSIZE(), 9);
        atom->EYESIZE(8);
        atom->BUBBLESAY(nullptr, u"Noch etwas");
        ticksOfTalk();
        EXPECT_EQ(atom->EYESIZE(), 8) << "each talk comes back to the look before it";
    }
}

TEST_F(DrAtomTalk, AMoodOfTheHostEndsWithTheNextTalk)
{
    atom->MOUTHSIZE(3);
    atom->MOOD(Mood::ID_DrAtomMood_Neutral);
    atom->BUBBLESAY(nullptr, u"Ja");
    ticksOfTalk();
    EXPECT_EQ(atom->MOOD(), Mood::ID_DrAtomMood_Custom);
    EXPECT_EQ(atom->MOUTHSIZE(), 3);
}

TEST_F(DrAtomTalk, WhatTheHostSaysDuringATalkStays)
{
    atom->BUBBLESAY(nullptr, u"Ja");
    ticks(2);
    atom->BUBBLEKEEP(true);
    atom->MOUTHSIZE(2);
    ticksOfTalk();
    EXPECT_TRUE(atom->BUBBLEKEEP());
    EXPECT_TRUE(bubble->Visible());
    EXPECT_EQ(atom->MOUTHSIZE(), 10) << "but the look comes back";
}

TEST_F(DrAtomTalk, CustomDuringATalkLeavesNoTalkingMouthBehind)
{
    atom->MOUTHSIZE(3);
    atom->BUBBLESAY(nullptr, u"Ja");
    ticks(2);
    atom->MOOD(Mood::ID_DrAtomMood_Custom);
    ticks(2);
    ticksOfTalk();
    EXPECT_EQ(atom->MOOD(), Mood::ID_DrAtomMood_Custom);
    EXPECT_EQ(atom->MOUTHSIZE(), 3);
}

TEST_F(DrAtomTalk, ALookReadDuringATalkIsTheOneThatComesBack)
{
    atom->BUBBLESAY(nullptr, u"Ja");
    ticks(2);
    PropertyBag design;
    design.WriteProperty(u"MOUTHSIZE", 9);
    design.WriteProperty(u"BUBLE", u"bub_Host");
    atom->readProperties(design);
    ticksOfTalk();
    EXPECT_EQ(atom->MOUTHSIZE(), 9);
    EXPECT_EQ(atom->MOOD(), Mood::ID_DrAtomMood_Custom);
}

TEST_F(DrAtomTalk, ASecondTextTakesThePlaceOfTheFirst)
{
    atom->BUBBLESAY(nullptr, String(110, u'a'));
    ticks(5);
    atom->BUBBLEERROR(nullptr, u"Halt");
    EXPECT_EQ(atom->BUBBLETEXT, u"Halt");
    EXPECT_EQ(atom->BUBBLETIME, 4);
    EXPECT_EQ(bubble->FILLCOLOR(), RGB(255, 0, 0));
    ticks();
    EXPECT_EQ(atom->MOOD(), Mood::ID_DrAtomMood_Angry);
    ticksOfTalk();
    EXPECT_EQ(atom->MOOD(), Mood::ID_DrAtomMood_Custom);
    EXPECT_EQ(atom->MOUTHSIZE(), 10);
}

TEST_F(DrAtomTalk, AClickEndsTheTextAtTheNextTick)
{
    atom->BUBBLESAY(nullptr, u"Ja");
    ticks(2);
    atom->click();
    EXPECT_TRUE(atom->BUSY());
    ticks();
    EXPECT_FALSE(atom->BUSY());
    EXPECT_FALSE(atom->BUBBLECANCEL);
    EXPECT_FALSE(bubble->Visible());
    atom->click();
    atom->BUBBLESAY(nullptr, u"Noch einmal");
    ticks();
    EXPECT_TRUE(atom->BUSY()) << "a click before the text does not count";
}

TEST_F(DrAtomTalk, AKeptBalloonStaysAndTheMoodReturns)
{
    atom->BUBBLEKEEP(true);
    atom->BUBBLESAY(nullptr, u"Ja");
    ticks(2);
    atom->click();
    ticks();
    EXPECT_FALSE(atom->BUSY());
    EXPECT_TRUE(bubble->Visible());
    EXPECT_EQ(atom->MOOD(), Mood::ID_DrAtomMood_Custom);
}

TEST_F(DrAtomTalk, SaysNothingUnderTheHourglass)
{
    visualHost().screen().MousePointer(MousePointer::Hourglass);
    atom->BUBBLECANCEL = true;
    atom->BUBBLESAY(nullptr, u"Ja");
    EXPECT_FALSE(atom->BUSY());
    EXPECT_EQ(atom->BUBBLETEXTLAST, u"");
    EXPECT_TRUE(atom->BUBBLECANCEL) << "nothing at all happens";
    EXPECT_FALSE(bubble->Visible());
}

TEST_F(DrAtomTalk, ItsSoundComesBeforeItsText)
{
    const String sounds = u"installed\\Resources\\sfx\\";
    folder.write(native(sounds + u"say\\a.wav"), test::markedWave(0.5, 1));
    folder.write(native(sounds + u"wrong\\b.wav"), test::markedWave(0.5, 2));
    const auto marks = [this] {
        outside.advance(1);
        std::vector<int> all;
        for (const headless::HeardSound& one : outside.audio().heard()) {
            all.push_back(test::markOf(*one.sound));
        }
        return all;
    };
    atom->BUBBLESAY(nullptr, u"Ja");
    EXPECT_THAT(marks(), ElementsAre(1));
    atom->BUBBLE(u"");
    EXPECT_RAISES(atom->BUBBLEERROR(nullptr, u"Nein"), ObjectNotSet);
    EXPECT_THAT(marks(), ElementsAre(1, 2));
}

TEST_F(DrAtomTalk, ABalloonIsFoundByItsNameAndClass)
{
    const auto label = form->add<Label>(u"bub_Other");
    const auto other = form->add<ctl_Bubble>(u"BUB_Second");
    atom->BUBBLE(u"  bub_second ");
    atom->BUBBLESAY(nullptr, u"Ja");
    EXPECT_EQ(other->TEXT(), u"Ja");
    atom->BUBBLE(u"bub_Other");
    EXPECT_RAISES(atom->BUBBLESAY(nullptr, u"Nein"), ObjectNotSet);
    EXPECT_TRUE(atom->BUSY()) << "the text has begun";
    EXPECT_GE(ticksOfTalk(), 40) << "and the ticks miss nothing";
}

TEST_F(DrAtomTalk, ASpeedOf0RaisesAtTheCaller)
{
    EXPECT_RAISES(atom->BUBBLESAYSPEED(nullptr, u"Ja", false, 0), DivisionByZero);
    EXPECT_RAISES(atom->BUBBLESAYSPEED(nullptr, u"", false, 0), DivisionByZero);
}

TEST_F(DrAtomTalk, ScreenReadersHearTheTextUnlessTheProgramTellsThem)
{
    atom->BUBBLESAY(nullptr, u"H<sub>2</sub>O ist Wasser");
    EXPECT_EQ(atom->frame().announcement(), u"H2O ist Wasser");
    atom->announces(false);
    atom->BUBBLESAY(nullptr, u"Ja");
    EXPECT_EQ(atom->frame().announcement(), u"H2O ist Wasser");
}

TEST_F(DrAtomTalk, AtRestItTalksWithAStillMouth)
{
    atom->moves(false);
    atom->BUBBLESAY(nullptr, u"Ja");
    ticks(3);
    EXPECT_EQ(atom->MOOD(), Mood::ID_DrAtomMood_Happy);
    EXPECT_EQ(atom->MOUTHSIZE(), 15) << "that of the mood";
    EXPECT_NEAR(ticksOfTalk(), 38, 1);
    EXPECT_FALSE(bubble->Visible());
    EXPECT_EQ(atom->MOOD(), Mood::ID_DrAtomMood_Custom);
}

TEST_F(DrAtomTalk, ATextOutOfRestTakesNoLongerThanAnyOther)
{
    atom->moves(false);
    outside.advance(5);
    atom->BUBBLESAY(nullptr, u"Ja");
    EXPECT_NEAR(ticksOfTalk(), 41, 1);
}

TEST_F(DrAtomTalk, BehindAnotherWindowItsTextWaits)
{
    atom->BUBBLESAY(nullptr, u"Ja");
    form->inputDeactivate();
    ticks(100);
    EXPECT_TRUE(atom->BUSY());
    form->inputActivate();
    EXPECT_GE(ticksOfTalk(), 40);
}

TEST_F(DrAtomTalk, AHandlerMayTakeItAwayInTheMiddleOfATick)
{
    const std::weak_ptr<ctl_DrAtom> held = atom;
    connections += atom->PropertyChanged.connect([this](const String& name) {
        if (name == u"MOOD" && atom) {
            form->remove(*atom);
            atom.reset();
        }
    });
    atom->BUBBLESAY(nullptr, u"Ja");
    EXPECT_FALSE(held.expired());
    ticks(3);
    EXPECT_TRUE(held.expired());
    EXPECT_TRUE(bubble->Visible()) << "nobody is there any more to end the text";
}

TEST_F(DrAtomTalk, AHandlerMayTakeItAwayWithAClick)
{
    const std::weak_ptr<ctl_DrAtom> held = atom;
    connections += atom->CLICK.connect([this] {
        form->remove(*atom);
        atom.reset();
    });
    form->Show();
    drawn();
    headless::click(*atom);
    EXPECT_TRUE(held.expired());
}

TEST_F(DrAtomTalk, AnEmptyTextIsSaidForTheShortestTime)
{
    bubble->AUTOSIZE(true);
    atom->BUBBLESAY(nullptr, u"");
    EXPECT_TRUE(atom->BUSY());
    EXPECT_TRUE(bubble->Visible());
    EXPECT_EQ(bubble->TEXT(), u"");
    EXPECT_NEAR(ticksOfTalk(), 40, 1);
}

TEST_F(DrAtomTalk, ABlinkAtTheEndOfATalkOpensTheRightEyes)
{
    atom->EYESIZE(9);
    atom->BUBBLESAY(nullptr, u"Ja");
    ticks(5);
    outside.random().numbers({0.005});
    ticks();
    ASSERT_EQ(eyesShown(), 0);
    outside.random().numbers({0.5});
    atom->click();
    ticks(2);
    EXPECT_EQ(eyesShown(), 9);
    EXPECT_EQ(atom->EYESIZE(), 9);
}

} // namespace

} // namespace phial
