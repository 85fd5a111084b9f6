#include "app/AppTest.h"
#include "app/cls_AppTools.h"
#include "app/cls_Language.h"
#include "core/CoreRoot.h"
#include "core/CoreRuntimeOptions.h"
#include "core/InterCom.h"

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

    int shutdowns = 0;
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

TEST_F(Root, DisconnectsAndShutsTheCoreDownAtTheEnd)
{
    int disconnects = 0;
    start().serverContact({{}, [&] { ++disconnects; }});
    QVAPP()->DEINIT();
    EXPECT_EQ(disconnects, 1);
    EXPECT_EQ(shutdowns, 1);
    QVAPP()->serverContact({});
}

TEST_F(Root, IgnoresErrorsAtTheEnd)
{
    start().serverContact({{}, [] { throw RuntimeError(ErrorNumber::ObjectNotSet); }});
    QVAPP()->DEINIT();
    QVAPP()->DEINIT();
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
    start().serverContact({{}, [&] {
                               if (identAtTheEnd.empty()) {
                                   identAtTheEnd = QVAPP()->CONFIG()->IDENT();
                               }
                           }});
    session.reset();
    EXPECT_EQ(identAtTheEnd, u"Molmasse");
    EXPECT_EQ(shutdowns, 2);
}

TEST_F(Root, MakesNoSecondRootWhileTheSessionEnds)
{
    int calls = 0;
    int raised = 0;
    start().serverContact({{}, [&] {
                               ++calls;
                               raised += ignoringErrors([] { QVAPP(); }) ? 0 : 1;
                           }});
    session.reset();
    EXPECT_EQ(calls, 2);
    EXPECT_EQ(raised, 1);
}

TEST_F(Root, MakesNoSubObjectAtTheEnd)
{
    QVAPP()->DEINIT();
    EXPECT_FALSE(folderExists(path(u"UserAppData\\")));
}

} // namespace

} // namespace phial
