#pragma once

#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/sys_Global.h"
#include "core/CoreNetClient.h"

namespace learning
{

/// The classroom's master as the pictures of an app need it: it answers at once, and nothing goes over a
/// network.
class PicturedMaster final : public phial::CoreNetClient
{
public:
    enum class Mood {
        Absent,  ///< nobody answers
        Waiting, ///< no app is chosen yet
        Open     ///< the app may run
    };

    void mood(Mood value) { mood_ = value; }

    phial::CoreNetOptions& Options() override { return options_; }
    void EnableReceive(bool /*pEnable*/) override {}
    void OpenPort(std::int32_t /*pPort*/) override {}
    void Close() override {}
    phial::String Request(phial::StringView pMessage, phial::StringView /*pIP*/, std::int32_t /*pPort*/,
                          const phial::CoreParameters* /*pParameters*/, bool /*pWait*/,
                          phial::StringView pTimeoutAnswer) override
    {
        if (mood_ == Mood::Absent) {
            return phial::String(pTimeoutAnswer);
        }
        if (pMessage.starts_with(u"SERVER::LOGON")) {
            return u"008:LOGON:OK";
        }
        if (pMessage.starts_with(u"SERVER::MODE")) {
            return mood_ == Mood::Open ? u"008:1" : u"008:0";
        }
        return pMessage.starts_with(u"SERVER::GAMEIDENT") ? u"008:" + phial::QVAPP()->CONFIG()->IDENT()
                                                          : phial::String(u"008:");
    }
    void ShowMonitor() override {}

private:
    phial::CoreNetOptions options_;
    Mood mood_ = Mood::Absent;
};

} // namespace learning
