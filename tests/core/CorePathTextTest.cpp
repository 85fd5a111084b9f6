#include "core/CorePathText.h"

#include <gtest/gtest.h>

namespace phial
{
namespace
{

TEST(CorePathTextTest, AFolderEndsInOneBackslash)
{
    EXPECT_EQ(CorePathText::WithBackslash(u"C:\\Daten"), u"C:\\Daten\\");
    EXPECT_EQ(CorePathText::WithBackslash(u"C:\\Daten\\"), u"C:\\Daten\\");
    EXPECT_EQ(CorePathText::WithBackslash(u"C:\\Daten\\\\"), u"C:\\Daten\\");
    EXPECT_EQ(CorePathText::WithBackslash(u""), u"\\");
}

TEST(CorePathTextTest, ADriveIsALetterOrAShare)
{
    EXPECT_EQ(CorePathText::Drive(u"C:\\Daten\\a.txt"), u"C:");
    EXPECT_EQ(CorePathText::Drive(u"\\\\server\\share\\a.txt"), u"\\\\server\\share");
    EXPECT_EQ(CorePathText::Drive(u"\\\\server"), u"\\\\server");
    EXPECT_EQ(CorePathText::Drive(u"\\home\\anna\\"), u"");
    EXPECT_EQ(CorePathText::Drive(u"a.txt"), u"");
}

TEST(CorePathTextTest, APathIsItsFolderAndItsFileName)
{
    EXPECT_EQ(CorePathText::Folder(u"C:\\a\\b.txt"), u"C:\\a\\");
    EXPECT_EQ(CorePathText::FileName(u"C:\\a\\b.txt"), u"b.txt");
    EXPECT_EQ(CorePathText::Folder(u"C:\\a\\"), u"C:\\a\\");
    EXPECT_EQ(CorePathText::FileName(u"C:\\a\\"), u"");
    EXPECT_EQ(CorePathText::Folder(u"b.txt"), u"");
    EXPECT_EQ(CorePathText::FileName(u"b.txt"), u"b.txt");
}

TEST(CorePathTextTest, TheLastPointBeginsTheExtension)
{
    EXPECT_EQ(CorePathText::BaseName(u"sfx\\a.b.wav"), u"a.b");
    EXPECT_EQ(CorePathText::Extension(u"sfx\\a.b.wav"), u"wav");
    EXPECT_EQ(CorePathText::WithoutExtension(u"sfx\\a.b.wav"), u"sfx\\a.b");
}

TEST(CorePathTextTest, PointsThatBeginNoExtension)
{
    EXPECT_EQ(CorePathText::Extension(u"v1.0\\readme"), u"");
    EXPECT_EQ(CorePathText::WithoutExtension(u"v1.0\\readme"), u"v1.0\\readme");
    EXPECT_EQ(CorePathText::BaseName(u"\\home\\.profile"), u".profile");
    EXPECT_EQ(CorePathText::Extension(u".."), u"");
    EXPECT_EQ(CorePathText::Extension(u"name."), u"");
    EXPECT_EQ(CorePathText::BaseName(u"name."), u"name");
}

TEST(CorePathTextTest, ARelativeFolderIsSeenFromTheBase)
{
    EXPECT_EQ(CorePathText::Relative(u"C:\\base\\sub\\f.txt", u"C:\\base\\"), u"sub\\");
    EXPECT_EQ(CorePathText::Relative(u"C:\\base\\f.txt", u"C:\\base\\"), u"");
    EXPECT_EQ(CorePathText::Relative(u"C:\\base\\f.txt", u"C:\\base"), u"");
    EXPECT_EQ(CorePathText::Relative(u"c:\\BASE\\sub\\f.txt", u"C:\\base\\"), u"sub\\");
    EXPECT_EQ(CorePathText::Relative(u"C:\\other\\f.txt", u"C:\\base\\deep\\"), u"..\\..\\other\\");
    EXPECT_EQ(CorePathText::Relative(u"\\home\\anna\\f.txt", u"\\home\\ben\\"), u"..\\anna\\");
    EXPECT_EQ(CorePathText::Relative(u"C:\\basement\\f.txt", u"C:\\base\\"), u"..\\basement\\");
}

TEST(CorePathTextTest, WithoutACommonRootTheFolderStays)
{
    EXPECT_EQ(CorePathText::Relative(u"D:\\sub\\f.txt", u"C:\\base\\"), u"D:\\sub\\");
    EXPECT_EQ(CorePathText::Relative(u"sub\\f.txt", u"C:\\base\\"), u"sub\\");
    EXPECT_EQ(CorePathText::Relative(u"C:\\sub\\f.txt", u""), u"C:\\sub\\");
}

TEST(CorePathTextTest, AnAbsoluteFolderFollowsTheRelativeOne)
{
    EXPECT_EQ(CorePathText::Absolute(u"C:\\base\\", u"sub\\"), u"C:\\base\\sub\\");
    EXPECT_EQ(CorePathText::Absolute(u"C:\\base", u"sub"), u"C:\\base\\sub\\");
    EXPECT_EQ(CorePathText::Absolute(u"C:\\base\\deep\\", u"..\\.\\other\\"), u"C:\\base\\other\\");
    EXPECT_EQ(CorePathText::Absolute(u"C:\\base\\", u""), u"C:\\base\\");
    EXPECT_EQ(CorePathText::Absolute(u"\\home\\anna\\", u"..\\"), u"\\home\\");
}

TEST(CorePathTextTest, ClimbingEndsAtTheRoot)
{
    EXPECT_EQ(CorePathText::Absolute(u"C:\\base\\", u"..\\..\\..\\x\\"), u"C:\\x\\");
    EXPECT_EQ(CorePathText::Absolute(u"\\\\server\\share\\a\\", u"..\\..\\"), u"\\\\server\\share\\");
    EXPECT_EQ(CorePathText::Absolute(u"", u"..\\x"), u"..\\x\\");
}

TEST(CorePathTextTest, ARelativePathWithARootStandsAlone)
{
    EXPECT_EQ(CorePathText::Absolute(u"C:\\base\\", u"D:\\x"), u"D:\\x\\");
    EXPECT_EQ(CorePathText::Absolute(u"C:\\base\\", u"\\x"), u"C:\\x\\");
    EXPECT_EQ(CorePathText::Absolute(u"\\home\\anna\\", u"\\usr\\"), u"\\usr\\");
}

TEST(CorePathTextTest, SlashesDivideAsBackslashesDo)
{
    EXPECT_EQ(CorePathText::WithBackslash(u"C:/Daten/"), u"C:/Daten\\");
    EXPECT_EQ(CorePathText::WithBackslash(u"C:/Daten\\/"), u"C:/Daten\\");
    EXPECT_EQ(CorePathText::Drive(u"C:/Daten/a.txt"), u"C:");
    EXPECT_EQ(CorePathText::Drive(u"//server/share/a.txt"), u"//server/share");
    EXPECT_EQ(CorePathText::Drive(u"/:/a.txt"), u"");
    EXPECT_EQ(CorePathText::Drive(u"/home"), u"");
    EXPECT_EQ(CorePathText::Folder(u"/home/anna/b.txt"), u"\\home\\anna\\");
    EXPECT_EQ(CorePathText::FileName(u"/home/anna/b.txt"), u"b.txt");
    EXPECT_EQ(CorePathText::FileName(u"a/b\\c.txt"), u"c.txt");
    EXPECT_EQ(CorePathText::FileName(u"a\\b/c.txt"), u"c.txt");
    EXPECT_EQ(CorePathText::BaseName(u"sfx/a.b.wav"), u"a.b");
    EXPECT_EQ(CorePathText::Extension(u"v1.0/readme"), u"");
    EXPECT_EQ(CorePathText::WithoutExtension(u"v1.0/readme.txt"), u"v1.0/readme");
    EXPECT_EQ(CorePathText::Relative(u"C:/base/sub/f.txt", u"C:\\base\\"), u"sub\\");
    EXPECT_EQ(CorePathText::Relative(u"/home/anna/f.txt", u"/home/ben/"), u"..\\anna\\");
    EXPECT_EQ(CorePathText::Absolute(u"C:/base", u"../x/./y"), u"C:\\x\\y\\");
    EXPECT_EQ(CorePathText::Absolute(u"C:\\base\\", u"/x"), u"C:\\x\\");
    EXPECT_EQ(CorePathText::Absolute(u"C:\\base\\", u"//server/share/x/.."), u"\\\\server\\share\\");
}

TEST(CorePathTextTest, RelativeAndAbsoluteLeadBack)
{
    constexpr StringView Folders[] = {u"C:\\", u"C:\\a\\", u"C:\\a\\b\\", u"C:\\c\\d\\e\\", u"D:\\a\\"};
    for (const StringView base : Folders) {
        for (const StringView folder : Folders) {
            const String path = String(folder) + u"f.txt";
            EXPECT_EQ(CorePathText::Absolute(base, CorePathText::Relative(path, base)), folder);
        }
    }
}

} // namespace
} // namespace phial
