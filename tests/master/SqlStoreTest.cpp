#include "master/SqlStore.h"

#include "PostgresServer.h"
#include "support/AppSession.h"

#include <QSqlDatabase>
#include <QSqlQuery>

#include <filesystem>
#include <gmock/gmock.h>
#include <limits>

using namespace phial;
using namespace phial::master;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

namespace
{

/// A second apart, as the store keeps time.
Moment at(int second)
{
    return Moment::fromCalendar({2026, 11, 20, 8, 15, second});
}

Result resultOf(StringView name, int second = 0)
{
    return {at(second), {String(name), u"login", u"PC 7"}, u"Säuren \U0001F9EA", -7.25, 1e100, u"QV1;0;"};
}

PupilEvent eventOf(StringView action)
{
    return {at(1), {u"Zoë", u"", u"PC'7\"; --"}, String(action), u"QV1;0;"};
}

/// The moments of results agree to the second; everything else to the last bit.
void expectEqual(const Result& left, const Result& right)
{
    EXPECT_NEAR(left.at.days, right.at.days, 1e-9);
    Result same = left;
    same.at = right.at;
    EXPECT_EQ(same, right);
}

constexpr FrameId LargeId{std::numeric_limits<std::uint64_t>::max(), 1ULL << 63U};

/// Where a store's tests take their databases from.
class Databases
{
public:
    virtual ~Databases() = default;
    virtual std::string newPlace() = 0;
};

class Files final : public Databases
{
public:
    std::string newPlace() override
    {
        return (folder_.native() / ("room" + std::to_string(++count_) + ".sqlite")).string();
    }

private:
    phial::test::TemporaryFolder folder_;
    int count_ = 0;
};

class Server final : public Databases
{
public:
    std::string newPlace() override { return running().newDatabase(); }

    /// One for all tests of this process.
    static phial::test::PostgresServer& running()
    {
        static phial::test::PostgresServer server;
        EXPECT_EQ(server.trouble(), "");
        return server;
    }
};

template <typename Kind>
class SqlStoreTest : public phial::test::AppSession
{
protected:
    SqlStoreTest() : place_(*parseStorePlace(databases_.newPlace())) { open(); }

    void open()
    {
        store_.reset();
        store_ = std::make_unique<SqlStore>(place_);
    }

