#include "app/AppTest.h"
#include "app/InstallationTree.h"
#include "app/cls_Language.h"
#include "core/NativePath.h"
#include "support/Raises.h"

namespace phial
{

namespace
{

class SessionLife : public AppTest
{
protected:
    /// Ends the fixture's session and opens one for a program in that folder.
    void openFor(const String& programFolder)
    {
        session.reset();
        Platform platform = outside.platform();
        platform.programFolder = programFolder;
        session.emplace(platform);
    }
};

TEST_F(SessionLife, RaisesWhenNoneIsOpen)
{
    session.reset();
    EXPECT_RAISES(QVAPP(), ObjectNotSet);
    EXPECT_RAISES(LNG(), ObjectNotSet);
    EXPECT_RAISES(Session::current(), ObjectNotSet);
}

TEST_F(SessionLife, AllowsOneAtATime)
{
    EXPECT_RAISES(Session(outside.platform()), InvalidArgument);
    EXPECT_EQ(&Session::current(), &*session);
}

TEST_F(SessionLife, StartsAfresh)
{
    ident(u"Molmasse");
    const auto language = LNG();
    session.reset();
    session.emplace(outside.platform());
    EXPECT_EQ(QVAPP()->CONFIG()->IDENT(), u"");
    EXPECT_NE(LNG(), language);
}

TEST_F(SessionLife, MakesASharedFormOnceAndOnlyWhenAsked)
{
    struct HiddenForm {
    };
    EXPECT_EQ(session->existingSharedForm<HiddenForm>(), nullptr);
    const auto form = session->sharedForm<HiddenForm>();
    EXPECT_EQ(session->sharedForm<HiddenForm>(), form);
    EXPECT_EQ(session->existingSharedForm<HiddenForm>(), form);
}

TEST_F(SessionLife, BeginsInTheFolderOfTheProcessWithoutATree)
{
    const String before = currentFolder();
    openFor(makeFolder(u"bin\\"));
    EXPECT_EQ(currentFolder(), before);
}

/// Names a tree as the package does, as long as it lives.
class NamedTree
{
public:
    explicit NamedTree(const String& folder) : folder_(nativePath(folder, {}).string())
    {
        static_cast<void>(InstalledTree(folder_.c_str()));
    }
    ~NamedTree() { static_cast<void>(InstalledTree(nullptr)); }
    NamedTree(const NamedTree&) = delete;
    NamedTree& operator=(const NamedTree&) = delete;

private:
    std::string folder_;
};

TEST_F(SessionLife, BeginsInTheTreeThatWasInstalledWithTheLibrary)
{
    const String tree = makeTree(u"usr\\lib\\phial\\");
    const NamedTree named(tree);
    openFor(makeFolder(u"home\\program\\"));
    EXPECT_EQ(currentFolder(), tree);
}

TEST_F(SessionLife, BeginsInItsOwnTreeThoughOneIsInstalledWithTheLibrary)
{
    const NamedTree named(makeTree(u"usr\\lib\\phial\\"));
    const String own = makeTree(u"home\\tree\\");
    openFor(makeFolder(u"home\\bin\\"));
    EXPECT_EQ(currentFolder(), own);
}

TEST_F(SessionLife, PaysNoHeedToAnInstalledTreeThatHasGone)
{
    const String before = currentFolder();
    const NamedTree named(path(u"usr\\lib\\phial\\"));
    openFor(makeFolder(u"home\\program\\"));
    EXPECT_EQ(currentFolder(), before);
}

TEST_F(SessionLife, BeginsInTheTreeInWhichTheProgramHasItsFolder)
{
    const String tree = makeTree(u"usr\\lib\\phial\\");
    openFor(makeFolder(u"usr\\lib\\phial\\apps\\Molmasse\\"));
    EXPECT_EQ(currentFolder(), tree);
}

TEST_F(SessionLife, BeginsInTheTreeOfABuildFolder)
{
    const String tree = makeTree(u"build\\tree\\");
    openFor(makeFolder(u"build\\bin\\"));
    EXPECT_EQ(currentFolder(), tree);
}

TEST_F(SessionLife, BeginsInTheTreeOfAnInstalledPrefix)
{
    const String tree = makeTree(u"usr\\share\\phial\\");
    openFor(makeFolder(u"usr\\bin\\"));
    EXPECT_EQ(currentFolder(), tree);
}

TEST_F(SessionLife, BeginsInTheProgramsOwnFolderWhenThatIsATree)
{
    const String tree = makeTree(u"program\\");
    openFor(tree);
    EXPECT_EQ(currentFolder(), tree);
}

TEST_F(SessionLife, LetsTheFolderSearchFindTheTreeNearTheProgram)
{
    const String tree = makeTree(u"usr\\share\\phial\\");
    openFor(makeFolder(u"usr\\bin\\"));
    QVAPP()->INIT(u"");
    EXPECT_EQ(QVAPP()->URL()->ROOT(), tree);
}

TEST_F(SessionLife, LeavesTheFolderOfTheProcessAlone)
{
    const auto before = std::filesystem::current_path();
    start();
    EXPECT_EQ(std::filesystem::current_path(), before);
}

} // namespace

} // namespace phial
