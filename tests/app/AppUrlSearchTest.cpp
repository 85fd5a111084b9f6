#include "app/AppTest.h"
#include "app/cls_AppURL.h"

namespace phial
{

namespace
{

constexpr StringView NotFound = u"Der Ordner mit den Daten-Dateien des QV Phials wurde nicht gefunden! "
                                u"Installieren Sie die Software ggf. neu!";

/// The search for the installation root, begun in a folder that has no tree above it.
class AppUrlSearch : public AppTest
{
protected:
    AppUrlSearch() { goTo(makeFolder(u"elsewhere\\")); }

    String searchedRoot()
    {
        cls_AppURL url;
        url.INIT();
        return url.ROOT();
    }
};

TEST_F(AppUrlSearch, FindsTheStoredPath)
{
    const String tree = makeTree(u"installed\\");
    storePath(tree);
    EXPECT_EQ(searchedRoot(), tree);
}

TEST_F(AppUrlSearch, AddsTheMissingBackslashToTheStoredPath)
{
    const String tree = makeTree(u"installed\\");
    storePath(tree.substr(0, tree.size() - 1));
    EXPECT_EQ(searchedRoot(), tree);
}

TEST_F(AppUrlSearch, PassesOverAStoredPathWithoutTheMarkerFile)
{
    storePath(makeFolder(u"installed\\Resources\\").substr(0, path(u"installed\\").size()));
    const String second = makeTree(u"Programs\\Chemie\\QV Phial\\");
    EXPECT_EQ(searchedRoot(), second);
}

TEST_F(AppUrlSearch, PassesOverAFolderWithTheMarkerFileAlone)
{
    makeFile(u"installed\\QVStart.exe", u"");
    storePath(path(u"installed\\"));
    const String second = makeTree(u"Programs\\Chemie\\QV Phial\\");
    EXPECT_EQ(searchedRoot(), second);
}

TEST_F(AppUrlSearch, TriesTheFoldersForProgramsInTheirOrder)
{
    const String later = makeTree(u"Programs\\Chemie\\QV Brunnhof\\QV Phial\\");
    EXPECT_EQ(searchedRoot(), later);
    const String earlier = makeTree(u"Programs\\Chemie\\QV Phial\\");
    EXPECT_EQ(searchedRoot(), earlier);
}

TEST_F(AppUrlSearch, PrefersTheStoredPathToAllOthers)
{
    makeTree(u"Programs\\Chemie\\QV Phial\\");
    goTo(makeTree(u"here\\"));
    const String stored = makeTree(u"installed\\");
    storePath(stored);
    EXPECT_EQ(searchedRoot(), stored);
}

TEST_F(AppUrlSearch, PrefersInstalledProgramsToTheCurrentFolder)
{
    const String installed = makeTree(u"Programs\\Chemie\\QV Phial\\");
    goTo(makeTree(u"here\\"));
    EXPECT_EQ(searchedRoot(), installed);
}

TEST_F(AppUrlSearch, TakesTheCurrentFolderAsAnAbsoluteFolder)
{
    const String here = makeTree(u"here\\");
    goTo(here);
    EXPECT_EQ(searchedRoot(), here);
}

TEST_F(AppUrlSearch, PrefersTheNearestParent)
{
    makeTree(u"near\\");
    const String nearer = makeTree(u"near\\er\\");
    goTo(makeFolder(u"near\\er\\bin\\"));
    EXPECT_EQ(searchedRoot(), nearer);
}

TEST_F(AppUrlSearch, ClimbsFiveFoldersAndNoFurther)
{
    const String tree = makeTree(u"top\\");
    goTo(makeFolder(u"top\\1\\2\\3\\4\\5\\"));
    EXPECT_EQ(searchedRoot(), tree);

    goTo(makeFolder(u"top\\1\\2\\3\\4\\5\\6\\"));
    expectError(NotFound);
    EXPECT_EQ(searchedRoot(), u"");
}

TEST_F(AppUrlSearch, GoesToTheRootThatItFound)
{
    const String tree = makeTree(u"installed\\");
    storePath(tree);
    searchedRoot();
    EXPECT_EQ(currentFolder(), tree);
}

TEST_F(AppUrlSearch, TellsWhenNothingWasFoundAndSetsNoFolder)
{
    cls_AppURL url;
    expectError(NotFound);
    url.INIT();
    EXPECT_EQ(url.ROOT(), u"");
    EXPECT_EQ(url.APPS(), u"");
    EXPECT_EQ(url.DATAHIGHSCORES(), u"");
    EXPECT_EQ(url.CONFIGUSER(), u"");
    EXPECT_EQ(currentFolder(), path(u"elsewhere\\"));
}

TEST_F(AppUrlSearch, TakesAGivenRootWithoutLookingAtIt)
{
    cls_AppURL url;
    url.INITROOT(path(u"nowhere\\"));
    EXPECT_EQ(url.ROOT(), path(u"nowhere\\"));
    EXPECT_EQ(url.APPS(), path(u"nowhere\\apps\\"));
    EXPECT_EQ(url.DATASHARED(), path(u"nowhere\\resources\\data\\"));
    EXPECT_EQ(currentFolder(), path(u"elsewhere\\"));
}

TEST_F(AppUrlSearch, RemembersAGivenRoot)
{
    storePath(makeTree(u"installed\\"));
    cls_AppURL url;
    url.INITROOT(path(u"own\\"));
    url.INIT();
    EXPECT_EQ(url.ROOT(), path(u"own\\"));
}

TEST_F(AppUrlSearch, EndsAGivenRootInABackslash)
{
    cls_AppURL url;
    url.INITROOT(path(u"own"));
    EXPECT_EQ(url.ROOT(), path(u"own\\"));
}

} // namespace

} // namespace phial