    Kind databases_;
    StorePlace place_;
    std::unique_ptr<SqlStore> store_;
};

using Kinds = testing::Types<Files, Server>;
TYPED_TEST_SUITE(SqlStoreTest, Kinds);

TYPED_TEST(SqlStoreTest, IsEmptyAtFirst)
{
    SqlStore& store = *this->store_;
    EXPECT_EQ(store.app(), u"");
    EXPECT_THAT(store.latestResults(10), IsEmpty());
    EXPECT_THAT(store.latestEvents(10), IsEmpty());
    EXPECT_THAT(store.modules(), IsEmpty());
    EXPECT_THAT(store.settings(), IsEmpty());
    EXPECT_THAT(store.logOns(), IsEmpty());
    EXPECT_FALSE(store.answerTo(LargeId));
    EXPECT_FALSE(store.scoreList(u"SALZE"));
}

TYPED_TEST(SqlStoreTest, KeepsEverythingThatWasCommitted)
{
    this->store_->keepAnswer(LargeId, u"008:1", at(0));
    this->store_->addResult(resultOf(u"Anna"));
    this->store_->addSubmission(u"SALZE", resultOf(u"Ben"), u"-1");
    this->store_->addEvent(eventOf(u"Übung begonnen"));
    this->store_->keepScoreList(u"SALZE", u"QV1;...");
    this->store_->keepSetting(u"WELCOMEMESSAGE", u"Grüß Gott");
    this->store_->keepApp(u"Molmasse");
    const LogOn logOn{LargeId.sender, u"Zoë", u"fe80::1", at(7)};
    this->store_->keepLogOn(logOn);
    this->store_->commit();
    this->open();

    SqlStore& store = *this->store_;
    EXPECT_EQ(store.answerTo(LargeId), u"008:1");
    ASSERT_EQ(store.latestResults(10).size(), 1U);
    expectEqual(store.latestResults(10).front(), resultOf(u"Anna"));
    ASSERT_EQ(store.latestEvents(10).size(), 1U);
    EXPECT_EQ(store.latestEvents(10).front().action, u"Übung begonnen");
    EXPECT_EQ(store.latestEvents(10).front().sender, eventOf(u"").sender);
    EXPECT_THAT(store.modules(), ElementsAre(u"SALZE"));
    EXPECT_EQ(store.scoreList(u"SALZE"), u"QV1;...");
    EXPECT_THAT(store.settings(), ElementsAre(Pair(u"WELCOMEMESSAGE", u"Grüß Gott")));
    EXPECT_EQ(store.app(), u"Molmasse");
    ASSERT_EQ(store.logOns().size(), 1U);
    EXPECT_EQ(store.logOns().front().client, logOn.client);
    EXPECT_EQ(store.logOns().front().name, logOn.name);
}

TYPED_TEST(SqlStoreTest, DropsWhatWasNotCommitted)
{
    this->store_->addResult(resultOf(u"Anna"));
    this->store_->commit();
    this->store_->addResult(resultOf(u"Ben"));
    this->store_->keepAnswer({1, 2}, u"008:OK", at(0));
    EXPECT_EQ(this->store_->latestResults(10).size(), 2U); // questions see the changes
    this->store_->rollBack();
    EXPECT_EQ(this->store_->latestResults(10).size(), 1U);
    EXPECT_FALSE(this->store_->answerTo({1, 2}));

    this->store_->addResult(resultOf(u"Cem"));
    this->open(); // without a commit
    EXPECT_EQ(this->store_->latestResults(10).size(), 1U);
}

TYPED_TEST(SqlStoreTest, ReplacesListsSettingsAndTheApp)
{
    SqlStore& store = *this->store_;
    for (const StringView text : {u"first", u"second"}) {
        store.keepScoreList(u"SALZE", String(text));
        store.keepSetting(u"TEMPO", String(text));
        store.keepApp(String(text));
        store.keepLogOn({5, String(text), u"::1", at(0)});
    }
    store.commit();
    EXPECT_EQ(store.scoreList(u"SALZE"), u"second");
    EXPECT_THAT(store.settings(), ElementsAre(Pair(u"TEMPO", u"second")));
    EXPECT_EQ(store.app(), u"second");
    EXPECT_EQ(store.logOns().front().name, u"second");

    store.keepSetting(u"TEMPO", std::nullopt);
    store.keepApp({});
    store.forgetLogOn(5);
    store.commit();
    EXPECT_THAT(store.settings(), IsEmpty());
    EXPECT_EQ(store.app(), u"");
    EXPECT_THAT(store.logOns(), IsEmpty());
}

TYPED_TEST(SqlStoreTest, GivesTheLatestInTheOrderInWhichTheyCame)
{
    SqlStore& store = *this->store_;
    for (const StringView name : {u"Anna", u"Ben", u"Cem"}) {
        store.addResult(resultOf(name));
    }
    std::vector<String> latest;
    for (const Result& result : store.latestResults(2)) {
        latest.push_back(result.sender.screenName);
    }
    EXPECT_THAT(latest, ElementsAre(u"Ben", u"Cem"));

    std::vector<String> all;
    store.visitResults([&](const Result& result) { all.push_back(result.sender.screenName); });
    EXPECT_THAT(all, ElementsAre(u"Anna", u"Ben", u"Cem"));
}

TYPED_TEST(SqlStoreTest, ForgetsAnswersAndLogOnsBeforeAMoment)
{
    SqlStore& store = *this->store_;
    store.keepAnswer({1, 1}, u"old", at(10));
    store.keepAnswer({1, 2}, u"new", at(20));
    store.keepLogOn({1, u"old", u"", at(10)});
    store.keepLogOn({2, u"new", u"", at(20)});
    store.forgetAnswers(at(15));
    store.forgetLogOns(at(15));
    store.commit();
    EXPECT_FALSE(store.answerTo({1, 1}));
    EXPECT_EQ(store.answerTo({1, 2}), u"new");
    ASSERT_EQ(store.logOns().size(), 1U);
    EXPECT_EQ(store.logOns().front().client, 2U);
}

TYPED_TEST(SqlStoreTest, AMessageHasOneAnswer)
{
    this->store_->keepAnswer({1, 1}, u"008:OK", at(0));
    this->store_->commit();
    EXPECT_THROW(this->store_->keepAnswer({1, 1}, u"008:2", at(0)), StoreError);
    this->store_->rollBack();
    EXPECT_EQ(this->store_->answerTo({1, 1}), u"008:OK");
}

TYPED_TEST(SqlStoreTest, CanBeLookedIntoBesideAMasterThatRuns)
{
    this->store_->addResult(resultOf(u"Anna"));
    this->store_->commit();
    SqlStore look(this->place_, StoreUse::Look);
    EXPECT_EQ(look.latestResults(10).size(), 1U);
    this->store_->addResult(resultOf(u"Ben"));
    this->store_->commit();
    EXPECT_EQ(look.latestResults(10).size(), 2U);
}

TYPED_TEST(SqlStoreTest, APlaceWithoutTablesCannotBeLookedInto)
{
    const auto place = parseStorePlace(this->databases_.newPlace());
    try {
        const SqlStore look(*place, StoreUse::Look);
        FAIL() << "opened";
    } catch (const StoreError& error) {
        EXPECT_EQ(error.reason(), StoreError::Reason::Missing);
    }
}

TYPED_TEST(SqlStoreTest, LeavesTablesOfALaterVersionAlone)
{
    this->store_->addResult(resultOf(u"Anna"));
    this->store_->commit();
    {
        SqlConnection database(this->place_, StoreUse::Look);
        EXPECT_FALSE(database.isEmpty());
    }
    this->store_.reset();
    {
        SqlConnection database(this->place_, StoreUse::Serve);
        database.change("UPDATE state SET value = '2' WHERE name = 'schema'");
        database.commit();
    }
    try {
        this->open();
        FAIL() << "opened";
    } catch (const StoreError& error) {
        EXPECT_EQ(error.reason(), StoreError::Reason::LaterVersion);
    }
}

class SqliteFileTest : public phial::test::AppSession
{
protected:
    std::filesystem::path file() const { return folder.native() / "master.sqlite"; }
    StorePlace place() const { return *parseStorePlace(file().string()); }

