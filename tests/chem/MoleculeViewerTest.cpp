#include "app/cls_App.h"
#include "app/cls_AppTools.h"
#include "app/cls_AppURL.h"
#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "core/CoreFiles.h"
#include "core/CoreRoot.h"
#include "core/CurrentFolder.h"
#include "core/NativePath.h"
#include "core/SessionState.h"
#include "support/AppSession.h"

#include <gmock/gmock-matchers.h>

namespace phial::test
{
namespace
{

using ::testing::ElementsAre;

class MoleculeViewerTest : public AppSession
{
protected:
    MoleculeViewerTest()
    {
        LNG()->CURRENT(ID_Language_German);
        makeTree(u"tree\\");
        QVAPP()->URL()->INITROOT(path(u"tree\\"));
    }

    void writeTable(const std::string& text) { folder.write(data() / "moleküle2.txt", text); }
    void writeUsualTable() { writeTable("Wasser\t18,0\tH@2O\twasser\nMethan\t16,0\tCH@4\tmethan\n<>\n"); }

    static std::filesystem::path data() { return "tree/apps/rasmol/data"; }
    String dataFolder() const { return path(u"tree\\apps\\rasmol\\data\\"); }

    ProgramCall viewer(const String& program, const String& script = u"qv.scr") const
    {
        return {program, {u"-script", script}, dataFolder()};
    }
    const std::vector<ProgramCall>& started() { return outside.shell().started(); }

    cls_AppTools& tools = *QVAPP()->TOOLS();
};

TEST_F(MoleculeViewerTest, StartsTheViewerInItsFolderWithAScript)
{
    writeUsualTable();
    EXPECT_TRUE(tools.RASMOL(u"Methan"));
    EXPECT_EQ(folder.read(data() / "qv.scr"),
              "load methan.pdb\r\nspacefill 120\r\nwireframe 40\r\ndots on\r\n");
    EXPECT_THAT(started(), ElementsAre(viewer(u"rasmol")));
}

TEST_F(MoleculeViewerTest, AViewerOfItsFolderGoesFirst)
{
    writeUsualTable();
    folder.write(data() / "RASWIN32.EXE", "MZ");
    EXPECT_TRUE(tools.RASMOL(u"H2O"));
    EXPECT_THAT(started(), ElementsAre(viewer(dataFolder() + u"RASWIN32.EXE")));
}

TEST_F(MoleculeViewerTest, AViewerThatDoesNotRunHereGivesWayToTheInstalledOne)
{
    writeUsualTable();
    folder.write(data() / "RASWIN32.EXE", "MZ");
    outside.shell().isMissing(dataFolder() + u"RASWIN32.EXE");
    EXPECT_TRUE(tools.RASMOL(u"H2O"));
    EXPECT_THAT(started(), ElementsAre(viewer(dataFolder() + u"RASWIN32.EXE"), viewer(u"rasmol")));
}

TEST_F(MoleculeViewerTest, WithoutAViewerTheUserIsTold)
{
    writeUsualTable();
    outside.shell().answer(false);
    outside.dialogs().expect(
        headless::Box::Info,
        u"Das Programm RasMol, das Moleküle räumlich zeigt, ist auf diesem Computer leider nicht "
        u"installiert. Bitte wende dich an deine Lehrkraft.");
    EXPECT_FALSE(tools.RASMOL(u"Wasser"));

    LNG()->CURRENT(ID_Language_English);
    outside.dialogs().expect(
        headless::Box::Info,
        u"The program RasMol, which shows molecules in three dimensions, is not installed on "
        u"this computer. Please ask your teacher.");
    EXPECT_FALSE(tools.RASMOL(u"Wasser"));
}

TEST_F(MoleculeViewerTest, AnUnknownCompoundIsTold)
{
    writeUsualTable();
    outside.dialogs().expect(headless::Box::Info,
                             u"Für diese Verbindung kenne ich leider keine RASMOL-Datei...");
    EXPECT_FALSE(tools.RASMOL(u"Phlogiston"));

    LNG()->CURRENT(ID_Language_English);
    outside.dialogs().expect(headless::Box::Info,
                             u"Unfortunately I know no RASMOL file for this compound...");
    EXPECT_FALSE(tools.RASMOL());
    EXPECT_TRUE(started().empty());
}

TEST_F(MoleculeViewerTest, CheckingStartsNothingAndIsSilent)
{
    writeUsualTable();
    EXPECT_TRUE(tools.RASMOL(u"wasser", {}, true));
    EXPECT_TRUE(tools.RASMOL({}, u"methan", true));
    EXPECT_FALSE(tools.RASMOL(u"Phlogiston", {}, true));
    EXPECT_FALSE(tools.RASMOL({}, {}, true));
    EXPECT_TRUE(started().empty());
    EXPECT_FALSE(folder.has(data() / "qv.scr"));
}

TEST_F(MoleculeViewerTest, TheTableIsReadOnceAndItsFolderBecomesTheCurrentOne)
{
    writeUsualTable();
    EXPECT_TRUE(tools.RASMOL(u"Wasser", {}, true));
    EXPECT_EQ(SessionState::current().currentFolder().path(), dataFolder());

    SessionState::current().currentFolder().change(path(u""));
    writeTable("");
    EXPECT_TRUE(tools.RASMOL(u"Wasser", {}, true));
    EXPECT_EQ(SessionState::current().currentFolder().path(), path(u""));
}

TEST_F(MoleculeViewerTest, WithoutATableNothingIsKnown)
{
    EXPECT_FALSE(tools.RASMOL(u"Wasser", {}, true));
    std::filesystem::create_directories(folder.native() / data());
    EXPECT_FALSE(cls_AppTools().RASMOL(u"Wasser", {}, true));
}

TEST_F(MoleculeViewerTest, AFileLargerThanAnyTableIsNone)
{
    const std::string row = "Wasser\t18,0\tH@2O\twasser\n";
    writeTable(row + std::string(4 * 1024 * 1024 - row.size(), ' '));
    EXPECT_TRUE(cls_AppTools().RASMOL(u"Wasser", {}, true));
    writeTable(row + std::string(4 * 1024 * 1024 - row.size() + 1, ' '));
    EXPECT_FALSE(cls_AppTools().RASMOL(u"Wasser", {}, true));
}

TEST_F(MoleculeViewerTest, InAProtectedInstallationTheScriptLiesInTheCache)
{
    writeUsualTable();
    outside.files().protect(folder.native() / "tree");
    EXPECT_TRUE(tools.RASMOL(u"Wasser"));

    const auto cached = nativePath(QVAPP()->URL()->RESOURCECACHE() + u"qv.scr");
    EXPECT_EQ(coreRoot().CoreFiles().ReadText(QVAPP()->URL()->RESOURCECACHE() + u"qv.scr"),
              u"load wasser.pdb\r\nspacefill 120\r\nwireframe 40\r\ndots on\r\n");
    EXPECT_THAT(started(), ElementsAre(viewer(u"rasmol", cached.u16string())));
}

TEST_F(MoleculeViewerTest, AScriptThatCanBeWrittenNowhereIsTold)
{
    writeUsualTable();
    outside.files().failChanges();
    outside.dialogs().expect(headless::Box::Error,
                             u"Der Zugriff auf die Datei 'qv.scr' wurde verweigert! Diese Datei wird aber "
                             u"verwendet, um RasMol die korrekten Startparameter zu übergeben.");
    EXPECT_FALSE(tools.RASMOL(u"Wasser"));
    EXPECT_EQ(outside.dialogs().shown().back().title, u"Fehler");
    EXPECT_TRUE(started().empty());
}

} // namespace
} // namespace phial::test
