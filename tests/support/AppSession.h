#pragma once

#include "app/Session.h"
#include "headless/HeadlessPlatform.h"
#include "support/TemporaryFolder.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <optional>
#include <string>

namespace phial::test
{

/// A fresh run with root and language for each test, on a scripted outside whose special folders lie below a
/// temporary one. It fails like HeadlessSession: by an unexpected box or modal form, a missing one, an error
/// at a dispatch.
class AppSession : public ::testing::Test
{
public:
    static void fail(const String& description) { ADD_FAILURE() << toUtf8(description); }

    AppSession() { outside.environment().set(u"PUBLIC", path(u"public")); }
    /// Ends the run while the test's own members are still there, since the end calls back.
    void TearDown() override
    {
        session.reset();
        outside.dialogs().checkDone();
        outside.visual().checkDone();
    }

    /// A place below the test's temporary folder, as the system writes it.
    String path(StringView relative) const { return folder.path() + String(relative); }

    /// Makes an installation tree there and gives its folder; `relative` ends in a backslash.
    String makeTree(StringView relative)
    {
        folder.write(native(relative) / "QVStart.exe", "marker");
        std::filesystem::create_directories(folder.native() / native(relative) / "Resources");
        return path(relative);
    }

protected:
    static std::filesystem::path native(StringView relative)
    {
        std::string text = toUtf8(relative);
        std::ranges::replace(text, '\\', '/');
        return text;
    }

    TemporaryFolder folder;
    headless::HeadlessPlatform outside{folder.path(), fail};
    std::optional<Session> session{std::in_place, outside.platform()};
};

} // namespace phial::test
