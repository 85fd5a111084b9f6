#include "AppRateTest.h"
#include "app/cls_Language.h"
#include "core/CoreValuePacker.h"
#include "server/WireText.h"
#include "support/Raises.h"

#include <limits>

namespace phial
{

namespace
{

using headless::Box;

/// A result that is handed in to a master.
class ResultsAtTheMasterTest : public AppRateTest
{
};

TEST_F(ResultsAtTheMasterTest, TheMasterGetsResultAndHighscoreOfASubmission)
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

TEST_F(ResultsAtTheMasterTest, WithoutAdditionalValuesTheMasterGetsAnEmptyList)
{
    logOn(u"OK");
    rate().RESULT(1, 2, u"Salze");
    EXPECT_EQ(lastMessage(), u"RESULTS::SUBMIT::" +
                                 CoreValuePacker::Pack({1.0, 2.0, u"Salze", CoreParameters().Pack(),
                                                        QVAPP()->USER()->SCREENNAME(), u"DESK-1", u"pupil"}));
}

TEST_F(ResultsAtTheMasterTest, AMastersOkAloneOrBehindAColonIsNotShown)
{
    logOn(u"OK");
    EXPECT_EQ(rate().SUBMIT(7, 10), 0);
    answers(u"DONE:OK");
    EXPECT_EQ(rate().SUBMIT(7, 10), 0);
}

TEST_F(ResultsAtTheMasterTest, AMastersRefusalIsComforted)
{
    logOn(u"-1");
    EXPECT_EQ(submit(7), -1);
    expectMessage(u"Info", u"Leider war das nichts! \rFür die Bestenliste hat DAS nicht gereicht!");
    answers(u"");
    EXPECT_EQ(submit(7), 0);
    expectMessage(u"Info", u"Leider war das nichts! \rDu warst schon besser!");
}

TEST_F(ResultsAtTheMasterTest, AMasterThatRefusesLeavesTheResultHere)
{
    logOn(u"ERROR");
    EXPECT_EQ(submit(7), 1);
    EXPECT_EQ(outside.dialogs().shown().back().title, u"Kunststück!");
    EXPECT_EQ(stored(u"HIGHSCORE.qv-hsr").COUNT(), 1);
    EXPECT_EQ(stored(u"results.qv-rsl").COUNT(), 1);
    EXPECT_TRUE(QVAPP()->SERVER()->ONLINE());
}

TEST_F(ResultsAtTheMasterTest, AMasterThatIsSilentLeavesTheResultHere)
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

TEST_F(ResultsAtTheMasterTest, WhatTheMasterHasTakenInDoesNotStandHere)
{
    logOn(u"3");
    EXPECT_EQ(submit(7), 3);
    EXPECT_FALSE(folder.has("HIGHSCORE.qv-hsr"));
    EXPECT_FALSE(folder.has("results.qv-rsl"));
}

TEST_F(ResultsAtTheMasterTest, AResultThatIsTooLongForTheMasterStaysHereWithAWord)
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

TEST_F(ResultsAtTheMasterTest, AResultGoesToTheMasterUpToTheBound)
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

TEST_F(ResultsAtTheMasterTest, PointsThatAreNoNumberAreRefusedAndNotStored)
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

TEST_F(ResultsAtTheMasterTest, HandingInLeavesTheClientOfflineWhereTheMasterHasGone)
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

TEST_F(ResultsAtTheMasterTest, HandingInFindsOutWhenTheMasterGoesInTheMiddleOfIt)
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

TEST_F(ResultsAtTheMasterTest, HandingInToAMasterThatIsThereIsSubmitting)
{
    logOn(u"3");
    const HandedIn result = rate().handIn(7, 10, u"Salze", nullptr, u"HIGHSCORE", false);
    EXPECT_EQ(result.rank, 3);
    EXPECT_EQ(result.recorded, ResultPlace::Master);
    EXPECT_EQ(result.listed, ResultPlace::Master);
    EXPECT_FALSE(result.wasUnanswered);
    EXPECT_EQ(rate().handIn(7, 10, u"Salze", nullptr, u"RESULTS").listed, ResultPlace::Master);
}

TEST_F(ResultsAtTheMasterTest, HandingInSaysWhatCouldNotBeKept)
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

TEST_F(ResultsAtTheMasterTest, AMastersRankIsTheNumberAtItsBeginning)
{
    logOn(u"2,5");
    EXPECT_EQ(submit(7), 2);
    answers(u"12. Platz");
    EXPECT_EQ(submit(7), 12);
    answers(u"many");
    EXPECT_EQ(submit(7), 0);
}

TEST_F(ResultsAtTheMasterTest, TheMastersHighscoreComesAsOneText)
{
    cls_DataScores scores;
    scores.ADD(5, 10, u"");
    logOn(scores.DATA()->Pack());
    EXPECT_EQ(rate().HIGHSCORE(u"SALTS")->ITEM(1)->POINTS(), 5);
    EXPECT_EQ(lastMessage(), u"SALTS::GET::");
}

TEST_F(ResultsAtTheMasterTest, AnEmptyAnswerLeavesTheHighscoreEmpty)
{
    logOn(u"");
    EXPECT_EQ(rate().HIGHSCORE()->COUNT(), 0);
}

TEST_F(ResultsAtTheMasterTest, AMastersWordForAnErrorLeavesTheHighscoreEmpty)
{
    logOn(u"ERROR");
    EXPECT_EQ(rate().HIGHSCORE()->COUNT(), 0);
}

} // namespace

} // namespace phial
