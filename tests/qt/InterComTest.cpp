#include "qt/Eventually.h"
#include "qt/base/InterComMessage.h"
#include "qt/base/LocalInterCom.h"

#include <QFile>
#include <QLocalServer>
#include <QLocalSocket>
#include <QUuid>

#include <gtest/gtest.h>
#include <utility>
#include <vector>

using namespace phial;
using namespace phial::qt;
using phial::test::eventually;

namespace
{

using Received = std::vector<std::pair<std::int32_t, String>>;

// A name of its own for each test, since sockets are shared by the whole desktop.
class InterComTest : public testing::Test
{
protected:
    const String name_ = QUuid::createUuid().toString().toStdU16String();
    std::shared_ptr<DispatchGuard> guard_ = std::make_shared<DispatchGuard>();
    LocalInterCom messenger_;
};

TEST_F(InterComTest, HandsNumberAndTextToTheTarget)
{
    InterComReceiver receiver(name_, guard_);
    ASSERT_TRUE(receiver.listening());
    Received received;
    const auto connection = receiver.RECEIVED.connect(
        [&](std::int32_t number, const String& text) { received.emplace_back(number, text); });

    EXPECT_TRUE(messenger_.Send(name_, 1, u"APPREADY"));
    EXPECT_TRUE(messenger_.Send(name_, -7, String(u"Grüße\0\r\n", 8)));

    EXPECT_TRUE(eventually([&] { return received.size() == 2; }));
    EXPECT_EQ(received, (Received{{1, u"APPREADY"}, {-7, String(u"Grüße\0\r\n", 8)}}));
}

TEST_F(InterComTest, FindsTheTargetWithoutRegardToCase)
{
    InterComReceiver receiver(u"qv" + name_, guard_);
    EXPECT_TRUE(messenger_.Send(u"QV" + upperCase(name_), 1, u""));
}

TEST_F(InterComTest, ReturnsAtOnceWhenTheTargetIsNotRunning)
{
    EXPECT_FALSE(messenger_.Send(name_, 1, u"APPREADY"));
}

TEST_F(InterComTest, TakesOverTheNameOfAProgramThatCrashed)
{
    QFile leftBehind(interComAddress(name_));
    ASSERT_TRUE(leftBehind.open(QIODevice::WriteOnly));
    leftBehind.close();

    const InterComReceiver receiver(name_, guard_);
    EXPECT_TRUE(receiver.listening());
}

TEST_F(InterComTest, LeavesTheNameToTheProgramThatWasFirst)
{
    const InterComReceiver first(name_, guard_);
    const InterComReceiver second(name_, guard_);
    EXPECT_TRUE(first.listening());
    EXPECT_FALSE(second.listening());
}

TEST_F(InterComTest, KeepsListeningAfterJunk)
{
    InterComReceiver receiver(name_, guard_);
    Received received;
    const auto connection = receiver.RECEIVED.connect(
        [&](std::int32_t number, const String& text) { received.emplace_back(number, text); });

    QLocalSocket junk;
    junk.connectToServer(interComAddress(name_));
    ASSERT_TRUE(junk.waitForConnected());
    junk.write("QVIC\xFF\xFF\xFF\xFFjunk");
    junk.flush();
    messenger_.Send(name_, 3, u"still there");

    EXPECT_TRUE(eventually([&] { return received.size() == 1; }));
}

TEST_F(InterComTest, ReportsWhatAHandlerRaises)
{
    InterComReceiver receiver(name_, guard_);
    int told = 0;
    guard_->setReporter([&](const String&) { ++told; });
    const auto connection =
        receiver.RECEIVED.connect([](std::int32_t, const String&) { throw std::bad_alloc(); });

    messenger_.Send(name_, 1, u"");
    EXPECT_TRUE(eventually([&] { return told == 1; }));
}

TEST(InterComMessage, WaitsForTheRestOfAMessage)
{
    const QByteArray whole = packInterCom({5, u"text"});
    InterComMessage message;
    for (qsizetype length = 0; length < whole.size(); ++length) {
        QByteArray part = whole.first(length);
        EXPECT_EQ(takeInterCom(part, message), InterComState::Incomplete) << length;
    }
}

TEST(InterComMessage, TakesOneMessageFromTheFront)
{
    QByteArray bytes = packInterCom({5, u"first"}) + packInterCom({6, u"second"});
    InterComMessage message;
    ASSERT_EQ(takeInterCom(bytes, message), InterComState::Complete);
    EXPECT_EQ(message.text, u"first");
    ASSERT_EQ(takeInterCom(bytes, message), InterComState::Complete);
    EXPECT_EQ(message.number, 6);
    EXPECT_TRUE(bytes.isEmpty());
}

TEST(InterComMessage, RefusesForeignBytesAndLengthsBeyondTheLimit)
{
    InterComMessage message;
    QByteArray foreign = "GET / HTTP/1.1";
    EXPECT_EQ(takeInterCom(foreign, message), InterComState::Malformed);
    QByteArray tooLong("QVIC\x7F\xFF\xFF\xFF", 8);
    EXPECT_EQ(takeInterCom(tooLong, message), InterComState::Malformed);
    QByteArray tooShort("QVIC\0\0\0\3", 8);
    EXPECT_EQ(takeInterCom(tooShort, message), InterComState::Malformed);
}

} // namespace
