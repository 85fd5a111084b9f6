#include "master/AppCatalogue.h"

#include "core/FileSystem.h"
#include "core/NumberText.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock-more-matchers.h>

using namespace phial;
using namespace phial::master;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

TEST(AppCatalogue, ReadsWhatAnAppTellsOfItself)
{
    EXPECT_EQ(
        AppCatalogue::read(u"Molmasse", u"Name = \"Molmassen-Trainer\"\r\nModules = \"HIGHSCORE, Salze\""),
        (LearningApp{u"Molmasse", u"Molmassen-Trainer", {u"HIGHSCORE", u"SALZE"}}));
    EXPECT_EQ(AppCatalogue::read(u"Wasser", u""), (LearningApp{u"Wasser", u"Wasser", {}}));
    EXPECT_EQ(AppCatalogue::read(u"Wasser", u"junk ="), (LearningApp{u"Wasser", u"Wasser", {}}));
    EXPECT_EQ(AppCatalogue::read(u"Wasser", u"Name = 3; Modules = 4"),
              (LearningApp{u"Wasser", u"Wasser", {}}));
    EXPECT_EQ(AppCatalogue::read(u"Wasser", u"Name = \" \"; Modules = \", ,\""),
              (LearningApp{u"Wasser", u"Wasser", {}}));
}

TEST(AppCatalogue, TooMuchIsLeftOut)
{
    String modules = String(65, u'x') + u"," + String(64, u'y');
    for (int module = 1; module <= 200; ++module) {
        modules += u",M" + plainText(module);
    }
    const LearningApp app = AppCatalogue::read(u"A", u"Modules = \"" + modules + u"\"");
    EXPECT_EQ(app.modules.size(), AppCatalogue::MaxModules);
    EXPECT_EQ(app.modules.front(), String(64, u'Y'));
}

TEST(AppCatalogue, FindsAppsByIdentifierAndName)
{
    const AppCatalogue apps({{u"Molmasse", u"Molmassen-Trainer", {u"SALZE"}}, {u"Wasser", u"Wasser", {}}});
    EXPECT_EQ(apps.find(u"molmasse")->ident, u"Molmasse");
    EXPECT_EQ(apps.find(u"MOLMASSEN-TRAINER")->ident, u"Molmasse");
    EXPECT_EQ(apps.find(u"Molmase"), nullptr);
    EXPECT_THAT(apps.modulesOf(u"molmassen-trainer"),
                ElementsAre(u"HIGHSCORE", u"MOLMASSE", u"MOLMASSEN-TRAINER", u"SALZE"));
    EXPECT_THAT(apps.modulesOf(u"Fremd"), ElementsAre(u"FREMD", u"HIGHSCORE"));
    EXPECT_THAT(apps.modulesOf(u""), ElementsAre(u"HIGHSCORE"));
}

TEST(AppCatalogue, LooksIntoTheInstallation)
{
    const phial::test::TemporaryFolder folder;
    folder.write("Wasser/data/app.txt", "\xEF\xBB\xBFName = \"Das Wasser\"");
    folder.write("Molmasse/data/app.txt", "Name = \"Molmassen-Trainer\"");
    folder.write("Gross/data/app.txt", "Name = \"" + std::string(20000, 'x') + "\"");
    folder.write("Master/data/other.txt", "");
    NativeFileSystem files;
    const AppCatalogue apps = AppCatalogue::inFolder(files, folder.native());
    EXPECT_THAT(apps.apps(), ElementsAre(LearningApp{u"Gross", u"Gross", {}},
                                         LearningApp{u"Molmasse", u"Molmassen-Trainer", {}},
                                         LearningApp{u"Wasser", u"Das Wasser", {}}));
    EXPECT_THAT(AppCatalogue::inFolder(files, folder.native() / "nowhere").apps(), IsEmpty());
}

} // namespace
