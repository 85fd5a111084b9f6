#include "master/Classroom.h"

#include "TestRoom.h"
#include "core/CoreValuePacker.h"
#include "core/NumberText.h"
#include "master/Packages.h"
#include "master/ServerLimits.h"
#include "results/cls_DataScore.h"
#include "results/cls_DataScores.h"
#include "support/AppSession.h"

#include <gmock/gmock-matchers.h>
#include <memory>

using namespace phial;
using namespace phial::master;
using phial::test::TestRoom;

namespace
{

class ClassroomTest : public phial::test::AppSession
{
protected:
    /// The seven values of a submission.
    static String packageOf(double points, StringView name, StringView exercise = u"Salze")
    {
        return CoreValuePacker::Pack(
            {points, 10.0, exercise, CoreParameters().Pack(), name, u"PC7", u"anna"});
    }

    static String eventPackage(StringView action)
    {
        return CoreValuePacker::Pack({action, CoreParameters().Pack(), u"Anna", u"PC7", u"anna"});
    }

    /// A new message of that client, or the same again.
    String send(StringView text, std::uint64_t client = 1) { return sendAs({client, ++messages_}, text); }
    String sendAs(const FrameId& id, StringView text, StringView address = u"192.168.1.20")
    {
        // An answer may come later than this ends.
        const auto answer = std::make_shared<String>(u"none");
        receive(id, text, address, [answer](const AnswerText& given) { *answer = *given; });
        room_.desk.start();
        return *answer;
    }
    void receive(const FrameId& id, StringView text, StringView address, Classroom::Reply reply)
    {
        room_.classroom.receive({id, String(address), {u"192.168.1.5", 10049, 10050}}, text,
                                std::move(reply));
    }
    String submit(StringView module, double points, StringView name)
    {
        return send(requestText(module, u"SUBMIT", packageOf(points, name)));
    }

    /// The names in a module's list, best first.
    std::vector<String> names(StringView module)
    {
        cls_DataScores list;
        list.DATA()->Unpack(answerPayload(send(requestText(module, u"GET", {}))));
        std::vector<String> names;
        for (std::int32_t at = 1; at <= list.COUNT(); ++at) {
            names.push_back(list.ITEM(at)->SCREENNAME());
        }
        return names;
    }

    /// From another computer.
    String submitFrom(StringView address, StringView module, double points)
    {
        return sendAs({1, ++messages_}, requestText(module, u"SUBMIT", packageOf(points, u"Anna")), address);
    }

