#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/cls_AppURL.h"
#include "app/cls_AppUser.h"
#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "core/CoreDataFile.h"
#include "core/CoreParameters.h"
#include "core/CoreValuePacker.h"
#include "core/RuntimeError.h"
#include "headless/Hand.h"
#include "results/Mark.h"
#include "results/cls_AppRate.h"
#include "results/cls_DataScores.h"
#include "server/WireText.h"
#include "server/cls_AppServer.h"
#include "support/AppSession.h"
#include "support/ChildProgram.h"
#include "support/Raises.h"
#include "visual/Form.h"
#include "visual/Label.h"
#include "visual/ctl_CmdBar.h"

#include <limits>

namespace phial
{

namespace
{

using headless::Box;

/// A pupil who has finished an exercise on a computer without a master, until `logOn`.
class AppRateTest : public test::AppSession
{
protected:
    AppRateTest()
    {
        QVAPP()->URL()->DATAHIGHSCORES(path(u""));
        QVAPP()->URL()->ROOT(path(u"tree\\"));
        QVAPP()->USER()->SCREENNAME(u"Mia");
        QVAPP()->CONFIG()->PARAMETERS()->Set(u"NONETWORK", true);
    }

    static cls_AppRate& rate() { return *QVAPP()->RATE(); }

    /// Starts a master that takes log-ons and answers everything else with that text, and logs on to it.
    void logOn(const String& answer)
    {
        QVAPP()->CONFIG()->PARAMETERS(std::make_shared<CoreParameters>());
        answers(answer);
        QVAPP()->SERVER()->INIT();
        ASSERT_TRUE(QVAPP()->SERVER()->CONNECT());
    }
    void answers(const String& text)
    {
        outside.network().answerWith([text](const String& message) {
            return message.starts_with(u"SERVER::LOGON") ? String(u"008:LOGON:OK") : u"008:" + text;
        });
    }
    String lastMessage() { return outside.network().requests().back().message; }

    void fill(std::initializer_list<double> points, StringView module = u"HIGHSCORE")
    {
        cls_DataScores scores;
        for (const double entry : points) {
            scores.ADD(entry, 100, u"", nullptr, u"", u"", u"Tom");
        }
        ASSERT_TRUE(scores.SAVE(path(String(module) + u".qv-hsr")));
    }
    cls_DataScores& stored(StringView file)
    {
        list_ = std::make_unique<cls_DataScores>();
        EXPECT_TRUE(list_->LOAD(path(file)));
        return *list_;
    }

