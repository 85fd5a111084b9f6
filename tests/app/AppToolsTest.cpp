#include "app/AppTest.h"
#include "app/cls_AppTools.h"
#include "core/RuntimeError.h"
#include "support/Raises.h"
#include "visual/Form.h"
#include "visual/Picture.h"

#include <cmath>
#include <gmock/gmock-more-matchers.h>
#include <limits>

namespace phial
{
namespace
{

using ::testing::ElementsAre;

class AppToolsTest : public AppTest
{
protected:
    cls_AppTools& tools = *QVAPP()->TOOLS();
};

TEST_F(AppToolsTest, TheTwoColours)
{
    EXPECT_EQ(tools.COLORX(), RGB(149, 177, 255));
    EXPECT_EQ(tools.COLORY(), RGB(255, 204, 0));
}

TEST_F(AppToolsTest, CapitalsBeginWords)
{
    EXPECT_EQ(tools.XCASE(u""), u"");
    EXPECT_EQ(tools.XCASE(u"der GOLDENE topf"), u"Der Goldene Topf");
    EXPECT_EQ(tools.XCASE(u"äpfel ÖL über ßa"), u"Äpfel Öl Über ßa");
    EXPECT_EQ(tools.XCASE(u"a  b "), u"A  B ");
    EXPECT_EQ(tools.XCASE(u" x"), u" X");
    EXPECT_EQ(tools.XCASE(u"alle-neune\tDREI 4te"), u"Alle-neune\tdrei 4te");
}

/// A scale of seven rows, two pH each, whose row r is RGB(10 r, 20 + r, 255 - r).
class PHColorTest : public AppToolsTest
{
protected:
    PHColorTest()
    {
        QVAPP()->URL()->RESOURCEGFX(path(u"gfx\\"));
        const auto scale = std::make_shared<Picture>(PixelSize{3, 7});
        for (std::uint32_t row = 0; row < 7; ++row) {
            for (std::uint32_t column = 0; column < 3; ++column) {
                scale->pixels()[row * 3 + column] =
                    0xFF000000U | (10 * row) << 16U | (20 + row) << 8U | (255 - row);
            }
        }
        outside.visual().addPicture(nativePath(path(u"gfx\\ph.png")), scale);
    }

    int row(double pH) { return tools.PHCOLOR(pH).red() / 10; }
};

TEST_F(PHColorTest, HasTheColourOfTheRow)
{
    EXPECT_EQ(tools.PHCOLOR(0), RGB(0, 20, 255));
    EXPECT_EQ(tools.PHCOLOR(7), RGB(30, 23, 252));
    EXPECT_EQ(tools.PHCOLOR(14), RGB(60, 26, 249));
}

TEST_F(PHColorTest, ARowReachesUpToTheNext)
{
    EXPECT_EQ(row(1.99), 0);
    EXPECT_EQ(row(2), 1);
    EXPECT_EQ(row(3.9), 1);
    EXPECT_EQ(row(11.99), 5);
    EXPECT_EQ(row(13.99), 6);
}

TEST_F(PHColorTest, BeyondTheScaleItsEndsCount)
{
    EXPECT_EQ(tools.PHCOLOR(-1), tools.PHCOLOR(0));
    EXPECT_EQ(tools.PHCOLOR(15), tools.PHCOLOR(14));
    EXPECT_EQ(row(-std::numeric_limits<double>::infinity()), 0);
    EXPECT_EQ(row(std::numeric_limits<double>::infinity()), 6);
}

TEST_F(PHColorTest, WhatIsNoNumberHasNoColour)
{
    EXPECT_RAISES(tools.PHCOLOR(std::nan("")), InvalidArgument);
}

TEST_F(AppToolsTest, WithoutItsPictureThereIsNoScale)
{
    QVAPP()->URL()->RESOURCEGFX(path(u"nowhere\\"));
    EXPECT_RAISES(tools.PHCOLOR(7), FileNotFound);
}

class ResolutionTest : public AppToolsTest
{
protected:
    void parameter(StringView name) { QVAPP()->CONFIG()->PARAMETERS()->Set(name, u""); }

    /// Left, top, width and height of the form, in pixels.
    std::vector<double> place() const
    {
        return {form->Left() / 15, form->Top() / 15, form->Width() / 15, form->Height() / 15};
    }

