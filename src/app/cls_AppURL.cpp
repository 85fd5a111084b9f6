#include "app/cls_AppURL.h"

#include "app/InstallationTree.h"
#include "app/Settings.h"
#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/sys_Global.h"
#include "core/CoreDialogs.h"
#include "core/CoreFiles.h"
#include "core/CorePathText.h"
#include "core/CoreRegistry.h"
#include "core/CoreRoot.h"
#include "core/CoreStringList.h"
#include "core/CoreSystem.h"
#include "core/Environment.h"
#include "core/FileSystem.h"
#include "core/RuntimeError.h"
#include "core/SessionState.h"

#include <initializer_list>

namespace phial
{

namespace
{

constexpr StringView RootNotFound = u"Der Ordner mit den Daten-Dateien des QV Phials wurde nicht gefunden! "
                                    u"Installieren Sie die Software ggf. neu!";
constexpr StringView TransferMarker = u"DataTransferDone.ini";

String withBackslash(StringView folder)
{
    return CorePathText::WithBackslash(folder);
}

/// The places of an installation in the order in which they are tried, the relative ones as absolute folders,
/// since the current folder changes to the root that is found.
CoreStringList rootCandidates()
{
    CoreRoot& core = coreRoot();
    const String programs = core.CoreSystem().CoreFolders().ProgramFiles();
    const String stored = core.CoreRegistry().CoreRegistryRead().ReadString(
        SettingsHive::LocalMachine, settings::path(u"Path"), {}, settings::TextLimit);
    CoreStringList candidates;
    candidates.Setup(1);
    if (!stored.empty()) {
        candidates.Add(withBackslash(stored));
    }
    candidates.Add(programs + u"Chemie\\QV Phial\\");
    candidates.Add(programs + u"Chemie\\QV Brunnhof\\QV Phial\\");
    candidates.Add(u"E:\\Source\\QV Phial\\");
    candidates.Add(u"J:\\Projekte\\Kunden-Projekte\\QV Brunnhof\\Source\\QV Phial\\");

    candidates.Setup(8);
    for (const StringView relative :
         {u"", u"..\\", u"..\\..\\", u"..\\..\\..\\", u"..\\..\\..\\..\\", u"..\\..\\..\\..\\..\\"}) {
        candidates.Add(
            withBackslash(CorePathText::Absolute(SessionState::current().currentFolder().path(), relative)));
    }
    return candidates;
}

/// Creates the folders that are missing; one that cannot be created is left to the writer who needs it.
void createMissing(std::initializer_list<StringView> folders)
{
    CoreFiles& files = coreRoot().CoreFiles();
    for (const StringView folder : folders) {
        if (!files.FolderExists(folder)) {
            ignoringErrors([&] { files.CreateFolder(folder); });
        }
    }
}

/// Whether a file is not there for certain.
bool isMissing(const String& file)
{
    FileStatus found{.kind = FileStatus::Kind::Other};
    const auto native = coreRoot().CoreFiles().native(file);
    ignoringErrors([&] { found = SessionState::current().platform().files->status(native); });
    return found.kind == FileStatus::Kind::Absent;
}

/// Whether a file can be written, read back and deleted in the folder.
bool isWritable(const String& folder)
{
    constexpr StringView Content = u"Hallo";
    const String probe = folder + u"test.dat";
    CoreFiles& files = coreRoot().CoreFiles();
    bool deleted = false;
    ignoringErrors([&] {
        deleted =
            files.WriteScratch(probe, Content) && files.ReadText(probe) == Content && files.Delete(probe);
    });
    return deleted;
}

/// Whether each list that is there can be read and replaced, which a folder can deny to one user although
/// others made files in it.
bool letsListsBeReplaced(const String& folder)
{
    const CoreFiles& files = coreRoot().CoreFiles();
    FileSystem& fileSystem = *SessionState::current().platform().files;
    for (const String& file : files.List(folder + u"*.qv-*", false, true, true)) {
        const bool isList = CorePathText::Extension(file).starts_with(u"qv-");
        if (isList && !fileSystem.mayReplace(files.native(file))) {
            return false;
        }
    }
    return true;
}

} // namespace

cls_AppURL::cls_AppURL()
    : resourceCache_(coreRoot().CoreSystem().CoreFolders().UserAppData() + u"QV Phial\\Cache\\")
{
    createMissing({resourceCache_});
}

void cls_AppURL::INITROOT(StringView pRoot, bool pInitData)
{
    if (!pRoot.empty()) {
        rememberedRoot_ = withBackslash(pRoot);
    }
    if (!rememberedRoot_.empty()) {
        root_ = rememberedRoot_;
    } else if (!findRoot()) {
        coreRoot().CoreDialogs().Error(RootNotFound);
        return;
    }
    if (pInitData) {
        setInstallationFolders();
    }
    setSharedFolders();
    createMissing({dataHighscores_, configApp_, configShared_, dataUser_, apps_});

    const String ident = QVAPP()->CONFIG()->IDENT();
    if (ident.empty()) {
        return;
    }
    setAppFolders(ident);
    createMissing({dataApp_, dataHighscores_, configApp_});
    usesOwnFolder_ = !isWritable(dataHighscores_) || !letsListsBeReplaced(dataHighscores_);
    if (usesOwnFolder_) {
        fallBackToUserDocuments(ident);
    }
    transferOldData();
}

bool cls_AppURL::findRoot()
{
    for (const String& candidate : rootCandidates()) {
        if (installationTree::isRoot(candidate)) {
            root_ = candidate;
            SessionState::current().currentFolder().change(root_);
            return true;
        }
    }
    return false;
}

String cls_AppURL::SHAREDFILES() const
{
    CoreRoot& core = coreRoot();
    // Compared as texts, so that a version "10.0" counts as an old one.
    const bool hasPublicFolder = core.CoreSystem().CoreMachine().OSVersion() >= u"6.0";
    const String variable = SessionState::current().platform().environment->variable(
        hasPublicFolder ? u"PUBLIC" : u"ALLUSERPROFILE");
    const String place = variable.empty() ? core.CoreSystem().CoreFolders().CommonAppData() : variable;
    return withBackslash(place) + (hasPublicFolder ? u"Documents\\QV Phial\\" : u"Dokumente\\QV Phial\\");
}

void cls_AppURL::setInstallationFolders()
{
    apps_ = root_ + u"apps\\";
    resourceSfx_ = root_ + u"resources\\sfx\\";
    resourceGfx_ = root_ + u"resources\\gfx\\";
    dataShared_ = root_ + u"resources\\data\\";
    resourceAvatars_ = root_ + u"resources\\avatar\\";
}

void cls_AppURL::setSharedFolders()
{
    const String shared = SHAREDFILES();
    dataHighscores_ = shared + u"Highscores\\";
    configApp_ = shared + u"config\\";
    configShared_ = shared + u"config\\";
    dataUser_ = shared + u"datauser\\";
    configUser_ = coreRoot().CoreSystem().CoreFolders().UserAppData() + u"QV Phial\\config\\";
}

void cls_AppURL::setAppFolders(const String& ident)
{
    const String shared = SHAREDFILES();
    dataApp_ = root_ + u"apps\\" + ident + u"\\data\\";
    dataHighscores_ = shared + u"Highscores\\" + ident + u"\\";
    configApp_ = shared + u"Config\\" + ident + u"\\";
    configUser_ = coreRoot().CoreSystem().CoreFolders().UserAppData() + u"QV Phial\\Config\\";
}

void cls_AppURL::fallBackToUserDocuments(const String& ident)
{
    const String own = coreRoot().CoreSystem().CoreFolders().UserDocuments() + u"QV Phial\\";
    createMissing({own, own + u"Highscores\\", own + u"Config\\"});
    dataHighscores_ = own + u"Highscores\\" + ident + u"\\";
    configUser_ = own + u"Config\\" + ident + u"\\";
    createMissing({dataHighscores_, configUser_});
}

/// Moves what older versions kept elsewhere, once a machine. A file that could not be copied is deleted from
/// its old place all the same, and the marker is written even if nothing could be moved.
void cls_AppURL::transferOldData() const
{
    CoreFiles& files = coreRoot().CoreFiles();
    const String target = SHAREDFILES();
    // Once more would put old files over those that have been written since.
    if (!isMissing(target + String(TransferMarker))) {
        return;
    }
    const String source = coreRoot().CoreSystem().CoreFolders().CommonAppData() + u"QV Phial\\";
    for (const String& file : files.List(source + u"*.*", false, true, false)) {
        ignoringErrors([&] { files.CreateFolder(target + file, true); });
        ignoringErrors([&] { files.Copy(source + file, target + file); });
        ignoringErrors([&] { files.Delete(source + file); });
    }
    files.WriteText(target + String(TransferMarker), u"OK");
}

} // namespace phial
