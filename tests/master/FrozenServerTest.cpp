// A database server that stands still: whoever does not need it is answered, the others are told so in time,
// and what they were told was not taken in never appears.

#include "PostgresServer.h"
#include "StoreSamples.h"
#include "WireClient.h"
#include "core/CoreParameters.h"
#include "core/CoreValuePacker.h"
#include "core/NumberText.h"
#include "master/MasterServer.h"
#include "master/SqlStore.h"
#include "master/StoreThread.h"
#include "qt/Eventually.h"
#include "qt/base/QtClock.h"
#include "server/WireText.h"
#include "support/AppSession.h"

#include <QTimer>

#include <gmock/gmock-matchers.h>
#include <set>

using namespace phial;
using namespace phial::master;
using phial::test::eventually;
using phial::test::WireClient;

namespace
{

class FrozenServerTest : public phial::test::AppSession
{
protected:
    FrozenServerTest()
    {
        guard_.setReporter(fail);
        QObject::connect(&tick_, &QTimer::timeout, &tick_, [this] { desk_.tick(); });
        tick_.start(std::chrono::milliseconds(50));
        EXPECT_TRUE(server_.listen({QHostAddress(QHostAddress::LocalHost), 0, 0}));
    }
    ~FrozenServerTest() override { database_.thaw(); }

    static String submission(StringView name)
    {
        return requestText(
            u"RESULTS", u"SUBMIT",
            CoreValuePacker::Pack({5.0, 10.0, u"", CoreParameters().Pack(), name, u"PC7", u"anna"}));
    }

    std::multiset<String> kept() const
    {
        std::multiset<String> names;
        for (const KeptResult& kept : SqlStore(place_, StoreUse::Look).latestResults(1000)) {
            names.insert(kept.result.sender.screenName);
        }
        return names;
    }

    static constexpr double Patience = 0.5;

    phial::test::PostgresServer database_;
    StorePlace place_ = *parseStorePlace(database_.newDatabase());
    qt::QtClock clock_;
    qt::DispatchGuard guard_;
    std::vector<String> said_;
    Notices notices_{clock_, [this](const String& line) { said_.push_back(line); }};
    StoreThread thread_{[this] { return std::make_unique<SqlStore>(place_); }, {}, guard_};
    StoreDesk desk_{thread_, clock_, {.patience = Patience}, notices_};
    Classroom classroom_{desk_, clock_, notices_, thread_.room(), thread_.logOns()};
    MasterServer server_{classroom_, desk_, clock_, {}, notices_, guard_};
    QTimer tick_;
};

TEST_F(FrozenServerTest, HoldsUpNobodyWhoDoesNotNeedItAndOthersNotForLong)
{
    WireClient client(server_.port(), 1);
    EXPECT_EQ(client.ask(submission(u"before")), u"008:OK");
    database_.freeze();
    client.send(submission(u"while"));
    WireClient other(server_.port(), 2);
    EXPECT_EQ(other.ask(u"SERVER::LOGON::Ben"), u"008:LOGON:OK");
    EXPECT_EQ(other.ask(u"SERVER::MODE::"), u"008:0");
    EXPECT_EQ(client.answers().size(), 1U);
    EXPECT_TRUE(eventually([&] { return client.answers().size() == 2; }));
    EXPECT_EQ(client.answers().back().text, u"008:ERROR");
    EXPECT_EQ(other.ask(submission(u"too")), u"008:ERROR");
    EXPECT_EQ(said_.size(), 1U);

    database_.thaw();
    EXPECT_TRUE(eventually([&] { return desk_.isIdle(); }));
    EXPECT_EQ(client.ask(submission(u"after")), u"008:OK");
    EXPECT_EQ(kept(), (std::multiset<String>{u"before", u"after"}));
    EXPECT_EQ(said_.back(), u"The database answers again.");
}

TEST_F(FrozenServerTest, KeepsWhatItAnsweredAndNothingThatItRefusedThroughManyFreezes)
{
    std::multiset<String> confirmed;
    int number = 0;
    for (int round = 0; round < 5; ++round) {
        std::vector<std::unique_ptr<WireClient>> clients;
        std::vector<String> names;
        for (std::uint64_t at = 0; at < 20; ++at) {
            clients.push_back(std::make_unique<WireClient>(
                server_.port(), 100 + at + 100 * static_cast<std::uint64_t>(round)));
            names.push_back(u"P" + plainText(++number));
            clients.back()->send(submission(names.back()));
            if (at == 4 * static_cast<std::uint64_t>(round)) {
                QCoreApplication::processEvents();
                database_.freeze(); // in the middle of whatever it does
            }
        }
        QTimer::singleShot(std::chrono::milliseconds(700), &tick_, [this] { database_.thaw(); });
        for (std::size_t at = 0; at < clients.size(); ++at) {
            WireClient& client = *clients[at];
            ASSERT_TRUE(eventually([&] { return client.answers().size() == 1; }));
            if (client.answers().front().text == u"008:OK") {
                confirmed.insert(names[at]);
            } else {
                EXPECT_EQ(client.answers().front().text, u"008:ERROR");
            }
        }
        EXPECT_TRUE(eventually([&] { return desk_.isIdle(); }));
    }
    EXPECT_EQ(kept(), confirmed);
    EXPECT_FALSE(confirmed.empty());
    EXPECT_LT(confirmed.size(), 100U);
}

TEST_F(FrozenServerTest, DoesNotKeepTheProgramFromItsEnd)
{
    database_.freeze();
    WireClient client(server_.port(), 1);
    client.send(submission(u"while"));
    EXPECT_TRUE(eventually([&] { return client.answers().size() == 1; }));
    EXPECT_FALSE(thread_.end(0.1));
    database_.thaw();
    EXPECT_TRUE(thread_.end(5));
}

} // namespace