    /// The one box of a submission.
    void expectMessage(const String& title, const String& text)
    {
        ASSERT_FALSE(outside.dialogs().shown().empty());
        EXPECT_EQ(outside.dialogs().shown().back(), (headless::ShownBox{Box::Info, text, title, u""}));
    }
    std::int32_t submit(double points, std::int32_t limit = 10)
    {
        outside.dialogs().expect(Box::Info);
        return rate().SUBMIT(points, 100, u"", nullptr, u"HIGHSCORE", true, limit);
    }

private:
    std::unique_ptr<cls_DataScores> list_;
};

std::pair<String, std::int32_t> mark(double points, double pointsMax)
{
    String text;
    std::int32_t value = -1;
    cls_AppRate().MARK(points, pointsMax, u"", text, value);
    return {text, value};
}

TEST_F(AppRateTest, MarkOfNothingOutOfNothingIsTheWorst)
{
    EXPECT_EQ(mark(0, 0), std::pair(String(u"Ungenügend"), 0));
}

TEST_F(AppRateTest, NoReachablePointsCountAsAHundred)
{
    EXPECT_EQ(mark(50, 0), std::pair(String(u"Ausreichend plus"), 6));
}

TEST_F(AppRateTest, MorePointsThanReachableAreTheBestMark)
{
    EXPECT_EQ(rate().MARKPOINTS(120, 100, u""), 15);
}

TEST_F(AppRateTest, NegativeReachablePointsGiveTheWorstMark)
{
    EXPECT_EQ(rate().MARKPOINTS(5, -10, u""), 0);
    EXPECT_EQ(rate().MARKPOINTS(-20, -10, u""), 0);
}

TEST_F(AppRateTest, AnUpperLimitBelongsToTheBetterMark)
{
    EXPECT_EQ(rate().MARKPOINTS(9.5, 10, u""), 15);
    EXPECT_EQ(rate().MARKPOINTS(9.49, 10, u""), 14);
    EXPECT_EQ(rate().MARKPOINTS(1, 10, u""), 1);
    EXPECT_EQ(rate().MARKPOINTS(0.99, 10, u""), 0);
}

TEST_F(AppRateTest, EveryMarkHasItsWordsAndItsSchoolForm)
{
    constexpr StringView Words[] = {
        u"Ungenügend",        u"Mangelhaft minus",  u"Mangelhaft",       u"Mangelhaft plus",
        u"Ausreichend minus", u"Ausreichend",       u"Ausreichend plus", u"Befriedigend minus",
        u"Befriedigend",      u"Befriedigend plus", u"Gut minus",        u"Gut",
        u"Gut plus",          u"Sehr gut minus",    u"Sehr gut",         u"Sehr gut plus"};
    constexpr StringView School[] = {u"6", u"5-", u"5",  u"5+", u"4-", u"4",  u"4+", u"3-",
                                     u"3", u"3+", u"2-", u"2",  u"2+", u"1-", u"1",  u"1+"};
    constexpr double Lowest[] = {0,    0.10, 0.20, 0.30, 0.40, 0.45, 0.50, 0.55,
                                 0.60, 0.65, 0.70, 0.75, 0.80, 0.85, 0.90, 0.95};
    for (std::int32_t value = 0; value < 16; ++value) {
        const double ratio = Lowest[value];
        EXPECT_EQ(rate().MARKPOINTS(ratio, 1, u""), value);
        EXPECT_EQ(rate().MARKTEXT(ratio, 1, u"any"), Words[value]);
        EXPECT_EQ(rate().MARKSCHOOL(ratio, 1, u"any"), School[value]);
    }
}

TEST_F(AppRateTest, PointsLoseTheShareOfErrorsAndRoundHalvesToEven)
{
    EXPECT_EQ(rate().POINTS(10, 4, 1), 8); // 7.5
    EXPECT_EQ(rate().POINTS(10, 4, 3), 2); // 2.5
    EXPECT_EQ(rate().POINTS(10, 4, 9), 0);
    EXPECT_EQ(rate().POINTS(10, 4, -3), 10);
}

TEST_F(AppRateTest, PointsWithoutAPossibleErrorAreADivisionByZero)
{
    EXPECT_RAISES(rate().POINTS(10, 0, 0), DivisionByZero);
}

TEST_F(AppRateTest, TheModuleOfResultsRecordsAndSaysNothing)
{
    EXPECT_EQ(rate().SUBMIT(7, 10, u"Salze", nullptr, u"RESULTS"), 0);
    EXPECT_EQ(rate().SUBMIT(8, 10, u"Salze", nullptr, u"RESULT"), 0);
    EXPECT_EQ(stored(u"results.qv-rsl").COUNT(), 2);
    EXPECT_EQ(stored(u"results.qv-rsl").ITEM(1)->UEBM(), u"Salze");
}

TEST_F(AppRateTest, AModuleThatIsWrittenOtherwiseIsAHighscore)
{
    EXPECT_EQ(rate().SUBMIT(7, 10, u"", nullptr, u"results", false), 1);
    EXPECT_EQ(stored(u"results.qv-hsr").COUNT(), 1);
}

TEST_F(AppRateTest, ANewResultsFileKeepsItsTenBest)
{
    for (double points = 1; points <= 12; ++points) {
        rate().RESULT(points, 100, u"");
    }
    EXPECT_EQ(stored(u"results.qv-rsl").COUNT(), 10);
    EXPECT_EQ(stored(u"results.qv-rsl").ITEM(1)->POINTS(), 12);
    EXPECT_EQ(stored(u"results.qv-rsl").ITEM(10)->POINTS(), 3);
}

TEST_F(AppRateTest, AResultsFileKeepsItsOwnMode)
{
    cls_DataScores open;
    open.MODE(enm_ScoreListMode::ID_ScoreList_ResultList);
    ASSERT_TRUE(open.SAVE(path(u"results.qv-rsl")));
    for (int round = 0; round < 12; ++round) {
        rate().RESULT(5, 100, u"");
    }
    EXPECT_EQ(stored(u"results.qv-rsl").COUNT(), 12);
}

TEST_F(AppRateTest, AdditionalValuesAreStoredWithTheScore)
{
    CoreParameters more;
    more.Set(u"Zeit", 90);
    rate().SUBMIT(7, 10, u"Salze", &more, u"HIGHSCORE", false);
    EXPECT_EQ(stored(u"HIGHSCORE.qv-hsr").ITEM(1)->ADDITIONAL()->Get(u"Zeit"), Variant(90));
}

TEST_F(AppRateTest, TheFirstEntryOfAnEmptyListIsAFeat)
{
    EXPECT_EQ(submit(7), 1);
    expectMessage(u"Kunststück!", u"Herzlichen Glückwunsch! \rDu hast es auf den 1. Platz der Bestenliste "
                                  u"geschafft! \rEin Kunststück, wo die Liste doch leer ist...");
}

TEST_F(AppRateTest, TheFirstEntryOfAListOfOneStandsAlthoughItsRankIsMinusOne)
{
    EXPECT_EQ(submit(7, 1), 1);
    expectMessage(u"Kunststück!", u"Herzlichen Glückwunsch! \rDu hast es auf den 1. Platz der Bestenliste "
                                  u"geschafft! \rEin Kunststück, wo die Liste doch leer ist...");
}

TEST_F(AppRateTest, TheLastOfTheListIsTold)
{
    fill({9, 8});
    EXPECT_EQ(submit(7), 3);
    expectMessage(u"Naja...", u"Du hast es auf den 3. Platz der Bestenliste geschafft. \r"
                              u"Leider bist Du damit allerdings LETZTER!");
}

TEST_F(AppRateTest, AnyOtherPlaceIsCongratulated)
{
    fill({9, 5});
    EXPECT_EQ(submit(7), 2);
    expectMessage(u"Herzlichen Glückwunsch!",
                  u"Herzlichen Glückwunsch! \rDu hast es auf den 2. Platz der Bestenliste geschafft!");
}

TEST_F(AppRateTest, WhoeverBeatsNobodyOfAFullListIsComforted)
{
    fill({9, 8, 8});
    EXPECT_EQ(submit(8, 3), -1);
    expectMessage(u"Info", u"Leider war das nichts! Für die Bestenliste hat DAS nicht gereicht!");
    EXPECT_EQ(stored(u"HIGHSCORE.qv-hsr").COUNT(), 3);
}

TEST_F(AppRateTest, ARankBeyondTheLimitSaysNothing)
{
    cls_DataScores live;
    live.LIVE(true);
    for (const StringView login : {u"zoe", u"yan", u"xia"}) {
        live.ADD(5, 10, u"", nullptr, login, u"", login);
    }
    ASSERT_TRUE(live.SAVE(path(u"HIGHSCORE.qv-hsr")));
    EXPECT_EQ(rate().SUBMIT(9, 10, u"", nullptr, u"HIGHSCORE", true, 3), 4);
}

TEST_F(AppRateTest, SubmittingEndsOnceAndSetsTheLimitOfTheStoredList)
{
    cls_DataScores once;
    once.ONCE(true);
    once.MAXIMUM(3);
    ASSERT_TRUE(once.SAVE(path(u"HIGHSCORE.qv-hsr")));
    rate().SUBMIT(7, 10, u"", nullptr, u"HIGHSCORE", false, 5);
    EXPECT_FALSE(stored(u"HIGHSCORE.qv-hsr").ONCE());
    EXPECT_EQ(stored(u"HIGHSCORE.qv-hsr").MAXIMUM(), 5);
}

TEST_F(AppRateTest, AListThatLoadsOnlyHalfCountsAsEmpty)
{
    CoreDataFile half;
    half.Open(path(u"HIGHSCORE.qv-hsr"), DataFileMode::Write);
    half.Write(u"2.0", u"Molmasse", 10, false, false, 1, 3, u"2.5", u"f1", 1, u"Anna");
    half.Close();
    EXPECT_EQ(rate().HIGHSCORE()->COUNT(), 0);
    EXPECT_EQ(rate().SUBMIT(7, 10, u"", nullptr, u"HIGHSCORE", false), 1);
    EXPECT_EQ(stored(u"HIGHSCORE.qv-hsr").COUNT(), 1);
    EXPECT_TRUE(folder.has("HIGHSCORE.qv-hsr.kept"));
}

TEST_F(AppRateTest, AFailedSaveIsNotReported)
{
    outside.files().failChanges();
    EXPECT_EQ(rate().SUBMIT(7, 10, u"", nullptr, u"HIGHSCORE", false), 1);
}

TEST_F(AppRateTest, HighscoreOfThisComputerIsEmptyWithoutAFile)
{
    EXPECT_EQ(rate().HIGHSCORE()->COUNT(), 0);
    fill({5, 6}, u"SALTS");
    EXPECT_EQ(rate().HIGHSCORE(u"SALTS")->COUNT(), 2);
}

/// The list of this computer in its window, which a test plays.
class LocalListTest : public AppRateTest
{
protected:
    void show(std::function<void(Form&)> pupil)
    {
        outside.visual().onModal(u"frm_DialogHighscore", std::move(pupil));
        rate().HIGHSCORELIST(u"Bestenliste", 1);
    }
    static void click(Form& form, StringView command)
    {
        headless::clickButton(*form.control<ctl_CmdBar>(u"bar_Buttons"), command);
    }
    std::int32_t storedCount() { return stored(u"HIGHSCORE.qv-hsr").COUNT(); }
};

TEST_F(LocalListTest, AListThatIsOnlyLookedAtIsSavedAgain)
{
    show([](Form& form) { click(form, u"DIALOG.OK();"); });
    EXPECT_EQ(storedCount(), 0);
    fill({5, 6});
    show([](Form& form) { click(form, u"DIALOG.OK();"); });
    EXPECT_EQ(storedCount(), 2);
}

TEST_F(LocalListTest, AResetTakesEffectInTheFile)
{
    fill({5, 6});
    outside.dialogs().expectYesNo(DialogAnswer::Yes);
    show([](Form& form) { click(form, u"DIALOG.RESET();"); });
    EXPECT_EQ(storedCount(), 0);
}

TEST_F(LocalListTest, WhatAnotherProgramEntersWhileTheWindowIsOpenStays)
{
    fill({5, 6});
    show([this](Form& form) {
        fill({5, 6, 7});
        click(form, u"DIALOG.OK();");
    });
    EXPECT_EQ(storedCount(), 3);
}

TEST_F(LocalListTest, NoLockIsHeldWhileTheWindowIsOpen)
{
    fill({5});
    show([this](Form& form) {
        EXPECT_FALSE(folder.has("HIGHSCORE.qv-hsr.lock"));
        click(form, u"DIALOG.OK();");
    });
}

TEST_F(LocalListTest, AFailedSaveOfTheListIsNotReported)
{
    fill({5});
    show([this](Form& form) {
        outside.files().failChanges();
        click(form, u"DIALOG.OK();");
    });
    outside.files().repair();
    EXPECT_EQ(storedCount(), 1);
}

TEST_F(LocalListTest, AMasterThatGoesWhileItIsAskedLeavesTheListOfThisComputer)
{
    fill({5, 6, 7});
    logOn(u"");
    outside.network().answerWith([](const String&) -> std::optional<String> {
        QVAPP()->CONFIG()->PARAMETERS()->Set(u"NONETWORK", true);
        QVAPP()->SERVER()->CONNECT();
        return std::nullopt;
    });
    show([](Form& form) {
        EXPECT_EQ(form.control<Label>(u"lab_Points", 0)->Caption(), u"7");
        click(form, u"DIALOG.OK();");
    });
    EXPECT_EQ(storedCount(), 3);
}

TEST_F(LocalListTest, AListThatCannotBeReadIsNotReplacedByLooking)
{
    fill({5, 6});
    outside.files().fail(headless::FileStep::Read);
    show([](Form& form) { click(form, u"DIALOG.OK();"); });
    outside.files().repair();
    EXPECT_EQ(storedCount(), 2);
    EXPECT_FALSE(folder.has("HIGHSCORE.qv-hsr.kept"));
}

TEST_F(LocalListTest, AListOfALaterVersionIsNotReplacedByLooking)
{
    CoreDataFile later;
    later.Open(path(u"HIGHSCORE.qv-hsr"), DataFileMode::Write);
    later.Write(u"2.1", u"of a later program");
    later.Close();
    const std::string bytes = folder.read("HIGHSCORE.qv-hsr");
    show([](Form& form) { click(form, u"DIALOG.OK();"); });
    EXPECT_EQ(folder.read("HIGHSCORE.qv-hsr"), bytes);
    EXPECT_FALSE(folder.has("HIGHSCORE.qv-hsr.kept"));
}

TEST_F(LocalListTest, WithoutTheLockLookingChangesNothingAndAResetCounts)
{
    fill({5, 6});
    outside.files().fail(headless::FileStep::Lock);
    const auto before = std::filesystem::last_write_time(folder.native() / "HIGHSCORE.qv-hsr");
    show([](Form& form) { click(form, u"DIALOG.OK();"); });
    EXPECT_EQ(std::filesystem::last_write_time(folder.native() / "HIGHSCORE.qv-hsr"), before);
    outside.dialogs().expectYesNo(DialogAnswer::Yes);
    show([](Form& form) { click(form, u"DIALOG.RESET();"); });
    EXPECT_EQ(storedCount(), 0);
}

TEST_F(LocalListTest, AListOfTheMasterIsNotSavedHere)
{
    cls_DataScores scores;
    scores.ADD(5, 10, u"");
    logOn(scores.DATA()->Pack());
    show([](Form& form) { click(form, u"DIALOG.OK();"); });
    EXPECT_FALSE(folder.has("HIGHSCORE.qv-hsr"));
}

TEST_F(AppRateTest, TheMasterGetsResultAndHighscoreOfASubmission)
{
    logOn(u"3");
    QVAPP()->USER()->SCREENNAME(u"Mia");
    outside.dialogs().expect(Box::Info);
    CoreParameters more;
    more.Set(u"Zeit", 90);
    EXPECT_EQ(rate().SUBMIT(7.5, 10, u"Salze", &more), 3);

    const String package = CoreValuePacker::Pack(
        {7.5, 10.0, u"Salze", more.Pack(), QVAPP()->USER()->SCREENNAME(), u"DESK-1", u"pupil"});
    const auto& requests = outside.network().requests();
    ASSERT_GE(requests.size(), 3U);
    EXPECT_EQ(requests[requests.size() - 2].message, u"RESULTS::SUBMIT::" + package);
    EXPECT_EQ(requests.back().message, u"HIGHSCORE::SUBMIT::" + package);
    expectMessage(u"Herzlichen Glückwunsch!", u"Du hast es auf den 3. Platz der Bestenliste geschafft!");
}

TEST_F(AppRateTest, WithoutAdditionalValuesTheMasterGetsAnEmptyList)
{
    logOn(u"OK");
    rate().RESULT(1, 2, u"Salze");
    EXPECT_EQ(lastMessage(), u"RESULTS::SUBMIT::" +
                                 CoreValuePacker::Pack({1.0, 2.0, u"Salze", CoreParameters().Pack(),
                                                        QVAPP()->USER()->SCREENNAME(), u"DESK-1", u"pupil"}));
}

TEST_F(AppRateTest, AMastersOkAloneOrBehindAColonIsNotShown)
{
    logOn(u"OK");
    EXPECT_EQ(rate().SUBMIT(7, 10), 0);
    answers(u"DONE:OK");
    EXPECT_EQ(rate().SUBMIT(7, 10), 0);
}

TEST_F(AppRateTest, AMastersRefusalIsComforted)
{
    logOn(u"-1");
    EXPECT_EQ(submit(7), -1);
    expectMessage(u"Info", u"Leider war das nichts! \rFür die Bestenliste hat DAS nicht gereicht!");
    answers(u"");
    EXPECT_EQ(submit(7), 0);
    expectMessage(u"Info", u"Leider war das nichts! \rDu warst schon besser!");
}

TEST_F(AppRateTest, AMasterThatRefusesLeavesTheResultHere)
{
    logOn(u"ERROR");
    EXPECT_EQ(submit(7), 1);
    EXPECT_EQ(outside.dialogs().shown().back().title, u"Kunststück!");
    EXPECT_EQ(stored(u"HIGHSCORE.qv-hsr").COUNT(), 1);
    EXPECT_EQ(stored(u"results.qv-rsl").COUNT(), 1);
    EXPECT_TRUE(QVAPP()->SERVER()->ONLINE());
}

TEST_F(AppRateTest, AMasterThatIsSilentLeavesTheResultHere)
{
    logOn(u"3");
    fill({9, 8});
    outside.network().answerWith({});
    EXPECT_EQ(submit(7), 3);
    EXPECT_EQ(outside.dialogs().shown().back().title, u"Naja...");
    EXPECT_EQ(stored(u"HIGHSCORE.qv-hsr").COUNT(), 3);
    EXPECT_EQ(stored(u"results.qv-rsl").COUNT(), 1);
    EXPECT_LT(outside.clock().seconds(), 65);
}

TEST_F(AppRateTest, WhatTheMasterHasTakenInDoesNotStandHere)
{
    logOn(u"3");
    EXPECT_EQ(submit(7), 3);
    EXPECT_FALSE(folder.has("HIGHSCORE.qv-hsr"));
    EXPECT_FALSE(folder.has("results.qv-rsl"));
}

TEST_F(AppRateTest, AResultThatIsTooLongForTheMasterStaysHereWithAWord)
{
    logOn(u"3");
    LNG()->CURRENT(ID_Language_German);
    CoreParameters more;
    more.Set(u"Weg", String(MaxResultUnits, u'x'));
    const std::size_t asked = outside.network().requests().size();
    outside.dialogs().expect(
        Box::Info, u"Dein Ergebnis ist zu lang für den Klassenraum. Es bleibt auf diesem Computer.");
    outside.dialogs().expect(Box::Info);
    EXPECT_EQ(rate().SUBMIT(7, 10, u"Salze", &more), 1);
    EXPECT_EQ(outside.network().requests().size(), asked);
    EXPECT_EQ(stored(u"HIGHSCORE.qv-hsr").ITEM(1)->ADDITIONAL()->Get(u"Weg").text().size(), MaxResultUnits);
    EXPECT_EQ(stored(u"results.qv-rsl").COUNT(), 1);
}

TEST_F(AppRateTest, AResultGoesToTheMasterUpToTheBound)
{
    logOn(u"3");
    CoreParameters more;
    more.Set(u"Weg", u"");
    const String empty = CoreValuePacker::Pack(
        {7.0, 10.0, u"Salze", more.Pack(), QVAPP()->USER()->SCREENNAME(), u"DESK-1", u"pupil"});
    constexpr std::size_t LengthsInDigits = 4 + 4; // both lengths grow from one digit to five
    const std::size_t room = MaxResultUnits - empty.size() - LengthsInDigits + 1;
    more.Set(u"Weg", String(room, u'x'));
    EXPECT_EQ(rate().handIn(7, 10, u"Salze", &more, u"HIGHSCORE", false).listed, ResultPlace::Master);
    EXPECT_EQ(outside.network().requests().back().message.size(),
              MaxResultUnits + StringView(u"HIGHSCORE::SUBMIT::").size());
    more.Set(u"Weg", String(room + 1, u'x'));
    EXPECT_EQ(rate().handIn(7, 10, u"Salze", &more, u"HIGHSCORE", false).listed, ResultPlace::ThisComputer);
}

TEST_F(AppRateTest, PointsThatAreNoNumberAreRefusedAndNotStored)
{
    constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();
    constexpr double Infinite = std::numeric_limits<double>::infinity();
    for (const double points : {NotANumber, Infinite, -Infinite}) {
        EXPECT_RAISES(rate().SUBMIT(points, 10), InvalidArgument);
        EXPECT_RAISES(rate().SUBMIT(7, points), InvalidArgument);
        EXPECT_RAISES(rate().RESULT(points, 10, u""), InvalidArgument);
        EXPECT_RAISES(cls_DataScores().ADD(points, 10, u""), InvalidArgument);
        EXPECT_EQ(rate().MARKPOINTS(points, 10, u""), 0);
        EXPECT_EQ(rate().MARKPOINTS(7, points, u""), 0);
    }
    EXPECT_TRUE(folder.names().empty() || !folder.has("HIGHSCORE.qv-hsr"));
    logOn(u"3");
    const std::size_t asked = outside.network().requests().size();
    EXPECT_RAISES(rate().handIn(NotANumber, 10), InvalidArgument);
    EXPECT_EQ(outside.network().requests().size(), asked);
}

TEST_F(AppRateTest, HandingInLeavesTheClientOfflineWhereTheMasterHasGone)
{
    logOn(u"3");
    outside.network().answerWith({});
    const HandedIn result = rate().handIn(7, 10, u"", nullptr, u"HIGHSCORE", false);
    EXPECT_FALSE(QVAPP()->SERVER()->ONLINE());
    EXPECT_EQ(result.recorded, ResultPlace::ThisComputer);
    EXPECT_EQ(result.listed, ResultPlace::ThisComputer);
    EXPECT_EQ(result.rank, 1);
    EXPECT_EQ(rate().HIGHSCORE()->COUNT(), 1);
    EXPECT_LT(outside.clock().seconds(), 70);
}

TEST_F(AppRateTest, HandingInFindsOutWhenTheMasterGoesInTheMiddleOfIt)
{
    logOn(u"3");
    outside.network().answerWith([this](const String& message) -> std::optional<String> {
        if (message.starts_with(u"RESULTS")) {
            outside.network().answerWith({});
        }
        return u"008:OK";
    });
    const HandedIn result = rate().handIn(7, 10, u"", nullptr, u"HIGHSCORE", false);
    EXPECT_EQ(result.recorded, ResultPlace::Master);
    EXPECT_EQ(result.listed, ResultPlace::ThisComputer);
    EXPECT_TRUE(result.isKept());
    EXPECT_FALSE(QVAPP()->SERVER()->ONLINE());
    EXPECT_LT(outside.clock().seconds(), 70);
}

TEST_F(AppRateTest, HandingInToAMasterThatIsThereIsSubmitting)
{
    logOn(u"3");
    const HandedIn result = rate().handIn(7, 10, u"Salze", nullptr, u"HIGHSCORE", false);
    EXPECT_EQ(result.rank, 3);
    EXPECT_EQ(result.recorded, ResultPlace::Master);
    EXPECT_EQ(result.listed, ResultPlace::Master);
    EXPECT_FALSE(result.wasUnanswered);
    EXPECT_EQ(rate().handIn(7, 10, u"Salze", nullptr, u"RESULTS").listed, ResultPlace::Master);
}

TEST_F(AppRateTest, HandingInSaysWhatCouldNotBeKept)
{
    outside.files().failChanges();
    HandedIn result = rate().handIn(7, 10, u"", nullptr, u"HIGHSCORE", false);
    EXPECT_EQ(result.recorded, ResultPlace::Nowhere);
    EXPECT_EQ(result.listed, ResultPlace::Nowhere);
    EXPECT_FALSE(result.isKept());
    outside.files().repair();
    folder.write("results.qv-rsl/in the way", "x");
    result = rate().handIn(7, 10, u"", nullptr, u"HIGHSCORE", false);
    EXPECT_EQ(result.listed, ResultPlace::ThisComputer);
    EXPECT_FALSE(result.isKept());
}

TEST_F(AppRateTest, AMastersRankIsTheNumberAtItsBeginning)
{
    logOn(u"2,5");
    EXPECT_EQ(submit(7), 2);
    answers(u"12. Platz");
    EXPECT_EQ(submit(7), 12);
    answers(u"many");
    EXPECT_EQ(submit(7), 0);
}

TEST_F(AppRateTest, TheMastersHighscoreComesAsOneText)
{
    cls_DataScores scores;
    scores.ADD(5, 10, u"");
    logOn(scores.DATA()->Pack());
    EXPECT_EQ(rate().HIGHSCORE(u"SALTS")->ITEM(1)->POINTS(), 5);
    EXPECT_EQ(lastMessage(), u"SALTS::GET::");
}

TEST_F(AppRateTest, AnEmptyAnswerLeavesTheHighscoreEmpty)
{
    logOn(u"");
    EXPECT_EQ(rate().HIGHSCORE()->COUNT(), 0);
}

TEST_F(AppRateTest, AMastersWordForAnErrorLeavesTheHighscoreEmpty)
{
    logOn(u"ERROR");
    EXPECT_EQ(rate().HIGHSCORE()->COUNT(), 0);
}

TEST_F(AppRateTest, ProgramsThatSubmitAtTheSameTimeLoseNoEntry)
{
    constexpr int Rounds = 15;
    std::vector<std::unique_ptr<test::ChildProgram>> programs;
    for (const char* name : {"Ada", "Ben", "Cem"}) {
        programs.push_back(std::make_unique<test::ChildProgram>(
            PHIAL_SUBMITTER, std::vector<std::string>{toUtf8(path(u"")), name, std::to_string(Rounds)}));
    }
    for (const auto& program : programs) {
        EXPECT_EQ(program->finish(), 0);
    }
    EXPECT_EQ(stored(u"HIGHSCORE.qv-hsr").COUNT(), 3 * Rounds);
}

/// A certificate form with one field a text, the first being `Title`.
class CertificateTest : public AppRateTest
{
protected:
    void form(headless::FakeForms::NamedTexts fields, StringView file = u"Urkunde.zr-frm")
    {
        outside.forms().add(path(u"tree\\Resources\\Forms\\" + String(file)), std::move(fields));
    }
    std::vector<String> printedTexts() { return printed().back().texts; }
    const std::vector<headless::PrintedForm>& printed() { return outside.forms().printed(); }
};

TEST_F(CertificateTest, EveryPlaceholderIsFilledIn)
{
    QVAPP()->CONFIG()->NAME(u"Molmasse");
    form({{u"a", u"{NAME} ({USER}, {COMPUTER})"},
          {u"b", u"{DATUM}, {ZEIT}"},
          {u"c", u"{TITLE} {APP} {FILE}"},
          {u"d", u"{TEXT}"}});
    EXPECT_TRUE(rate().PRINTCERTIFICATE(u"Bravo"));
    EXPECT_EQ(printedTexts(), (std::vector<String>{u"Mia (pupil, DESK-1)", u"02. März 2026, 08:00",
                                                   u"Molmasse-Diplom Molmasse Urkunde.zr-frm", u"Bravo"}));
    EXPECT_EQ(printed().back().copies, 1);
}

TEST_F(CertificateTest, LineEndsOfTheTextAreDoubled)
{
    form({{u"a", u"{TEXT}"}});
    rate().PRINTCERTIFICATE(u"one\r\ntwo");
    EXPECT_EQ(printedTexts().front(), u"one\r\n\r\ntwo");
}

TEST_F(CertificateTest, TheCallerReplacesWhatHeWantsButTheText)
{
    form({{u"a", u"{NAME}/{TEXT}/{KLASSE}"}}, u"Andere.zr-frm");
    CoreParameters more;
    more.Set(u"NAME", u"Tom");
    more.Set(u"TEXT", u"mine");
    more.Set(u"KLASSE", u"9b");
    more.Set(u"FILE", u"Andere.zr-frm");
    EXPECT_TRUE(rate().PRINTCERTIFICATE(u"given", &more));
    EXPECT_EQ(printedTexts().front(), u"Tom/given/9b");
}

TEST_F(CertificateTest, NoSpellingOfItsNameReplacesTheText)
{
    form({{u"a", u"{TEXT}{B}"}});
    CoreParameters more;
    more.Set(u"text", u"of the caller");
    more.Set(u"Text", u"of the caller");
    more.Set(u"B", u"!");
    EXPECT_TRUE(rate().PRINTCERTIFICATE(u"given", &more));
    EXPECT_EQ(printedTexts().front(), u"given!");
}

TEST_F(CertificateTest, TheTextStandsBehindAllOtherValues)
{
    form({{u"a", u"{TEXT}"}});
    CoreParameters more;
    more.Set(u"text", u"of the caller");
    more.Set(u"later", u"filled in");
    EXPECT_TRUE(rate().PRINTCERTIFICATE(u"{later}", &more));
    EXPECT_EQ(printedTexts().front(), u"{later}");
}

TEST_F(CertificateTest, NamesOfPlaceholdersCountTheirCase)
{
    form({{u"a", u"{name} {NAME}"}});
    rate().PRINTCERTIFICATE(u"");
    EXPECT_EQ(printedTexts().front(), u"{name} Mia");
}

TEST_F(CertificateTest, AValueBringsInThePlaceholderOfALaterOneOnly)
{
    form({{u"a", u"{NAME}"}, {u"b", u"{TEXT}"}});
    QVAPP()->USER()->SCREENNAME(u"{APP}");
    QVAPP()->CONFIG()->NAME(u"Molmasse");
    rate().PRINTCERTIFICATE(u"{NAME}");
    EXPECT_EQ(printedTexts(), (std::vector<String>{u"Molmasse", u"{NAME}"}));
}

TEST_F(CertificateTest, FieldsWithoutABraceStay)
{
    form({{u"a", u"Diplom NAME"}});
    rate().PRINTCERTIFICATE(u"");
    EXPECT_EQ(printedTexts().front(), u"Diplom NAME");
}

TEST_F(CertificateTest, AMissingFormIsTold)
{
    outside.dialogs().expect(Box::Error, u"Leider konnte ich die Urkunden-Datei nicht finden, daher kann ich "
                                         u"die Urkunde nicht drucken!");
    EXPECT_FALSE(rate().PRINTCERTIFICATE(u"Bravo"));
}

TEST_F(CertificateTest, TheAnswerIsWhetherItWasPrinted)
{
    form({{u"a", u"{TEXT}"}});
    outside.forms().printAnswer(false);
    EXPECT_FALSE(rate().PRINTCERTIFICATE(u"Bravo"));
}

} // namespace

} // namespace phial
