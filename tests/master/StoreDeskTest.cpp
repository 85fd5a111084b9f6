#include "master/StoreDesk.h"

#include "TestRoom.h"
#include "support/AppSession.h"

#include <gmock/gmock-more-matchers.h>

using namespace phial;
using namespace phial::master;
using phial::test::TestRoom;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

constexpr double Patience = StoreDesk::Limits().patience;

class StoreDeskTest : public phial::test::AppSession
{
protected:
    static Result resultOf(StringView name)
    {
        return {Moment{45000.5}, {String(name), u"login", u"PC7"}, u"", 5, 10, u"QV1;0;"};
    }

    /// A job that adds a result, and notes what has become of it under that name.
    void add(StringView name, std::optional<FrameId> once = {},
             StoreDesk::Urgency urgency = StoreDesk::Urgency::Patient)
    {
        StoreJob job;
        job.once = once;
        job.work = [result = resultOf(name)](ClassBook& book, auto&) {
            book.addResult(result);
            return std::make_shared<const String>(u"done");
        };
        room_.desk.add(std::move(job), 100, ends(name), urgency);
    }
    /// One that fails in the store whatever it does.
    void addFailing(StringView name)
    {
        StoreJob job;
        job.work = [](ClassBook& book, auto&) -> AnswerText {
            book.addEvent({});
            return nullptr;
        };
        room_.store.failEvents(true);
        room_.desk.add(std::move(job), 100, ends(name));
    }
    StoreDesk::Done ends(StringView name)
    {
        return [this, name = String(name)](const JobOutcome& outcome) {
            ended_.push_back(name + (outcome.isDone ? u" done" : u" refused"));
        };
    }

    std::vector<String> kept() const
    {
        std::vector<String> names;
        for (const Result& result : room_.store.results()) {
            names.push_back(result.sender.screenName);
        }
        return names;
    }
    void wait(double seconds)
    {
        outside.clock().advance(seconds);
        room_.desk.tick();
    }

    TestRoom room_{outside.clock(), {.jobs = 5, .bytes = 1000, .unit = 3, .remembered = 4}};
    std::vector<String> ended_;
};

TEST_F(StoreDeskTest, DoesWhatHasGatheredInItsOrderAndInOneCommit)
{
    add(u"Anna");
    add(u"Ben");
    add(u"Cem");
    EXPECT_THAT(ended_, IsEmpty());
    room_.desk.start();
    EXPECT_THAT(ended_, ElementsAre(u"Anna done", u"Ben done", u"Cem done"));
    EXPECT_THAT(kept(), ElementsAre(u"Anna", u"Ben", u"Cem"));
    EXPECT_EQ(room_.store.commits(), 1);
    EXPECT_TRUE(room_.desk.isIdle());
}

TEST_F(StoreDeskTest, MoreThanAUnitGoesInSeveral)
{
    for (const StringView name : {u"Anna", u"Ben", u"Cem", u"Dora"}) {
        add(name);
    }
    room_.desk.start();
    EXPECT_THAT(kept(), ElementsAre(u"Anna", u"Ben", u"Cem", u"Dora"));
    EXPECT_EQ(room_.store.commits(), 2);
}

TEST_F(StoreDeskTest, WhatComesWhileTheStoreIsAtWorkGoesTogetherAfterwards)
{
    room_.hand.freeze();
    add(u"Anna");
    room_.desk.start();
    add(u"Ben");
    add(u"Cem");
    room_.desk.start();
    EXPECT_THAT(ended_, IsEmpty());
    EXPECT_EQ(room_.desk.waiting(), 2U);
    room_.hand.thaw();
    EXPECT_THAT(kept(), ElementsAre(u"Anna", u"Ben", u"Cem"));
    EXPECT_EQ(room_.store.commits(), 2);
}

TEST_F(StoreDeskTest, AMessageThatComesAgainJoinsItsFirstCopy)
{
    add(u"Anna", FrameId{1, 1});
    add(u"again", FrameId{1, 1});
    room_.desk.start();
    EXPECT_THAT(ended_, ElementsAre(u"Anna done", u"again done"));
    add(u"later", FrameId{1, 1});
    EXPECT_THAT(ended_, ElementsAre(u"Anna done", u"again done", u"later done"));
    EXPECT_THAT(kept(), ElementsAre(u"Anna"));
}

TEST_F(StoreDeskTest, AMessageThatAnotherMasterHasAnsweredIsNotDoneAgain)
{
    room_.store.keepAnswer({1, 1}, u"008:7", {});
    room_.store.commit();
    StoreJob job;
    job.once = FrameId{1, 1};
    job.work = [](ClassBook&, auto&) -> AnswerText {
        ADD_FAILURE() << "done again";
        return nullptr;
    };
    AnswerText answer;
    room_.desk.add(std::move(job), 0, [&answer](const JobOutcome& outcome) { answer = outcome.answer; });
    room_.desk.start();
    ASSERT_TRUE(answer);
    EXPECT_EQ(*answer, u"008:7");
}

