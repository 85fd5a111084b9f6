#include "core/CoreFiles.h"

#include "core/CoreStringList.h"
#include "core/FolderListing.h"
#include "support/HeadlessSession.h"
#include "support/LimitedDisk.h"
#include "support/Raises.h"
#include "support/Texts.h"

#include <chrono>
#include <gmock/gmock-more-matchers.h>

namespace phial
{
namespace
{

using headless::FileStep;
using test::LimitedDisk;
using test::texts;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class CoreFilesTest : public test::HeadlessSession
{
protected:
    CoreFiles& files = session.root().CoreFiles();
    const String& path = folder.path();
};

TEST_F(CoreFilesTest, AFileIsNoFolderAndAFolderNoFile)
{
    folder.write("Data/a.txt", "x");
    EXPECT_TRUE(files.Exists(path + u"data\\A.TXT"));
    EXPECT_FALSE(files.Exists(path + u"data"));
    EXPECT_FALSE(files.Exists(path + u"data\\a.txt\\"));
    EXPECT_TRUE(files.FolderExists(path + u"data\\"));
    EXPECT_TRUE(files.FolderExists(path + u"DATA"));
    EXPECT_FALSE(files.FolderExists(path + u"data\\a.txt"));
    EXPECT_FALSE(files.Exists(u"E:\\Source\\QVStart.exe"));
}

TEST_F(CoreFilesTest, RelativePathsStartAtTheVirtualFolder)
{
    folder.write("a.txt", "x");
    EXPECT_FALSE(files.Exists(u"a.txt"));
    session.currentFolder().change(path);
    EXPECT_TRUE(files.Exists(u"a.txt"));
    EXPECT_TRUE(files.FolderExists(u""));
}

TEST_F(CoreFilesTest, FoldersAreMadeWithTheirParents)
{
    files.CreateFolder(path + u"one\\two\\three\\");
    EXPECT_TRUE(folder.has("one/two/three"));
    files.CreateFolder(path + u"one\\two\\three\\");
    files.CreateFolder(path + u"four\\name.txt", true);
    EXPECT_TRUE(folder.has("four"));
    EXPECT_FALSE(folder.has("four/name.txt"));
}

TEST_F(CoreFilesTest, AFolderThatDiffersInCaseIsNotMadeTwice)
{
    files.CreateFolder(path + u"Config\\");
    files.CreateFolder(path + u"config\\App\\");
    EXPECT_THAT(folder.names(), ElementsAre("Config"));
    EXPECT_TRUE(folder.has("Config/App"));
}

TEST_F(CoreFilesTest, AFolderThatCannotBeMadeRaises)
{
    folder.write("file", "x");
    EXPECT_RAISES(files.CreateFolder(path + u"file\\below"), FileAccess);
    EXPECT_RAISES(files.CreateFolder(u"E:\\Data"), FileAccess);
}

TEST_F(CoreFilesTest, TextComesBackAsWritten)
{
    const String text = u"Säure\r\n\t\U0001F9EA \xD800 |{NEXT_ITEM}";
    EXPECT_TRUE(files.WriteText(path + u"a.txt", text));
    EXPECT_EQ(files.ReadText(path + u"a.txt"), text);
    EXPECT_TRUE(files.WriteText(path + u"a.txt", u""));
    EXPECT_EQ(files.ReadText(path + u"a.txt"), u"");
}

TEST_F(CoreFilesTest, TheMarkIsWrittenOnDemandAndNotReadBack)
{
    EXPECT_TRUE(files.WriteText(path + u"a.txt", u"ä", u"", true));
    EXPECT_EQ(folder.read("a.txt"), "\xEF\xBB\xBF\xC3\xA4");
    EXPECT_EQ(files.ReadText(path + u"a.txt"), u"ä");
}

TEST_F(CoreFilesTest, AMissingFileRaisesFileNotFound)
{
    EXPECT_RAISES(files.ReadText(path + u"missing.txt"), FileNotFound);
    EXPECT_RAISES(files.ReadText(path), FileNotFound);
}

TEST_F(CoreFilesTest, WritingWhereNothingIsAnswersFalse)
{
    EXPECT_FALSE(files.WriteText(path + u"missing\\a.txt", u"x"));
    EXPECT_FALSE(files.WriteText(u"E:\\a.txt", u"x"));
    EXPECT_FALSE(files.WriteText(path, u"x"));
}

TEST_F(CoreFilesTest, AFullDiskKeepsTheOldFile)
{
    constexpr std::size_t Room = 64 * 1024;
    const auto disk = LimitedDisk::withRoom(folder.native(), Room);
    if (!disk.isInForce()) {
        outside.files().freeBytes(Room);
    }
    EXPECT_TRUE(files.WriteText(path + u"a.txt", u"old"));
    EXPECT_FALSE(files.WriteText(path + u"a.txt", String(2 * Room, u'x')));
    EXPECT_EQ(files.ReadText(path + u"a.txt"), u"old");
    EXPECT_THAT(folder.names(), ElementsAre("a.txt"));
}

TEST_F(CoreFilesTest, TextIsAddedToTheEnd)
{
    EXPECT_TRUE(files.AppendText(path + u"a.log", u"eins\r\n"));
    EXPECT_TRUE(files.AppendText(path + u"A.LOG", u"zwölf\r\n"));
    EXPECT_EQ(files.ReadText(path + u"a.log"), u"eins\r\nzwölf\r\n");
    EXPECT_FALSE(files.AppendText(path + u"missing\\a.log", u"x"));
    EXPECT_FALSE(files.AppendText(path + u"a.log\\", u"x"));
    EXPECT_FALSE(files.AppendText(path, u"x"));
}

TEST_F(CoreFilesTest, OnAFullDiskTheBeginningOfAnAddedTextStays)
{
    files.AppendText(path + u"a.log", u"old ");
    outside.files().freeBytes(2);
    EXPECT_FALSE(files.AppendText(path + u"a.log", u"new"));
    EXPECT_EQ(files.ReadText(path + u"a.log"), u"old ne");
}

TEST_F(CoreFilesTest, AReadOnlyFolderRefusesEveryChange)
{
    folder.write("a.txt", "old");
    const auto disk = LimitedDisk::readOnly(folder.native());
    if (!disk.isInForce()) {
        outside.files().failChanges();
    }
    EXPECT_FALSE(files.WriteText(path + u"a.txt", u"new"));
    EXPECT_FALSE(files.Delete(path + u"a.txt"));
    EXPECT_RAISES(files.CreateFolder(path + u"below"), FileAccess);
    EXPECT_EQ(files.ReadText(path + u"a.txt"), u"old");
    EXPECT_THAT(folder.names(), ElementsAre("a.txt"));
}

TEST_F(CoreFilesTest, DeleteAnswersWhetherItHasRemovedAFile)
{
    folder.write("a.txt", "x");
    folder.write("below/b.txt", "x");
    EXPECT_TRUE(files.Delete(path + u"A.txt"));
    EXPECT_FALSE(files.Delete(path + u"a.txt"));
    EXPECT_FALSE(files.Delete(path + u"below"));
    EXPECT_FALSE(files.Delete(path + u"below\\"));
    EXPECT_THAT(folder.names(), ElementsAre("below"));
}

TEST_F(CoreFilesTest, AProtectedFileIsDeletedOnDemandOnly)
{
    folder.write("a.txt", "x");
    std::filesystem::permissions(folder.native() / "a.txt", std::filesystem::perms::owner_read);
    EXPECT_FALSE(files.Delete(path + u"a.txt"));
    EXPECT_TRUE(files.Delete(path + u"a.txt", true));
    EXPECT_THAT(folder.names(), IsEmpty());
}

TEST_F(CoreFilesTest, CopyReplacesTheTargetInOneStep)
{
    folder.write("a.txt", "new");
    folder.write("b.txt", "old");
    outside.files().fail(FileStep::Rename);
    EXPECT_RAISES(files.Copy(path + u"a.txt", path + u"b.txt"), FileAccess);
    EXPECT_EQ(folder.read("b.txt"), "old");
    outside.files().repair();
    files.Copy(path + u"a.txt", path + u"b.txt");
    EXPECT_EQ(folder.read("b.txt"), "new");
    EXPECT_RAISES(files.Copy(path + u"missing.txt", path + u"b.txt"), FileNotFound);
}

TEST_F(CoreFilesTest, CopyKeepsTheTimeOfTheLastChange)
{
    folder.write("a.txt", "new");
    std::filesystem::last_write_time(folder.native() / "a.txt",
                                     std::filesystem::file_time_type::clock::now() - std::chrono::hours(48));
    files.Copy(path + u"a.txt", path + u"b.txt");
    EXPECT_EQ(files.Changed(path + u"b.txt"), files.Changed(path + u"a.txt"));
    folder.write("a.txt", "newer");
    EXPECT_NE(files.Changed(path + u"b.txt"), files.Changed(path + u"a.txt"));
    files.Copy(path + u"a.txt", path + u"b.txt");
    EXPECT_EQ(files.Changed(path + u"b.txt"), files.Changed(path + u"a.txt"));
}

TEST_F(CoreFilesTest, APathWithNulIsNone)
{
    const String nul(u"a\0b.txt", 7);
    folder.write("a", "x");
    EXPECT_FALSE(files.Exists(path + nul));
    EXPECT_FALSE(files.WriteText(path + nul, u"x"));
    EXPECT_FALSE(files.Delete(path + nul));
    EXPECT_RAISES(files.ReadText(path + nul), FileNotFound);
    EXPECT_RAISES(files.CreateFolder(path + nul), FileAccess);
    EXPECT_THAT(folder.names(), testing::ElementsAre("a"));
}

TEST_F(CoreFilesTest, WhatCannotBeAskedForCountsAsMissing)
{
    folder.write("a.txt", "x");
    outside.files().fail(FileStep::Status);
    EXPECT_FALSE(files.Exists(path + u"a.txt"));
    EXPECT_FALSE(files.FolderExists(path));
    EXPECT_EQ(files.Changed(path + u"a.txt"), FileStamp());
}

TEST_F(CoreFilesTest, TheStampDiffersAfterAChange)
{
    folder.write("a.txt", "x");
    const FileStamp before = files.Changed(path + u"a.txt");
    EXPECT_EQ(files.Changed(path + u"a.txt"), before);
    std::filesystem::last_write_time(folder.native() / "a.txt",
                                     std::filesystem::file_time_type::clock::now() + std::chrono::hours(1));
    EXPECT_NE(files.Changed(path + u"a.txt"), before);
    EXPECT_NE(files.Changed(path + u"missing.txt"), before);
    EXPECT_EQ(files.Changed(path + u"missing.txt"), files.Changed(path + u"gone.txt"));
}

class CoreFilesList : public CoreFilesTest
{
protected:
    CoreFilesList()
    {
        for (const char* const file :
             {"b.wav", "A.WAV", "c.txt", "sub/d.wav", "sub/deep/e.wav", "Other/f.wav"}) {
            folder.write(file, "x");
        }
    }
};

TEST_F(CoreFilesList, FilesWithSubfoldersRelativeToThePatternsFolder)
{
    EXPECT_THAT(
        texts(files.List(path + u"*.*", false, true, false)),
        ElementsAre(u"A.WAV", u"b.wav", u"c.txt", u"Other\\f.wav", u"sub\\d.wav", u"sub\\deep\\e.wav"));
}

TEST_F(CoreFilesList, SubfoldersEndInABackslash)
{
    EXPECT_THAT(texts(files.List(path + u"*.*", true, false, false)), ElementsAre(u"Other\\", u"sub\\"));
    EXPECT_THAT(texts(files.List(path, true, false, false)), ElementsAre(u"Other\\", u"sub\\"));
}

TEST_F(CoreFilesList, FullPathsOfFilesBeginAsThePatternDoes)
{
    EXPECT_THAT(texts(files.List(path + u"SUB\\*.wav", false, true, true)),
                ElementsAre(path + u"SUB\\d.wav"));
}

TEST_F(CoreFilesList, PlainNamesOfFiles)
{
    EXPECT_THAT(texts(files.List(path + u"*.wav", false, false, true)), ElementsAre(u"A.WAV", u"b.wav"));
    EXPECT_THAT(texts(files.List(path + u"*.wav", false, false, false)),
                ElementsAre(u"A.WAV", u"b.wav", u"d.wav", u"e.wav", u"f.wav"));
}

TEST_F(CoreFilesList, AMissingFolderHasNothing)
{
    EXPECT_THAT(texts(files.List(path + u"missing\\*.*", false, false, true)), IsEmpty());
    EXPECT_THAT(texts(files.List(u"E:\\*.*", false, true, false)), IsEmpty());
}

TEST_F(CoreFilesList, ALinkBackToTheFolderAboveIsNotEntered)
{
    std::filesystem::create_directory_symlink("..", folder.native() / "sub/loop");
    EXPECT_THAT(texts(files.List(path + u"sub\\*.wav", false, true, false)),
                ElementsAre(u"d.wav", u"deep\\e.wav"));
}

TEST_F(CoreFilesList, NamesThatTheSystemCannotWriteAreLeftOut)
{
    folder.write("odd/back\\slash.wav", "x");
    folder.write("odd/\xFF.wav", "x");
    folder.write("odd/good.wav", "x");
    EXPECT_THAT(texts(files.List(path + u"odd\\*.wav", false, false, true)), ElementsAre(u"good.wav"));
}

TEST(MatchesPattern, StarsAndQuestionMarksDisregardCase)
{
    EXPECT_TRUE(matchesPattern(u"Robot.GIF", u"*.gif"));
    EXPECT_TRUE(matchesPattern(u"a.b.c.gif", u"a*b*.gif"));
    EXPECT_TRUE(matchesPattern(u"aaab", u"*aab"));
    EXPECT_TRUE(matchesPattern(u"cat", u"c?t"));
    EXPECT_FALSE(matchesPattern(u"ct", u"c?t"));
    EXPECT_FALSE(matchesPattern(u"robot.gif.bak", u"*.gif"));
    EXPECT_FALSE(matchesPattern(u"robot", u"*.gif"));
    EXPECT_TRUE(matchesPattern(u"robot", u"robot**"));
}

TEST(MatchesPattern, EveryNameFitsTheGeneralPatterns)
{
    for (const StringView pattern : {u"*.*", u"*", u""}) {
        EXPECT_TRUE(matchesPattern(u"no extension", pattern));
        EXPECT_TRUE(matchesPattern(u".hidden", pattern));
    }
}

} // namespace
} // namespace phial
