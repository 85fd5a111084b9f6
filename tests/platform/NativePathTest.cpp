#include "core/NativePath.h"

#include "core/CurrentFolder.h"
#include "support/HeadlessSession.h"
#include "support/Raises.h"

namespace phial
{
namespace
{

using test::TemporaryFolder;

TEST(NativePath, BackslashesBecomeTheNativeSeparator)
{
    EXPECT_EQ(nativePath(u"\\no such\\a.txt", u"\\"), "/no such/a.txt");
}

TEST(NativePath, SlashesAreSeparatorsToo)
{
    EXPECT_EQ(nativePath(u"/no such\\a.txt", u"\\"), "/no such/a.txt");
}

TEST(NativePath, APathWithoutRootStartsAtTheCurrentFolder)
{
    EXPECT_EQ(nativePath(u"data\\a.txt", u"\\no such\\"), "/no such/data/a.txt");
    EXPECT_EQ(nativePath(u"", u"\\no such\\"), "/no such");
}

TEST(NativePath, DotsAreResolvedAndEndAtTheRoot)
{
    EXPECT_EQ(nativePath(u"..\\.\\a.txt", u"\\no such\\deep\\"), "/no such/a.txt");
    EXPECT_EQ(nativePath(u"..\\..\\..\\a.txt", u"\\no such\\"), "/a.txt");
    EXPECT_EQ(nativePath(u"\\", u"\\no such\\"), "/");
}

TEST(NativePath, ANetworkShareOrDriveIsNowhere)
{
    EXPECT_TRUE(nativePath(u"E:\\Source\\", u"\\").empty());
    EXPECT_TRUE(nativePath(u"E:", u"\\").empty());
    EXPECT_TRUE(nativePath(u"\\\\server\\share\\a.txt", u"\\").empty());
}

TEST(NativePath, APathWithNulIsNowhere)
{
    EXPECT_TRUE(nativePath(StringView(u"\\home\\a\0.txt", 12), u"\\").empty());
    EXPECT_TRUE(nativePath(StringView(u"\0", 1), u"\\home\\").empty());
}

TEST(NativePath, WhatCannotBeAskedForStaysAsWritten)
{
    const TemporaryFolder folder;
    std::filesystem::create_symlink("Loop", folder.native() / "Loop");
    folder.write("LIST.dat", "x");
    EXPECT_EQ(nativePath(folder.path() + u"Loop\\list.dat", u"\\"), folder.native() / "Loop/list.dat");
}

TEST(NativePath, EachComponentIsFoundWhateverItsCase)
{
    const TemporaryFolder folder;
    folder.write("Resources/Sfx/Über uns.WAV", "x");
    EXPECT_EQ(nativePath(folder.path() + u"resources\\SFX\\üBER UNS.wav", u"\\"),
              folder.native() / "Resources/Sfx/Über uns.WAV");
}

TEST(NativePath, TheExactNameWinsOverOneThatDiffersInCase)
{
    const TemporaryFolder folder;
    folder.write("DATA.txt", "x");
    folder.write("data.txt", "x");
    folder.write("Data.txt", "x");
    EXPECT_EQ(nativePath(folder.path() + u"data.txt", u"\\"), folder.native() / "data.txt");
    EXPECT_EQ(nativePath(folder.path() + u"dATA.txt", u"\\"), folder.native() / "DATA.txt");
}

TEST(NativePath, WhatDoesNotExistStaysAsWrittenBelowWhatDoes)
{
    const TemporaryFolder folder;
    folder.write("Config/old.ini", "x");
    EXPECT_EQ(nativePath(folder.path() + u"config\\New\\Settings.ini", u"\\"),
              folder.native() / "Config/New/Settings.ini");
}

TEST(NativePath, ALinkThatLeadsNowhereIsFoundByItsName)
{
    const TemporaryFolder folder;
    std::filesystem::create_symlink("nowhere", folder.native() / "Link");
    EXPECT_EQ(nativePath(folder.path() + u"link", u"\\"), folder.native() / "Link");
}

TEST(NativePath, TheWayBackWritesBackslashes)
{
    EXPECT_EQ(systemPath("/home/Schüler/a.txt"), u"\\home\\Schüler\\a.txt");
}

TEST(NativePath, WithoutASessionTheCurrentFolderIsUnknown)
{
    EXPECT_RAISES(nativePath(u"a.txt"), ObjectNotSet);
}

using CurrentFolderTest = test::HeadlessSession;

TEST_F(CurrentFolderTest, BeginsWithTheFolderOfTheProcess)
{
    EXPECT_EQ(session.currentFolder().path(), systemPath(std::filesystem::current_path()) + u"\\");
}

TEST_F(CurrentFolderTest, ChangesWithoutMovingTheProcess)
{
    const auto before = std::filesystem::current_path();
    session.currentFolder().change(folder.path());
    EXPECT_EQ(session.currentFolder().path(), folder.path());
    EXPECT_EQ(nativePath(u"a.txt"), folder.native() / "a.txt");
    EXPECT_EQ(std::filesystem::current_path(), before);
}

TEST_F(CurrentFolderTest, ChangesAgainstThePresentFolderAndTakesTheRealCase)
{
    folder.write("Apps/Deep/a.txt", "x");
    session.currentFolder().change(folder.path());
    session.currentFolder().change(u"apps\\DEEP");
    EXPECT_EQ(session.currentFolder().path(), folder.path() + u"Apps\\Deep\\");
    session.currentFolder().change(u"..\\");
    EXPECT_EQ(session.currentFolder().path(), folder.path() + u"Apps\\");
}

TEST_F(CurrentFolderTest, StaysWhenTheFolderIsMissing)
{
    const String before = session.currentFolder().path();
    EXPECT_RAISES(session.currentFolder().change(folder.path() + u"missing"), FileNotFound);
    EXPECT_RAISES(session.currentFolder().change(u""), InvalidArgument);
    EXPECT_EQ(session.currentFolder().path(), before);
}

TEST_F(CurrentFolderTest, NoDriveIsNoChangeAndAMissingOneRaises)
{
    const String before = session.currentFolder().path();
    session.currentFolder().changeDrive(u"");
    EXPECT_EQ(session.currentFolder().path(), before);
    EXPECT_RAISES(session.currentFolder().changeDrive(u"E:"), FileNotFound);
}

} // namespace
} // namespace phial
