#include "core/CoreDialogs.h"
#include "core/RuntimeError.h"
#include "core/SessionState.h"
#include "headless/HeadlessPlatform.h"
#include "support/HeadlessSession.h"
#include "support/Raises.h"

#include <gmock/gmock-more-matchers.h>

namespace phial::headless
{
namespace
{

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class ScriptedDialogsTest : public ::testing::Test
{
protected:
    std::vector<String> failures;
    ScriptedDialogs dialogs{[this](const String& failure) { failures.push_back(failure); }};
};

TEST_F(ScriptedDialogsTest, AnUnexpectedBoxFailsAndGetsTheHarmlessAnswer)
{
    EXPECT_EQ(dialogs.YesNo(u"Wirklich?", u""), DialogAnswer::No);
    EXPECT_EQ(dialogs.Input(u"Name", u"", u"x"), u"");
    EXPECT_THAT(failures, ElementsAre(u"unexpected YesNo box \"Wirklich?\", expected: none",
                                      u"unexpected Input box \"Name\", expected: none"));
}

TEST_F(ScriptedDialogsTest, AnotherTextOrKindThanExpectedFails)
{
    dialogs.expect(Box::Error, u"so");
    dialogs.Error(u"anders", u"");
    dialogs.Info(u"so", u"", u"");
    EXPECT_THAT(failures, SizeIs(2));
    EXPECT_FALSE(dialogs.isDone());
}

TEST_F(ScriptedDialogsTest, ABoxExpectedInVainFails)
{
    dialogs.expect(Box::Done, u"Gespeichert");
    dialogs.checkDone();
    EXPECT_THAT(failures, ElementsAre(u"expected but not shown: Done box \"Gespeichert\""));
    EXPECT_TRUE(dialogs.isDone());
}

TEST(ScriptedDialogs, WithoutAHandlerFailuresAreRaised)
{
    ScriptedDialogs dialogs;
    EXPECT_RAISES(dialogs.Done(u"x"), InvalidArgument);
}

TEST(HeadlessPlatform, AHandlersErrorIsReportedAndTheLoopGoesOn)
{
    std::vector<String> failures;
    HeadlessPlatform outside(u"\\", [&](const String& failure) { failures.push_back(failure); });
    const SessionState session(outside.platform());
    int ran = 0;
    session.platform().pump->post([] { throw RuntimeError(ErrorNumber::Overflow); });
    session.platform().pump->post([&] { ++ran; });
    outside.runPending();
    EXPECT_EQ(ran, 1);
    EXPECT_THAT(failures, SizeIs(1));
    EXPECT_THAT(toUtf8(failures.front()), HasSubstr("a handler raised"));
}

TEST(FixedRandom, RepeatsItsNumbers)
{
    FixedRandom random;
    EXPECT_EQ(random.next(), 0.5);
    random.numbers({0, 0.25});
    EXPECT_EQ(random.next(), 0);
    EXPECT_EQ(random.next(), 0.25);
    EXPECT_EQ(random.next(), 0);
    EXPECT_RAISES(random.numbers({1.0}), InvalidArgument);
    EXPECT_RAISES(random.numbers({}), InvalidArgument);
}

class ScriptedNetClientTest : public test::HeadlessSession
{
protected:
    std::shared_ptr<CoreNetClient> client = session.platform().newNetClient();

    String request(StringView message)
    {
        return client->Request(message, u"10.0.0.1", 10049, nullptr, true, u"ERR:Timeout");
    }
};

TEST_F(ScriptedNetClientTest, AnswersByScript)
{
    outside.network().answerWith([](const String& message) { return u"008:" + message; });
    EXPECT_EQ(request(u"SERVER::LOGON::Ada"), u"008:SERVER::LOGON::Ada");
    ASSERT_THAT(outside.network().requests(), SizeIs(1));
    EXPECT_EQ(outside.network().requests().front().address, u"10.0.0.1");
    EXPECT_EQ(outside.network().requests().front().port, 10049);
}

TEST_F(ScriptedNetClientTest, SilenceTakesTheResponseTimeout)
{
    client->Options().ResponseTimeout = 4;
    EXPECT_EQ(request(u"SERVER::ALIVE::"), u"ERR:Timeout");
    EXPECT_EQ(outside.clock().seconds(), 4);
}

TEST_F(ScriptedNetClientTest, ATakenPortRaises)
{
    client->OpenPort(10051);
    outside.network().refusePorts(true);
    EXPECT_RAISES(client->OpenPort(10052), InvalidArgument);
    EXPECT_THAT(outside.network().openedPorts(), ElementsAre(10051));
}

TEST_F(ScriptedNetClientTest, MessagesComeInOnceReceptionIsOn)
{
    auto& scripted = dynamic_cast<ScriptedNetClient&>(*client);
    std::vector<String> received;
    const Connection connection = client->RECEIVED.connect([&](const CoreNetMessage& message, bool& handled) {
        received.push_back(message.Text());
        handled = true;
    });
    EXPECT_FALSE(scripted.receive(u"too early"));
    client->EnableReceive(true);
    EXPECT_TRUE(scripted.receive(u"hello"));
    EXPECT_THAT(received, ElementsAre(u"hello"));
}

class FakeFormsTest : public test::HeadlessSession
{
protected:
    std::shared_ptr<CoreFormDocument> document = session.platform().newFormDocument();
};

TEST_F(FakeFormsTest, AFormIsLoadedFilledAndPrinted)
{
    outside.forms().add(u"\\Forms\\Urkunde.zr-frm", {{u"Name", u"{NAME}"}, {u"Datum", u"{DATUM}"}});
    EXPECT_FALSE(document->Load(u"\\Forms\\missing.zr-frm"));
    ASSERT_TRUE(document->Load(u"\\forms\\urkunde.zr-frm"));
    EXPECT_EQ(document->Fields(1).Count(), 2);
    document->Fields(1).Item(1).Text(u"Ada");
    EXPECT_TRUE(document->Print(1));
    ASSERT_THAT(outside.forms().printed(), SizeIs(1));
    EXPECT_THAT(outside.forms().printed().front().texts, ElementsAre(u"Ada", u"{DATUM}"));
    EXPECT_RAISES(document->Fields(1).Item(3), IndexOutOfBounds);
    EXPECT_RAISES(document->Fields(2), IndexOutOfBounds);
}

TEST_F(FakeFormsTest, ACancelledPrintPrintsNothing)
{
    outside.forms().add(u"\\a.zr-frm", {});
    document->Load(u"\\a.zr-frm");
    outside.forms().printAnswer(false);
    EXPECT_FALSE(document->Print(1));
    EXPECT_THAT(outside.forms().printed(), IsEmpty());
}

using RecordingInterComTest = test::HeadlessSession;

TEST_F(RecordingInterComTest, RemembersWhatWasSent)
{
    EXPECT_TRUE(session.platform().newInterCom()->Send(u"QVSTARTCENTER", 1, u"APPREADY"));
    EXPECT_THAT(outside.interCom().sent(), ElementsAre(SentMessage{u"QVSTARTCENTER", 1, u"APPREADY"}));
}

} // namespace
} // namespace phial::headless
