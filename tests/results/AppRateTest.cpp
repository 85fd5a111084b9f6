#include "AppRateTest.h"

#include "core/CoreDataFile.h"
#include "results/Mark.h"
#include "support/ChildProgram.h"
#include "support/Raises.h"

namespace phial
{

namespace
{

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

TEST_F(AppRateTest, TheSecondOfTwoIsTheLastToo)
{
    fill({9});
    EXPECT_EQ(submit(7), 2);
    EXPECT_EQ(outside.dialogs().shown().back().title, u"Naja...");
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

} // namespace

} // namespace phial
