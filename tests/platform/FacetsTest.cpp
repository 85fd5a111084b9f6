#include "core/CoreCursors.h"
#include "core/CoreDialogs.h"
#include "core/CoreDisplay.h"
#include "core/CoreRuntimeOptions.h"
#include "core/CoreSystem.h"
#include "support/HeadlessSession.h"
#include "support/Raises.h"

#include <gmock/gmock-matchers.h>

namespace phial
{
namespace
{

using ::testing::ElementsAre;

using Facets = test::HeadlessSession;

TEST_F(Facets, OptionsAreReportedEachTimeAndFoundWhateverTheirCase)
{
    CoreRuntimeOptions& options = coreRoot().CoreRuntimeOptions();
    std::vector<String> reported;
    const Connection connection = options.OPTIONSET.connect(
        [&](const String& name, const Variant& value) { reported.push_back(name + u"=" + value.toText()); });
    options.SetOption(u"TouchMode", true);
    options.SetOption(u"TOUCHMODE", true);
    EXPECT_THAT(reported, ElementsAre(u"TOUCHMODE=True", u"TOUCHMODE=True"));
    EXPECT_EQ(options.Option(u"touchmode"), Variant(true));
    EXPECT_TRUE(options.Option(u"other").isEmpty());
}

TEST_F(Facets, ShutdownIsAnnouncedEachTime)
{
    int announced = 0;
    const Connection connection = coreRoot().CoreRuntimeOptions().SHUTDOWN.connect([&] { ++announced; });
    coreRoot().CoreRuntimeOptions().Shutdown();
    coreRoot().CoreRuntimeOptions().Shutdown();
    EXPECT_EQ(announced, 2);
}

TEST_F(Facets, TheComputerIsReachedThroughTheSystem)
{
    const CoreSystem& system = coreRoot().CoreSystem();
    EXPECT_EQ(system.CoreFolders().UserDocuments(), folder.path() + u"UserDocuments\\");
    EXPECT_EQ(system.CoreMachine().OSVersion(), u"6.1");
    EXPECT_NE(system.CoreMachine().NewUniqueID(0, 0), system.CoreMachine().NewUniqueID(0, 0));
    outside.windows().place(WindowHandle{3}, {10, 20, 110, 70});
    EXPECT_EQ(system.CoreWindowOps().ScreenRight(WindowHandle{3}), 110);
    EXPECT_EQ(system.CoreWindowOps().ScreenTop(WindowHandle::None), 0);
}

TEST_F(Facets, AddressesAndProgramsGoToTheShell)
{
    CoreSystem& system = coreRoot().CoreSystem();
    EXPECT_TRUE(system.ShellOpen(WindowHandle::None, u"https://example.org/"));
    EXPECT_NE(system.StartProgram({u"viewer", {u"a b"}, u"\\data\\"}), 0);
    outside.shell().answer(false);
    EXPECT_FALSE(system.ShellOpen(WindowHandle::None, u"nonsense"));
    EXPECT_EQ(system.StartProgram({u"nonsense"}), 0);
    EXPECT_FALSE(system.RunProgram({u"nonsense"}));
    EXPECT_THAT(outside.shell().opened(), ElementsAre(u"https://example.org/", u"nonsense"));
    EXPECT_THAT(outside.shell().started(), ElementsAre(ProgramCall{u"viewer", {u"a b"}, u"\\data\\"},
                                                       ProgramCall{u"nonsense"}, ProgramCall{u"nonsense"}));
}

TEST_F(Facets, EventsRunUntilAProgramThatIsAwaitedEnds)
{
    outside.shell().keepRunning();
    int ticks = 0;
    const Connection timer = session.platform().pump->startTimer(1000, [&] {
        if (++ticks == 3) {
            outside.shell().endPrograms(7);
        }
    });
    EXPECT_EQ(coreRoot().CoreSystem().RunProgram({u"viewer"}), 7);
    EXPECT_EQ(ticks, 3);
}

TEST_F(Facets, ThePointerIsGivenByPartsAndWhole)
{
    outside.display().moveCursor(30, 40);
    std::int32_t x = 0;
    std::int32_t y = 0;
    coreRoot().CoreDisplay().CursorPos(x, y);
    EXPECT_EQ(x, coreRoot().CoreDisplay().CursorX());
    EXPECT_EQ(y, 40);
}

TEST_F(Facets, CursorsReachTheOutside)
{
    coreRoot().CoreCursors().Load(u"cur\\hand up.ico", 0, true, true);
    EXPECT_THAT(outside.cursors().loaded(), ElementsAre(u"cur\\hand up.ico"));
}

TEST_F(Facets, TheThemeHoldsColoursAndTheirTexts)
{
    std::vector<ThemeSlot> changed;
    const Connection connection =
        coreTheme().CHANGED.connect([&](ThemeSlot slot) { changed.push_back(slot); });
    coreTheme().SetColour(ThemeSlot::Accent, QBColor(2));
    coreTheme().SetColour(ThemeSlot::Frame, u"#38fF38");
    coreTheme().SetColour(ThemeSlot::Frame, u"#38FF38");
    EXPECT_EQ(coreTheme().Colour(ThemeSlot::Accent), RGB(0, 128, 0));
    EXPECT_EQ(coreTheme().Colour(ThemeSlot::Frame), RGB(0x38, 0xFF, 0x38));
    EXPECT_THAT(changed, ElementsAre(ThemeSlot::Accent, ThemeSlot::Frame));
}

TEST_F(Facets, ATextThatIsNoColourRaises)
{
    for (const StringView text : {u"", u"38FF38", u"#38FF3", u"#38FF3G", u"#38FF380"}) {
        EXPECT_RAISES(coreTheme().SetColour(ThemeSlot::Frame, text), InvalidArgument);
    }
}

TEST_F(Facets, BoxesAnswerByScript)
{
    outside.dialogs().expect(headless::Box::Info);
    outside.dialogs().expectYesNo(DialogAnswer::Yes, u"Weiter?");
    outside.dialogs().expectInput(u"42");
    outside.dialogs().expectSaveFile(u"\\out.txt");
    CoreDialogs& dialogs = coreRoot().CoreDialogs();
    dialogs.Info(u"Hallo", u"Info");
    EXPECT_EQ(dialogs.YesNo(u"Weiter?"), DialogAnswer::Yes);
    EXPECT_EQ(dialogs.Input(u"Zahl", u"Eingabe", u"1"), u"42");
    EXPECT_EQ(dialogs.SaveFile(u"\\", u"Sichern", u"Textdatei|*.txt"), u"\\out.txt");
    EXPECT_THAT(outside.dialogs().shown()[2],
                (headless::ShownBox{headless::Box::Input, u"Zahl", u"Eingabe", u"1"}));
}

} // namespace
} // namespace phial
