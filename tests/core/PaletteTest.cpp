#include "core/Palette.h"

#include "core/CoreColors.h"

#include <cmath>
#include <gtest/gtest.h>

namespace phial
{

namespace
{

double luminance(Colour colour)
{
    const auto part = [](std::uint8_t value) {
        const double share = value / 255.0;
        return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(colour.red()) + 0.7152 * part(colour.green()) + 0.0722 * part(colour.blue());
}

double contrast(Colour one, Colour other)
{
    const double first = luminance(defaultColour(one));
    const double second = luminance(defaultColour(other));
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

TEST(PaletteTest, RolesAreSymbolicUntilTheyArePainted)
{
    EXPECT_TRUE(Palette::Ink.isSystem());
    EXPECT_NE(Palette::Surface, Palette::OnAccent) << "one colour, two roles";
    EXPECT_EQ(defaultColour(Palette::Surface), RGB(255, 255, 255));
    EXPECT_EQ(defaultColour(Palette::Ground), RGB(246, 249, 252));
    EXPECT_EQ(defaultColour(Palette::Unconnected), RGB(150, 160, 170));
    EXPECT_EQ(CoreColors::ToHtml(Palette::Accent), u"#006AB5");
}

TEST(PaletteTest, SlotsOfTheDesktopAreNoRoles)
{
    EXPECT_FALSE(Palette::has(SystemColour::Window));
    EXPECT_FALSE(Palette::has(RGB(1, 2, 3)));
    EXPECT_EQ(defaultColour(SystemColour::Window), RGB(255, 255, 255));
}

TEST(PaletteTest, TextCanBeReadOnItsGround)
{
    constexpr double Readable = 4.5;
    for (const Colour ground : {Palette::Ground, Palette::Surface}) {
        for (const Colour text : {Palette::Ink, Palette::Muted, Palette::Accent, Palette::Right,
                                  Palette::TryAgain, Palette::Failure}) {
            EXPECT_GE(contrast(text, ground), Readable) << std::hex << text.value << " on " << ground.value;
        }
    }
    EXPECT_GE(contrast(Palette::OnAccent, Palette::Accent), Readable);
    EXPECT_GE(contrast(Palette::OnAccent, Palette::AccentDeep), Readable);
    EXPECT_GE(contrast(Palette::Ink, Palette::Band), Readable);
    EXPECT_GE(contrast(Palette::Muted, Palette::Footer), Readable);
}

} // namespace

} // namespace phial
