#include "app/AppTest.h"
#include "app/cls_AppURL.h"

namespace phial
{

namespace
{

/// Moving the shared data from where older versions kept them.
class DataTransfer : public AppTest
{
protected:
    DataTransfer()
    {
        storePath(makeTree(u"installed\\"));
        ident(u"Molmasse");
    }

    String oldFolder = path(u"CommonAppData\\QV Phial\\");
    String newFolder = path(u"public\\Documents\\QV Phial\\");
    String marker = newFolder + u"DataTransferDone.ini";
};

TEST_F(DataTransfer, MovesAllFilesWithTheirFolders)
{
    makeFile(u"CommonAppData\\QV Phial\\a.txt", u"a");
    makeFile(u"CommonAppData\\QV Phial\\Highscores\\Molmasse\\b.qv-hsr", u"b");
    cls_AppURL().INIT();
    EXPECT_EQ(readFile(newFolder + u"a.txt"), u"a");
    EXPECT_EQ(readFile(newFolder + u"Highscores\\Molmasse\\b.qv-hsr"), u"b");
    EXPECT_FALSE(fileExists(oldFolder + u"a.txt"));
    EXPECT_FALSE(fileExists(oldFolder + u"Highscores\\Molmasse\\b.qv-hsr"));
}

TEST_F(DataTransfer, LeavesItsMarkEvenWhenNothingWasThere)
{
    cls_AppURL().INIT();
    EXPECT_EQ(readFile(marker), u"OK");
}

TEST_F(DataTransfer, MovesNothingOnceTheMarkIsThere)
{
    cls_AppURL().INIT();
    makeFile(u"CommonAppData\\QV Phial\\late.txt", u"late");
    cls_AppURL().INIT();
    EXPECT_TRUE(fileExists(oldFolder + u"late.txt"));
    EXPECT_FALSE(fileExists(newFolder + u"late.txt"));
}

TEST_F(DataTransfer, MovesNothingWhereTheMarkCannotBeAskedFor)
{
    cls_AppURL().INIT();
    makeFile(u"CommonAppData\\QV Phial\\a.txt", u"old");
    makeFile(u"public\\Documents\\QV Phial\\a.txt", u"written since");
    outside.files().fail(headless::FileStep::Status);
    cls_AppURL().INITROOT(path(u"installed\\"));
    EXPECT_EQ(readFile(newFolder + u"a.txt"), u"written since");
    EXPECT_EQ(readFile(oldFolder + u"a.txt"), u"old");
}

TEST_F(DataTransfer, DeletesTheSourceOfAFailedCopyAllTheSame)
{
    makeFile(u"CommonAppData\\QV Phial\\blocked\\a.txt", u"a");
    makeFile(u"public\\Documents\\QV Phial\\blocked", u"a file in the folder's place");
    cls_AppURL().INIT();
    EXPECT_FALSE(fileExists(oldFolder + u"blocked\\a.txt"));
    EXPECT_EQ(readFile(newFolder + u"blocked"), u"a file in the folder's place");
    EXPECT_EQ(readFile(marker), u"OK");
}

} // namespace

} // namespace phial
