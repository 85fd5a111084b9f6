#include "core/FileSystem.h"

#include "support/ChildProgram.h"
#include "support/Raises.h"
#include "support/TemporaryFolder.h"

#include <chrono>
#include <gtest/gtest.h>

#if __has_include(<unistd.h>)
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace phial
{
namespace
{

namespace fs = std::filesystem;
using Kind = FileStatus::Kind;
using enum fs::perms;

/// The real file system, with what real folders can be made to refuse.
class FileSystemTest : public ::testing::Test
{
protected:
    fs::path at(const char* name) const { return folder.native() / name; }
    fs::perms rightsOf(const char* name) const { return fs::status(at(name)).permissions(); }

    test::TemporaryFolder folder;
    NativeFileSystem files;
};

TEST_F(FileSystemTest, TellsWhatStandsAtAPath)
{
    folder.write("sub/a.txt", "four");
    fs::create_symlink("sub", at("link"));
    EXPECT_EQ(files.status(at("sub/a.txt")).kind, Kind::File);
    EXPECT_EQ(files.status(at("sub/a.txt")).size, 4U);
    EXPECT_EQ(files.status(at("sub")).kind, Kind::Folder);
    EXPECT_EQ(files.status(at("link")).kind, Kind::Folder);
}

TEST_F(FileSystemTest, OnlyNotFoundAndNoSuchFolderMeanAbsent)
{
    folder.write("a.txt", "x");
    fs::create_symlink("nowhere", at("link"));
    for (const char* const name : {"b.txt", "no such folder/a.txt", "a.txt/below", "link"}) {
        EXPECT_EQ(files.status(at(name)), FileStatus()) << name;
    }
    EXPECT_EQ(files.status({}), FileStatus());
}

TEST_F(FileSystemTest, WhatCannotBeAskedForRaises)
{
    fs::create_symlink("loop", at("loop"));
    EXPECT_RAISES(files.status(at("loop/list.dat")), FileAccess);
    EXPECT_RAISES(files.status(at(std::string(300, 'x').c_str())), FileAccess);
    EXPECT_RAISES(files.read(at("loop/list.dat")), FileAccess);
    EXPECT_RAISES(files.read(at("list.dat")), FileNotFound);
}

TEST_F(FileSystemTest, TwoFilesThatBearOneNameAreTold)
{
    folder.write("a.txt", "one");
    folder.write("b.txt", "two");
    const FileStatus first = files.status(at("a.txt"));
    EXPECT_EQ(files.status(at("a.txt")), first);
    files.setTime(at("b.txt"), first.time);
    files.rename(at("b.txt"), at("a.txt"));
    EXPECT_EQ(files.status(at("a.txt")).time, first.time);
    EXPECT_EQ(files.status(at("a.txt")).size, first.size);
    EXPECT_NE(files.status(at("a.txt")), first);
}

TEST_F(FileSystemTest, ReadsAllOfAFileWhateverItsSizeIsSaidToBe)
{
    for (const std::size_t size : {0U, 1U, 4095U, 4096U, 4097U, 100'000U}) {
        std::string bytes;
        for (std::size_t at = 0; at < size; ++at) {
            bytes += static_cast<char>(at % 251);
        }
        folder.write("a.dat", bytes);
        EXPECT_EQ(files.read(at("a.dat")), bytes);
    }
#ifdef __linux__
    EXPECT_FALSE(files.read("/proc/self/status").empty()); // said to be empty
#endif
}

TEST_F(FileSystemTest, AFileThatFailsWhileItIsReadRaises)
{
#ifdef __linux__
    // Nothing is mapped at the beginning of the memory, which reads as an error of the device.
    EXPECT_RAISES(files.read("/proc/self/mem"), FileAccess);
#else
    EXPECT_RAISES(files.read(folder.native()), FileNotFound);
#endif
}

TEST_F(FileSystemTest, TheTimeIsSetToTheNanosecond)
{
    folder.write("a.txt", "x");
    for (const std::int64_t time :
         {std::int64_t{1'700'000'000'123'456'789}, std::int64_t{0}, std::int64_t{-1'500'000'001}}) {
        files.setTime(at("a.txt"), time);
        EXPECT_EQ(files.status(at("a.txt")).time, time);
    }
    EXPECT_RAISES(files.setTime(at("missing"), 0), FileNotFound);
}

TEST_F(FileSystemTest, AFileIsWrittenWithTheRightsOfAnother)
{
    folder.write("model", "x");
    for (const fs::perms rights : {owner_read | owner_write, owner_all | group_all | others_all,
                                   owner_read | owner_write | group_read | group_write, owner_read}) {
        fs::permissions(at("model"), rights);
        fs::remove(at("a.txt"));
        files.writeLike(at("model"), at("a.txt"), "content");
        EXPECT_EQ(rightsOf("a.txt"), rights);
        EXPECT_EQ(folder.read("a.txt"), "content");
    }
    EXPECT_RAISES(files.writeLike(at("missing"), at("b.txt"), "x"), FileNotFound);
    EXPECT_RAISES(files.writeLike(at("model"), at("missing/b.txt"), "x"), FileNotFound);
}

#if __has_include(<unistd.h>)

TEST_F(FileSystemTest, TheGroupIsKeptOrHasNoMoreRightsThanAllOthers)
{
    folder.write("model", "x");
    fs::permissions(at("model"), owner_all | group_read | group_write);
    constexpr gid_t AnyOther = 54321;
    if (::chown(at("model").c_str(), static_cast<uid_t>(-1), AnyOther) != 0) {
        // This user can give no group away: the group of a device that all may read and write.
        files.writeLike("/dev/null", at("a.txt"), "x");
        constexpr fs::perms Everybody =
            owner_read | owner_write | group_read | group_write | others_read | others_write;
        EXPECT_EQ(rightsOf("a.txt"), Everybody);
        return;
    }
    files.writeLike(at("model"), at("a.txt"), "x");
    struct stat found = {};
    ASSERT_EQ(::stat(at("a.txt").c_str(), &found), 0);
    EXPECT_EQ(found.st_gid, AnyOther);
    EXPECT_EQ(rightsOf("a.txt"), owner_all | group_read | group_write);
}

#endif

TEST_F(FileSystemTest, WhatMayBeReplacedIsToldWithoutTrying)
{
    folder.write("a.txt", "x");
    EXPECT_TRUE(files.mayReplace(at("a.txt")));
    EXPECT_TRUE(files.mayReplace(at("missing")));
    EXPECT_TRUE(files.mayReplace(at("no such folder/a.txt")));
}

#if __has_include(<unistd.h>)

TEST_F(FileSystemTest, WhatAnotherUserMayNotReplaceIsToldToo)
{
    struct Row {
        const char* name;
        fs::perms ofFolder;
        fs::perms ofFile;
        const char* answer; // to another user, who is the owner when there is but one
    };
    constexpr fs::perms Everybody = owner_all | group_all | others_all;
    constexpr fs::perms All = owner_read | owner_write | group_read | others_read;
    const bool isOther = ::geteuid() == 0;
    const Row rows[] = {
        {"open", Everybody, All, "yes"},
        {"sticky", Everybody | sticky_bit, All, isOther ? "no" : "yes"},
        {"private", Everybody, owner_read | owner_write, isOther ? "no" : "yes"},
        {"unreadable", Everybody, none, "no"},
        {"closed", owner_read | owner_exec | others_read | others_exec, All, "no"},
    };
    fs::permissions(folder.native(), Everybody);
    for (const Row& row : rows) {
        folder.write(fs::path(row.name) / "list", "x");
        fs::permissions(at(row.name) / "list", row.ofFile);
        fs::permissions(at(row.name), row.ofFolder);
        test::ChildProgram other(PHIAL_OTHER_USER, {(at(row.name) / "list").string()});
        EXPECT_EQ(other.readLine(), row.answer) << row.name;
        EXPECT_EQ(other.finish(), 0);
        fs::permissions(at(row.name), Everybody);
    }
    test::ChildProgram other(PHIAL_OTHER_USER, {(at("sticky") / "missing").string()});
    EXPECT_EQ(other.readLine(), "yes");
}

#endif

TEST_F(FileSystemTest, AFolderThatLetsNobodyLookIntoItIsNotFlushed)
{
    EXPECT_NO_THROW(files.flushFolder(folder.native()));
    EXPECT_RAISES(files.flush(at("missing")), FileNotFound);
}

} // namespace
} // namespace phial
