#include "PostgresServer.h"
#include "StoreSamples.h"
#include "master/SqlStore.h"
#include "support/AppSession.h"

#include <gtest/gtest.h>

using namespace phial;
using namespace phial::master;
using phial::test::resultOf;

namespace
{

/// One for all tests of this program.
phial::test::PostgresServer& server()
{
    static phial::test::PostgresServer running;
    EXPECT_EQ(running.trouble(), "");
    return running;
}

} // namespace

std::string phial::test::newStorePlace()
{
    return server().newDatabase();
}

namespace
{

class PostgresTest : public phial::test::AppSession
{
protected:
    StorePlace place_ = *parseStorePlace(server().newDatabase());
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
    server().endConnections();
    EXPECT_THROW(store.commit(), StoreError);
    store.rollBack();

    store.addResult(resultOf(u"Cem"));
    store.commit();
    EXPECT_EQ(store.latestResults(10).size(), 2U);
}

TEST_F(PostgresTest, AConnectionLostBetweenTransactionsIsMadeAnew)
{
    SqlStore store(place_);
    server().endConnections();
    EXPECT_THROW(store.app(), StoreError);
    store.rollBack();
    EXPECT_EQ(store.app(), u"");
}

TEST_F(PostgresTest, AServerThatIsNotThereIsAnError)
{
    EXPECT_THROW(SqlStore(*parseStorePlace("postgresql:///x?host=" + folder.native().string())), StoreError);
}

} // namespace
