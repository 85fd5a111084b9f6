#include "server/ServerTest.h"

namespace phial
{

namespace
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr StringView NoAnswerAtAll = u"Der Master antwortet leider nicht!";
constexpr StringView NothingChosen = u"Am Master wurde noch keine Lern-App ausgewählt. Bitte warte, bis eine "
                                     u"Lern-App ausgewählt wurde!";
constexpr StringView NoIdent = u"Der Master antwortet nicht";
constexpr StringView AnotherChosen = u"Am Master wurde ein andere Lern-App ausgewählt! Diese Lern-App kann "
                                     u"daher derzeit NICHT ausgeführt werden";

/// What an app asks of its master: settings, and whether it may run.
class ServerQuestions : public ServerTest
{
protected:
    void expectRefusal(StringView text)
    {
        outside.dialogs().expect(headless::Box::Error, String(text));
        EXPECT_FALSE(server().ALLOWED());
        outside.dialogs().checkDone();
    }
};

TEST_F(ServerQuestions, ASettingIsTheMasters)
{
    master.knows(u"PROPERTIES:GET", 5);
    EXPECT_EQ(server().SETTING(u"Level", 1), Variant(5));
    EXPECT_EQ(master.package(), u"Level");
    master.knows(u"PROPERTIES:GET", false);
    EXPECT_EQ(server().SETTING(u"Level", 1), Variant(false));
    EXPECT_THAT(master.requests(), ElementsAre(u"SERVER:LOGON", u"PROPERTIES:GET", u"PROPERTIES:GET"));
}

TEST_F(ServerQuestions, ASettingIsTheDefaultWhereTheMasterSaysNothing)
{
    EXPECT_EQ(server().SETTING(u"Level", 1), Variant(1)) << "answered with ERROR";
    master.knows(u"PROPERTIES:GET", u"");
    EXPECT_EQ(server().SETTING(u"Level", 1), Variant(1));
    master.says(u"PROPERTIES:GET", u"003:x");
    EXPECT_EQ(server().SETTING(u"Level", 1), Variant(1));
    master.isThere(false);
    EXPECT_EQ(server().SETTING(u"Level", u"eins"), Variant(u"eins"));
}

TEST_F(ServerQuestions, ASettingIsTheDefaultWithoutAMaster)
{
    master.isThere(false);
    EXPECT_EQ(server().SETTING(u"Level", 1), Variant(1));
    EXPECT_THAT(master.requests(), ElementsAre(u"SERVER:LOGON"));
}

TEST_F(ServerQuestions, AnAppMayRunWithoutAMaster)
{
    master.isThere(false);
    EXPECT_TRUE(server().ALLOWED());
}

TEST_F(ServerQuestions, TheChosenAppMayRun)
{
    master.knows(u"SERVER:GAMEIDENT", u"mOLMASSE");
    EXPECT_TRUE(server().ALLOWED());
    QVAPP()->CONFIG()->NAME(u"Übung Säuren");
    master.knows(u"SERVER:GAMEIDENT", u"ÜBUNG säuren");
    EXPECT_TRUE(server().ALLOWED());
    EXPECT_THAT(requestsFrom(1),
                ElementsAre(u"SERVER:MODE", u"SERVER:GAMEIDENT", u"SERVER:MODE", u"SERVER:GAMEIDENT"));
}

TEST_F(ServerQuestions, AnotherAppMayNotRun)
{
    master.knows(u"SERVER:GAMEIDENT", u"Formeln");
    expectRefusal(AnotherChosen);
}

TEST_F(ServerQuestions, NoAppMayRunBeforeOneIsChosen)
{
    for (const Variant& mode : {Variant(0), Variant(u"0"), Variant(u"none"), Variant(0.0)}) {
        master.knows(u"SERVER:MODE", mode);
        expectRefusal(NothingChosen);
    }
}

TEST_F(ServerQuestions, AModeOtherThanZeroCounts)
{
    master.knows(u"SERVER:GAMEIDENT", u"Molmasse");
    for (const Variant& mode : {Variant(2), Variant(u"1"), Variant(u"-1 of some"), Variant(0.5)}) {
        master.knows(u"SERVER:MODE", mode);
        EXPECT_TRUE(server().ALLOWED());
    }
}

TEST_F(ServerQuestions, TheModeIsAskedForThreeTimes)
{
    master.knows(u"SERVER:MODE", u"ERROR");
    expectRefusal(NoAnswerAtAll);
    EXPECT_THAT(requestsFrom(1), ElementsAre(u"SERVER:MODE", u"SERVER:MODE", u"SERVER:MODE"));
    EXPECT_EQ(seconds(), 2 * 0.5);
}

TEST_F(ServerQuestions, AMasterThatHasVanishedIsAskedForAboutAMinuteInAll)
{
    logOn();
    master.isThere(false);
    expectRefusal(NoAnswerAtAll);
    EXPECT_EQ(requestsFrom(1).size(), 3U * 6U);
    EXPECT_LT(seconds(), 66);
    const double before = seconds();
    server().DISCONNECT();
    EXPECT_LT(seconds() - before, 1);
}

TEST_F(ServerQuestions, TheThirdAnswerCounts)
{
    logOn();
    master.answersOne(u"008:ERROR");
    master.answersOne(u"008:");
    master.knows(u"SERVER:GAMEIDENT", u"Molmasse");
    EXPECT_TRUE(server().ALLOWED());
    EXPECT_EQ(seconds(), 2 * 0.5);
}

TEST_F(ServerQuestions, AMasterThatDoesNotNameTheAppRefuses)
{
    expectRefusal(NoIdent);
    master.knows(u"SERVER:GAMEIDENT", u"");
    expectRefusal(NoIdent);
}

TEST_F(ServerQuestions, AreAnsweredSilentlyOnRequest)
{
    master.knows(u"SERVER:MODE", u"ERROR");
    EXPECT_FALSE(server().ALLOWED(false));
    master.knows(u"SERVER:MODE", 0);
    EXPECT_FALSE(server().ALLOWED(false));
    master.knows(u"SERVER:MODE", 1);
    EXPECT_FALSE(server().ALLOWED(false));
    master.knows(u"SERVER:GAMEIDENT", u"Formeln");
    EXPECT_FALSE(server().ALLOWED(false));
    EXPECT_THAT(outside.dialogs().shown(), IsEmpty());
}

} // namespace

} // namespace phial
