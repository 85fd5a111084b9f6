#include "core/AtomicFile.h"

#include "core/NativePath.h"
#include "core/Process.h"
#include "headless/FaultyFileSystem.h"
#include "support/EveryFault.h"
#include "support/Raises.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock-matchers.h>
#include <gtest/gtest.h>

namespace phial
{
namespace
{

using headless::FaultyFileSystem;
using headless::FileStep;
using ::testing::ElementsAre;

class AtomicFile : public ::testing::Test
{
protected:
    test::TemporaryFolder folder;
    FaultyFileSystem files{std::make_shared<NativeFileSystem>()};
    const std::filesystem::path target = folder.native() / "list.dat";
};

TEST_F(AtomicFile, MakesAFileAndLeavesNothingElse)
{
    replaceFile(files, target, std::string_view("a\0b", 3));
    EXPECT_EQ(folder.read("list.dat"), std::string("a\0b", 3));
    EXPECT_THAT(folder.names(), ElementsAre("list.dat"));
}

TEST_F(AtomicFile, StoppedAtAnyStepTheOldOrTheNewFileIsThere)
{
    constexpr int MoreThanThereAre = 10;
    bool finished = false;
    for (int step = 0; step < MoreThanThereAre && !finished; ++step) {
        folder.write("list.dat", "old");
        files.failAfter(step);
        finished = ignoringErrors([&] { replaceFile(files, target, "new"); });
        files.repair();
        const std::string content = folder.read("list.dat");
        EXPECT_TRUE(content == "old" || content == "new") << "step " << step << ": " << content;
        EXPECT_TRUE(!finished || content == "new") << "step " << step;
    }
    EXPECT_TRUE(finished);
}

TEST_F(AtomicFile, AFailedWriteTakesItsTemporaryFileAway)
{
    folder.write("list.dat", "old");
    files.freeBytes(2);
    EXPECT_RAISES(replaceFile(files, target, "longer than that"), FileAccess);
    EXPECT_THAT(folder.names(), ElementsAre("list.dat"));
    EXPECT_EQ(folder.read("list.dat"), "old");
}

TEST_F(AtomicFile, AFailedRenameKeepsTheOldFile)
{
    folder.write("list.dat", "old");
    files.fail(FileStep::Rename);
    EXPECT_RAISES(replaceFile(files, target, "new"), FileAccess);
    EXPECT_THAT(folder.names(), ElementsAre("list.dat"));
    EXPECT_EQ(folder.read("list.dat"), "old");
}

TEST_F(AtomicFile, TemporaryFilesOfEndedProgramsAreClearedAtTheNextSave)
{
    const std::string own = "list.dat.saving-" + std::to_string(currentProcess());
    const std::string ended = "list.dat.saving-999999999";
    const std::string running = "list.dat.saving-1";
    const std::string other = "other.dat.saving-999999999";
    for (const std::string& name : {own, ended, running, other}) {
        folder.write(name, "half");
    }
    replaceFile(files, target, "new");
    EXPECT_THAT(folder.names(), ElementsAre("list.dat", running, other));
}

TEST_F(AtomicFile, TheRightsOfTheOldFileStay)
{
    using enum std::filesystem::perms;
    for (const std::filesystem::perms rights : {owner_read | owner_write, owner_all | group_all | others_all,
                                                owner_read, owner_read | owner_write | group_read}) {
        folder.write("list.dat", "old");
        std::filesystem::permissions(target, rights);
        replaceFile(files, target, "new");
        EXPECT_EQ(folder.read("list.dat"), "new");
        EXPECT_EQ(std::filesystem::status(target).permissions(), rights);
        std::filesystem::remove(target);
    }
}

TEST_F(AtomicFile, AFileIsReplacedAlthoughTheFolderCannotBeFlushed)
{
    folder.write("list.dat", "old");
    files.fail(FileStep::FlushFolder);
    replaceFile(files, target, "new");
    EXPECT_EQ(folder.read("list.dat"), "new");
}

TEST_F(AtomicFile, GetsTheTimeThatIsWished)
{
    constexpr std::int64_t Time = 1'600'000'000'000'000'005;
    replaceFile(files, target, "new", {.time = Time});
    EXPECT_EQ(files.status(target).time, Time);
    files.fail(FileStep::SetTime);
    replaceFile(files, target, "newer", {.time = Time});
    EXPECT_EQ(folder.read("list.dat"), "newer");
    EXPECT_NE(files.status(target).time, Time);
}

TEST_F(AtomicFile, TheOldFileIsKeptOnWish)
{
    folder.write("list.dat", "old");
    std::optional<std::filesystem::path> aside;
    replaceFile(files, target, "new", {.keepOldAs = ".kept"}, aside);
    EXPECT_EQ(aside, folder.native() / "list.dat.kept");
    EXPECT_EQ(folder.read("list.dat.kept"), "old");
    EXPECT_EQ(folder.read("list.dat"), "new");
}

TEST_F(AtomicFile, WhatIsKeptGoesBackWhenTheReplacementFails)
{
    std::optional<std::filesystem::path> aside;
    const auto prepare = [&] {
        std::filesystem::remove(folder.native() / "list.dat.kept");
        folder.write("list.dat", "old");
    };
    bool isReplaced = false;
    const auto work = [&] {
        isReplaced =
            ignoringErrors([&] { replaceFile(files, target, "new", {.keepOldAs = ".kept"}, aside); });
    };
    const int faults = test::withEveryFault(files, prepare, work, [&] {
        EXPECT_EQ(folder.read("list.dat"), isReplaced ? "new" : "old");
        EXPECT_EQ(folder.has("list.dat.kept"), isReplaced);
        EXPECT_EQ(aside.has_value(), isReplaced);
        EXPECT_THAT(folder.names(), ::testing::SizeIs(isReplaced ? 2 : 1));
    });
    EXPECT_GE(faults, 30);
}

TEST_F(AtomicFile, SaysWhatIsKeptWhereItCannotGoBack)
{
    folder.write("list.dat", "old");
    std::optional<std::filesystem::path> aside;
    int steps = files.steps();
    replaceFile(files, folder.native() / "other.dat", "x", {}, aside);
    steps = files.steps() - steps;
    // All works until the old file is aside; then the disk has gone.
    files.failAfter(steps);
    EXPECT_RAISES(replaceFile(files, target, "new", {.keepOldAs = ".kept"}, aside), FileAccess);
    files.repair();
    EXPECT_EQ(folder.read("list.dat.kept"), "old");
    EXPECT_EQ(aside, folder.native() / "list.dat.kept");
}

TEST_F(AtomicFile, ALinkIsFollowedAndStays)
{
    folder.write("real/list.dat", "old");
    std::filesystem::create_symlink("real/list.dat", target);
    replaceFile(files, target, "new");
    EXPECT_TRUE(std::filesystem::is_symlink(target));
    EXPECT_EQ(folder.read("real/list.dat"), "new");
}

TEST_F(AtomicFile, AFileWithoutAPlaceRaises)
{
    EXPECT_RAISES(replaceFile(files, {}, "new"), FileNotFound);
    EXPECT_RAISES(replaceFile(files, folder.native() / "missing/list.dat", "new"), FileNotFound);
}

TEST_F(AtomicFile, DamagedFilesAreKeptUnderFreeNames)
{
    folder.write("list.dat", "first");
    EXPECT_EQ(moveAside(files, target), folder.native() / "list.dat.damaged");
    folder.write("list.dat", "second");
    EXPECT_EQ(moveAside(files, target), folder.native() / "list.dat.damaged2");
    EXPECT_THAT(folder.names(), ElementsAre("list.dat.damaged", "list.dat.damaged2"));
    EXPECT_EQ(folder.read("list.dat.damaged"), "first");
}

TEST_F(AtomicFile, AThousandNamesAreEnough)
{
    folder.write("list.dat", "old");
    folder.write("list.dat.damaged", "x");
    for (int number = 2; number <= 999; ++number) {
        folder.write("list.dat.damaged" + std::to_string(number), "x");
    }
    EXPECT_EQ(moveAside(files, target), folder.native() / "list.dat.damaged1000");
    folder.write("list.dat", "newer");
    EXPECT_RAISES(moveAside(files, target), FileAccess);
    EXPECT_EQ(folder.read("list.dat"), "newer");
}

TEST_F(AtomicFile, WhatIsMovedAsideStaysWhereTheFolderCannotBeFlushed)
{
    folder.write("list.dat", "old");
    files.fail(FileStep::FlushFolder);
    EXPECT_RAISES(moveAside(files, target), FileAccess);
    EXPECT_THAT(folder.names(), ElementsAre("list.dat"));
}

TEST_F(AtomicFile, ALinkThatLeadsInACircleIsNotReplaced)
{
    std::filesystem::create_symlink("list.dat", target);
    EXPECT_RAISES(replaceFile(files, target, "new"), FileAccess);
    EXPECT_TRUE(std::filesystem::is_symlink(target));
}

TEST(Process, ThisOneRunsAndNumberZeroDoesNot)
{
    EXPECT_TRUE(isRunningProcess(currentProcess()));
    EXPECT_FALSE(isRunningProcess(0));
    EXPECT_FALSE(isRunningProcess(999999999));
}

} // namespace
} // namespace phial
