#include "core/FileLock.h"

#include "core/EventPump.h"
#include "core/RuntimeError.h"
#include "support/ChildProgram.h"
#include "support/HeadlessSession.h"

#include <gmock/gmock-more-matchers.h>
#include <optional>

namespace phial
{
namespace
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class FileLocks : public test::HeadlessSession
{
protected:
    String list() const { return folder.path() + u"list.qv-hsr"; }
    test::ChildProgram otherProgram() const { return {PHIAL_LOCK_HOLDER, {toUtf8(list())}}; }
    double waited() { return outside.clock().seconds(); }
};

TEST_F(FileLocks, AFreeFileIsHeldAtOnceAndLeavesNothingBehind)
{
    {
        const FileLock lock(list());
        EXPECT_TRUE(lock.held());
        EXPECT_THAT(folder.names(), ElementsAre("list.qv-hsr.lock"));
    }
    EXPECT_THAT(folder.names(), IsEmpty());
    EXPECT_EQ(waited(), 0);
}

TEST_F(FileLocks, OneProgramHoldsItTwice)
{
    std::optional<FileLock> first(std::in_place, list());
    std::optional<FileLock> second(std::in_place, folder.path() + u"LIST.qv-hsr\\..\\list.qv-hsr");
    EXPECT_TRUE(second->held());
    EXPECT_EQ(waited(), 0);
    first.reset();
    EXPECT_THAT(folder.names(), ElementsAre("list.qv-hsr.lock"));
    second.reset();
    EXPECT_THAT(folder.names(), IsEmpty());
}

TEST_F(FileLocks, ALinkLeadsToTheSameLock)
{
    folder.write("list.qv-hsr", "content");
    std::filesystem::create_symlink(folder.native() / "list.qv-hsr", folder.native() / "link.qv-hsr");
    const FileLock lock(folder.path() + u"link.qv-hsr");
    EXPECT_TRUE(folder.has("list.qv-hsr.lock"));
}

TEST_F(FileLocks, FilesAreHeldIndependently)
{
    const FileLock lock(list());
    const FileLock other(folder.path() + u"results.qv-rsl");
    EXPECT_TRUE(lock.held());
    EXPECT_TRUE(other.held());
}

TEST_F(FileLocks, WithoutAFolderNothingIsHeldAndNobodyWaits)
{
    EXPECT_FALSE(FileLock(folder.path() + u"missing\\list.qv-hsr").held());
    EXPECT_FALSE(FileLock(u"E:\\list.qv-hsr").held());
    EXPECT_EQ(waited(), 0);
}

TEST_F(FileLocks, AnotherProgramIsWaitedForToALimit)
{
    test::ChildProgram other = otherProgram();
    ASSERT_EQ(other.readLine(), "held");
    EXPECT_FALSE(FileLock(list()).held());
    EXPECT_NEAR(waited(), std::chrono::duration<double>(FileLock::MaxWait).count(), 0.02);
}

TEST_F(FileLocks, EventsRunDuringTheWait)
{
    test::ChildProgram other = otherProgram();
    ASSERT_EQ(other.readLine(), "held");
    int ticks = 0;
    const Connection ticking = session.platform().pump->startTimer(100, [&] { ++ticks; });
    EXPECT_FALSE(FileLock(list()).held());
    EXPECT_NEAR(ticks, 30, 1);
}

TEST_F(FileLocks, AHandlerMayTakeTheSameLockDuringTheWait)
{
    test::ChildProgram other = otherProgram();
    ASSERT_EQ(other.readLine(), "held");
    std::optional<FileLock> inner;
    const Connection ticking = session.platform().pump->startTimer(1000, [&] {
        other.finish();
        inner.emplace(list());
    });
    const FileLock outer(list());
    ASSERT_TRUE(inner.has_value());
    EXPECT_TRUE(inner->held());
    EXPECT_TRUE(outer.held());
    EXPECT_NEAR(waited(), 1, 0.02);
}

TEST_F(FileLocks, WhereNoneCanBeMadeNobodyWaits)
{
    outside.files().fail(headless::FileStep::Lock);
    EXPECT_FALSE(FileLock(list()).held());
    EXPECT_EQ(waited(), 0);
}

/// A loop that fails where it is run.
class BrokenPump : public EventPump
{
public:
    void pumpFor(double) override { throw RuntimeError(ErrorNumber::InvalidArgument); }
    Connection startTimer(std::int32_t, std::function<void()>) override { return {}; }
    void post(std::function<void()>) override {}
};

TEST(FileLock, AWaitThatFailsEndsWithoutTheLock)
{
    const test::TemporaryFolder folder;
    const auto files = std::make_shared<headless::FaultyFileSystem>(std::make_shared<NativeFileSystem>());
    files->keepLocksBusy();
    Platform platform;
    platform.pump = std::make_shared<BrokenPump>();
    platform.files = files;
    const SessionState session(platform);
    EXPECT_FALSE(FileLock(folder.path() + u"list").held());
}

TEST_F(FileLocks, WhatAnotherProgramLetGoIsHeld)
{
    test::ChildProgram other = otherProgram();
    ASSERT_EQ(other.readLine(), "held");
    EXPECT_EQ(other.finish(), 0);
    EXPECT_TRUE(FileLock(list()).held());
    EXPECT_EQ(waited(), 0);
}

TEST_F(FileLocks, TheLockOfAKilledProgramIsTakenOver)
{
    test::ChildProgram other = otherProgram();
    ASSERT_EQ(other.readLine(), "held");
    other.kill();
    EXPECT_TRUE(folder.has("list.qv-hsr.lock"));
    EXPECT_TRUE(FileLock(list()).held());
    EXPECT_EQ(waited(), 0);
    EXPECT_THAT(folder.names(), IsEmpty());
}

TEST_F(FileLocks, AnotherProgramGetsItAsSoonAsItIsFree)
{
    std::optional<FileLock> lock(std::in_place, list());
    test::ChildProgram other = otherProgram();
    lock.reset();
    EXPECT_EQ(other.readLine(), "held");
}

} // namespace
} // namespace phial
