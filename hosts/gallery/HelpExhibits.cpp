#include "app/cls_App.h"
#include "app/cls_AppURL.h"
#include "app/sys_Global.h"
#include "core/CoreFiles.h"
#include "core/CoreFolders.h"
#include "core/CoreRoot.h"
#include "core/CoreSystem.h"
#include "core/RuntimeError.h"
#include "dialogs/frm_DialogHelpImages.h"
#include "gallery/ActionExhibit.h"
#include "gallery/Catalogue.h"

namespace gallery
{

using namespace phial;

namespace
{

constexpr PixelPoint FirstTile{200, 140};
constexpr StringView HelpFolder = u"Hilfe\\";
constexpr double WheelNotches = 4;

/// The trainer's, which is installed beside the gallery.
String trainersBook()
{
    return QVAPP()->URL()->ROOT() + u"apps\\Molmasse\\data\\" + String(HelpFolder);
}

ObjectPtr stageHelp(Stage& stage, const std::shared_ptr<frm_DialogHelpImages>& dialog)
{
    stage.atEnd([dialog] { dialog->form().discard(); });
    return dialog->form().shared_from_this();
}

ObjectPtr buildHelpBook(Stage& stage)
{
    putNote(stage, u"Die Knöpfe unten öffnen das Hilfebuch des Molmassen-Trainers.|"
                   u"The buttons below open the help book of the molar mass trainer.");
    const auto dialog = std::make_shared<frm_DialogHelpImages>();
    dialog->Folder(trainersBook());
    return stageHelp(stage, dialog);
}

/// Pages that may be deleted, in a folder of their own.
String solutionsFolder()
{
    CoreFiles& files = coreRoot().CoreFiles();
    String folder = coreRoot().CoreSystem().CoreFolders().Temp() + u"Phial-Galerie\\";
    ignoringErrors([&] {
        files.CreateFolder(folder);
        const String chapter = trainersBook() + u"K1\\";
        const CoreStringList pages = files.List(chapter + u"*.gif", false, false, true);
        for (std::int32_t page = 1; page <= pages.Count(); ++page) {
            files.Copy(chapter + pages.Item(page), folder + pages.Item(page));
        }
    });
    return folder;
}

void deleteSolutions(const String& folder)
{
    CoreFiles& files = coreRoot().CoreFiles();
    const CoreStringList pages = files.List(folder + u"*.gif", false, true, true);
    for (std::int32_t page = 1; page <= pages.Count(); ++page) {
        files.Delete(pages.Item(page));
    }
}

ObjectPtr buildSolutions(Stage& stage)
{
    putNote(stage, u"Der Knopf unten öffnet Seiten, die man löschen kann; es sind Kopien.|"
                   u"The button below opens pages that can be deleted; they are copies.");
    const auto dialog = std::make_shared<frm_DialogHelpImages>();
    const String folder = solutionsFolder();
    stage.atEnd([folder] { deleteSolutions(folder); });
    dialog->TitleText(say(u"Meine Lösungen|My solutions"));
    dialog->Folder(folder);
    dialog->More().Set(u"DELETE", true);
    return stageHelp(stage, dialog);
}

void openFirstChapter(Form& form)
{
    form.Show();
    Control& page = *form.control<PictureBox>(u"pic_Viewer", 1);
    page.pointerDown({.X = FirstTile.x, .Y = FirstTile.y});
    page.pointerUp({.X = FirstTile.x, .Y = FirstTile.y});
}

void enlargeFirstPage(Form& form)
{
    openFirstChapter(form);
    WheelEvent turn{.Notches = WheelNotches};
    Control& view = *form.control<PictureBox>(u"pic_ViewHolder");
    view.wheel(turn);
}

} // namespace

std::vector<Exhibit> helpExhibits()
{
    const Sample closed = sample<Form>(u"Geschlossen|Closed", [](Form&) {});
    const Sample shown = sample<Form>(u"Zeigen|Show", [](Form& form) { form.Show(); });
    return {{Group::Windows,
             u"frm_DialogHelpImages",
             u"Ein Hilfebuch aus Bildern, mit Übersicht.|A help book of pictures, with contents.",
             buildHelpBook,
             {closed, shown, sample<Form>(u"Kapitel|Chapter", openFirstChapter),
              sample<Form>(u"Vergrößert|Enlarged", enlargeFirstPage)}},
            {Group::Windows,
             u"frm_DialogHelpImages DELETE",
             u"Gesicherte Lösungen, die man löschen kann.|Saved solutions that can be deleted.",
             buildSolutions,
             {closed, shown}}};
}

} // namespace gallery