    TestRoom room_{outside.clock()};
    std::uint64_t messages_ = 0;
};

TEST_F(ClassroomTest, TakesPupilsInAndLetsThemGo)
{
    EXPECT_EQ(send(u"SERVER::LOGON::Anna"), u"008:LOGON:OK");
    ASSERT_EQ(room_.classroom.pupils().size(), 1U);
    EXPECT_EQ(room_.classroom.pupils().front().logOn.name, u"Anna");
    EXPECT_EQ(room_.classroom.pupils().front().logOn.address, u"192.168.1.20");

    EXPECT_EQ(send(u"SERVER::LOGOFF::Anna"), u"008:OK");
    EXPECT_TRUE(room_.classroom.pupils().empty());
    EXPECT_TRUE(room_.store.committed().logOns.empty());
}

TEST_F(ClassroomTest, KnowsModulesAndCommandsInAnyCase)
{
    EXPECT_EQ(send(u"Server::Logon::Anna"), u"008:LOGON:OK");
}

TEST_F(ClassroomTest, AnswersAMessageThatMakesNoSenseWithAnError)
{
    for (const StringView text : {u"", u"hello", u"SERVER", u"SERVER::", u"SERVER::DANCE::", u"EVENT::GET::",
                                  u"MODULE::DANCE::", u"::::", u"EVENT::ADD::junk", u"RESULTS::SUBMIT::",
                                  u"HIGHSCORE::SUBMIT::QV1;0;", u"PROPERTIES::GET::"}) {
        EXPECT_EQ(send(text), u"008:ERROR") << toUtf8(text);
    }
    EXPECT_TRUE(room_.store.committed().answers.empty());
    EXPECT_THAT(room_.said,
                testing::Contains(u"192.168.1.20 asked for what the master does not know; it was refused."));
    EXPECT_THAT(room_.said,
                testing::Contains(u"192.168.1.20 handed in what makes no sense; it was refused."));
}

TEST_F(ClassroomTest, WhoeverIsCrowdedOutOfTheListIsTold)
{
    for (std::int32_t pupil = 1; pupil <= 65; ++pupil) {
        EXPECT_TRUE(room_.said.empty());
        EXPECT_EQ(send(u"SERVER::LOGON::P" + plainText(pupil), static_cast<std::uint64_t>(pupil)),
                  u"008:LOGON:OK");
    }
    EXPECT_EQ(room_.said.size(), 1U);
}

TEST_F(ClassroomTest, TellsWhetherALearningAppIsChosenAndWhich)
{
    EXPECT_EQ(send(u"SERVER::MODE::"), u"008:0");
    EXPECT_EQ(send(u"SERVER::GAMEIDENT::"), u"008:ERROR");

    room_.chooseApp(u"Molmasse");
    EXPECT_EQ(send(u"SERVER::MODE::"), u"008:1");
    EXPECT_EQ(send(u"SERVER::GAMEIDENT::"), u"008:Molmasse");

    room_.chooseApp({});
    EXPECT_EQ(send(u"SERVER::MODE::"), u"008:0");
}

TEST_F(ClassroomTest, HandsOutPropertiesOneByOne)
{
    room_.set(u"Tempo", u"schnell: 1::2");
    EXPECT_EQ(send(u"PROPERTIES::GET::TEMPO"), u"008:schnell: 1::2");
    EXPECT_EQ(send(u"PROPERTIES::GET::Farbe"), u"008:ERROR");
    room_.set(u"SCREENNAMES", u"nein");
    EXPECT_EQ(send(u"PROPERTIES::GET::ScreenNames"), u"008:False");
}

TEST_F(ClassroomTest, HandsOutTheSettingsTextWithTheAddressThatTheClientHasReached)
{
    room_.set(u"WELCOMEMESSAGE", u"Guten Morgen | {1}");
    room_.set(u"HIGHSCORE.MAX", u"3");
    EXPECT_EQ(send(u"SERVER::PACK::"), u"008:QV_PHIAL_MASTER|1.0|192.168.1.5|10049|10050|10051|30|"
                                       u"QV1;2;T14=WELCOMEMESSAGE;T26=Guten Morgen %007C %007B1};");
}

TEST_F(ClassroomTest, KeepsEventsAndResults)
{
    EXPECT_EQ(send(requestText(u"EVENT", u"ADD", eventPackage(u"Runde begonnen"))), u"008:OK");
    EXPECT_EQ(submit(u"RESULTS", 7.5, u"Anna"), u"008:OK");

    ASSERT_EQ(room_.store.committed().events.size(), 1U);
    EXPECT_EQ(room_.store.committed().events.front().action, u"Runde begonnen");
    ASSERT_EQ(room_.store.results().size(), 1U);
    const Result result = room_.store.results().front();
    EXPECT_EQ(result.points, 7.5);
    EXPECT_EQ(result.pointsMax, 10);
    EXPECT_EQ(result.exercise, u"Salze");
    EXPECT_EQ(result.sender, (Sender{u"Anna", u"anna", u"PC7"}));
    EXPECT_EQ(result.at, outside.clock().moment());
}

TEST_F(ClassroomTest, RanksSubmissionsByTheRulesOfTheScoreList)
{
    EXPECT_EQ(submit(u"HIGHSCORE", 5, u"Anna"), u"008:1");
    EXPECT_EQ(submit(u"HIGHSCORE", 7, u"Ben"), u"008:1");
    EXPECT_EQ(submit(u"HIGHSCORE", 5, u"Cem"), u"008:3"); // an equal score goes behind
    EXPECT_EQ(names(u"HIGHSCORE"), (std::vector<String>{u"Ben", u"Anna", u"Cem"}));
}

TEST_F(ClassroomTest, AnswersMinusOneToAScoreThatTheListDoesNotKeep)
{
    room_.set(u"HIGHSCORE.MAX", u"2");
    submit(u"HIGHSCORE", 5, u"Anna");
    submit(u"HIGHSCORE", 7, u"Ben");
    EXPECT_EQ(submit(u"HIGHSCORE", 1, u"Cem"), u"008:-1");
    EXPECT_EQ(names(u"HIGHSCORE"), (std::vector<String>{u"Ben", u"Anna"}));
}

TEST_F(ClassroomTest, AnswersWithNothingWhereABetterOneOfThatNameIsKept)
{
    room_.set(u"HIGHSCORE.ONCE", u"yes");
    submit(u"HIGHSCORE", 5, u"Anna");
    EXPECT_EQ(submit(u"HIGHSCORE", 4, u"anna "), u"008:");
    EXPECT_EQ(submit(u"HIGHSCORE", 6, u"ANNA"), u"008:1");
    EXPECT_EQ(names(u"HIGHSCORE"), std::vector<String>{u"ANNA"});
}

TEST_F(ClassroomTest, KeepsAListForEachModuleWhateverItsCase)
{
    submit(u"Salze", 5, u"Anna");
    submit(u"Alkane", 6, u"Ben");
    EXPECT_EQ(submit(u"SALZE", 4, u"Cem"), u"008:2");
    EXPECT_EQ(names(u"salze"), (std::vector<String>{u"Anna", u"Cem"}));
    EXPECT_EQ(names(u"Alkane"), std::vector<String>{u"Ben"});
    EXPECT_THAT(room_.store.modules(), testing::ElementsAre(u"ALKANE", u"SALZE"));
}

TEST_F(ClassroomTest, AnswersAnEmptyListForAModuleWithoutOne)
{
    EXPECT_TRUE(names(u"Nothing").empty());
    EXPECT_TRUE(names(u"RESULTS").empty());
    EXPECT_TRUE(room_.store.modules().empty());
}

TEST_F(ClassroomTest, RefusesModulesWithTooLongAName)
{
    const String longest(HighscoreLists::MaxModuleLength, u'x');
    EXPECT_EQ(submit(longest, 1, u"Anna"), u"008:1");
    EXPECT_EQ(submit(longest + u'x', 1, u"Anna"), u"008:ERROR");
    EXPECT_EQ(submit(u" ", 1, u"Anna"), u"008:ERROR");
    EXPECT_THAT(room_.store.modules(), testing::ElementsAre(upperCase(longest)));
}

TEST_F(ClassroomTest, TakesInARepeatedMessageOnceAndAnswersItAsBefore)
{
    const FrameId id{7, 1};
    const String text = requestText(u"HIGHSCORE", u"SUBMIT", packageOf(5, u"Anna"));
    EXPECT_EQ(sendAs(id, text), u"008:1");
    submit(u"HIGHSCORE", 9, u"Ben");
    EXPECT_EQ(sendAs(id, text), u"008:1");

    EXPECT_EQ(names(u"HIGHSCORE"), (std::vector<String>{u"Ben", u"Anna"}));
    EXPECT_EQ(room_.store.committed().submissions.size(), 2U);
}

TEST_F(ClassroomTest, TakesInAnEqualMessageWithAnotherId)
{
    submit(u"RESULTS", 5, u"Anna");
    submit(u"RESULTS", 5, u"Anna");
    EXPECT_EQ(room_.store.results().size(), 2U);
}

TEST_F(ClassroomTest, ARepeatedMessageInTheSameCommitCountsOnce)
{
    const String text = requestText(u"RESULTS", u"SUBMIT", packageOf(5, u"Anna"));
    std::vector<String> answers;
    const auto take = [&answers](const AnswerText& answer) { answers.push_back(*answer); };
    receive({7, 1}, text, u"a", take);
    receive({7, 1}, text, u"b", take);
    room_.desk.start();
    EXPECT_THAT(answers, testing::ElementsAre(u"008:OK", u"008:OK"));
    EXPECT_EQ(room_.store.results().size(), 1U);
}

TEST_F(ClassroomTest, WhatTheStoreDidNotKeepIsTakenInAgain)
{
    submit(u"HIGHSCORE", 5, u"Anna");
    room_.store.failCommits(true);
    const String text = requestText(u"HIGHSCORE", u"SUBMIT", packageOf(9, u"Ben"));
    EXPECT_EQ(sendAs({7, 1}, text), u"none");
    EXPECT_EQ(sendAs({7, 1}, text), u"none");

    room_.store.failCommits(false);
    room_.desk.tick();
    EXPECT_EQ(sendAs({7, 1}, text), u"008:1");
    EXPECT_EQ(names(u"HIGHSCORE"), (std::vector<String>{u"Ben", u"Anna"}));
}

TEST_F(ClassroomTest, WritesAListOnceACommitHoweverOftenItChanges)
{
    for (std::uint64_t message = 1; message <= 5; ++message) {
        receive({7, message}, requestText(u"HIGHSCORE", u"SUBMIT", packageOf(5, u"Anna")), u"a",
                [](auto&) {});
    }
    EXPECT_TRUE(room_.store.modules().empty());
    room_.desk.start();
    EXPECT_EQ(room_.store.commits(), 1);
    EXPECT_EQ(names(u"HIGHSCORE").size(), 5U);
}

TEST_F(ClassroomTest, ANewOneGoesOnWhereTheOldOneEnded)
{
    room_.chooseApp(u"Molmasse");
    room_.set(u"HIGHSCORE.MAX", u"2");
    send(u"SERVER::LOGON::Anna", 4711);
    submit(u"HIGHSCORE", 5, u"Anna");

    ClassBook book(room_.store, {});
    Classroom next(room_.desk, outside.clock(), room_.notices, book.room(), book.logOns());
    EXPECT_EQ(next.app(), u"Molmasse");
    EXPECT_EQ(next.settings().value(u"HIGHSCORE.MAX"), Variant(u"2"));
    ASSERT_EQ(next.pupils().size(), 1U);
    EXPECT_EQ(next.pupils().front().logOn.client, 4711U);
    EXPECT_EQ(book.highscore(u"HIGHSCORE").size(), 1U);
}

TEST_F(ClassroomTest, ForgetsAnswersAndLogOnsOfOtherDays)
{
    send(u"SERVER::LOGON::Anna");
    submit(u"RESULTS", 5, u"Anna");
    constexpr double Day = 86400;
    outside.clock().advance(ClassBook::AnswersKept * Day + 1);
    submit(u"RESULTS", 5, u"Ben");
    room_.classroom.forgetOld();
    room_.desk.start();
    EXPECT_EQ(room_.store.committed().answers.size(), 1U);
    EXPECT_TRUE(room_.store.committed().logOns.empty());
    EXPECT_EQ(room_.store.results().size(), 2U);
}

TEST_F(ClassroomTest, ForgetsManyAnswersPieceByPiece)
{
    for (std::uint64_t number = 1; number <= 2 * ClassBook::ForgottenAtOnce + 1; ++number) {
        room_.store.keepAnswer({9, number}, u"008:OK", outside.clock().moment());
    }
    room_.store.commit();
    outside.clock().advance(86400 * 1.5);
    const int before = room_.store.commits();
    room_.classroom.forgetOld();
    room_.desk.start();
    EXPECT_TRUE(room_.store.committed().answers.empty());
    EXPECT_EQ(room_.store.commits() - before, 3);
}

TEST_F(ClassroomTest, NeverTakesItsOwnComputerForAPupils)
{
    const String package = CoreValuePacker::Pack({5.0, 10.0, u"", CoreParameters().Pack(), u"", u"", u""});
    send(requestText(u"HIGHSCORE", u"SUBMIT", package));
    cls_DataScores list;
    list.DATA()->Unpack(answerPayload(send(u"HIGHSCORE::GET::")));
    const auto entry = list.ITEM(1);
    EXPECT_EQ(entry->SCREENNAME(), u"?");
    EXPECT_EQ(entry->USERNAME(), u"?");
    EXPECT_EQ(entry->COMPUTER(), u"?");
}

TEST_F(ClassroomTest, APupilWhoStartsAgainIsThereOnce)
{
    send(u"SERVER::LOGON::Anna", 1);
    send(u"SERVER::LOGON::anna", 2);
    send(u"SERVER::LOGON::Ben", 3);
    ASSERT_EQ(room_.classroom.pupils().size(), 2U);
    EXPECT_EQ(room_.classroom.pupils().front().logOn.client, 2U);
    EXPECT_EQ(room_.store.committed().logOns.size(), 2U);
}

TEST_F(ClassroomTest, NotesWhenAPupilWasHeardOf)
{
    send(u"SERVER::LOGON::Anna");
    const Moment since = outside.clock().moment();
    outside.clock().advance(30);
    send(u"SERVER::ALIVE::");
    EXPECT_EQ(room_.classroom.pupils().front().logOn.since, since);
    EXPECT_EQ(room_.classroom.pupils().front().heard, outside.clock().moment());
}

TEST_F(ClassroomTest, OneComputerBeginsSomeListsOnlyAndTheTeacherIsTold)
{
    for (std::size_t count = 1; count <= HighscoreLists::MaxOfComputer; ++count) {
        EXPECT_EQ(submitFrom(u"10.0.0.9", u"M" + plainText(static_cast<std::int32_t>(count)), 1), u"008:1");
    }
    EXPECT_EQ(submitFrom(u"10.0.0.9", u"one more", 1), u"008:ERROR");
    EXPECT_EQ(submitFrom(u"10.0.0.9", u"m1", 2), u"008:1") << "one that it has begun";
    EXPECT_EQ(submitFrom(u"10.0.0.8", u"one more", 1), u"008:1") << "from another computer";
    EXPECT_EQ(room_.said.size(), 2U);
    EXPECT_EQ(room_.said.back(),
              u"10.0.0.9 has begun 12 highscores already; more are refused. \"reset --from "
              u"10.0.0.9\" takes them away.");
}

TEST_F(ClassroomTest, MadeUpListsOfManyComputersLeaveThoseOfTheChosenAppAndOfTheTeacherAlone)
{
    for (std::size_t count = 0; count < HighscoreLists::MaxModules; ++count) {
        const auto number = static_cast<std::int32_t>(count);
        EXPECT_EQ(submitFrom(u"10.0.1." + plainText(number / 10), u"M" + plainText(number), 1), u"008:1");
    }
    EXPECT_EQ(submitFrom(u"10.0.0.1", u"real", 1), u"008:ERROR");
    EXPECT_THAT(room_.said,
                testing::Contains(u"There are 200 highscores already; REAL was refused. \"reset\" makes "
                                  u"room, \"app\" admits those of the learning app."));
    EXPECT_EQ(submitFrom(u"10.0.0.1", u"highscore", 1), u"008:1") << "the usual one";
    room_.set(u"ALKANE.MAX", u"5");
    EXPECT_EQ(submitFrom(u"10.0.0.1", u"alkane", 1), u"008:1") << "the teacher knows it";
    EXPECT_EQ(submitFrom(u"10.0.0.1", u"salze", 1), u"008:ERROR");
    room_.chooseApp(u"Molmasse");
    EXPECT_EQ(submitFrom(u"10.0.0.1", u"salze", 1), u"008:1") << "the app tells of it";
    EXPECT_EQ(submitFrom(u"10.0.0.1", u"molmasse", 1), u"008:1") << "called like the app";
    EXPECT_EQ(submitFrom(u"10.0.0.1", u"real", 1), u"008:ERROR");

    EXPECT_TRUE(room_.change([&](ClassBook& book) {
        EXPECT_EQ(book.resetListsFrom(u"10.0.1.3", outside.clock().moment()), 10U);
    }));
    EXPECT_EQ(submitFrom(u"10.0.0.1", u"real", 1), u"008:1") << "room has been made";
}

TEST_F(ClassroomTest, WhereListsComeFromOutlivesTheMaster)
{
    for (std::size_t count = 1; count <= HighscoreLists::MaxOfComputer; ++count) {
        submitFrom(u"10.0.0.9", u"M" + plainText(static_cast<std::int32_t>(count)), 1);
    }
    ClassBook next(room_.store, {});
    std::vector<NoticeCase> notices;
    const Result result{outside.clock().moment(), {u"Anna", u"", u""}, u"", 1, 10, CoreParameters().Pack()};
    EXPECT_FALSE(next.submit(u"one more", result, u"10.0.0.9", notices));
    EXPECT_TRUE(next.submit(u"one more", result, u"10.0.0.8", notices));
}

TEST_F(ClassroomTest, RefusesImpossiblePointsAndTellsTheTeacher)
{
    for (const StringView points : {u"NaN", u"INF", u"-INF", u"1E300", u"1000000001", u"-1000000001"}) {
        const String package = u"QV1;7;D" + plainText(static_cast<std::int32_t>(points.size())) + u"=" +
                               String(points) + u";D2=10;T0=;T6=QV1;0;;T4=Anna;T0=;T0=;";
        EXPECT_EQ(send(requestText(u"HIGHSCORE", u"SUBMIT", package)), u"008:ERROR") << toUtf8(points);
        EXPECT_EQ(send(requestText(u"RESULTS", u"SUBMIT", package)), u"008:ERROR") << toUtf8(points);
    }
    const String negative =
        CoreValuePacker::Pack({1.0, -1.0, u"", CoreParameters().Pack(), u"Anna", u"PC7", u"anna"});
    EXPECT_EQ(send(requestText(u"RESULTS", u"SUBMIT", negative)), u"008:ERROR");
    EXPECT_TRUE(room_.store.results().empty());
    EXPECT_TRUE(room_.store.modules().empty());
    EXPECT_THAT(room_.said,
                testing::Contains(u"A result from 192.168.1.20 has impossible points and was refused."));
}

TEST_F(ClassroomTest, TakesMorePointsThanCanBeReachedAndTellsTheTeacher)
{
    EXPECT_EQ(submit(u"RESULTS", 10, u"Ben"), u"008:OK");
    EXPECT_TRUE(room_.said.empty());
    EXPECT_EQ(submit(u"RESULTS", 12, u"Anna"), u"008:OK");
    EXPECT_EQ(submit(u"HIGHSCORE", 12, u"Anna"), u"008:1");
    EXPECT_THAT(room_.said,
                testing::ElementsAre(
                    u"Anna has more points than can be reached: 12 of 10. The result is marked with !."));
}

TEST_F(ClassroomTest, AnEntryWithLongFurtherValuesIsKeptWithoutThemInTheList)
{
    CoreParameters additional;
    additional.Set(u"Text", String(5000, u'x'));
    const String package =
        CoreValuePacker::Pack({5.0, 10.0, u"Salze", additional.Pack(), u"Anna", u"PC7", u"anna"});
    EXPECT_EQ(send(requestText(u"HIGHSCORE", u"SUBMIT", package)), u"008:1");
    EXPECT_EQ(room_.store.committed().submissions.front().result.additional, additional.Pack());
    cls_DataScores list;
    list.DATA()->Unpack(answerPayload(send(u"HIGHSCORE::GET::")));
    EXPECT_EQ(list.ITEM(1)->SCREENNAME(), u"Anna");
    EXPECT_EQ(list.ITEM(1)->ADDITIONAL()->Count(), 0);
    EXPECT_THAT(room_.said, testing::ElementsAre(u"The further values of Anna are too long for the highscore "
                                                 u"HIGHSCORE and are missing there."));
}

TEST_F(ClassroomTest, AnEntryWhoseNamesAreTooLongForAListIsRefused)
{
    const String longest(MaxLabelLength, u'{'); // each takes nine signs in the packed list
    const String package =
        CoreValuePacker::Pack({5.0, 10.0, longest, CoreParameters().Pack(), longest, longest, longest});
    EXPECT_EQ(send(requestText(u"HIGHSCORE", u"SUBMIT", package)), u"008:ERROR");
    EXPECT_EQ(room_.said.size(), 1U) << "too long for a highscore";
    EXPECT_EQ(send(requestText(u"RESULTS", u"SUBMIT", package)), u"008:OK");
}

TEST_F(ClassroomTest, TheLongestListOfTheLongestEntriesFitsIntoAnAnswer)
{
    constexpr std::size_t Entries = 200;
    room_.set(u"HIGHSCORE.MAX", plainText(static_cast<std::int32_t>(Entries)));
    CoreParameters additional;
    additional.Set(u"Text", String(1100, u'\u2082'));
    const String package =
        CoreValuePacker::Pack({5.0, 10.0, u"Salze", additional.Pack(), u"Anna", u"PC7", u"anna"});
    for (std::uint64_t entry = 1; entry <= Entries; ++entry) {
        receive({9, entry}, requestText(u"HIGHSCORE", u"SUBMIT", package), u"a", [](auto&) {});
    }
    room_.desk.start();
    const String answer = send(u"HIGHSCORE::GET::");
    cls_DataScores list;
    list.DATA()->Unpack(answerPayload(answer));
    EXPECT_EQ(list.COUNT(), 200);
    EXPECT_EQ(list.ITEM(200)->ADDITIONAL()->Count(), 1);
    EXPECT_GT(toUtf8(answer).size(), Entries * HighscoreLists::MaxEntryBytes * 3 / 4);
    EXPECT_LT(toUtf8(answer).size(), Entries * HighscoreLists::MaxEntryBytes);
    static_assert(MasterSettings::MaxListLength * HighscoreLists::MaxEntryBytes <
                  ServerLimits().untakenBytes);
}

TEST_F(ClassroomTest, AListOfOtherTimesThatIsTooLongLosesItsFurtherValues)
{
    CoreParameters additional;
    additional.Set(u"Text", String(50000, u'x'));
    cls_DataScores list;
    list.MAXIMUM(100);
    for (int entry = 0; entry < 30; ++entry) {
        list.ADD(5, 10, u"", &additional, u"login", u"PC", u"Anna", outside.clock().moment());
    }
    room_.store.keepScoreList(u"HIGHSCORE", list.DATA()->Pack());
    room_.store.commit();
    const String answer = send(u"HIGHSCORE::GET::");
    EXPECT_LT(answer.size(), 100000U);
    EXPECT_EQ(names(u"HIGHSCORE").size(), 30U);
}

TEST_F(ClassroomTest, WhoNeedsNoStoreIsAnsweredWhileItDoesNot)
{
    room_.chooseApp(u"Molmasse");
    room_.set(u"Tempo", u"3");
    room_.hand.freeze();
    EXPECT_EQ(submit(u"RESULTS", 5, u"Anna"), u"none");
    EXPECT_EQ(send(u"SERVER::LOGON::Ben", 2), u"008:LOGON:OK");
    EXPECT_EQ(send(u"SERVER::MODE::"), u"008:1");
    EXPECT_EQ(send(u"SERVER::GAMEIDENT::"), u"008:Molmasse");
    EXPECT_EQ(send(u"PROPERTIES::GET::TEMPO"), u"008:3");
    EXPECT_EQ(send(u"SERVER::ALIVE::"), u"008:OK");
    EXPECT_EQ(room_.classroom.pupils().size(), 1U);
    room_.hand.thaw();
    EXPECT_EQ(room_.store.results().size(), 1U);
    EXPECT_EQ(room_.store.committed().logOns.size(), 1U);
}

TEST_F(ClassroomTest, TakesOverWhatAnotherProgramHasSet)
{
    room_.store.keepSetting(u"TEMPO", u"3");
    room_.store.keepApp(u"Formeln");
    room_.store.commit();
    EXPECT_EQ(send(u"PROPERTIES::GET::TEMPO"), u"008:ERROR");
    room_.classroom.lookForChanges();
    room_.desk.start();
    EXPECT_EQ(send(u"PROPERTIES::GET::TEMPO"), u"008:3");
    EXPECT_EQ(send(u"SERVER::GAMEIDENT::"), u"008:Formeln");
}

TEST_F(ClassroomTest, AChangeOfAListsRulesHoldsFromTheNextMessageOn)
{
    for (const double points : {5.0, 6.0, 7.0}) {
        submit(u"HIGHSCORE", points, u"Anna");
    }
    room_.hand.freeze();
    std::vector<String> answers;
    const auto take = [&answers](const AnswerText& answer) { answers.push_back(*answer); };
    receive({8, 1}, requestText(u"HIGHSCORE", u"SUBMIT", packageOf(1, u"Ben")), u"a", take);
    room_.set(u"HIGHSCORE.MAX", u"2");
    receive({8, 2}, requestText(u"HIGHSCORE", u"SUBMIT", packageOf(2, u"Cem")), u"a", take);
    room_.hand.thaw();
    EXPECT_THAT(answers, testing::ElementsAre(u"008:4", u"008:4")) << "the last one is beyond the end";
    EXPECT_EQ(names(u"HIGHSCORE").size(), 2U);
}

} // namespace
