#include "core/RuntimeError.h"
#include "qt/base/QtClock.h"
#include "qt/base/QtEventPump.h"

#include <gtest/gtest.h>
#include <vector>

using namespace phial;
using namespace phial::qt;

namespace
{

class PumpTest : public testing::Test
{
protected:
    void pumpUntil(const std::function<bool()>& condition)
    {
        for (int round = 0; round < 1000 && !condition(); ++round) {
            pump_.pumpFor(0.005);
        }
    }

    std::shared_ptr<DispatchGuard> guard_ = std::make_shared<DispatchGuard>();
    QtEventPump pump_{guard_};
};

TEST_F(PumpTest, ReturnsAfterTheTime)
{
    const QtClock clock;
    const double start = clock.seconds();
    pump_.pumpFor(0.02);
    EXPECT_GE(clock.seconds() - start, 0.019);
}

TEST_F(PumpTest, TicksAgainAndAgainUntilTheConnectionEnds)
{
    int ticks = 0;
    {
        const Connection timer = pump_.startTimer(1, [&] { ++ticks; });
        pumpUntil([&] { return ticks >= 3; });
    }
    const int atTheEnd = ticks;
    EXPECT_GE(atTheEnd, 3);
    pump_.pumpFor(0.01);
    EXPECT_EQ(ticks, atTheEnd);
}

TEST_F(PumpTest, ATickMayEndItsOwnTimer)
{
    int ticks = 0;
    Connection timer;
    timer = pump_.startTimer(1, [&] {
        ++ticks;
        timer.disconnect();
    });
    pumpUntil([&] { return ticks > 0; });
    pump_.pumpFor(0.01);
    EXPECT_EQ(ticks, 1);
}

TEST_F(PumpTest, ATickThatRunsEventsIsNotInterruptedByItself)
{
    int depth = 0;
    int deepest = 0;
    int ticks = 0;
    const Connection timer = pump_.startTimer(1, [&] {
        deepest = std::max(deepest, ++depth);
        pump_.pumpFor(0.005);
        --depth;
        ++ticks;
    });
    pumpUntil([&] { return ticks >= 2; });
    EXPECT_EQ(deepest, 1);
}

TEST_F(PumpTest, RunsPostedTasksInTheirOrderAndOnce)
{
    std::vector<int> order;
    pump_.post([&] { order.push_back(1); });
    pump_.post([&] { order.push_back(2); });
    EXPECT_TRUE(order.empty());
    pump_.pumpFor(0);
    pump_.pumpFor(0);
    EXPECT_EQ(order, (std::vector<int>{1, 2}));
}

TEST_F(PumpTest, NestedRunsEndInnermostFirst)
{
    std::vector<int> order;
    pump_.post([&] {
        pump_.post([&] {
            pump_.pumpFor(0.001);
            order.push_back(2);
        });
        pump_.pumpFor(0.01);
        order.push_back(1);
    });
    pump_.pumpFor(0.005);
    EXPECT_EQ(order, (std::vector<int>{2, 1}));
}

TEST_F(PumpTest, ReportsWhatATaskRaisesAndGoesOn)
{
    std::vector<String> told;
    guard_->setReporter([&](const String& text) { told.push_back(text); });
    bool later = false;
    pump_.post([] { throw RuntimeError(ErrorNumber::InvalidArgument, u"No"); });
    pump_.post([&] { later = true; });
    pump_.pumpFor(0);
    EXPECT_EQ(told, std::vector<String>{u"No (5)"});
    EXPECT_TRUE(later);
}

} // namespace
