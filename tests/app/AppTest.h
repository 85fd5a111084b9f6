#pragma once

#include "app/Settings.h"
#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/cls_AppURL.h"
#include "app/sys_Global.h"
#include "core/NativePath.h"
#include "support/AppSession.h"

#include <fstream>
#include <iterator>

namespace phial
{

/// What the tests of the frame have in common: short words for files, settings and variables.
class AppTest : public test::AppSession
{
protected:
    AppTest() { outside.environment().set(u"ALLUSERPROFILE", path(u"allusers")); }

    // Makes what is given relatively to the temporary folder, and gives its full path.
    String makeFolder(StringView relative)
    {
        std::filesystem::create_directories(folder.native() / native(relative));
        return path(relative);
    }
    String makeFile(StringView relative, StringView text)
    {
        folder.write(native(relative), toUtf8(text));
        return path(relative);
    }

    // The same by their full paths.
    static bool fileExists(StringView file) { return std::filesystem::is_regular_file(nativePath(file)); }
    static bool folderExists(StringView place) { return std::filesystem::is_directory(nativePath(place)); }
    static String readFile(StringView file)
    {
        std::ifstream stream(nativePath(file), std::ios::binary);
        return fromUtf8(std::string(std::istreambuf_iterator<char>(stream), {}));
    }

    const String& currentFolder() { return SessionState::current().currentFolder().path(); }
    void goTo(StringView target) { SessionState::current().currentFolder().change(target); }

    // Settings below the system's key.
    Variant userSetting(StringView name)
    {
        return outside.settings().read(SettingsHive::CurrentUser, settings::path(name)).value_or(Variant());
    }
    void prepareUserSetting(StringView name, const Variant& value)
    {
        outside.settings().prepare(SettingsHive::CurrentUser, settings::path(name), value);
    }
    void storePath(const String& tree)
    {
        outside.settings().prepare(SettingsHive::LocalMachine, settings::path(u"Path"), tree);
    }

    void expectError(StringView text) { outside.dialogs().expect(headless::Box::Error, String(text)); }
    void variable(const String& name, const String& value) { outside.environment().set(name, value); }
    void ident(const String& value) { QVAPP()->CONFIG()->IDENT(value); }

    /// A run of "Molmasse" with an installation that is found.
    cls_App& start(const String& commandLine = {})
    {
        storePath(makeTree(u"installed\\"));
        ident(u"Molmasse");
        QVAPP()->INIT(commandLine);
        return *QVAPP();
    }
};

} // namespace phial
