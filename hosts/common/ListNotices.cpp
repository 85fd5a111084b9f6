#include "common/ListNotices.h"

#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/cls_AppURL.h"
#include "app/sys_Global.h"
#include "common/FrameTexts.h"
#include "core/CoreDialogs.h"
#include "core/CoreRegistry.h"
#include "core/CoreRoot.h"
#include "results/KeptLists.h"

namespace learning
{

using phial::coreRoot;
using phial::String;

namespace
{

constexpr phial::StringView Title = u"Info";

String toldSetting()
{
    return phial::QVAPP()->REGKEY() + phial::QVAPP()->CONFIG()->IDENT() + u"\\OwnFolderTold";
}

} // namespace

void tellAboutOwnFolder()
{
    auto& registry = coreRoot().CoreRegistry();
    const bool isOwn = phial::QVAPP()->URL()->usesOwnFolder();
    const bool wasTold =
        registry.CoreRegistryRead().ReadBool(phial::SettingsHive::CurrentUser, toldSetting(), false);
    if (isOwn == wasTold) {
        return;
    }
    registry.CoreRegistryWrite().WriteBool(phial::SettingsHive::CurrentUser, toldSetting(), isOwn);
    if (isOwn) {
        coreRoot().CoreDialogs().Info(
            translate(
                u"Die gemeinsamen Listen dieses Computers nehmen von dir nichts an. Deine Ergebnisse liegen "
                u"in deinem eigenen Ordner.",
                u"The shared lists of this computer take nothing from you. Your results are kept in your own "
                u"folder."),
            Title);
    }
}

void tellAboutLists(const phial::HandedIn& result)
{
    if (!result.isKept()) {
        coreRoot().CoreDialogs().Error(
            translate(u"Dein Ergebnis konnte nicht gespeichert werden. Bitte sage deiner Lehrkraft Bescheid.",
                      u"Your result could not be saved. Please tell your teacher."));
    }
    tellAboutKeptLists();
}

void tellAboutKeptLists()
{
    if (const String kept = phial::untoldKeptLists(); !kept.empty()) {
        coreRoot().CoreDialogs().Info(kept, Title);
    }
}

} // namespace learning