TEST_F(StoreDeskTest, OneThatFailsDoesNotKeepOthersFromTheStore)
{
    add(u"Anna");
    addFailing(u"bad");
    add(u"Ben");
    room_.desk.start();
    EXPECT_THAT(ended_, ElementsAre(u"Anna done", u"Ben done"));
    EXPECT_THAT(room_.said, ElementsAre(u"the database reports an error: no such table"));

    wait(1);
    add(u"Cem");
    room_.desk.start();
    EXPECT_THAT(ended_, ElementsAre(u"Anna done", u"Ben done", u"Cem done"));
    wait(Patience - 1);
    EXPECT_EQ(ended_.back(), u"bad refused");
    EXPECT_THAT(kept(), ElementsAre(u"Anna", u"Ben", u"Cem"));
}

TEST_F(StoreDeskTest, WhatFailsIsTriedAgainUntilItSucceeds)
{
    room_.store.failCommits(true);
    add(u"Anna", FrameId{1, 1});
    room_.desk.start();
    wait(1);
    wait(1);
    EXPECT_THAT(ended_, IsEmpty());
    room_.store.failCommits(false);
    wait(1);
    EXPECT_THAT(ended_, ElementsAre(u"Anna done"));
    EXPECT_THAT(kept(), ElementsAre(u"Anna"));
}

TEST_F(StoreDeskTest, AnImpatientOneIsRefusedWithWhatTheStoreSays)
{
    room_.store.failCommits(true);
    StoreJob job;
    job.work = [](ClassBook&, auto&) -> AnswerText { return nullptr; };
    std::optional<StoreTrouble> trouble;
    room_.store.vanish(true);
    job.once = FrameId{1, 1};
    room_.desk.add(
        std::move(job), 0, [&trouble](const JobOutcome& outcome) { trouble = outcome.trouble; },
        StoreDesk::Urgency::Impatient);
    room_.desk.start();
    ASSERT_TRUE(trouble);
    EXPECT_EQ(trouble->text, "no route");
}

TEST_F(StoreDeskTest, AServerThatHasVanishedIsNotAskedByEachInTurn)
{
    room_.store.vanish(true);
    for (const std::uint64_t number : {1U, 2U, 3U}) {
        add(u"Anna", FrameId{1, number});
    }
    room_.desk.start();
    EXPECT_EQ(room_.desk.waiting(), 3U);
    room_.store.vanish(false);
    wait(1);
    EXPECT_EQ(room_.store.commits(), 1) << "all at once again";
    EXPECT_THAT(room_.said,
                ElementsAre(u"the database cannot be reached: no route", u"The database answers again."));
}

TEST_F(StoreDeskTest, WhenTheStoreHasFailedForLongOthersWaitNoLonger)
{
    room_.store.vanish(true);
    add(u"Anna", FrameId{1, 1});
    room_.desk.start();
    wait(Patience);
    EXPECT_THAT(ended_, ElementsAre(u"Anna refused"));
    add(u"Ben", FrameId{1, 2});
    room_.desk.start();
    EXPECT_THAT(ended_, ElementsAre(u"Anna refused", u"Ben refused"));

    room_.store.vanish(false);
    add(u"Cem", FrameId{1, 3});
    room_.desk.start();
    EXPECT_THAT(ended_, ElementsAre(u"Anna refused", u"Ben refused", u"Cem done"));
    EXPECT_THAT(kept(), ElementsAre(u"Cem"));
}

TEST_F(StoreDeskTest, WhatAFrozenStoreDoesNotDoInTimeIsRefusedAndNeverKept)
{
    room_.hand.freeze();
    add(u"Anna", FrameId{1, 1});
    room_.desk.start();
    add(u"Ben", FrameId{1, 2});
    wait(Patience - 1);
    EXPECT_THAT(ended_, IsEmpty());
    wait(1);
    EXPECT_THAT(ended_, ElementsAre(u"Anna refused", u"Ben refused"));
    add(u"Cem", FrameId{1, 3});
    EXPECT_EQ(ended_.back(), u"Cem refused") << "at once, since nobody knows when the store comes back";
    EXPECT_THAT(room_.said, ElementsAre(u"The database does not answer. What is handed in now stays on the "
                                        u"pupils' computers."));

    room_.hand.thaw();
    add(u"Anna again", FrameId{1, 1});
    EXPECT_EQ(ended_.back(), u"Anna again refused") << "its client has been told so";
    add(u"Dora", FrameId{1, 4});
    room_.desk.start();
    EXPECT_EQ(ended_.back(), u"Dora done");
    EXPECT_THAT(kept(), ElementsAre(u"Dora"));
    EXPECT_EQ(room_.said.back(), u"The database answers again.");
}

