#include "master/Classroom.h"

#include "MemoryStore.h"
#include "core/CoreValuePacker.h"
#include "core/NumberText.h"
#include "results/cls_DataScore.h"
#include "results/cls_DataScores.h"
#include "support/AppSession.h"

#include <gmock/gmock-matchers.h>

using namespace phial;
using namespace phial::master;
using phial::test::MemoryStore;

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
    String sendAs(const FrameId& id, StringView text)
    {
        String answer = classroom_.answer({id, u"192.168.1.20", {u"192.168.1.5", 10049, 10050}}, text);
        classroom_.commit();
        return answer;
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

    MemoryStore store_;
    Classroom classroom_{store_, outside.clock()};
    std::uint64_t messages_ = 0;
};

TEST_F(ClassroomTest, TakesPupilsInAndLetsThemGo)
{
    EXPECT_EQ(send(u"SERVER::LOGON::Anna"), u"008:LOGON:OK");
    ASSERT_EQ(classroom_.pupils().size(), 1U);
    EXPECT_EQ(classroom_.pupils().front().logOn.name, u"Anna");
    EXPECT_EQ(classroom_.pupils().front().logOn.address, u"192.168.1.20");

    EXPECT_EQ(send(u"SERVER::LOGOFF::Anna"), u"008:OK");
    EXPECT_TRUE(classroom_.pupils().empty());
    EXPECT_TRUE(store_.committed().logOns.empty());
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
    EXPECT_TRUE(store_.committed().answers.empty());
}

TEST_F(ClassroomTest, TellsWhetherALearningAppIsChosenAndWhich)
{
    EXPECT_EQ(send(u"SERVER::MODE::"), u"008:0");
    EXPECT_EQ(send(u"SERVER::GAMEIDENT::"), u"008:ERROR");

    classroom_.chooseApp(u"Molmasse");
    EXPECT_EQ(send(u"SERVER::MODE::"), u"008:1");
    EXPECT_EQ(send(u"SERVER::GAMEIDENT::"), u"008:Molmasse");

    classroom_.chooseApp({});
    EXPECT_EQ(send(u"SERVER::MODE::"), u"008:0");
}

TEST_F(ClassroomTest, HandsOutPropertiesOneByOne)
{
    classroom_.settings().set(u"Tempo", u"schnell: 1::2");
    EXPECT_EQ(send(u"PROPERTIES::GET::TEMPO"), u"008:schnell: 1::2");
    EXPECT_EQ(send(u"PROPERTIES::GET::Farbe"), u"008:ERROR");
    classroom_.settings().set(u"SCREENNAMES", u"nein");
    EXPECT_EQ(send(u"PROPERTIES::GET::ScreenNames"), u"008:False");
}

TEST_F(ClassroomTest, HandsOutTheSettingsTextWithTheAddressThatTheClientHasReached)
{
    classroom_.settings().set(u"WELCOMEMESSAGE", u"Guten Morgen | {1}");
    classroom_.settings().set(u"HIGHSCORE.MAX", u"3");
    EXPECT_EQ(send(u"SERVER::PACK::"), u"008:QV_PHIAL_MASTER|1.0|192.168.1.5|10049|10050|10051|30|"
                                       u"QV1;2;T14=WELCOMEMESSAGE;T26=Guten Morgen %007C %007B1};");
}

TEST_F(ClassroomTest, KeepsEventsAndResults)
{
    EXPECT_EQ(send(requestText(u"EVENT", u"ADD", eventPackage(u"Runde begonnen"))), u"008:OK");
    EXPECT_EQ(submit(u"RESULTS", 7.5, u"Anna"), u"008:OK");

    ASSERT_EQ(store_.committed().events.size(), 1U);
    EXPECT_EQ(store_.committed().events.front().action, u"Runde begonnen");
    ASSERT_EQ(store_.committed().results.size(), 1U);
    const Result& result = store_.committed().results.front();
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
    classroom_.settings().set(u"HIGHSCORE.MAX", u"2");
    submit(u"HIGHSCORE", 5, u"Anna");
    submit(u"HIGHSCORE", 7, u"Ben");
    EXPECT_EQ(submit(u"HIGHSCORE", 1, u"Cem"), u"008:-1");
    EXPECT_EQ(names(u"HIGHSCORE"), (std::vector<String>{u"Ben", u"Anna"}));
}

