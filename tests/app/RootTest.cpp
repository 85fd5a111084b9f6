#include "app/AppTest.h"
#include "app/cls_AppTools.h"
#include "app/cls_Language.h"
#include "core/CoreRoot.h"
#include "core/CoreRuntimeOptions.h"
#include "core/InterCom.h"
#include "server/cls_AppServer.h"

#include <functional>

namespace phial
{

namespace
{

/// The root, its sub-objects, and its end with the session.
class Root : public AppTest
{
protected:
    Root()
    {
        watch = coreRoot().CoreRuntimeOptions().SHUTDOWN.connect([this] { ++shutdowns; });
    }

    /// Begins a run that is logged on to a master, and watches for its logoff.
    void startLoggedOn()
    {
        outside.network().answerWith([this](const String& message) {
            if (message.starts_with(u"SERVER::LOGOFF::")) {
                ++logoffs;
                atLogoff();
            }
            return u"008:LOGON:OK";
        });
        ASSERT_TRUE(start().SERVER()->CONNECT());
    }

    int shutdowns = 0;
    int logoffs = 0;
    std::function<void()> atLogoff = [] {};
    Connection watch;
};

TEST_F(Root, IsOneObject)
{
    EXPECT_EQ(QVAPP(), QVAPP());
    EXPECT_EQ(sys_Global::QVAPP(), QVAPP());
}

TEST_F(Root, SpeaksTheLanguageOfTheSession)
{
    EXPECT_EQ(QVAPP()->LANGUAGE(), LNG());
    EXPECT_EQ(LNG(), LNG());
}

TEST_F(Root, HasTheSettingsKey)
{
    EXPECT_EQ(QVAPP()->REGKEY(), u"Software\\QV Brunnhof\\Phial\\");
    QVAPP()->REGKEY(u"Elsewhere\\");
    EXPECT_EQ(QVAPP()->REGKEY(), u"Elsewhere\\");
}

TEST_F(Root, MakesASubObjectOnceAndKeepsIt)
{
    const auto config = QVAPP()->CONFIG();
    EXPECT_EQ(QVAPP()->CONFIG(), config);
    EXPECT_EQ(QVAPP()->TOOLS(), QVAPP()->TOOLS());
}

TEST_F(Root, TakesAnotherSubObject)
{
    const auto config = std::make_shared<cls_AppConfig>();
    QVAPP()->CONFIG(config);
    EXPECT_EQ(QVAPP()->CONFIG(), config);
    const auto url = std::make_shared<cls_AppURL>();
    QVAPP()->URL(url);
    EXPECT_EQ(QVAPP()->URL(), url);
    const auto tools = std::make_shared<cls_AppTools>();
    QVAPP()->TOOLS(tools);
    EXPECT_EQ(QVAPP()->TOOLS(), tools);
}

TEST_F(Root, ReadsTheSettingsWhenConfigIsFirstRead)
{
    QVAPP();
    prepareUserSetting(u"Config\\Sound", false);
    EXPECT_FALSE(QVAPP()->CONFIG()->SOUND());
}

TEST_F(Root, LogsOffAndShutsTheCoreDownAtTheEnd)
{
    startLoggedOn();
    QVAPP()->DEINIT();
    EXPECT_EQ(logoffs, 1);
    EXPECT_EQ(shutdowns, 1);
}

TEST_F(Root, IgnoresErrorsAtTheEnd)
{
    startLoggedOn();
    atLogoff = [] { throw RuntimeError(ErrorNumber::ObjectNotSet); };
    QVAPP()->DEINIT();
    QVAPP()->DEINIT();
    EXPECT_EQ(logoffs, 2);
    EXPECT_EQ(shutdowns, 2);
}

TEST_F(Root, EndsWithoutEverHavingStarted)
{
    QVAPP()->DEINIT();
    EXPECT_EQ(shutdowns, 1);
}

TEST_F(Root, StillAnswersWhileTheSessionEnds)
{
    String identAtTheEnd;
    startLoggedOn();
    atLogoff = [&] {
        if (identAtTheEnd.empty()) {
            identAtTheEnd = QVAPP()->CONFIG()->IDENT();
        }
    };
    session.reset();
    EXPECT_EQ(identAtTheEnd, u"Molmasse");
    EXPECT_EQ(shutdowns, 2);
}

TEST_F(Root, MakesNoSecondRootWhileTheSessionEnds)
{
    int raised = 0;
    startLoggedOn();
    const Connection atShutdown = coreRoot().CoreRuntimeOptions().SHUTDOWN.connect(
        [&] { raised += ignoringErrors([] { QVAPP(); }) ? 0 : 1; });
    session.reset();
    EXPECT_EQ(shutdowns, 2);
    EXPECT_EQ(raised, 1);
    EXPECT_EQ(logoffs, 1);
}

TEST_F(Root, MakesNoSubObjectAtTheEnd)
{
    QVAPP()->DEINIT();
    EXPECT_FALSE(folderExists(path(u"UserAppData\\")));
}

} // namespace

} // namespace phial
