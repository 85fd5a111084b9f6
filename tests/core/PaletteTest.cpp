#include "core/Palette.h"

#include "core/CoreColors.h"
#include "support/Contrast.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <vector>

namespace phial
{

namespace
{

constexpr ColourSet AllSets[] = {ColourSet::Light, ColourSet::Dark, ColourSet::HighContrast};

using test::contrast;

struct Use {
    const char* name;
    Colour role;
    std::vector<Colour> grounds;
};

void expectContrast(const Use& use, double least)
{
    for (const ColourSet set : AllSets) {
        for (const Colour ground : use.grounds) {
            EXPECT_GE(contrast(use.role, ground, set), least)
                << use.name << " on role " << ground.value - Palette::Ground.value << " in set "
                << static_cast<int>(set);
        }
    }
}

TEST(PaletteTest, RolesAreSymbolicUntilTheyArePainted)
{
    EXPECT_TRUE(Palette::Ink.isSystem());
    EXPECT_NE(Palette::Surface, Palette::OnAccent) << "one colour, two roles";
    EXPECT_EQ(defaultColour(Palette::Surface), RGB(255, 255, 255));
    EXPECT_EQ(defaultColour(Palette::Ground), RGB(246, 249, 252));
    EXPECT_EQ(defaultColour(Palette::SurfacePressed), RGB(0xD5, 0xDD, 0xE6)) << "the last one";
    EXPECT_EQ(CoreColors::ToHtml(Palette::Accent), u"#006AB5");
}

TEST(PaletteTest, SlotsOfTheDesktopAreNoRoles)
{
    EXPECT_FALSE(Palette::has(SystemColour::Window));
    EXPECT_FALSE(Palette::has(RGB(1, 2, 3)));
    EXPECT_FALSE(Palette::has(Colour{Palette::SurfacePressed.value + 1}));
    EXPECT_EQ(defaultColour(SystemColour::Window), RGB(255, 255, 255));
    EXPECT_EQ(defaultColour(Colour{0x800000F0U}), Colour()) << "no such slot";
}

TEST(PaletteTest, AFixedGroundHasItsInkInEverySet)
{
    const Colour pale = RGB(204, 225, 240);
    const Colour deep = RGB(0, 64, 118);
    EXPECT_EQ(inkOn(pale, SystemColour::WindowText), RGB(0, 0, 0));
    EXPECT_EQ(inkOn(pale, Palette::Ink), RGB(0x1C, 0x28, 0x36));
    EXPECT_EQ(inkOn(deep, Palette::Ink), RGB(0xED, 0xF3, 0xF8));
    EXPECT_EQ(inkOn(Palette::Surface, Palette::Ink), Palette::Ink);
    EXPECT_EQ(inkOn(deep, RGB(1, 2, 3)), RGB(1, 2, 3));
}

TEST(PaletteTest, TextCanBeReadOnEachGroundItStandsOn)
{
    using namespace Palette;
    const std::vector<Use> texts = {
        {"ink",
         Ink,
         {Ground, Surface, Band, Footer, Field, AccentSoft, RightSoft, TryAgainSoft, FailureSoft,
          SurfaceHover, SurfacePressed}},
        {"muted", Muted, {Ground, Surface, Band, Footer}},
        {"accent", Accent, {Ground, Surface}},
        {"title", AccentDeep, {Ground, Surface, Band}},
        {"on accent", OnAccent, {Accent, AccentHover, AccentPressed, Right}},
        {"on header", OnHeader, {Header, HeaderDeep}},
        {"right", Right, {Ground, Surface, RightSoft}},
        {"try again", TryAgain, {Ground, Surface, TryAgainSoft}},
        {"failure", Failure, {Ground, Surface, FailureSoft}},
    };
    for (const Use& use : texts) {
        expectContrast(use, 4.5);
    }
}

TEST(PaletteTest, BordersAndSignsStandOut)
{
    using namespace Palette;
    const std::vector<Use> signs = {
        {"border", ControlBorder, {Ground, Surface, Field}},
        {"track", Track, {Ground, Surface}},
        {"star", Star, {Surface}},
        {"connected", Connected, {Footer}},
        {"unconnected", Unconnected, {Footer}},
        {"focus ring", FocusRing, {Ground, Surface, Footer, FocusGap}},
        {"accent", Accent, {Ground, Surface}},
    };
    for (const Use& use : signs) {
        expectContrast(use, 3);
    }
    // Whatever the ring lies on, one of its two lines stands out from it.
    for (const ColourSet set : AllSets) {
        for (const Colour ground : {Header, HeaderDeep, Accent, Right}) {
            EXPECT_GE(std::max(contrast(FocusRing, ground, set), contrast(FocusGap, ground, set)), 3.0);
        }
    }
}

TEST(PaletteTest, ContrastIsWhatTheDesignPromises)
{
    using namespace Palette;
    struct Promise {
        Colour role;
        Colour ground;
        double light;
        double dark;
        double highContrast;
    };
    constexpr double Rounding = 0.06;
    const std::vector<Promise> promises = {
        {Ink, Ground, 14.1, 15.4, 21},          {Muted, Ground, 5.7, 8.7, 21},
        {ControlBorder, Surface, 4.1, 4.8, 21}, {OnAccent, Accent, 5.6, 8.5, 16.6},
        {Ink, AccentSoft, 12.7, 10.6, 13},      {Right, RightSoft, 5.4, 7.9, 16.6},
        {TryAgain, TryAgainSoft, 7, 8.9, 13.1}, {Failure, FailureSoft, 5.8, 7.3, 11},
        {Track, Ground, 3.1, 4.2, 21},          {DisabledText, DisabledGround, 4.3, 4.6, 10.6},
        {Star, Surface, 4, 9.6, 16.6},
    };
    for (const Promise& promise : promises) {
        const auto of = [&](ColourSet set) { return contrast(promise.role, promise.ground, set); };
        EXPECT_GE(of(ColourSet::Light), promise.light - Rounding) << std::hex << promise.role.value;
        EXPECT_GE(of(ColourSet::Dark), promise.dark - Rounding) << std::hex << promise.role.value;
        EXPECT_GE(of(ColourSet::HighContrast), promise.highContrast - Rounding)
            << std::hex << promise.role.value;
    }
}

TEST(PaletteTest, HighContrastGivesAllTextsAtLeastSevenToOne)
{
    using namespace Palette;
    for (const Colour text : {Ink, Muted, Accent, AccentDeep, Right, TryAgain, Failure, DisabledText}) {
        for (const Colour ground : {Ground, Surface, Footer, Field}) {
            EXPECT_GE(contrast(text, ground, ColourSet::HighContrast), 7.0) << std::hex << text.value;
        }
    }
}

} // namespace

} // namespace phial
