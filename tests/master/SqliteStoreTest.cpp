#include "StoreSamples.h"
#include "master/SqlStore.h"
#include "support/AppSession.h"

#include <QSqlQuery>

#include <filesystem>
#include <gtest/gtest.h>

using namespace phial;
using namespace phial::master;
using phial::test::resultOf;

std::string phial::test::newStorePlace()
{
    static const TemporaryFolder folder;
    static int count = 0;
    return (folder.native() / ("room" + std::to_string(++count) + ".sqlite")).string();
}

namespace
{

class SqliteFileTest : public phial::test::AppSession
{
protected:
    std::filesystem::path file() const { return folder.native() / "master.sqlite"; }
    StorePlace place() const { return *parseStorePlace(file().string()); }

    static constexpr auto OnlyOwner =
        std::filesystem::perms::owner_read | std::filesystem::perms::owner_write;
    static std::filesystem::perms rightsOf(const std::filesystem::path& file)
    {
        return std::filesystem::status(file).permissions();
    }

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

TEST_F(SqliteFileTest, OnlyItsUserReadsTheFileAndWhatLiesBesideIt)
{
    SqlStore store(place());
    store.addResult(resultOf(u"Anna"));
    store.commit();
    for (const char* ending : {"", "-wal", "-shm"}) {
        const auto part = std::filesystem::path(file()) += ending;
        ASSERT_TRUE(std::filesystem::exists(part)) << part;
        EXPECT_EQ(rightsOf(part), OnlyOwner) << part;
    }
}

TEST_F(SqliteFileTest, WhatAKilledMasterHasLeftIsReadByItsUserOnly)
{
    const std::filesystem::path elsewhere = folder.native() / "copy";
    {
        SqlStore store(place());
        store.addResult(resultOf(u"Anna"));
        store.commit();
        std::filesystem::create_directory(elsewhere);
        for (const char* name : {"master.sqlite", "master.sqlite-wal", "master.sqlite-shm"}) {
            std::filesystem::copy(folder.native() / name, elsewhere / name); // as a kill leaves them
            std::filesystem::permissions(elsewhere / name, OnlyOwner | std::filesystem::perms::others_read);
        }
    }
    SqlStore store(*parseStorePlace((elsewhere / "master.sqlite").string()));
    EXPECT_EQ(store.latestResults(10).size(), 1U);
    store.addResult(resultOf(u"Ben"));
    store.commit();
    for (const char* name : {"master.sqlite", "master.sqlite-wal", "master.sqlite-shm"}) {
        EXPECT_EQ(rightsOf(elsewhere / name), OnlyOwner) << name;
    }
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

} // namespace