TEST_F(StoreDeskTest, WhatIsBeingCommittedIsNotRefusedHoweverLongItTakes)
{
    room_.store.onCommit([this] {
        wait(Patience);
        EXPECT_THAT(ended_, IsEmpty());
        add(u"Ben", FrameId{1, 2});
        EXPECT_THAT(ended_, ElementsAre(u"Ben refused"));
    });
    add(u"Anna", FrameId{1, 1});
    room_.desk.start();
    EXPECT_THAT(ended_, ElementsAre(u"Ben refused", u"Anna done"));
    EXPECT_THAT(kept(), ElementsAre(u"Anna"));
}

TEST_F(StoreDeskTest, WhatMayHaveBeenCommittedIsNotRefusedUntilTheStoreCanTell)
{
    room_.store.failCommits(true);
    add(u"Anna", FrameId{1, 1});
    room_.desk.start();
    room_.store.vanish(true);
    wait(Patience);
    wait(Patience);
    EXPECT_THAT(ended_, IsEmpty()) << "perhaps it was kept";
    room_.store.vanish(false);
    room_.store.failCommits(false);
    wait(1);
    EXPECT_THAT(ended_, ElementsAre(u"Anna done"));
    EXPECT_THAT(kept(), ElementsAre(u"Anna"));
}

TEST_F(StoreDeskTest, MoreThanItsBoundIsRefused)
{
    room_.hand.freeze();
    add(u"at work");
    room_.desk.start();
    for (int number = 1; number <= 5; ++number) {
        add(u"waits");
    }
    EXPECT_THAT(ended_, IsEmpty());
    add(u"one more", FrameId{1, 1});
    EXPECT_THAT(ended_, ElementsAre(u"one more refused"));
    EXPECT_THAT(room_.said, ElementsAre(u"More comes than the database can take; a part is refused."));
    room_.hand.thaw();
    EXPECT_EQ(kept().size(), 6U);
    add(u"later");
    room_.desk.start();
    EXPECT_EQ(ended_.back(), u"later done");
}

TEST_F(StoreDeskTest, BytesAreBoundedToo)
{
    StoreJob job;
    job.work = [](ClassBook&, auto&) -> AnswerText { return nullptr; };
    room_.desk.add(job, 1001, ends(u"large"));
    EXPECT_THAT(ended_, ElementsAre(u"large refused"));
    room_.desk.add(job, 1000, ends(u"fits"));
    room_.desk.start();
    EXPECT_EQ(ended_.back(), u"fits done");
    room_.desk.add(job, 1000, ends(u"fits again"));
    room_.desk.start();
    EXPECT_EQ(ended_.back(), u"fits again done");
}

TEST_F(StoreDeskTest, RemembersTheEndsOfSomeMessages)
{
    for (const std::uint64_t number : {1U, 2U, 3U, 4U, 5U}) {
        add(u"Anna", FrameId{1, number});
    }
    room_.desk.start();
    ended_.clear();
    add(u"known", FrameId{1, 2});
    EXPECT_THAT(ended_, ElementsAre(u"known done"));
    add(u"forgotten", FrameId{1, 1});
    EXPECT_EQ(ended_.size(), 1U);
    room_.desk.start(); // the store knows it
    EXPECT_EQ(ended_.back(), u"forgotten done");
    EXPECT_EQ(kept().size(), 5U);
}

TEST_F(StoreDeskTest, ManyThatFailAloneAreNotAllTriedAtOnce)
{
    TestRoom room(outside.clock(), {.unit = 100});
    room.store.failEvents(true);
    int tries = 0;
    for (int number = 0; number < 50; ++number) {
        StoreJob job;
        job.work = [&tries](ClassBook& book, auto&) -> AnswerText {
            ++tries;
            book.addEvent({});
            return nullptr;
        };
        room.desk.add(std::move(job), 0, {});
    }
    room.desk.start();
    EXPECT_EQ(tries, 9) << "the first of all, and eight alone";
    EXPECT_EQ(room.desk.waiting(), 50U);
}

TEST_F(StoreDeskTest, WhatAJobFindsIsToldWhenItIsKept)
{
    room_.store.failCommits(true);
    StoreJob job;
    job.work = [](ClassBook&, std::vector<NoticeCase>& rNotices) -> AnswerText {
        rNotices.push_back({Notice::ListBegun, {u"10.0.0.1", u"SALZE"}});
        return nullptr;
    };
    room_.desk.add(std::move(job), 0, {});
    room_.desk.start();
    room_.store.failCommits(false);
    wait(1);
    EXPECT_THAT(room_.said, ElementsAre(u"the database reports an error: the disk is full",
                                        u"10.0.0.1 has begun a new highscore: SALZE."));
}

} // namespace
