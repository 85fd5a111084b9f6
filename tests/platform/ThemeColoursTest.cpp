#include "core/Palette.h"
#include "support/HeadlessSession.h"

#include <vector>

namespace phial
{
namespace
{

using ThemeColours = test::HeadlessSession;

TEST_F(ThemeColours, RolesAndSlotsAreShownInTheSetOfTheTheme)
{
    EXPECT_EQ(defaultColour(Palette::Ground), RGB(246, 249, 252));
    coreTheme().SetColours(ColourSet::Dark);
    EXPECT_EQ(defaultColour(Palette::Ground), RGB(15, 28, 41));
    EXPECT_EQ(defaultColour(SystemColour::Window), defaultColour(Palette::Surface));
    EXPECT_EQ(defaultColour(SystemColour::WindowText), defaultColour(Palette::Ink));
    coreTheme().SetColours(ColourSet::HighContrast);
    EXPECT_EQ(defaultColour(Palette::Accent), RGB(0xFF, 0xE6, 0));
    EXPECT_EQ(defaultColour(SystemColour::ButtonFace), RGB(0, 0, 0));
    EXPECT_EQ(defaultColour(RGB(1, 2, 3)), RGB(1, 2, 3)) << "a plain colour is what it is";
    EXPECT_EQ(defaultColour(Palette::Ground, ColourSet::Light), RGB(246, 249, 252));
}

TEST_F(ThemeColours, TheThemeTellsAnotherSetOnce)
{
    std::vector<ColourSet> told;
    const auto connection = coreTheme().COLOURSCHANGED.connect([&](ColourSet set) { told.push_back(set); });
    const std::uint32_t before = coreTheme().changes();
    coreTheme().SetColours(ColourSet::Dark);
    coreTheme().SetColours(ColourSet::Dark);
    EXPECT_EQ(told, std::vector{ColourSet::Dark});
    EXPECT_EQ(coreTheme().changes(), before + 1);
    coreTheme().SetColour(ThemeSlot::Accent, RGB(9, 9, 9));
    EXPECT_EQ(coreTheme().changes(), before + 2);
}

TEST_F(ThemeColours, TheDesktopIsFollowedUntilTheUserChooses)
{
    CoreTheme& theme = coreTheme();
    theme.desktopColours(ColourSet::Dark);
    EXPECT_EQ(theme.Colours(), ColourSet::Dark);
    theme.SetColours(ColourSet::Light);
    EXPECT_EQ(theme.Colours(), ColourSet::Light);
    theme.desktopColours(ColourSet::HighContrast);
    EXPECT_EQ(theme.Colours(), ColourSet::Light) << "the user's choice";
    theme.SetColours(std::nullopt);
    EXPECT_EQ(theme.Colours(), ColourSet::HighContrast);
    EXPECT_EQ(theme.chosenColours(), std::nullopt);
}

} // namespace
} // namespace phial
