// What every store must do, on the kind of database of the program that this file is part of.

#include "master/SqlStore.h"

#include "StoreSamples.h"
#include "support/AppSession.h"

#include <gmock/gmock-more-matchers.h>
#include <limits>
#include <memory>

using namespace phial;
using namespace phial::master;
using phial::test::at;
using phial::test::eventOf;
using phial::test::resultOf;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using testing::UnorderedElementsAre;

namespace
{

/// The moments of results agree to the second; everything else to the last bit.
void expectEqual(const Result& left, const Result& right)
{
    EXPECT_NEAR(left.at.days, right.at.days, 1e-9);
    Result same = left;
    same.at = right.at;
    EXPECT_EQ(same, right);
}

std::vector<String> names(const std::vector<KeptResult>& results)
{
    std::vector<String> names;
    for (const KeptResult& kept : results) {
        names.push_back(kept.result.sender.screenName);
    }
    return names;
}

constexpr FrameId LargeId{std::numeric_limits<std::uint64_t>::max(), 1ULL << 63U};

class SqlStoreTest : public phial::test::AppSession
{
protected:
    void open()
    {
        store_.reset();
        store_ = std::make_unique<SqlStore>(place_);
    }

    StorePlace place_ = *parseStorePlace(phial::test::newStorePlace());
    std::unique_ptr<SqlStore> store_ = std::make_unique<SqlStore>(place_);
};

TEST_F(SqlStoreTest, IsEmptyAtFirst)
{
    SqlStore& store = *store_;
    EXPECT_EQ(store.app(), u"");
    EXPECT_THAT(store.latestResults(10), IsEmpty());
    EXPECT_THAT(store.latestEvents(10), IsEmpty());
    EXPECT_THAT(store.modules(), IsEmpty());
    EXPECT_THAT(store.settings(), IsEmpty());
    EXPECT_THAT(store.logOns(), IsEmpty());
    EXPECT_FALSE(store.answerTo(LargeId));
    EXPECT_FALSE(store.scoreList(u"SALZE"));
}

TEST_F(SqlStoreTest, KeepsEverythingThatWasCommitted)
{
    store_->keepAnswer(LargeId, u"008:1", at(0));
    store_->addResult(resultOf(u"Anna"));
    store_->addSubmission(u"SALZE", resultOf(u"Ben"), u"-1");
    store_->addEvent(eventOf(u"Übung begonnen"));
    store_->keepScoreList(u"SALZE", u"QV1;...");
    store_->keepSetting(u"WELCOMEMESSAGE", u"Grüß Gott");
    store_->keepApp(u"Molmasse");
    const LogOn logOn{LargeId.sender, u"Zoë", u"fe80::1", at(7)};
    store_->keepLogOn(logOn);
    store_->commit();
    open();

    SqlStore& store = *store_;
    EXPECT_EQ(store.answerTo(LargeId), u"008:1");
    ASSERT_EQ(store.latestResults(10).size(), 1U);
    expectEqual(store.latestResults(10).front().result, resultOf(u"Anna"));
    EXPECT_EQ(store.latestResults(10).front().number, 1);
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

TEST_F(SqlStoreTest, DropsWhatWasNotCommitted)
{
    store_->addResult(resultOf(u"Anna"));
    store_->commit();
    store_->addResult(resultOf(u"Ben"));
    store_->keepAnswer({1, 2}, u"008:OK", at(0));
    EXPECT_EQ(store_->latestResults(10).size(), 2U); // questions see the changes
    store_->rollBack();
    EXPECT_EQ(store_->latestResults(10).size(), 1U);
    EXPECT_FALSE(store_->answerTo({1, 2}));

    store_->addResult(resultOf(u"Cem"));
    open(); // without a commit
    EXPECT_EQ(store_->latestResults(10).size(), 1U);
}

TEST_F(SqlStoreTest, ReplacesListsSettingsAndTheApp)
{
    SqlStore& store = *store_;
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

TEST_F(SqlStoreTest, GivesTheLatestInTheOrderInWhichTheyCame)
{
    SqlStore& store = *store_;
    for (const StringView name : {u"Anna", u"Ben", u"Cem"}) {
        store.addResult(resultOf(name));
    }
    EXPECT_THAT(names(store.latestResults(2)), ElementsAre(u"Ben", u"Cem"));
    EXPECT_THAT(names(store.resultsAfter(0, 10)), ElementsAre(u"Anna", u"Ben", u"Cem"));
    EXPECT_THAT(names(store.resultsAfter(0, 2)), ElementsAre(u"Anna", u"Ben"));
    EXPECT_THAT(names(store.resultsAfter(2, 2)), ElementsAre(u"Cem"));
    EXPECT_THAT(store.resultsAfter(3, 2), IsEmpty());
}

TEST_F(SqlStoreTest, AResultCanBeTakenAway)
{
    SqlStore& store = *store_;
    for (const StringView name : {u"Anna", u"Ben"}) {
        store.addResult(resultOf(name));
    }
    store.commit();
    open(); // nothing is in memory
    ASSERT_TRUE(store_->result(2));
    expectEqual(*store_->result(2), resultOf(u"Ben"));
    store_->removeResult(2);
    store_->addResult(resultOf(u"Cem"));
    store_->commit();
    EXPECT_FALSE(store_->result(2)) << "no other one gets its number";
    EXPECT_THAT(names(store_->latestResults(10)), ElementsAre(u"Anna", u"Cem"));
}

TEST_F(SqlStoreTest, TellsWhoHasHandedInSinceAMoment)
{
    SqlStore& store = *store_;
    store.addResult(resultOf(u"Anna", 10));
    store.addResult(resultOf(u"Ben", 20));
    store.addResult(resultOf(u"Ben", 30));
    store.commit();
    const auto handedIn = store.handedInSince(at(20));
    ASSERT_EQ(handedIn.size(), 1U);
    EXPECT_EQ(handedIn.front().screenName, u"Ben");
    EXPECT_NEAR(handedIn.front().latest.days, at(30).days, 1e-9);
    EXPECT_EQ(store.handedInSince(at(0)).size(), 2U);
}

TEST_F(SqlStoreTest, ANameIsCorrectedWhereverItStands)
{
    SqlStore& store = *store_;
    store.addResult(resultOf(u"Ana"));
    store.addSubmission(u"SALZE", resultOf(u"Ben"), u"1");
    store.addEvent(eventOf(u"Start")); // of Zoë
    store.keepLogOn({1, u"Cem", u"10.0.0.1", at(0)});
    EXPECT_THAT(store.screenNames(), UnorderedElementsAre(u"Ana", u"Ben", u"Zoë", u"Cem"));
    for (const StringView name : {u"Ana", u"Ben", u"Zoë", u"Cem"}) {
        store.renamePupil(String(name), u"Anna");
    }
    store.commit();
    EXPECT_THAT(store.screenNames(), ElementsAre(u"Anna"));
    EXPECT_EQ(store.logOns().front().name, u"Anna");
    EXPECT_EQ(store.latestEvents(1).front().sender.screenName, u"Anna");
}

TEST_F(SqlStoreTest, KeepsChangesAndOriginsOfLists)
{
    const Change change{at(0), u"remove", u"SALZE 1: Anna"};
    store_->addChange({at(0), u"rename", u"Ana > Anna"});
    store_->addChange(change);
    store_->keepScoreList(u"SALZE", u"QV1;...");
    store_->keepListOrigin({u"SALZE", u"10.0.0.1", at(5)});
    store_->commit();
    open();
    EXPECT_EQ(store_->latestChanges(10).size(), 2U);
    ASSERT_EQ(store_->latestChanges(1).size(), 1U);
    EXPECT_EQ(store_->latestChanges(1).front().action, change.action);
    EXPECT_EQ(store_->latestChanges(1).front().about, change.about);
    ASSERT_EQ(store_->listOrigins().size(), 1U);
    EXPECT_EQ(store_->listOrigins().front().address, u"10.0.0.1");
    store_->removeScoreList(u"SALZE");
    store_->commit();
    EXPECT_THAT(store_->modules(), IsEmpty());
    EXPECT_THAT(store_->listOrigins(), IsEmpty());
}

TEST_F(SqlStoreTest, ForgetsAnswersAndLogOnsBeforeAMoment)
{
    SqlStore& store = *store_;
    store.keepAnswer({1, 1}, u"old", at(10));
    store.keepAnswer({1, 2}, u"new", at(20));
    store.keepLogOn({1, u"old", u"", at(10)});
    store.keepLogOn({2, u"new", u"", at(20)});
    EXPECT_EQ(store.forgetAnswers(at(15), 10, 100), 1U);
    store.forgetLogOns(at(15));
    store.commit();
    EXPECT_FALSE(store.answerTo({1, 1}));
    EXPECT_EQ(store.answerTo({1, 2}), u"new");
    ASSERT_EQ(store.logOns().size(), 1U);
    EXPECT_EQ(store.logOns().front().client, 2U);
}

TEST_F(SqlStoreTest, KeepsTheLatestAnswersWhereThereAreTooMany)
{
    for (int second = 1; second <= 5; ++second) {
        store_->keepAnswer({1, static_cast<std::uint64_t>(second)}, u"008:OK", at(second));
    }
    EXPECT_EQ(store_->forgetAnswers(at(0), 5, 100), 0U);
    EXPECT_TRUE(store_->answerTo({1, 1}));
    EXPECT_EQ(store_->forgetAnswers(at(0), 2, 1), 1U) << "a part at a time";
    EXPECT_EQ(store_->forgetAnswers(at(0), 2, 100), 2U);
    EXPECT_FALSE(store_->answerTo({1, 3}));
    EXPECT_TRUE(store_->answerTo({1, 4}));
    EXPECT_TRUE(store_->answerTo({1, 5}));
}

TEST_F(SqlStoreTest, AMessageHasOneAnswer)
{
    store_->keepAnswer({1, 1}, u"008:OK", at(0));
    store_->commit();
    EXPECT_THROW(store_->keepAnswer({1, 1}, u"008:2", at(0)), StoreError);
    store_->rollBack();
    EXPECT_EQ(store_->answerTo({1, 1}), u"008:OK");
}

TEST_F(SqlStoreTest, CanBeLookedIntoBesideAMasterThatRuns)
{
    store_->addResult(resultOf(u"Anna"));
    store_->commit();
    SqlStore look(place_, StoreUse::Look);
    EXPECT_EQ(look.latestResults(10).size(), 1U);
    store_->addResult(resultOf(u"Ben"));
    store_->commit();
    EXPECT_EQ(look.latestResults(10).size(), 2U);
}

TEST_F(SqlStoreTest, SettingsCanBeChangedBesideAMasterThatRuns)
{
    SqlStore beside(place_, StoreUse::Change);
    beside.keepSetting(u"TEMPO", u"3");
    beside.keepApp(u"Molmasse");
    beside.commit();
    EXPECT_THAT(store_->settings(), ElementsAre(Pair(u"TEMPO", u"3")));
    EXPECT_EQ(store_->app(), u"Molmasse");
    store_->keepSetting(u"TEMPO", u"4");
    store_->commit();
    EXPECT_THAT(beside.settings(), ElementsAre(Pair(u"TEMPO", u"4")));
}

TEST_F(SqlStoreTest, ADatabaseOfBeforeGetsTheTablesThatHaveJoined)
{
    store_->addResult(resultOf(u"Anna"));
    store_->commit();
    store_.reset();
    {
        SqlConnection database(place_, StoreUse::Serve);
        database.change("DROP TABLE changes");
        database.change("DROP TABLE list_origins");
        database.commit();
    }
    {
        SqlStore look(place_, StoreUse::Look);
        EXPECT_THAT(look.latestChanges(10), IsEmpty());
        EXPECT_THAT(look.listOrigins(), IsEmpty());
        EXPECT_EQ(look.latestResults(10).size(), 1U);
    }
    open();
    store_->addChange({at(0), u"remove", u"SALZE 1"});
    store_->commit();
    EXPECT_EQ(store_->latestChanges(10).size(), 1U);
    EXPECT_EQ(store_->latestResults(10).size(), 1U);
}

TEST_F(SqlStoreTest, APlaceWithoutTablesCannotBeLookedInto)
{
    const auto place = parseStorePlace(phial::test::newStorePlace());
    try {
        const SqlStore look(*place, StoreUse::Look);
        FAIL() << "opened";
    } catch (const StoreError& error) {
        EXPECT_EQ(error.reason(), StoreError::Reason::Missing);
    }
}

TEST_F(SqlStoreTest, LeavesTablesOfALaterVersionAlone)
{
    store_->addResult(resultOf(u"Anna"));
    store_->commit();
    {
        SqlConnection database(place_, StoreUse::Look);
        EXPECT_FALSE(database.isEmpty());
    }
    store_.reset();
    {
        SqlConnection database(place_, StoreUse::Serve);
        database.change("UPDATE state SET value = '2' WHERE name = 'schema'");
        database.commit();
    }
    try {
        open();
        FAIL() << "opened";
    } catch (const StoreError& error) {
        EXPECT_EQ(error.reason(), StoreError::Reason::LaterVersion);
    }
}

} // namespace
