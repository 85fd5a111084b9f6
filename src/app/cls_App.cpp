#include "app/cls_App.h"

#include "app/Session.h"
#include "app/StartUp.h"
#include "app/cls_AppConfig.h"
#include "app/cls_AppDialog.h"
#include "app/cls_AppMRU.h"
#include "app/cls_AppTools.h"
#include "app/cls_AppURL.h"
#include "app/cls_AppUser.h"
#include "app/cls_Language.h"
#include "app/screen/frm_Fade.h"
#include "app/sys_Global.h"
#include "core/CoreRoot.h"
#include "core/CoreRuntimeOptions.h"
#include "core/InterCom.h"
#include "core/RuntimeError.h"
#include "media/cls_AppMedia.h"
#include "media/cls_AppTexts.h"
#include "results/cls_AppRate.h"
#include "server/cls_AppServer.h"

#include <utility>

namespace phial
{

cls_App::cls_App() = default;

cls_App::~cls_App()
{
    DEINIT();
}

void cls_App::INIT(String pCmd)
{
    startUp(*this, std::move(pCmd), true);
}

void cls_App::INITSTANDALONE(String pCmd)
{
    startUp(*this, std::move(pCmd), false);
}

void cls_App::DEINIT()
{
    ignoringErrors([] {
        if (const auto cover = Session::current().existingSharedForm<frm_Fade>()) {
            cover->Unload();
        }
    });
    ignoringErrors([this] {
        if (const auto server = server_.existing()) {
            server->DISCONNECT();
        }
    });
    ignoringErrors([] { coreRoot().CoreRuntimeOptions().Shutdown(); });
}

void cls_App::READY()
{
    if (!interCom_) {
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    }
    interCom_->Send(u"QVSTARTCENTER", 1, u"APPREADY");
}

const std::shared_ptr<cls_Language>& cls_App::LANGUAGE() const
{
    return LNG();
}

const std::shared_ptr<cls_AppURL>& cls_App::URL()
{
    return url_.get();
}

void cls_App::URL(std::shared_ptr<cls_AppURL> value)
{
    url_.set(std::move(value));
}

const std::shared_ptr<cls_AppMedia>& cls_App::MEDIA()
{
    return media_.get();
}

void cls_App::MEDIA(std::shared_ptr<cls_AppMedia> value)
{
    media_.set(std::move(value));
}

const std::shared_ptr<cls_AppConfig>& cls_App::CONFIG()
{
    return config_.get();
}

void cls_App::CONFIG(std::shared_ptr<cls_AppConfig> value)
{
    config_.set(std::move(value));
}

const std::shared_ptr<cls_AppTools>& cls_App::TOOLS()
{
    return tools_.get();
}

void cls_App::TOOLS(std::shared_ptr<cls_AppTools> value)
{
    tools_.set(std::move(value));
}

const std::shared_ptr<cls_AppMRU>& cls_App::MRU()
{
    return mru_.get();
}

void cls_App::MRU(std::shared_ptr<cls_AppMRU> value)
{
    mru_.set(std::move(value));
}

const std::shared_ptr<cls_AppDialog>& cls_App::DIALOG()
{
    return dialog_.get();
}

void cls_App::DIALOG(std::shared_ptr<cls_AppDialog> value)
{
    dialog_.set(std::move(value));
}

const std::shared_ptr<cls_AppUser>& cls_App::USER()
{
    return user_.get();
}

void cls_App::USER(std::shared_ptr<cls_AppUser> value)
{
    user_.set(std::move(value));
}

const std::shared_ptr<cls_AppServer>& cls_App::SERVER()
{
    return server_.get();
}

void cls_App::SERVER(std::shared_ptr<cls_AppServer> value)
{
    server_.set(std::move(value));
}

const std::shared_ptr<cls_AppRate>& cls_App::RATE()
{
    return rate_.get();
}

void cls_App::RATE(std::shared_ptr<cls_AppRate> value)
{
    rate_.set(std::move(value));
}

const std::shared_ptr<cls_AppTexts>& cls_App::TEXTS()
{
    return texts_.get();
}

void cls_App::TEXTS(std::shared_ptr<cls_AppTexts> value)
{
    texts_.set(std::move(value));
}

} // namespace phial
