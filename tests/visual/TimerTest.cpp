#include "visual/Timer.h"

#include "support/HeadlessSession.h"
#include "support/Raises.h"

namespace phial::test
{

namespace
{

class TimerTest : public HeadlessSession
{
protected:
    Timer timer{u"tmr_Test", 100};
    int ticks = 0;
    Connection counting = timer.Tick.connect([this] { ++ticks; });
};

TEST_F(TimerTest, TicksFirstAfterOneInterval)
{
    timer.Enabled(true);
    outside.advance(0.099);
    EXPECT_EQ(ticks, 0);
    outside.advance(0.001);
    EXPECT_EQ(ticks, 1);
    outside.advance(1);
    EXPECT_EQ(ticks, 11);
}

TEST_F(TimerTest, EnablingAgainDoesNotRestartIt)
{
    timer.Enabled(true);
    outside.advance(0.06);
    timer.Enabled(true);
    outside.advance(0.04);
    EXPECT_EQ(ticks, 1);
}

TEST_F(TimerTest, ANewIntervalRestartsIt)
{
    timer.Enabled(true);
    outside.advance(0.06);
    timer.Interval(50);
    outside.advance(0.04);
    EXPECT_EQ(ticks, 0);
    outside.advance(0.01);
    EXPECT_EQ(ticks, 1);
}

TEST_F(TimerTest, MissedTicksAreNotCaughtUp)
{
    timer.Enabled(true);
    outside.clock().advance(1);
    outside.runPending();
    EXPECT_EQ(ticks, 1);
}

TEST_F(TimerTest, IntervalZeroAndDisablingStopIt)
{
    timer.Enabled(true);
    timer.Interval(0);
    outside.advance(1);
    timer.Interval(100);
    timer.Enabled(false);
    outside.advance(1);
    EXPECT_EQ(ticks, 0);
    EXPECT_RAISES(timer.Interval(-1), InvalidArgument);
}

TEST_F(TimerTest, AHandlerMayDisableOrDestroyIt)
{
    auto other = std::make_unique<Timer>(u"tmr_Other", 10, true);
    const Connection ending = other->Tick.connect([&] { other.reset(); });
    const Connection once = timer.Tick.connect([this] { timer.Enabled(false); });
    timer.Enabled(true);
    outside.advance(1);
    EXPECT_EQ(other, nullptr);
    EXPECT_EQ(ticks, 1);
}

} // namespace

} // namespace phial::test
