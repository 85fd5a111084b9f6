#pragma once

#include "core/String.h"

namespace phial
{

/// Where the installed data lie, and where each kind of file is read and written.
///
/// The suite is installed once and several programs share it: read-only resources below an installation root,
/// shared writable data in a public folder, settings of the user in the user's own data. A shared folder that
/// turns out not to be writable, or to hold lists that this user cannot replace, is replaced by one in the
/// user's documents, without a word; `usesOwnFolder` tells it. Every folder ends in a backslash, so paths are
/// joined by writing them one after the other. Any caller may replace any folder; the next INIT sets them
/// anew.
class cls_AppURL
{
public:
    /// Sets RESOURCECACHE and creates that folder.
    cls_AppURL();

    /// The same as INITLOCAL.
    void INIT() { INITLOCAL(); }
    /// INITROOT with no root of its own.
    void INITLOCAL() { INITROOT({}); }

    /// Finds the root and sets all folders, creating what is missing.
    ///
    /// `pRoot`: the installation to use, taken as it is and remembered, so that later calls without one stay
    /// with it; empty to use the remembered one or, without that, to search. `pInitData`: whether APPS,
    /// RESOURCESFX, RESOURCEGFX, DATASHARED and RESOURCEAVATARS are set. When the search finds nothing, an
    /// error box says so and everything stays as it was. Without an identifier (CONFIG.IDENT) only the
    /// folders that all programs share are set.
    void INITROOT(StringView pRoot, bool pInitData = true);

    /// The public folder in which programs and users share what they write.
    String SHAREDFILES() const;

    /// A flag for the host's own use.
    bool ONLYLOCAL() const { return onlyLocal_; }
    void ONLYLOCAL(bool value) { onlyLocal_ = value; }

    /// The installation root.
    const String& ROOT() const { return root_; }
    void ROOT(String value) { root_ = std::move(value); }

    /// The program's own data below the root.
    const String& DATAAPP() const { return dataApp_; }
    void DATAAPP(String value) { dataApp_ = std::move(value); }

    /// The data of the installation that all programs read.
    const String& DATASHARED() const { return dataShared_; }
    void DATASHARED(String value) { dataShared_ = std::move(value); }

    /// The program's score lists, shared by all users where that is possible.
    const String& DATAHIGHSCORES() const { return dataHighscores_; }
    void DATAHIGHSCORES(String value) { dataHighscores_ = std::move(value); }

    /// Whether the shared folder for score lists has refused this user, so that the lists are the user's own.
    bool usesOwnFolder() const { return usesOwnFolder_; }

    /// Data that users make, shared.
    const String& DATAUSER() const { return dataUser_; }
    void DATAUSER(String value) { dataUser_ = std::move(value); }

    /// All programs' own data below the root.
    const String& APPS() const { return apps_; }
    void APPS(String value) { apps_ = std::move(value); }

    /// The program's settings files, shared.
    const String& CONFIGAPP() const { return configApp_; }
    void CONFIGAPP(String value) { configApp_ = std::move(value); }

    /// Settings files of all programs, shared.
    const String& CONFIGSHARED() const { return configShared_; }
    void CONFIGSHARED(String value) { configShared_ = std::move(value); }

    /// Settings files of the user. It has the identifier in it only after the fallback to the documents.
    const String& CONFIGUSER() const { return configUser_; }
    void CONFIGUSER(String value) { configUser_ = std::move(value); }

    /// Sounds.
    const String& RESOURCESFX() const { return resourceSfx_; }
    void RESOURCESFX(String value) { resourceSfx_ = std::move(value); }

    /// Pictures.
    const String& RESOURCEGFX() const { return resourceGfx_; }
    void RESOURCEGFX(String value) { resourceGfx_ = std::move(value); }

    /// Avatar pictures.
    const String& RESOURCEAVATARS() const { return resourceAvatars_; }
    void RESOURCEAVATARS(String value) { resourceAvatars_ = std::move(value); }

    /// Files that may be deleted at any time.
    const String& RESOURCECACHE() const { return resourceCache_; }
    void RESOURCECACHE(String value) { resourceCache_ = std::move(value); }

private:
    bool findRoot();
    void setInstallationFolders();
    void setSharedFolders();
    void setAppFolders(const String& ident);
    void fallBackToUserDocuments(const String& ident);
    void transferOldData() const;

    bool onlyLocal_ = false;
    bool usesOwnFolder_ = false;
    String root_;
    String dataApp_;
    String dataShared_;
    String dataHighscores_;
    String dataUser_;
    String apps_;
    String configApp_;
    String configShared_;
    String configUser_;
    String resourceSfx_;
    String resourceGfx_;
    String resourceAvatars_;
    String resourceCache_;
    String rememberedRoot_;
};

} // namespace phial
