#include "mascot/DrAtomTest.h"

#include <limits>

namespace phial
{

namespace
{

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::StartsWith;
using Mood = enm_DrAtomMood;
using Move = enm_DrAtomEyeMove;

TEST_F(DrAtomTest, IsFreshWithTheseValues)
{
    const auto fresh = makeControl<ctl_DrAtom>();
    EXPECT_FALSE(fresh->DEAD());
    EXPECT_EQ(fresh->EYEBLINKING(), 3);
    EXPECT_EQ(fresh->EYECOLOR(), RGB(0, 0, 0));
    EXPECT_EQ(fresh->EYEDIRECTION(), 0);
    EXPECT_EQ(fresh->EYEMOVE(), Move::ID_DrAtomEyeMove_None);
    EXPECT_EQ(fresh->EYESIZE(), 4);
    EXPECT_EQ(fresh->BUBBLE(), u"");
    EXPECT_FALSE(fresh->BUBBLEKEEP());
    EXPECT_EQ(fresh->MOOD(), Mood::ID_DrAtomMood_Custom);
    EXPECT_EQ(fresh->MOUTHOPEN(), 0);
    EXPECT_EQ(fresh->MOUTHSIZE(), 10);
    EXPECT_EQ(fresh->ORBS(), 8);
    EXPECT_EQ(fresh->ORBSPEED(), 10);
    EXPECT_FALSE(fresh->BUSY());
}

TEST_F(DrAtomTest, AnEmptyBagDiffersFromAFreshOneInTwo)
{
    atom->readProperties(PropertyBag());
    EXPECT_EQ(atom->EYEDIRECTION(), EyesAhead);
    EXPECT_EQ(atom->MOUTHOPEN(), 0.2);
    EXPECT_EQ(atom->ORBS(), 8);
    EXPECT_THAT(told, IsEmpty()) << "reading tells nothing";
}

TEST_F(DrAtomTest, IsKeptUnderTheseKeysInThisOrder)
{
    atom->DEAD(true);
    atom->EYEBLINKING(5);
    atom->EYECOLOR(QBColor(9));
    atom->EYEDIRECTION(45);
    atom->EYEMOVE(Move::ID_DrAtomEyeMove_RollingLeft);
    atom->EYESIZE(6);
    atom->BUBBLEKEEP(true);
    atom->MOUTHOPEN(1.5);
    atom->MOUTHSIZE(7);
    atom->ORBS(3);
    atom->ORBSPEED(-4.5);
    atom->MOOD(static_cast<Mood>(7));
    const PropertyBag all = bag();
    EXPECT_THAT(all.keys(), ElementsAre(u"DEAD", u"EYEBLINKING", u"EYECOLOR", u"EYEDIRECTION", u"EYEMOVE",
                                        u"EYESIZE", u"BUBLE", u"BUBBLEKEEP", u"MOOD", u"MOUTHOPEN",
                                        u"MOUTHSIZE", u"ORBS", u"ORBSPPED"));
    const auto other = form->add<ctl_DrAtom>(u"dra_Other");
    other->readProperties(all);
    PropertyBag again;
    other->writeProperties(again);
    for (const String& key : all.keys()) {
        EXPECT_EQ(again.ReadProperty(key), all.ReadProperty(key)) << toUtf8(key);
    }
}

TEST_F(DrAtomTest, EachWriteIsToldUnderThePropertysOwnName)
{
    told.clear();
    atom->ORBSPEED(10);
    atom->BUBBLE(u"bub_Host");
    atom->EYESIZE(4);
    EXPECT_THAT(told, ElementsAre(u"ORBSPEED", u"BUBBLE", u"EYESIZE"));
}

TEST_F(DrAtomTest, ItsIdentifierIsMadeWhenItIsFirstRead)
{
    EXPECT_THAT(toUtf8(bubble->CTRLID()), StartsWith("bub_Host_ID-"));
    const String id = atom->CTRLID();
    EXPECT_THAT(toUtf8(id), StartsWith("dra_Host_ID-"));
    EXPECT_EQ(atom->CTRLID(), id);
    EXPECT_NE(form->add<ctl_DrAtom>(u"dra_Host2")->CTRLID(), id);
}

TEST_F(DrAtomTest, KeepsItselfAt100By100Pixels)
{
    EXPECT_EQ(atom->frame().pixelRectangle(), (PixelRectangle{10, 20, 100, 100}));
    atom->Width(250);
    EXPECT_EQ(atom->Width(), 100);
    form->ScaleMode(ScaleUnit::Twips);
    atom->Move(15, 30, 40, 50);
    EXPECT_EQ(atom->Width(), 1500);
    EXPECT_EQ(atom->Height(), 1500);
    EXPECT_EQ(atom->Left(), 15);
    EXPECT_TRUE(atom->keepsOwnSize());
}

TEST_F(DrAtomTest, IsPaintedInThisOrder)
{
    atom->ORBS(2);
    EXPECT_EQ(drawn(), "clear cut\n"
                       "image 100x100 from 0,0 100x100 to 0,0 100x100\n"
                       "image 11x11 from 0,0 11x11 to 84,40 11x11\n"
                       "image 11x11 from 0,0 11x11 to 5,40 11x11\n"
                       "image 11x11 from 0,0 11x11 to 84,39 11x11\n"
                       "arc 38,31 r4x4 fill #000000 line #000000\n"
                       "arc 70,31 r4x4 fill #000000 line #000000\n"
                       "arc 51,62 r10x3 3.142..6.283 pie fill #320000 line #320000\n"
                       "arc 51,62 r10x1 3.142..6.283 pie fill #FF0000 line #FF0000\n"
                       "arc 51,62 r10x3 3.142..6.283 open line #320000\n")
        << "a whole turn comes to the first electron again";
}

/// How many electrons a picture has.
int electrons(const std::string& picture)
{
    int count = 0;
    for (auto at = picture.find("image 11x11"); at != std::string::npos;
         at = picture.find("image 11x11", at + 1)) {
        ++count;
    }
    return count;
}

TEST_F(DrAtomTest, ElectronsAreCountedByAddingAnglesUpToAWholeTurn)
{
    atom->ORBS(0);
    EXPECT_EQ(electrons(drawn()), 0);
    atom->ORBS(-5);
    EXPECT_EQ(electrons(drawn()), 0);
    for (const int count : {1, 3, 8, 360}) {
        double sum = 0;
        int expected = 0;
        for (; sum <= 6.28318; sum += 6.28318 / count) {
            ++expected;
        }
        atom->ORBS(count);
        EXPECT_EQ(electrons(drawn()), expected) << count;
    }
    const std::string most = drawn();
    atom->ORBS(std::numeric_limits<std::int32_t>::max());
    EXPECT_EQ(electrons(drawn()), electrons(most));
}

TEST_F(DrAtomTest, TheMouthIsHeldToItsRangeByTheNextFrame)
{
    atom->MOUTHOPEN(20);
    EXPECT_EQ(atom->MOUTHOPEN(), 5);
    atom->MOUTHOPEN(-8);
    EXPECT_EQ(atom->MOUTHOPEN(), -3);
    atom->MOUTHSIZE(0);
    EXPECT_EQ(atom->MOUTHSIZE(), 1);
    atom->MOUTHSIZE(99);
    EXPECT_EQ(atom->MOUTHSIZE(), 15);
    atom->MOOD(Mood::ID_DrAtomMood_Surprised);
    EXPECT_EQ(atom->MOUTHOPEN(), 5) << "the mood's 20 is cut at its first frame";
}

TEST_F(DrAtomTest, ADirectionLosesOneTurnAFrame)
{
    atom->EYEDIRECTION(400);
    EXPECT_EQ(atom->EYEDIRECTION(), 40);
    atom->EYEDIRECTION(-30);
    EXPECT_EQ(atom->EYEDIRECTION(), 330);
    atom->EYEDIRECTION(1000);
    EXPECT_EQ(atom->EYEDIRECTION(), 640);
    atom->REDRAW();
    EXPECT_EQ(atom->EYEDIRECTION(), 280);
    atom->EYEDIRECTION(EyesAhead);
    EXPECT_EQ(atom->EYEDIRECTION(), EyesAhead);
}

TEST_F(DrAtomTest, SpeedsOfAnySizeDoNoHarm)
{
    form->Show();
    for (const double speed :
         {1e300, -1e300, std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
        atom->ORBSPEED(speed);
        ticks(3);
        EXPECT_EQ(electrons(drawn()), 8) << speed;
    }
}

TEST_F(DrAtomTest, TheOrbitTurnsAndWrapsInBothDirections)
{
    form->Show();
    atom->ORBS(1);
    ticks(25); // a quarter of a turn at speed 10
    EXPECT_THAT(drawn(), HasSubstr("to 45,79 11x11"));
    ticks(80); // past a whole one
    EXPECT_THAT(drawn(), HasSubstr("to 83,52 11x11"));
    atom->ORBSPEED(-10);
    ticks(30);
    EXPECT_THAT(drawn(), HasSubstr("to 44,0 11x11"));
}

TEST_F(DrAtomTest, ABlinkIsTwoFrames)
{
    form->Show();
    atom->EYESIZE(6);
    outside.random().numbers({0.0299, 0.5, 0.5, 0.5});
    EXPECT_EQ(eyesShown(), 6);
    ticks();
    EXPECT_EQ(eyesShown(), 0);
    EXPECT_EQ(atom->EYESIZE(), 0);
    ticks();
    EXPECT_EQ(eyesShown(), 0) << "the frame was painted with closed eyes";
    EXPECT_EQ(atom->EYESIZE(), 6) << "and they open behind it";
    ticks();
    EXPECT_EQ(eyesShown(), 6);
    EXPECT_THAT(told, ElementsAre(u"EYESIZE")) << "a blink tells nothing";
}

TEST_F(DrAtomTest, TheChanceOfABlinkIsInPercent)
{
    form->Show();
    outside.random().numbers({0.03});
    ticks(5);
    EXPECT_EQ(eyesShown(), 4);
    atom->EYEBLINKING(4);
    ticks();
    EXPECT_EQ(eyesShown(), 0);
}

TEST_F(DrAtomTest, ABlinkIsNeverKept)
{
    form->Show();
    atom->EYESIZE(6);
    outside.random().numbers({0.01});
    ticks();
    ASSERT_EQ(atom->EYESIZE(), 0);
    EXPECT_EQ(bag().ReadProperty(u"EYESIZE"), Variant(6));
    atom->EYESIZE(0);
    EXPECT_EQ(bag().ReadProperty(u"EYESIZE"), Variant(0)) << "closed for good";
}

TEST_F(DrAtomTest, ASizeSetDuringABlinkIsTheOneBehindIt)
{
    form->Show();
    outside.random().numbers({0.01, 0.5, 0.5});
    ticks();
    atom->EYESIZE(7);
    EXPECT_EQ(eyesShown(), 7);
    ticks();
    EXPECT_EQ(eyesShown(), 0);
    ticks();
    EXPECT_EQ(eyesShown(), 7);
}

TEST_F(DrAtomTest, AMoodSetsItsWholeLook)
{
    atom->EYEDIRECTION(90);
    atom->MOOD(Mood::ID_DrAtomMood_Angry);
    EXPECT_EQ(atom->ORBSPEED(), 30);
    EXPECT_EQ(atom->EYEBLINKING(), 10);
    EXPECT_EQ(atom->EYEMOVE(), Move::ID_DrAtomEyeMove_Smooth);
    EXPECT_EQ(atom->EYESIZE(), 7);
    EXPECT_EQ(atom->MOUTHOPEN(), -2);
    EXPECT_EQ(atom->MOUTHSIZE(), 12);
    EXPECT_EQ(atom->EYECOLOR(), RGB(255, 0, 0));
    EXPECT_EQ(atom->EYEDIRECTION(), EyesAhead);
    EXPECT_THAT(told, ElementsAre(u"EYEDIRECTION", u"MOOD")) << "the look itself is not told";
}

struct MoodRow {
    double orbSpeed;
    std::int32_t eyeBlinking;
    std::int32_t eyeMove;
    std::int32_t eyeSize;
    double mouthOpen;
    std::int32_t mouthSize;
    Colour eyeColour;
};

TEST_F(DrAtomTest, MoodsAreTheseSix)
{
    const std::vector<MoodRow> rows{
        {10, 3, 1, 4, 1, 8, RGB(0, 0, 0)},      {10, 1, 0, 4, 0, 15, RGB(0, 0, 0)},
        {30, 10, 5, 7, -2, 12, RGB(255, 0, 0)}, {-20, 30, 4, 6, 5, 8, RGB(0, 0, 0)},
        {10, 10, 5, 8, 5, 8, RGB(0, 0, 255)},   {30, 10, 2, 5, 0.2, 6, RGB(0, 0, 0)}};
    for (std::size_t at = 0; at < rows.size(); ++at) {
        atom->MOOD(static_cast<Mood>(at + 1));
        const MoodRow& row = rows[at];
        EXPECT_EQ(atom->ORBSPEED(), row.orbSpeed) << at;
        EXPECT_EQ(atom->EYEBLINKING(), row.eyeBlinking) << at;
        EXPECT_EQ(static_cast<std::int32_t>(atom->EYEMOVE()), row.eyeMove) << at;
        EXPECT_EQ(atom->EYESIZE(), row.eyeSize) << at;
        EXPECT_EQ(atom->MOUTHOPEN(), row.mouthOpen) << at << " (cut by the first frame)";
        EXPECT_EQ(atom->MOUTHSIZE(), row.mouthSize) << at;
        EXPECT_EQ(atom->EYECOLOR(), row.eyeColour) << at;
    }
}

TEST_F(DrAtomTest, ThePresentMoodDoesNothing)
{
    atom->MOUTHSIZE(3);
    atom->MOOD(Mood::ID_DrAtomMood_Happy);
    atom->MOUTHSIZE(4);
    told.clear();
    atom->MOOD(Mood::ID_DrAtomMood_Happy);
    EXPECT_THAT(told, IsEmpty());
    EXPECT_EQ(atom->MOUTHSIZE(), 4);
    atom->MOOD(Mood::ID_DrAtomMood_Custom);
    EXPECT_EQ(atom->MOUTHSIZE(), 3) << "the look from before the first Happy";
}

TEST_F(DrAtomTest, BehindTheMoodsTheDesignersLookComesBack)
{
    atom->EYECOLOR(QBColor(1));
    atom->EYEDIRECTION(120);
    atom->MOOD(Mood::ID_DrAtomMood_Upset);
    atom->MOOD(Mood::ID_DrAtomMood_Impatient);
    atom->DEAD(true);
    atom->BUBBLE(u"bub_Else");
    atom->BUBBLEKEEP(true);
    atom->MOOD(Mood::ID_DrAtomMood_Custom);
    EXPECT_EQ(atom->EYECOLOR(), QBColor(1));
    EXPECT_EQ(atom->EYEDIRECTION(), 120);
    EXPECT_EQ(atom->ORBSPEED(), 10);
    EXPECT_EQ(atom->EYESIZE(), 4);
    EXPECT_EQ(atom->MOOD(), Mood::ID_DrAtomMood_Custom);
    EXPECT_TRUE(atom->DEAD()) << "what the host has said meanwhile stays";
    EXPECT_EQ(atom->BUBBLE(), u"bub_Else");
    EXPECT_TRUE(atom->BUBBLEKEEP());
}

TEST_F(DrAtomTest, AMoodWithoutANameSetsNoLook)
{
    atom->MOUTHSIZE(3);
    atom->MOOD(static_cast<Mood>(7));
    EXPECT_EQ(atom->MOUTHSIZE(), 3);
    atom->MOOD(static_cast<Mood>(std::numeric_limits<std::int32_t>::min()));
    EXPECT_EQ(atom->MOUTHSIZE(), 3);
    EXPECT_EQ(atom->MOOD(), static_cast<Mood>(std::numeric_limits<std::int32_t>::min()));
}

TEST_F(DrAtomTest, EyesFollowThePointer)
{
    form->Show();
    outside.windows().place(atom->hWnd(), {300, 200, 400, 300});
    atom->EYEMOVE(Move::ID_DrAtomEyeMove_MouseTracking);
    outside.display().moveCursor(300 + 34, 200 + 90);
    ticks();
    EXPECT_THAT(drawn(), HasSubstr("arc 34,35 r4x4"));
    form->Zoom(2);
    outside.display().moveCursor(300 + 68, 200);
    ticks();
    EXPECT_THAT(drawn(), HasSubstr("arc 34,27 r4x4")) << "a zoomed eye stands elsewhere on the screen";
    outside.display().tellsCursor(false);
    ticks();
    EXPECT_THAT(drawn(), HasSubstr("arc 34,31 r4x4"));
}

TEST_F(DrAtomTest, PaintingStepsNothing)
{
    form->Show();
    atom->EYEMOVE(Move::ID_DrAtomEyeMove_Insane);
    const std::string before = drawn();
    outside.random().numbers({0.1, 0.2, 0.3, 0.4, 0.6});
    atom->surface().invalidate();
    EXPECT_EQ(drawn(), before);
    atom->surface().image(2);
    EXPECT_EQ(outside.random().next(), 0.1) << "and draws no random number";
}

TEST_F(DrAtomTest, RunsWhileItIsSeenAndAlive)
{
    const auto clears = [this] {
        std::string all = outside.visual().drawing(*atom);
        outside.visual().recording(atom->surface().image(1))->forget();
        return all.find("clear") != std::string::npos;
    };
    const auto runs = [&] {
        clears();
        ticks();
        return clears();
    };
    form->Show();
    EXPECT_TRUE(runs());
    atom->Visible(false);
    EXPECT_FALSE(runs());
    atom->REDRAW();
    EXPECT_TRUE(runs()) << "a frame of a hidden one starts the timer again";
    atom->DEINIT();
    EXPECT_FALSE(runs());
    atom->Visible(true);
    EXPECT_TRUE(runs());
    atom->DEAD(true);
    EXPECT_FALSE(runs());
    atom->Visible(false);
    atom->Visible(true);
    EXPECT_FALSE(runs());
    atom->DEAD(false);
    EXPECT_TRUE(runs());
    form->remove(*atom);
    EXPECT_FALSE(runs());
}

TEST_F(DrAtomTest, ADeadOneStillPaintsItsFace)
{
    form->Show();
    ticks(25);
    atom->DEAD(true);
    atom->ORBS(1);
    atom->EYESIZE(8);
    EXPECT_EQ(eyesShown(), 8);
    atom->REDRAW();
    EXPECT_THAT(drawn(), HasSubstr("to 45,79 11x11")) << "at its last phase";
}

TEST_F(DrAtomTest, RestsWhereMotionIsNotWanted)
{
    form->Show();
    outside.random().numbers({0.01});
    atom->EYEMOVE(Move::ID_DrAtomEyeMove_RollingRight);
    const auto rests = [this] {
        outside.advance(0.6); // one at rest looks twice a second whether it may move again
        const std::string before = drawn();
        ticks(5);
        return drawn() == before && atom->EYESIZE() == 4;
    };
    EXPECT_FALSE(rests());
    QVAPP()->CONFIG()->EFFECTS(false);
    EXPECT_TRUE(rests());
    EXPECT_THAT(drawn(), HasSubstr("arc 38,31 r4x4")) << "rolling eyes look where EYEDIRECTION says";
    QVAPP()->CONFIG()->EFFECTS(true);
    EXPECT_FALSE(rests());
    outside.display().reducesMotion(true);
    EXPECT_TRUE(rests());
    outside.display().reducesMotion(false);
    EXPECT_FALSE(rests());
    atom->moves(false);
    EXPECT_TRUE(rests());
}

TEST_F(DrAtomTest, PausesWhileAnotherWindowIsActive)
{
    form->Show();
    atom->ORBS(1);
    const std::string before = drawn();
    form->inputDeactivate();
    ticks(10);
    EXPECT_EQ(drawn(), before);
    form->inputActivate();
    ticks();
    EXPECT_NE(drawn(), before);
}

TEST_F(DrAtomTest, TellsPressesAndClicks)
{
    std::vector<std::string> log;
    for (const auto& [event, word] : {std::pair{&atom->MouseDown, "down"},
                                      {&atom->MouseUp, "up"},
                                      {&atom->CLICK, "click"},
                                      {&atom->DBLCLICK, "double"}}) {
        connections += event->connect([&log, word = std::string(word)] { log.push_back(word); });
    }
    form->Show();
    drawn();
    headless::click(*atom);
    EXPECT_THAT(log, ElementsAre("down", "up", "click"));
    EXPECT_TRUE(atom->BUBBLECANCEL);
    log.clear();
    headless::click(*atom, 2, 2);
    EXPECT_THAT(log, IsEmpty()) << "a press on a hole is for what lies below";
    headless::doubleClick(*atom);
    EXPECT_THAT(log, Not(IsEmpty()));
    EXPECT_EQ(log.back(), "double");
}

TEST_F(DrAtomTest, IsReachedByTheNamesOfItsMembers)
{
    setMember(*atom, u"mood", 2);
    EXPECT_EQ(atom->MOOD(), Mood::ID_DrAtomMood_Happy);
    EXPECT_EQ(getMember(*atom, u"OrbSpeed"), Variant(10.0));
    EXPECT_EQ(getMember(*atom, u"CTRLID"), Variant(atom->CTRLID()));
    callMember(*atom, u"REDRAW");
    callMember(*atom, u"DEINIT");
    for (const Member& member : atom->members()) {
        if (member.read && member.write) {
            const Variant value = member.read(*atom);
            member.write(*atom, value);
            EXPECT_EQ(member.read(*atom), value) << toUtf8(member.name);
        }
    }
}

} // namespace

} // namespace phial
