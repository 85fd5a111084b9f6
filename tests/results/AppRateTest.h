#pragma once

#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/cls_AppURL.h"
#include "app/cls_AppUser.h"
#include "app/sys_Global.h"
#include "core/CoreParameters.h"
#include "results/cls_AppRate.h"
#include "results/cls_DataScores.h"
#include "server/cls_AppServer.h"
#include "support/AppSession.h"

#include <initializer_list>
#include <memory>

namespace phial
{

/// A pupil who has finished an exercise on a computer without a master, until `logOn`.
class AppRateTest : public test::AppSession
{
protected:
    AppRateTest()
    {
        QVAPP()->URL()->DATAHIGHSCORES(path(u""));
        QVAPP()->URL()->ROOT(path(u"tree\\"));
        QVAPP()->USER()->SCREENNAME(u"Mia");
        QVAPP()->CONFIG()->PARAMETERS()->Set(u"NONETWORK", true);
    }

    static cls_AppRate& rate() { return *QVAPP()->RATE(); }

    /// Starts a master that takes log-ons and answers everything else with that text, and logs on to it.
    void logOn(const String& answer)
    {
        QVAPP()->CONFIG()->PARAMETERS(std::make_shared<CoreParameters>());
        answers(answer);
        QVAPP()->SERVER()->INIT();
        ASSERT_TRUE(QVAPP()->SERVER()->CONNECT());
    }
    void answers(const String& text)
    {
        outside.network().answerWith([text](const String& message) {
            return message.starts_with(u"SERVER::LOGON") ? String(u"008:LOGON:OK") : u"008:" + text;
        });
    }
    String lastMessage() { return outside.network().requests().back().message; }

    void fill(std::initializer_list<double> points, StringView module = u"HIGHSCORE")
    {
        cls_DataScores scores;
        for (const double entry : points) {
            scores.ADD(entry, 100, u"", nullptr, u"", u"", u"Tom");
        }
        ASSERT_TRUE(scores.SAVE(path(String(module) + u".qv-hsr")));
    }
    cls_DataScores& stored(StringView file)
    {
        list_ = std::make_unique<cls_DataScores>();
        EXPECT_TRUE(list_->LOAD(path(file)));
        return *list_;
    }

    /// The one box of a submission.
    void expectMessage(const String& title, const String& text)
    {
        ASSERT_FALSE(outside.dialogs().shown().empty());
        EXPECT_EQ(outside.dialogs().shown().back(),
                  (headless::ShownBox{headless::Box::Info, text, title, u""}));
    }
    std::int32_t submit(double points, std::int32_t limit = 10)
    {
        outside.dialogs().expect(headless::Box::Info);
        return rate().SUBMIT(points, 100, u"", nullptr, u"HIGHSCORE", true, limit);
    }

private:
    std::unique_ptr<cls_DataScores> list_;
};

} // namespace phial
