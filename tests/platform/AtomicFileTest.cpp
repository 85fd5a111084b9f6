#include "core/AtomicFile.h"

#include "core/NativePath.h"
#include "core/Process.h"
#include "headless/FaultyFileSystem.h"
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

TEST(Process, ThisOneRunsAndNumberZeroDoesNot)
{
    EXPECT_TRUE(isRunningProcess(currentProcess()));
    EXPECT_FALSE(isRunningProcess(0));
    EXPECT_FALSE(isRunningProcess(999999999));
}

} // namespace
} // namespace phial
