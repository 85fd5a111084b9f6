#include "app/AppTest.h"
#include "app/ColourChoice.h"
#include "app/cls_Language.h"
#include "app/screen/Avatars.h"
#include "core/CoreParameters.h"
#include "core/CoreRoot.h"
#include "core/CoreRuntimeOptions.h"
#include "core/InterCom.h"
#include "server/cls_AppServer.h"
#include "support/Raises.h"

#include <vector>

namespace phial
{

namespace
{

constexpr StringView LargeFonts =
    u"Sie haben in Ihrem System die Verwendung 'Großer Schriftarten' eingestellt. Dadurch werden einige "
    u"Grafiken in QV Phial möglicherweise nicht korrekt dargestellt!";
constexpr StringView LargeFontsAgain =
    u"Möchten Sie diesen Hinweis auch beim nächsten Start von QV Phial sehen?";
constexpr StringView RootNotFound = u"Der Ordner mit den Daten-Dateien des QV Phials wurde nicht gefunden! "
                                    u"Installieren Sie die Software ggf. neu!";

class StartUp : public AppTest
{
protected:
    void useLargeFonts() { outside.display().TextHeight(17); }

    /// How often the classroom's client has been prepared, which opens its port.
    std::size_t preparations() { return outside.network().openedPorts().size(); }
};

TEST_F(StartUp, MakesTheMessengerToTheOtherPrograms)
{
    EXPECT_EQ(QVAPP()->INTERCOM(), nullptr);
    EXPECT_NE(start().INTERCOM(), nullptr);
}

TEST_F(StartUp, SetsThreeColoursOfTheTheme)
{
    start();
    EXPECT_EQ(coreTheme().Colour(ThemeSlot::Accent), RGB(0, 128, 0));
    EXPECT_EQ(coreTheme().Colour(ThemeSlot::Frame), RGB(0x38, 0x38, 0x38));
    EXPECT_EQ(coreTheme().Colour(ThemeSlot::FrameText), RGB(255, 255, 255));
}

TEST_F(StartUp, ShowsTheSetOfColoursThatTheUserHasChosen)
{
    start();
    EXPECT_EQ(coreTheme().chosenColours(), std::nullopt) << "as the desktop";
    chooseColours(ColourSet::HighContrast);
    EXPECT_EQ(coreTheme().Colours(), ColourSet::HighContrast);
    EXPECT_EQ(rememberedColours(), ColourSet::HighContrast);
    coreTheme().SetColours(std::nullopt);
    QVAPP()->INIT(u"");
    EXPECT_EQ(coreTheme().Colours(), ColourSet::HighContrast);
    for (const ColourSet set : {ColourSet::Light, ColourSet::Dark}) {
        chooseColours(set);
        EXPECT_EQ(rememberedColours(), set);
    }
    chooseColours(std::nullopt);
    EXPECT_EQ(rememberedColours(), std::nullopt);
}

TEST_F(StartUp, KeepsTheCommandLineAsItWasGiven)
{
    EXPECT_EQ(start(u"  nosound \"a b\"").CONFIG()->CMDLINE(), u"  nosound \"a b\"");
}

TEST_F(StartUp, AddsOneParameterForEachToken)
{
    const auto parameters = start(u"/NONETWORK Level=3 -1024x768").CONFIG()->PARAMETERS();
    ASSERT_EQ(parameters->Count(), 3);
    EXPECT_EQ(parameters->Name(1), u"NONETWORK");
    EXPECT_EQ(parameters->Get(u"NONETWORK", 0), Variant(u""));
    EXPECT_EQ(parameters->Get(u"level"), Variant(u"3"));
    EXPECT_TRUE(parameters->Exists(u"-1024x768"));
}

TEST_F(StartUp, RunsToItsEndWithoutParameters)
{
    EXPECT_EQ(start().CONFIG()->PARAMETERS()->Count(), 0);
    EXPECT_EQ(preparations(), 1U);
}

TEST_F(StartUp, PreparesTheServerClientAndSendsNothing)
{
    start();
    EXPECT_EQ(preparations(), 1U);
    EXPECT_NE(QVAPP()->SERVER()->CLIENT(), nullptr);
    EXPECT_TRUE(outside.network().requests().empty());
}

TEST_F(StartUp, PreparesNoServerClientWhenStandalone)
{
    storePath(makeTree(u"installed\\"));
    QVAPP()->INITSTANDALONE(u"");
    EXPECT_EQ(preparations(), 0U);
    EXPECT_EQ(QVAPP()->SERVER()->CLIENT(), nullptr);
}

TEST_F(StartUp, PreparesNoServerClientWithNoNetwork)
{
    start(u"nonetwork");
    EXPECT_EQ(preparations(), 0U);
}

TEST_F(StartUp, RaisesWhatTheMakerOfTheNetworkClientRaises)
{
    session.reset();
    Platform platform = outside.platform();
    platform.newNetClient = []() -> std::shared_ptr<CoreNetClient> {
        throw RuntimeError(ErrorNumber::InvalidArgument);
    };
    session.emplace(platform);
    storePath(makeTree(u"installed\\"));
    EXPECT_RAISES(QVAPP()->INIT(u""), InvalidArgument);
}

TEST_F(StartUp, RunsToItsEndWithoutANetwork)
{
    session.reset();
    Platform platform = outside.platform();
    platform.newNetClient = nullptr;
    session.emplace(platform);
    start();
    EXPECT_FALSE(QVAPP()->SERVER()->AVAILABLE());
}

TEST_F(StartUp, ResolvesTheFolders)
{
    EXPECT_EQ(start().URL()->DATAAPP(), path(u"installed\\apps\\Molmasse\\data\\"));
}

TEST_F(StartUp, GoesToTheRoot)
{
    start();
    EXPECT_EQ(currentFolder(), path(u"installed\\"));
}

TEST_F(StartUp, GoesToARootThatTheHostHasGiven)
{
    QVAPP()->URL()->INITROOT(makeFolder(u"own\\"));
    QVAPP()->INIT(u"");
    EXPECT_EQ(currentFolder(), path(u"own\\"));
}

TEST_F(StartUp, SearchesTwiceAndRaisesWithoutAnInstallation)
{
    goTo(makeFolder(u"1\\2\\3\\4\\5\\"));
    expectError(RootNotFound);
    expectError(RootNotFound);
    EXPECT_RAISES(QVAPP()->INIT(u""), InvalidArgument);
    EXPECT_EQ(QVAPP()->URL()->ROOT(), u"");
}

TEST_F(StartUp, TurnsSoundOffForTheRunWithNoSound)
{
    EXPECT_FALSE(start(u"NOSOUND").CONFIG()->SOUND());
    EXPECT_EQ(userSetting(u"Config\\Sound"), Variant());
    EXPECT_TRUE(cls_AppConfig().SOUND());
}

TEST_F(StartUp, SavesASilenceOfTheRunLikeAChoice)
{
    start(u"NOSOUND").CONFIG()->SAVE();
    EXPECT_EQ(userSetting(u"Config\\Sound"), Variant(false));
}

TEST_F(StartUp, WarnsAboutLargeFontsAndAsks)
{
    useLargeFonts();
    outside.dialogs().expect(headless::Box::Info, String(LargeFonts));
    outside.dialogs().expectYesNo(DialogAnswer::Yes, String(LargeFontsAgain));
    start();
    EXPECT_EQ(outside.dialogs().shown().front().title, u"Info");
    EXPECT_EQ(userSetting(u"Config\\LargeFontWarn"), Variant());
}

TEST_F(StartUp, WarnsAgainAfterAYes)
{
    useLargeFonts();
    for (int run = 0; run < 2; ++run) {
        outside.dialogs().expect(headless::Box::Info);
        outside.dialogs().expectYesNo(DialogAnswer::Yes);
        start();
    }
}

TEST_F(StartUp, NeverWarnsAgainAfterANo)
{
    useLargeFonts();
    outside.dialogs().expect(headless::Box::Info);
    outside.dialogs().expectYesNo(DialogAnswer::No);
    start();
    EXPECT_EQ(userSetting(u"Config\\LargeFontWarn"), Variant(true));
    start();
}

TEST_F(StartUp, LoadsTheAvatarsInEveryCase)
{
    makeFile(u"installed\\Resources\\avatar\\Robot.GIF", u"not decoded at the start");
    storePath(makeTree(u"installed\\"));
    QVAPP()->INITSTANDALONE(u"nonetwork");
    EXPECT_EQ(AvatarImageKey(1), u"robot");
}

TEST_F(StartUp, RepeatsAllStepsWhenCalledAgain)
{
    start(u"A=1");
    start(u"A=2 B");
    EXPECT_EQ(QVAPP()->CONFIG()->PARAMETERS()->Get(u"A"), Variant(u"2"));
    EXPECT_EQ(QVAPP()->CONFIG()->PARAMETERS()->Count(), 2);
    EXPECT_EQ(preparations(), 2U);
}

TEST_F(StartUp, WritesNoSettingWhenNothingHasChanged)
{
    start();
    EXPECT_TRUE(outside.settings().written().empty());
}

TEST_F(StartUp, SendsReadyToTheStartCentre)
{
    start().READY();
    const std::vector<headless::SentMessage> expected = {{u"QVSTARTCENTER", 1, u"APPREADY"}};
    EXPECT_EQ(outside.interCom().sent(), expected);
}

TEST_F(StartUp, CannotBeReadyBeforeItHasStarted)
{
    EXPECT_RAISES(QVAPP()->READY(), ObjectNotSet);
}

} // namespace

} // namespace phial
