#include "chem/MoleculeViewer.h"

#include "app/cls_App.h"
#include "app/cls_AppURL.h"
#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "core/CoreDialogs.h"
#include "core/CoreFiles.h"
#include "core/CorePathText.h"
#include "core/CoreRoot.h"
#include "core/CoreSystem.h"
#include "core/CurrentFolder.h"
#include "core/RuntimeError.h"
#include "core/SessionState.h"

#include <initializer_list>

namespace phial
{

namespace
{

constexpr StringView TableFile = u"moleküle2.txt";
constexpr std::uintmax_t LargestTable = 4 * 1024 * 1024; // bytes

constexpr StringView Script = u"qv.scr";
constexpr StringView OwnViewer = u"RASWIN32.EXE";
constexpr StringView InstalledViewer = u"rasmol";

void goTo(const String& folder)
{
    CurrentFolder& current = SessionState::current().currentFolder();
    current.changeDrive(CorePathText::Drive(folder));
    current.change(folder);
}

String scriptFor(const MoleculeModel& model)
{
    return u"load " + model.file + u".pdb\r\nspacefill 120\r\nwireframe 40\r\ndots on\r\n";
}

/// The name by which the viewer, started in its folder, finds the script; empty when it can be written
/// nowhere.
String writeScript(const MoleculeModel& model, const String& folder)
{
    CoreFiles& files = coreRoot().CoreFiles();
    const String script = scriptFor(model);
    if (files.WriteScratch(folder + String(Script), script)) {
        return String(Script);
    }
    const String cached = QVAPP()->URL()->RESOURCECACHE() + String(Script);
    return files.WriteScratch(cached, script) ? files.native(cached).u16string() : String();
}

bool startViewer(const String& script, const String& folder)
{
    CoreSystem& system = coreRoot().CoreSystem();
    const String own = folder + String(OwnViewer);
    const auto start = [&](const String& viewer) {
        return system.StartProgram({viewer, {u"-script", script}, folder}) != 0;
    };
    return (coreRoot().CoreFiles().Exists(own) && start(own)) || start(String(InstalledViewer));
}

void tellOfTheScript()
{
    coreRoot().CoreDialogs().Error(
        LNG()->TRANSLATE(
            u"Der Zugriff auf die Datei 'qv.scr' wurde verweigert! Diese Datei wird aber verwendet, "
            u"um RasMol die korrekten Startparameter zu übergeben.",
            u"Access to the file 'qv.scr' was denied! This file is needed to give RasMol the "
            u"right parameters at its start."),
        LNG()->TRANSLATE(u"Fehler", u"Error"));
}

void tellOfTheViewer()
{
    coreRoot().CoreDialogs().Info(LNG()->TRANSLATE(
        u"Das Programm RasMol, das Moleküle räumlich zeigt, ist auf diesem Computer leider nicht "
        u"installiert. Bitte wende dich an deine Lehrkraft.",
        u"The program RasMol, which shows molecules in three dimensions, is not installed on "
        u"this computer. Please ask your teacher."));
}

} // namespace

MoleculeTable readMolecules(const String& folder)
{
    MoleculeTable table;
    ignoringErrors([&] {
        goTo(folder);
        const CoreFiles& files = coreRoot().CoreFiles();
        const String file = folder + String(TableFile);
        if (files.Changed(file).size <= LargestTable) {
            table = MoleculeTable(files.ReadText(file));
        }
    });
    return table;
}

bool showMolecule(const MoleculeModel& model, const String& folder)
{
    const String script = writeScript(model, folder);
    if (script.empty()) {
        tellOfTheScript();
        return false;
    }
    if (!startViewer(script, folder)) {
        tellOfTheViewer();
        return false;
    }
    return true;
}

} // namespace phial
