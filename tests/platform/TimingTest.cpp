#include "core/CoreTiming.h"
#include "core/RuntimeError.h"
#include "core/TimerQueue.h"
#include "support/HeadlessSession.h"

#include <gmock/gmock-matchers.h>

namespace phial
{
namespace
{

using ::testing::ElementsAre;

class Timing : public test::HeadlessSession
{
protected:
    CoreTiming& timing = session.root().CoreTiming();
    EventPump& pump = *session.platform().pump;
};

TEST_F(Timing, TimeMovesInWaitsOnly)
{
    EXPECT_EQ(timing.Now(), 0);
    timing.Wait(0.05, false);
    timing.Wait(1.5, true);
    EXPECT_DOUBLE_EQ(timing.Now(), 1.55);
    timing.Wait(-1, true);
    timing.Wait(0, false);
    EXPECT_DOUBLE_EQ(timing.Now(), 1.55);
}

TEST_F(Timing, TheDateMovesWithTheTime)
{
    const Moment before = outside.clock().moment();
    timing.Wait(86400, false);
    EXPECT_DOUBLE_EQ(outside.clock().moment().days, before.days + 1);
}

TEST_F(Timing, ATimerTicksAtEachIntervalOfAPumpedWait)
{
    std::vector<double> ticks;
    const Connection timer = pump.startTimer(50, [&] { ticks.push_back(timing.Now()); });
    timing.Wait(0.2, true);
    EXPECT_THAT(ticks, ElementsAre(0.05, 0.1, 0.15, 0.2));
}

TEST_F(Timing, AWaitWithoutPumpLetsNoTimerTickAndMissedTicksAreNotCaughtUp)
{
    int ticks = 0;
    const Connection timer = pump.startTimer(50, [&] { ++ticks; });
    timing.Wait(1, false);
    EXPECT_EQ(ticks, 0);
    timing.Wait(0, true);
    EXPECT_EQ(ticks, 1);
    timing.Wait(0.049, true);
    EXPECT_EQ(ticks, 1);
    timing.Wait(0.001, true);
    EXPECT_EQ(ticks, 2);
}

TEST_F(Timing, TimersTickInOrderOfTheirTimes)
{
    String order;
    const Connection slow = pump.startTimer(30, [&] { order += u's'; });
    const Connection fast = pump.startTimer(20, [&] { order += u'f'; });
    timing.Wait(0.06, true);
    EXPECT_EQ(order, u"fsfsf");
}

TEST_F(Timing, AnEndedTimerTicksNoMore)
{
    int ticks = 0;
    Connection second;
    const Connection first = pump.startTimer(10, [&] { second.disconnect(); });
    second = pump.startTimer(10, [&] { ++ticks; });
    timing.Wait(0.1, true);
    EXPECT_EQ(ticks, 0);
}

TEST_F(Timing, AHandlerThatWaitsLetsOthersTickButNotItself)
{
    String order;
    const Connection waiting = pump.startTimer(100, [&] {
        order += u'[';
        timing.Wait(0.25, true);
        order += u']';
    });
    const Connection other = pump.startTimer(110, [&] { order += u'.'; });
    timing.Wait(0.35, true);
    EXPECT_EQ(order, u"[...]");
}

TEST_F(Timing, PostedTasksRunOnceAndInOrder)
{
    String order;
    pump.post([&] {
        order += u'a';
        pump.post([&] { order += u'c'; });
    });
    pump.post([&] { order += u'b'; });
    EXPECT_EQ(order, u"");
    outside.runPending();
    EXPECT_EQ(order, u"ab");
    outside.runPending();
    outside.runPending();
    EXPECT_EQ(order, u"abc");
}

TEST_F(Timing, ATaskThatPostsItselfDoesNotHoldUpTime)
{
    int rounds = 0;
    std::function<void()> again = [&] {
        ++rounds;
        pump.post(again);
    };
    pump.post(again);
    timing.Wait(0.01, true);
    EXPECT_DOUBLE_EQ(timing.Now(), 0.01);
    EXPECT_GT(rounds, 1);
}

TEST(TimerQueue, AnIntervalBelowAMillisecondCountsAsOne)
{
    TimerQueue queue;
    const Connection timer = queue.add(TimerQueue::Time(0), TimerQueue::Time(0), [] {});
    EXPECT_EQ(queue.nextDue(), std::chrono::milliseconds(1));
}

TEST(TimerQueue, WithoutTimersNothingIsDue)
{
    TimerQueue queue;
    EXPECT_FALSE(queue.nextDue());
    {
        const Connection timer = queue.add(TimerQueue::Time(0), TimerQueue::Time(50), [] {});
        EXPECT_TRUE(queue.nextDue());
    }
    EXPECT_FALSE(queue.nextDue());
}

TEST(TimerQueue, AConnectionMayOutliveTheQueue)
{
    Connection timer;
    {
        TimerQueue queue;
        timer = queue.add(TimerQueue::Time(0), TimerQueue::Time(50), [] {});
    }
    timer.disconnect();
}

} // namespace
} // namespace phial