TEST_F(ClassroomTest, AnswersWithNothingWhereABetterOneOfThatNameIsKept)
{
    classroom_.settings().set(u"HIGHSCORE.ONCE", u"yes");
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
    EXPECT_THAT(store_.modules(), testing::ElementsAre(u"ALKANE", u"SALZE"));
}

TEST_F(ClassroomTest, AnswersAnEmptyListForAModuleWithoutOne)
{
    EXPECT_TRUE(names(u"Nothing").empty());
    EXPECT_TRUE(names(u"RESULTS").empty());
    EXPECT_TRUE(store_.modules().empty());
}

TEST_F(ClassroomTest, RefusesModulesWithTooLongANameAndTooManyOfThem)
{
    const String longest(HighscoreLists::MaxModuleLength, u'x');
    EXPECT_EQ(submit(longest, 1, u"Anna"), u"008:1");
    EXPECT_EQ(submit(longest + u'x', 1, u"Anna"), u"008:-1");
    for (std::size_t count = 1; count < HighscoreLists::MaxModules; ++count) {
        EXPECT_EQ(submit(u"M" + plainText(static_cast<std::int32_t>(count)), 1, u"Anna"), u"008:1");
    }
    EXPECT_EQ(submit(u"one more", 1, u"Anna"), u"008:-1");
    EXPECT_EQ(submit(u"m1", 2, u"Ben"), u"008:1");
    EXPECT_EQ(store_.modules().size(), HighscoreLists::MaxModules);
}

TEST_F(ClassroomTest, TakesInARepeatedMessageOnceAndAnswersItAsBefore)
{
    const FrameId id{7, 1};
    const String text = requestText(u"HIGHSCORE", u"SUBMIT", packageOf(5, u"Anna"));
    EXPECT_EQ(sendAs(id, text), u"008:1");
    submit(u"HIGHSCORE", 9, u"Ben");
    EXPECT_EQ(sendAs(id, text), u"008:1");

    EXPECT_EQ(names(u"HIGHSCORE"), (std::vector<String>{u"Ben", u"Anna"}));
    EXPECT_EQ(store_.committed().submissions.size(), 2U);
}

TEST_F(ClassroomTest, TakesInAnEqualMessageWithAnotherId)
{
    submit(u"RESULTS", 5, u"Anna");
    submit(u"RESULTS", 5, u"Anna");
    EXPECT_EQ(store_.committed().results.size(), 2U);
}

TEST_F(ClassroomTest, ARepeatedMessageInTheSameCommitCountsOnce)
{
    const String text = requestText(u"RESULTS", u"SUBMIT", packageOf(5, u"Anna"));
    const Envelope envelope{{7, 1}, {}, {}};
    EXPECT_EQ(classroom_.answer(envelope, text), u"008:OK");
    EXPECT_EQ(classroom_.answer(envelope, text), u"008:OK");
    classroom_.commit();
    EXPECT_EQ(store_.committed().results.size(), 1U);
}

TEST_F(ClassroomTest, UndoGoesBackToWhatTheStoreHolds)
{
    submit(u"HIGHSCORE", 5, u"Anna");
    store_.failCommits(true);
    const String text = requestText(u"HIGHSCORE", u"SUBMIT", packageOf(9, u"Ben"));
    EXPECT_EQ(classroom_.answer({{7, 1}, {}, {}}, text), u"008:1");
    EXPECT_THROW(classroom_.commit(), StoreError);
    classroom_.undo();

    store_.failCommits(false);
    EXPECT_EQ(names(u"HIGHSCORE"), std::vector<String>{u"Anna"});
    EXPECT_EQ(sendAs({7, 1}, text), u"008:1");
    EXPECT_EQ(names(u"HIGHSCORE"), (std::vector<String>{u"Ben", u"Anna"}));
}