    std::shared_ptr<Form> form = std::make_shared<Form>(u"frm_Main");
};

TEST_F(ResolutionTest, WithoutAParameterTheFormHasItsState)
{
    form->Move(300, 600, 4500, 3000);
    tools.RESOLUTION(*form);
    EXPECT_EQ(form->WindowState(), WindowState::Maximized);
    tools.RESOLUTION(*form, WindowState::Minimized);
    EXPECT_EQ(form->WindowState(), WindowState::Minimized);
    EXPECT_THAT(place(), ElementsAre(20, 40, 300, 200));
}

TEST_F(ResolutionTest, EachParameterHasItsSizeInTheMiddleOfTheScreen)
{
    outside.display().resize(1920, 1080);
    form->WindowState(WindowState::Maximized);
    parameter(u"EEE");
    tools.RESOLUTION(*form);
    EXPECT_EQ(form->WindowState(), WindowState::Normal);
    EXPECT_THAT(place(), ElementsAre(448, 240, 1024, 600));

    QVAPP()->CONFIG()->PARAMETERS()->Clear();
    parameter(u"-1024x768");
    tools.RESOLUTION(*form);
    EXPECT_THAT(place(), ElementsAre(448, 156, 1024, 768));

    QVAPP()->CONFIG()->PARAMETERS()->Clear();
    parameter(u"-1280x800");
    tools.RESOLUTION(*form, WindowState::Minimized);
    EXPECT_EQ(form->WindowState(), WindowState::Normal);
    EXPECT_THAT(place(), ElementsAre(320, 140, 1280, 800));
}

TEST_F(ResolutionTest, TheLastOneThatIsThereWinsWhateverTheirOrder)
{
    outside.display().resize(1920, 1080);
    parameter(u"-1280x800");
    parameter(u"eee");
    tools.RESOLUTION(*form);
    EXPECT_EQ(form->Width() / 15, 1280);

    QVAPP()->CONFIG()->PARAMETERS()->Clear();
    parameter(u"-1024x768");
    parameter(u"EEE");
    tools.RESOLUTION(*form);
    EXPECT_EQ(form->Height() / 15, 768);
}

TEST_F(ResolutionTest, TheCommandLineBringsTheParameter)
{
    outside.display().resize(1920, 1080);
    start(u"-1280x800");
    tools.RESOLUTION(*form);
    EXPECT_EQ(form->Width() / 15, 1280);
}

TEST_F(ResolutionTest, OnASmallScreenTheTitleBarStaysWithin)
{
    outside.display().resize(1000, 500);
    parameter(u"EEE");
    tools.RESOLUTION(*form);
    EXPECT_THAT(place(), ElementsAre(0, 0, 1024, 600));
}

class SisterProgramTest : public AppToolsTest
{
protected:
    SisterProgramTest()
    {
        QVAPP()->URL()->APPS(path(u"apps\\"));
        makeFile(u"apps\\Wasser\\wasser", u"");
        makeFile(u"apps\\Salze\\Salze.exe", u"");
        goTo(path(u""));
    }

    ProgramCall call(StringView program, std::vector<String> arguments = {}) const
    {
        return {path(u"apps\\") + String(program), std::move(arguments), path(u"")};
    }
    const std::vector<ProgramCall>& started() { return outside.shell().started(); }
};

TEST_F(SisterProgramTest, IsStartedWithItsParametersAndGivesItsNumber)
{
    EXPECT_EQ(tools.stArt(u"Wasser\\wasser", u"NONETWORK  \"NAME=Anna Blume\""), 1);
    EXPECT_EQ(tools.stArt(u"Wasser\\wasser"), 2);
    EXPECT_THAT(started(), ElementsAre(call(u"Wasser\\wasser", {u"NONETWORK", u"NAME=Anna Blume"}),
                                       call(u"Wasser\\wasser")));
}

TEST_F(SisterProgramTest, IsFoundWithAndWithoutItsEndingAndByItsFolder)
{
    tools.stArt(u"Wasser/Wasser.exe");
    tools.stArt(u"Salze\\Salze");
    tools.stArt(u"wasser");
    tools.stArt(u"Salze");
    EXPECT_THAT(started(), ElementsAre(call(u"Wasser\\Wasser"), call(u"Salze\\Salze.exe"),
                                       call(u"wasser\\wasser"), call(u"Salze\\Salze.exe")));
}

TEST_F(SisterProgramTest, IsAwaitedWhileEventsRun)
{
    outside.shell().keepRunning();
    int ticks = 0;
    const Connection timer = SessionState::current().platform().pump->startTimer(500, [&] {
        if (++ticks == 4) {
            outside.shell().endPrograms(3);
        }
    });
    EXPECT_EQ(tools.stArt(u"Wasser", {}, true), 3);
    EXPECT_EQ(ticks, 4);
}

TEST_F(SisterProgramTest, ThatIsMissingOrCannotBeStartedRaises)
{
    EXPECT_RAISES(tools.stArt(u"Feuer"), FileNotFound);
    outside.shell().answer(false);
    EXPECT_RAISES(tools.stArt(u"Wasser"), FileAccess);
    EXPECT_RAISES(tools.stArt(u"Wasser", {}, true), FileAccess);
}

TEST_F(SisterProgramTest, GivesMinusOneWhereErrorsAreNotWanted)
{
    EXPECT_EQ(tools.stArt(u"Feuer", {}, false, false), -1);
    EXPECT_EQ(tools.stArt(u"..\\apps\\Wasser", {}, false, false), -1);
    outside.shell().answer(false);
    EXPECT_EQ(tools.stArt(u"Wasser", {}, false, false), -1);
    EXPECT_EQ(tools.stArt(u"Wasser", {}, true, false), -1);
}

TEST_F(SisterProgramTest, LiesBelowTheFolderOfTheSuite)
{
    makeFile(u"other\\other", u"");
    makeFile(u"apps\\..x\\..x", u"");
    for (const StringView program : {u"", u" ", u"..\\other\\other", u"Wasser\\..\\..\\other\\other",
                                     u"../other/other", u"\\other\\other", u"C:\\other\\other", u".."}) {
        EXPECT_RAISES(tools.stArt(program), InvalidArgument) << toUtf8(program);
    }
    EXPECT_TRUE(started().empty());
    EXPECT_EQ(tools.stArt(u"..x"), 1);
}

} // namespace
} // namespace phial