    void fillAndClose() const
    {
        SqlStore store(place());
        for (int round = 0; round < 200; ++round) {
            store.addResult(resultOf(u"Anna"));
        }
        store.commit();
    }
};

TEST_F(SqliteFileTest, AFileThatIsNoDatabaseIsKeptAsideAndANewOneBegins)
{
    folder.write("master.sqlite", "This is a letter to the parents, and quite a long one.");
    SqlStore store(place());
    EXPECT_EQ(store.keptAside(), folder.native() / "master.sqlite.damaged");
    EXPECT_EQ(folder.read("master.sqlite.damaged"), "This is a letter to the parents, and quite a long one.");
    store.addResult(resultOf(u"Anna"));
    store.commit();
    EXPECT_EQ(store.latestResults(10).size(), 1U);
}

TEST_F(SqliteFileTest, ADamagedDatabaseIsKeptAsideByteForByte)
{
    fillAndClose();
    std::string bytes = folder.read("master.sqlite");
    bytes.resize(bytes.size() / 2);
    bytes.replace(4096, 2048, std::string(2048, 'x'));
    folder.write("master.sqlite", bytes);

    const SqlStore store(place());
    EXPECT_FALSE(store.keptAside().empty());
    EXPECT_EQ(folder.read(store.keptAside().filename()), bytes);
}

TEST_F(SqliteFileTest, ADatabaseOfAnotherProgramIsLeftAlone)
{
    {
        SqlConnection database(place(), StoreUse::Serve);
        database.change("CREATE TABLE recipes (name TEXT)");
        database.commit();
    }
    try {
        const SqlStore store(place());
        FAIL() << "opened";
    } catch (const StoreError& error) {
        EXPECT_EQ(error.reason(), StoreError::Reason::OtherProgram);
    }
    SqlConnection database(place(), StoreUse::Look);
    EXPECT_TRUE(database.hasTable(QStringLiteral("recipes")));
    EXPECT_FALSE(database.hasTable(QStringLiteral("state")));
}

TEST_F(SqliteFileTest, OnlyItsUserReadsTheFile)
{
    fillAndClose();
    using std::filesystem::perms;
    EXPECT_EQ(std::filesystem::status(file()).permissions(), perms::owner_read | perms::owner_write);
}

TEST_F(SqliteFileTest, EachCommitIsFlushed)
{
    SqlConnection database(place(), StoreUse::Serve);
    const auto text = [](const QSqlQuery& row) { return row.value(0).toString().toStdString(); };
    EXPECT_EQ(database.firstRow("PRAGMA journal_mode", {}, text), "wal");
    EXPECT_EQ(database.firstRow("PRAGMA synchronous", {}, text), "2");
}

TEST_F(SqliteFileTest, AFolderThatCannotBeMadeIsAnError)
{
    folder.write("file", "");
    EXPECT_THROW(SqlStore(*parseStorePlace((folder.native() / "file" / "x.sqlite").string())), StoreError);
}

class PostgresTest : public phial::test::AppSession
{
protected:
    StorePlace place_ = *parseStorePlace(Server::running().newDatabase());
};

TEST_F(PostgresTest, AnotherMasterIsKeptOut)
{
    const SqlStore store(place_);
    try {
        const SqlStore second(place_);
        FAIL() << "opened";
    } catch (const StoreError& error) {
        EXPECT_EQ(error.reason(), StoreError::Reason::InUse);
    }
}

TEST_F(PostgresTest, ALostConnectionFailsOneTransactionAndIsMadeAnew)
{
    SqlStore store(place_);
    store.addResult(resultOf(u"Anna"));
    store.commit();
    store.addResult(resultOf(u"Ben"));
    Server::running().endConnections();
    EXPECT_THROW(store.commit(), StoreError);
    store.rollBack();

    store.addResult(resultOf(u"Cem"));
    store.commit();
    EXPECT_EQ(store.latestResults(10).size(), 2U);
}

TEST_F(PostgresTest, AConnectionLostBetweenTransactionsIsMadeAnew)
{
    SqlStore store(place_);
    Server::running().endConnections();
    EXPECT_THROW(store.app(), StoreError);
    store.rollBack();
    EXPECT_EQ(store.app(), u"");
}

TEST_F(PostgresTest, AServerThatIsNotThereIsAnError)
{
    EXPECT_THROW(SqlStore(*parseStorePlace("postgresql:///x?host=" + folder.native().string())), StoreError);
}

} // namespace