TEST_F(ClassroomTest, WritesAListOnceACommitHoweverOftenItChanges)
{
    for (std::uint64_t message = 1; message <= 5; ++message) {
        classroom_.answer({{7, message}, {}, {}},
                          requestText(u"HIGHSCORE", u"SUBMIT", packageOf(5, u"Anna")));
    }
    EXPECT_TRUE(store_.modules().empty());
    classroom_.commit();
    EXPECT_EQ(store_.commits(), 1);
    EXPECT_EQ(names(u"HIGHSCORE").size(), 5U);
}

TEST_F(ClassroomTest, ANewOneGoesOnWhereTheOldOneEnded)
{
    classroom_.chooseApp(u"Molmasse");
    classroom_.settings().set(u"HIGHSCORE.MAX", u"2");
    send(u"SERVER::LOGON::Anna", 4711);
    submit(u"HIGHSCORE", 5, u"Anna");

    Classroom next(store_, outside.clock());
    EXPECT_EQ(next.app(), u"Molmasse");
    EXPECT_EQ(next.settings().value(u"HIGHSCORE.MAX"), Variant(u"2"));
    ASSERT_EQ(next.pupils().size(), 1U);
    EXPECT_EQ(next.pupils().front().logOn.client, 4711U);
    EXPECT_EQ(next.highscores().list(u"HIGHSCORE")->COUNT(), 1);
}

TEST_F(ClassroomTest, ForgetsAnswersAndLogOnsOfOtherDays)
{
    send(u"SERVER::LOGON::Anna");
    submit(u"RESULTS", 5, u"Anna");
    constexpr double Day = 86400;
    outside.clock().advance(Classroom::AnswersKept * Day + 1);
    submit(u"RESULTS", 5, u"Ben");
    classroom_.forgetOld();
    EXPECT_EQ(store_.committed().answers.size(), 1U);
    EXPECT_TRUE(store_.committed().logOns.empty());
    EXPECT_EQ(store_.committed().results.size(), 2U);
}

TEST_F(ClassroomTest, NeverTakesItsOwnComputerForAPupils)
{
    const String package = CoreValuePacker::Pack({5.0, 10.0, u"", CoreParameters().Pack(), u"", u"", u""});
    send(requestText(u"HIGHSCORE", u"SUBMIT", package));
    const auto entry = classroom_.highscores().list(u"HIGHSCORE")->ITEM(1);
    EXPECT_EQ(entry->SCREENNAME(), u"?");
    EXPECT_EQ(entry->USERNAME(), u"?");
    EXPECT_EQ(entry->COMPUTER(), u"?");
}

TEST_F(ClassroomTest, APupilWhoStartsAgainIsThereOnce)
{
    send(u"SERVER::LOGON::Anna", 1);
    send(u"SERVER::LOGON::anna", 2);
    send(u"SERVER::LOGON::Ben", 3);
    ASSERT_EQ(classroom_.pupils().size(), 2U);
    EXPECT_EQ(classroom_.pupils().front().logOn.client, 2U);
    EXPECT_EQ(store_.committed().logOns.size(), 2U);
}

TEST_F(ClassroomTest, NotesWhenAPupilWasHeardOf)
{
    send(u"SERVER::LOGON::Anna");
    const Moment since = outside.clock().moment();
    outside.clock().advance(30);
    send(u"SERVER::ALIVE::");
    EXPECT_EQ(classroom_.pupils().front().logOn.since, since);
    EXPECT_EQ(classroom_.pupils().front().heard, outside.clock().moment());
}

} // namespace
