#include "core/RuntimeError.h"
#include "server/ServerTest.h"

namespace phial
{

namespace
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// Boxes of which one text cannot be shown.
class FailingDialogs : public headless::ScriptedDialogs
{
public:
    explicit FailingDialogs(String failing) : failing_(std::move(failing)) {}

    void Info(StringView pText, StringView /*pTitle*/, StringView /*pIcon*/) override
    {
        if (pText == failing_) {
            throw RuntimeError(ErrorNumber::Overflow, u"no box");
        }
        texts.emplace_back(pText);
    }

    std::vector<String> texts;

private:
    String failing_;
};

/// The boxes that lead a developer through the client's steps.
class ServerDebugger : public ServerTest
{
protected:
    ServerDebugger() { server().CONFIG()->DEBUGGER(true); }

    /// The boxes that come, in order.
    void expect(std::initializer_list<StringView> texts)
    {
        for (const StringView text : texts) {
            outside.dialogs().expect(headless::Box::Info, String(text));
        }
    }
    void expectLogon()
    {
        expect({u"SERVER:CONNECT Start", u"SERVER:CONNECT Starting request", u"REQUEST: SERVER:LOGON",
                u"ANSWER: 008:LOGON:OK", u"SERVER:REQUEST Answer: 008:LOGON:OK", u"SERVER:REQUEST End",
                u"SERVER:CONNECT Correct login", u"SERVER:CONNECT End"});
    }
    void TearDown() override
    {
        server().CONFIG()->DEBUGGER(false);
        ServerTest::TearDown();
    }
};

TEST_F(ServerDebugger, FollowsALogon)
{
    expectLogon();
    EXPECT_TRUE(server().CONNECT());
    EXPECT_NEAR(seconds(), 6 * 0.05, 1e-6) << "a pump behind each text that is not of the log";
}

TEST_F(ServerDebugger, FollowsALogonThatTimesOut)
{
    master.isThere(false);
    expect({u"SERVER:CONNECT Start", u"SERVER:CONNECT Starting request", u"REQUEST: SERVER:LOGON", u"TIMEOUT",
            u"SERVER:REQUEST Timeout received", u"SERVER:REQUEST Instant timeout - exiting",
            u"SERVER:CONNECT Incorrect logon answer received: ", u"SERVER:CONNECT End"});
    EXPECT_FALSE(server().CONNECT());
    outside.dialogs().checkDone();

    expect({u"SERVER:CONNECT Start", u"SERVER:CONNECT Instant offline", u"SERVER:CONNECT End"});
    EXPECT_FALSE(server().CONNECT());
}

TEST_F(ServerDebugger, FollowsTheSecondTryForAnAlternateAddress)
{
    prepareUserSetting(u"ServerAlternateIP", u"10.0.0.8");
    master.answersOne(u"008:LOGON:NO");
    expect({u"SERVER:CONNECT Start", u"SERVER:CONNECT Starting request", u"REQUEST: SERVER:LOGON",
            u"ANSWER: 008:LOGON:NO", u"SERVER:REQUEST Answer: 008:LOGON:NO", u"SERVER:REQUEST End",
            u"SERVER:CONNECT Incorrect logon answer received: LOGON:NO",
            u"SERVER:CONNECT Trying alternate IP", u"REQUEST: SERVER:LOGON", u"ANSWER: 008:LOGON:OK",
            u"SERVER:REQUEST Answer: 008:LOGON:OK", u"SERVER:REQUEST End", u"SERVER:CONNECT Correct login",
            u"SERVER:CONNECT End"});
    EXPECT_TRUE(server().CONNECT());
}

TEST_F(ServerDebugger, FollowsRepeatedRequests)
{
    expectLogon();
    logOn();
    master.isThere(false);
    expect({u"REQUEST: A:B"});
    for (int send = 0; send < 6; ++send) {
        expect({u"TIMEOUT", u"SERVER:REQUEST Timeout received"});
    }
    expect({u"SERVER:REQUEST Timeout after 5 tries - exiting"});
    server().REQUEST(u"A", u"B");
}

TEST_F(ServerDebugger, FollowsCommands)
{
    expectLogon();
    logOn();
    expect({u"COMMAND: SERVER:ALIVE"});
    server().ALIVE();
}

TEST_F(ServerDebugger, ShowsNothingWithNoNetwork)
{
    QVAPP()->CONFIG()->PARAMETERS()->Set(u"NONETWORK", u"");
    EXPECT_FALSE(server().CONNECT());
    EXPECT_THAT(outside.dialogs().shown(), IsEmpty());
}

TEST_F(ServerDebugger, KeepsALogonWithAPendingErrorOffline)
{
    session.reset();
    const auto dialogs = std::make_shared<FailingDialogs>(u"SERVER:REQUEST Answer: 008:LOGON:OK");
    Platform platform = outside.platform();
    platform.dialogs = dialogs;
    session.emplace(platform);
    QVAPP()->USER()->SCREENNAME(u"Anna");
    server().INIT();
    server().CONFIG()->DEBUGGER(true);

    EXPECT_FALSE(server().CONNECT());
    EXPECT_THAT(dialogs->texts,
                ElementsAre(u"SERVER:CONNECT Start", u"SERVER:CONNECT Starting request",
                            u"REQUEST: SERVER:LOGON", u"ANSWER: 008:LOGON:OK", u"SERVER:REQUEST End",
                            u"SERVER:CONNECT Login with errors: no box", u"SERVER:CONNECT End"));
}

} // namespace

} // namespace phial
