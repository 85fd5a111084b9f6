#include "master/StoreThread.h"

#include "MemoryStore.h"
#include "qt/Eventually.h"
#include "support/AppSession.h"

#include <atomic>
#include <gmock/gmock-matchers.h>
#include <thread>

using namespace phial;
using namespace phial::master;
using phial::test::eventually;
using phial::test::MemoryStore;

namespace
{

class StoreThreadTest : public phial::test::AppSession
{
protected:
    StoreThreadTest() { guard_.setReporter(fail); }

    qt::DispatchGuard guard_;
};

TEST_F(StoreThreadTest, OpensTheStoreOnItsOwnThreadAndTellsWhatItHolds)
{
    std::thread::id opener;
    StoreThread thread(
        [&opener] {
            opener = std::this_thread::get_id();
            auto store = std::make_unique<MemoryStore>();
            store->keepApp(u"Molmasse");
            store->keepSetting(u"TEMPO", u"3");
            store->keepLogOn({7, u"Anna", u"10.0.0.1", {}});
            store->commit();
            return store;
        },
        {}, guard_);
    EXPECT_NE(opener, std::this_thread::get_id());
    EXPECT_EQ(thread.room().app, u"Molmasse");
    EXPECT_EQ(thread.room().settings.value(u"TEMPO"), Variant(u"3"));
    ASSERT_EQ(thread.logOns().size(), 1U);
    EXPECT_EQ(thread.logOns().front().client, 7U);
}

TEST_F(StoreThreadTest, WhatKeepsTheStoreFromOpeningIsRaisedHere)
{
    const auto open = []() -> std::unique_ptr<MasterStore> {
        throw StoreError("the place", StoreError::Reason::InUse);
    };
    try {
        const StoreThread thread(open, {}, guard_);
        FAIL() << "opened";
    } catch (const StoreError& error) {
        EXPECT_EQ(error.reason(), StoreError::Reason::InUse);
        EXPECT_STREQ(error.what(), "the place");
    }
}

TEST_F(StoreThreadTest, CarriesUnitsOutThereAndTellsHere)
{
    StoreThread thread([] { return std::make_unique<MemoryStore>(); }, {}, guard_);
    std::thread::id worker;
    std::thread::id told;
    auto job = std::make_shared<StoreJob>();
    job->work = [&worker](ClassBook& book, auto&) {
        worker = std::this_thread::get_id();
        book.chooseApp(u"Molmasse");
        return std::make_shared<const String>(u"done");
    };
    const auto unit = std::make_shared<StoreUnit>(std::vector{job});
    thread.begin(unit, [&told] { told = std::this_thread::get_id(); });
    EXPECT_TRUE(eventually([&] { return told != std::thread::id(); }));
    EXPECT_EQ(told, std::this_thread::get_id());
    EXPECT_NE(worker, std::this_thread::get_id());
    EXPECT_EQ(*job->answer, u"done");
    EXPECT_FALSE(unit->trouble());
    ASSERT_TRUE(unit->newRoomState());
    EXPECT_EQ(unit->newRoomState()->app, u"Molmasse");
}

TEST_F(StoreThreadTest, ClosesTheStoreAtItsEndWhenTheUnitAtWorkIsDone)
{
    struct Closing : MemoryStore {
        explicit Closing(std::atomic<bool>& itsClosed) : closed(itsClosed) {}
        ~Closing() override { closed = true; }
        std::atomic<bool>& closed;
    };
    std::atomic<bool> closed = false;
    std::atomic<bool> mayGoOn = false;
    std::atomic<bool> isDone = false;
    StoreThread thread([&closed] { return std::make_unique<Closing>(closed); }, {}, guard_);
    auto job = std::make_shared<StoreJob>();
    job->work = [&](ClassBook&, auto&) -> AnswerText {
        mayGoOn.wait(false);
        isDone = true;
        return nullptr;
    };
    thread.begin(std::make_shared<StoreUnit>(std::vector{job}), [] { ADD_FAILURE() << "told at the end"; });
    EXPECT_FALSE(thread.end(0.01));
    EXPECT_FALSE(closed);
    mayGoOn = true;
    mayGoOn.notify_all();
    EXPECT_TRUE(thread.end(5));
    EXPECT_TRUE(closed && isDone);
    QCoreApplication::processEvents();
}

} // namespace
