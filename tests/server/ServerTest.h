#pragma once

#include "app/Settings.h"
#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/cls_AppUser.h"
#include "app/sys_Global.h"
#include "core/CoreNetClient.h"
#include "server/cls_AppServer.h"
#include "server/cls_AppServerConfig.h"
#include "support/AppSession.h"
#include "support/Raises.h"
#include "support/ScriptedMaster.h"
#include "visual/Form.h"

#include <gmock/gmock-more-matchers.h>

namespace phial
{

/// A session of the app "Molmasse" with a client that is prepared and a master that answers. Random numbers
/// are 0, so that no random pause takes time.
class ServerTest : public test::AppSession
{
protected:
    ServerTest()
    {
        outside.random().numbers({0.0});
        QVAPP()->CONFIG()->IDENT(u"Molmasse");
        QVAPP()->USER()->SCREENNAME(u"Anna");
        server().INIT();
    }

    cls_AppServer& server() { return *QVAPP()->SERVER(); }
    CoreNetOptions& options() { return server().CLIENT()->Options(); }
    double seconds() { return outside.clock().seconds(); }

    /// Logs on; the master forgets what it was asked.
    void logOn() { ASSERT_TRUE(server().CONNECT()); }

    /// The requests from the given one on, counted from 0.
    std::vector<String> requestsFrom(std::size_t first) const
    {
        const auto all = master.requests();
        return {all.begin() + static_cast<std::ptrdiff_t>(std::min(first, all.size())), all.end()};
    }

    /// The response time-outs under which the requests from the given one on were sent.
    std::vector<double> timeoutsFrom(std::size_t first)
    {
        std::vector<double> timeouts;
        for (std::size_t at = first; at < outside.network().requests().size(); ++at) {
            timeouts.push_back(outside.network().requests()[at].responseTimeout);
        }
        return timeouts;
    }

    void prepareUserSetting(StringView name, const Variant& value)
    {
        outside.settings().prepare(SettingsHive::CurrentUser, settings::path(name), value);
    }

    test::ScriptedMaster master{outside.network()};
};

} // namespace phial
