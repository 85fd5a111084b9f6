#include "results/ListExport.h"

#include "app/Settings.h"
#include "core/CoreDataFile.h"
#include "core/CoreDialogs.h"
#include "core/CorePathText.h"
#include "core/CoreRegistry.h"
#include "core/CoreRoot.h"

namespace phial
{

namespace
{

constexpr StringView FolderSetting = u"MRU\\Highscore";
constexpr StringView ByteOrderMark = u"\uFEFF";

/// Where the dialog begins: a proposal without a folder is seen from the folder of the last export.
String startingPlace(StringView proposal)
{
    String place(proposal.empty() ? StringView(u"*.txt") : proposal);
    if (CorePathText::Folder(place).empty()) {
        const CoreRegistryRead& settings = coreRoot().CoreRegistry().CoreRegistryRead();
        place.insert(0, settings.ReadString(SettingsHive::CurrentUser, settings::path(FolderSetting)));
    }
    return place;
}

} // namespace

bool exportText(StringView proposal, StringView text)
{
    CoreDialogs& dialogs = coreRoot().CoreDialogs();
    const String path = dialogs.SaveFile(startingPlace(proposal), u"Highscore speichern", u"Textdatei|*.txt");
    if (path.empty()) {
        return false;
    }
    coreRoot().CoreRegistry().CoreRegistryWrite().WriteString(
        SettingsHive::CurrentUser, settings::path(FolderSetting), CorePathText::Folder(path));
    CoreDataFile file;
    file.Open(path, DataFileMode::Write);
    file.WriteText(ByteOrderMark);
    file.WriteText(text);
    file.Close();
    dialogs.Done(u"Gespeichert");
    return true;
}

} // namespace phial
