#include "app/AppTest.h"
#include "app/cls_AppURL.h"
#include "support/LimitedDisk.h"

namespace phial
{

namespace
{

/// The folders of a program "Molmasse" whose installation is found.
class AppUrlFolders : public AppTest
{
protected:
    AppUrlFolders()
    {
        storePath(makeTree(u"installed\\"));
        ident(u"Molmasse");
    }

    cls_AppURL url;
    String shared = path(u"public\\Documents\\QV Phial\\");
    String documents = path(u"UserDocuments\\QV Phial\\");
};

TEST_F(AppUrlFolders, CreatesTheCacheAtConstruction)
{
    EXPECT_EQ(url.RESOURCECACHE(), path(u"UserAppData\\QV Phial\\Cache\\"));
    EXPECT_TRUE(folderExists(url.RESOURCECACHE()));
}

TEST_F(AppUrlFolders, DerivesAllFoldersFromRootSharedAndIdentifier)
{
    url.INIT();
    const String root = path(u"installed\\");
    EXPECT_EQ(url.ROOT(), root);
    EXPECT_EQ(url.DATAAPP(), root + u"apps\\Molmasse\\data\\");
    EXPECT_EQ(url.DATASHARED(), root + u"resources\\data\\");
    EXPECT_EQ(url.APPS(), root + u"apps\\");
    EXPECT_EQ(url.RESOURCESFX(), root + u"resources\\sfx\\");
    EXPECT_EQ(url.RESOURCEGFX(), root + u"resources\\gfx\\");
    EXPECT_EQ(url.RESOURCEAVATARS(), root + u"resources\\avatar\\");
    EXPECT_EQ(url.DATAHIGHSCORES(), shared + u"Highscores\\Molmasse\\");
    EXPECT_EQ(url.DATAUSER(), shared + u"datauser\\");
    EXPECT_EQ(url.CONFIGAPP(), shared + u"Config\\Molmasse\\");
    EXPECT_EQ(url.CONFIGSHARED(), shared + u"config\\");
    EXPECT_EQ(url.CONFIGUSER(), path(u"UserAppData\\QV Phial\\Config\\"));
    EXPECT_FALSE(url.ONLYLOCAL());
}

TEST_F(AppUrlFolders, CreatesWhatIsMissing)
{
    url.INIT();
    for (const String& made : {url.APPS(), url.DATAAPP(), url.DATAHIGHSCORES(), url.DATAUSER(),
                               url.CONFIGAPP(), url.CONFIGSHARED()}) {
        EXPECT_TRUE(folderExists(made)) << toUtf8(made);
    }
    EXPECT_FALSE(folderExists(url.CONFIGUSER()));
}

TEST_F(AppUrlFolders, ReadsTheResourcesFolderUnderItsOtherSpelling)
{
    makeFile(u"installed\\Resources\\data\\a.txt", u"found");
    url.INIT();
    EXPECT_EQ(readFile(url.DATASHARED() + u"a.txt"), u"found");
}

TEST_F(AppUrlFolders, KeepsInstallationFoldersWithoutInitData)
{
    url.RESOURCESFX(u"own\\");
    url.INITROOT({}, false);
    EXPECT_EQ(url.RESOURCESFX(), u"own\\");
    EXPECT_EQ(url.APPS(), u"");
    EXPECT_EQ(url.DATASHARED(), u"");
    EXPECT_EQ(url.RESOURCEGFX(), u"");
    EXPECT_EQ(url.RESOURCEAVATARS(), u"");
    EXPECT_EQ(url.DATAAPP(), path(u"installed\\apps\\Molmasse\\data\\"));
}

TEST_F(AppUrlFolders, StopsAtTheCommonFoldersWithoutAnIdentifier)
{
    ident(u"");
    makeFile(u"CommonAppData\\QV Phial\\old.txt", u"old");
    url.INIT();
    EXPECT_EQ(url.DATAAPP(), u"");
    EXPECT_EQ(url.DATAHIGHSCORES(), shared + u"Highscores\\");
    EXPECT_EQ(url.CONFIGAPP(), shared + u"config\\");
    EXPECT_EQ(url.CONFIGUSER(), path(u"UserAppData\\QV Phial\\config\\"));
    EXPECT_FALSE(fileExists(shared + u"DataTransferDone.ini"));
    EXPECT_TRUE(fileExists(path(u"CommonAppData\\QV Phial\\old.txt")));
}

TEST_F(AppUrlFolders, LeavesNoProbeFileBehind)
{
    url.INIT();
    EXPECT_FALSE(fileExists(url.DATAHIGHSCORES() + u"test.dat"));
}

TEST_F(AppUrlFolders, FallsBackToTheUsersDocumentsWhenTheSharedFolderIsReadOnly)
{
    makeFolder(u"public\\Documents\\QV Phial\\Highscores\\Molmasse\\");
    const std::filesystem::path place = folder.native() / "public";
    const auto disk = test::LimitedDisk::readOnly(place / "Documents/QV Phial/Highscores/Molmasse");
    if (!disk.isInForce()) {
        outside.files().protect(place);
    }
    url.INIT();
    EXPECT_EQ(url.DATAHIGHSCORES(), documents + u"Highscores\\Molmasse\\");
    EXPECT_EQ(url.CONFIGUSER(), documents + u"Config\\Molmasse\\");
    EXPECT_EQ(url.CONFIGAPP(), shared + u"Config\\Molmasse\\");
    EXPECT_EQ(url.CONFIGSHARED(), shared + u"config\\");
    EXPECT_EQ(url.DATAUSER(), shared + u"datauser\\");
    EXPECT_TRUE(folderExists(url.DATAHIGHSCORES()));
    EXPECT_TRUE(folderExists(url.CONFIGUSER()));
    EXPECT_TRUE(url.usesOwnFolder());
    EXPECT_FALSE(fileExists(shared + u"Highscores\\Molmasse\\test.dat"));
}

TEST_F(AppUrlFolders, FallsBackWhenAListCannotBeReplacedByThisUser)
{
    const String list = shared + u"Highscores\\Molmasse\\HIGHSCORE.qv-hsr";
    makeFile(u"public\\Documents\\QV Phial\\Highscores\\Molmasse\\HIGHSCORE.qv-hsr", u"of another user");
    makeFile(u"public\\Documents\\QV Phial\\Highscores\\Molmasse\\HIGHSCORE.qv-hsr.kept", u"old");
    url.INIT();
    EXPECT_FALSE(url.usesOwnFolder());
    EXPECT_EQ(url.DATAHIGHSCORES(), shared + u"Highscores\\Molmasse\\");

    outside.files().fail(headless::FileStep::MayReplace);
    url.INIT();
    EXPECT_TRUE(url.usesOwnFolder());
    EXPECT_EQ(url.DATAHIGHSCORES(), documents + u"Highscores\\Molmasse\\");
    EXPECT_EQ(readFile(list), u"of another user");

    std::filesystem::remove(nativePath(list)); // what is kept aside is nobody's to replace
    url.INIT();
    EXPECT_FALSE(url.usesOwnFolder());
}

TEST_F(AppUrlFolders, FallsBackWhenTheDiskIsFull)
{
    constexpr std::size_t Room = 4096;
    makeFolder(u"public\\");
    const auto disk = test::LimitedDisk::withRoom(folder.native() / "public", Room);
    if (disk.isInForce()) {
        folder.write("public/filler", std::string(Room, '.'));
    } else {
        outside.files().freeBytes(3);
    }
    url.INIT();
    EXPECT_EQ(url.DATAHIGHSCORES(), documents + u"Highscores\\Molmasse\\");
    EXPECT_FALSE(fileExists(shared + u"Highscores\\Molmasse\\test.dat"));
}

TEST_F(AppUrlFolders, FallsBackWhenTheProbeCannotBeDeleted)
{
    outside.files().fail(headless::FileStep::Remove);
    url.INIT();
    EXPECT_EQ(url.DATAHIGHSCORES(), documents + u"Highscores\\Molmasse\\");
}

TEST_F(AppUrlFolders, FallsBackWhenAFileStandsInTheFoldersPlace)
{
    makeFile(u"public\\Documents\\QV Phial\\Highscores", u"in the way");
    url.INIT();
    EXPECT_EQ(url.DATAHIGHSCORES(), documents + u"Highscores\\Molmasse\\");
    EXPECT_EQ(readFile(shared + u"Highscores"), u"in the way");
}

TEST_F(AppUrlFolders, RebuildsItsFoldersAtEachCall)
{
    url.INIT();
    url.DATAUSER(u"other\\");
    ident(u"Zweites");
    url.INIT();
    EXPECT_EQ(url.DATAUSER(), shared + u"datauser\\");
    EXPECT_EQ(url.DATAHIGHSCORES(), shared + u"Highscores\\Zweites\\");
}

TEST_F(AppUrlFolders, SharesBelowPublicFromVersionSixOn)
{
    outside.machine().OSVersion(u"6.0");
    EXPECT_EQ(url.SHAREDFILES(), path(u"public\\Documents\\QV Phial\\"));
}

TEST_F(AppUrlFolders, SharesBelowAllUsersBeforeVersionSix)
{
    outside.machine().OSVersion(u"5.1");
    EXPECT_EQ(url.SHAREDFILES(), path(u"allusers\\Dokumente\\QV Phial\\"));
}

TEST_F(AppUrlFolders, ComparesVersionsAsTextsSoThatTenIsOld)
{
    outside.machine().OSVersion(u"10.0");
    EXPECT_EQ(url.SHAREDFILES(), path(u"allusers\\Dokumente\\QV Phial\\"));
}

TEST_F(AppUrlFolders, NeverSharesAtTheTopOfTheDisk)
{
    variable(u"PUBLIC", {});
    EXPECT_EQ(url.SHAREDFILES(), path(u"CommonAppData\\Documents\\QV Phial\\"));
}

} // namespace

} // namespace phial
