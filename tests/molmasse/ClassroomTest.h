#pragma once

#include "app/RecentNames.h"
#include "core/CoreParameters.h"
#include "core/CoreValuePacker.h"
#include "molmasse/TrainerTest.h"
#include "results/cls_DataScores.h"
#include "server/cls_AppServerConfig.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <optional>
#include <vector>

namespace molmasse
{

/// The trainer in a classroom: a scripted master that answers as the real one does.
class ClassroomTest : public TrainerTest
{
protected:
    ClassroomTest()
    {
        phial::rememberName({u"Maxi", u"fox"});
        install();
        outside.network().answerWith([this](const phial::String& message) { return answer(message); });
    }

    /// The master's answer to a message "MODULE::COMMAND::package".
    std::optional<phial::String> answer(const phial::String& message)
    {
        messages.push_back(message);
        if (whileAnswering) {
            whileAnswering(message);
        }
        if (!isThere) {
            return std::nullopt;
        }
        if (message.starts_with(u"SERVER::LOGON::")) {
            return u"008:LOGON:OK";
        }
        if (message.starts_with(u"SERVER::PACK::")) {
            return u"008:" + handedOut();
        }
        if (message.starts_with(u"SERVER::MODE::")) {
            return app.empty() ? u"008:0" : u"008:1";
        }
        if (message.starts_with(u"SERVER::GAMEIDENT::")) {
            return u"008:" + app;
        }
        if (message.starts_with(u"HIGHSCORE::SUBMIT::")) {
            return u"008:4";
        }
        if (message.starts_with(u"HIGHSCORE::GET::")) {
            return u"008:" + scores.DATA()->Pack();
        }
        return u"008:OK";
    }

    void enter()
    {
        open({});
        trainer->welcome();
    }

    /// The messages that begin so.
    std::vector<phial::String> sent(phial::StringView beginning) const
    {
        std::vector<phial::String> found;
        std::ranges::copy_if(messages, std::back_inserter(found),
                             [&](const phial::String& message) { return message.starts_with(beginning); });
        return found;
    }
    /// The packed values behind "MODULE::COMMAND::".
    static std::vector<phial::Variant> package(const phial::String& message)
    {
        return phial::CoreValuePacker::unpackAll(message.substr(message.rfind(u"::") + 2));
    }
    /// The actions that the master has been told.
    std::vector<phial::String> actions() const
    {
        std::vector<phial::String> told;
        for (const phial::String& message : sent(u"EVENT::ADD::")) {
            told.push_back(package(message).at(0).toText());
        }
        return told;
    }

    bool isThere = true;
    phial::String app = u"Molmasse";
    phial::CoreParameters settings; // as the teacher has set them
    phial::cls_DataScores scores;
    std::function<void(const phial::String& message)> whileAnswering;
    std::vector<phial::String> messages;

private:
    phial::String handedOut() const
    {
        phial::cls_AppServerConfig config;
        config.SETTINGS()->CopyFrom(settings);
        return config.PACK();
    }
};

} // namespace molmasse
