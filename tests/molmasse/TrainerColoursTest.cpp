#include "app/cls_Language.h"
#include "core/Palette.h"
#include "molmasse/TrainerTest.h"
#include "visual/PaintSurface.h"
#include "visual/ctl_Gradient.h"

#include <gmock/gmock-more-matchers.h>

namespace molmasse
{
namespace
{

using phial::ColourSet;
using phial::coreTheme;
using phial::String;

class TrainerColours : public TrainerTest
{
protected:
    TrainerColours()
    {
        install();
        open();
    }

    /// What the switch says to those who do not see its sign.
    String said() { return form().control<phial::ctl_Button>(u"but_Colours")->frame().AccessibleName(); }

    void restart()
    {
        trainer.reset();
        session.reset();
        session.emplace(outside.platform());
        open();
    }

    std::string header()
    {
        return outside.visual().drawing(*form().control<phial::ctl_Gradient>(u"bar_Header"));
    }
};

TEST_F(TrainerColours, TheSwitchGoesThroughTheSetsAndBackToTheComputers)
{
    EXPECT_EQ(said(), u"Farben: wie am Computer eingestellt");
    EXPECT_EQ(coreTheme().chosenColours(), std::nullopt);
    touch(u"but_Colours");
    EXPECT_EQ(said(), u"Farben: hell");
    EXPECT_EQ(coreTheme().chosenColours(), ColourSet::Light);
    touch(u"but_Colours");
    EXPECT_EQ(said(), u"Farben: dunkel");
    EXPECT_EQ(coreTheme().Colours(), ColourSet::Dark);
    touch(u"but_Colours");
    EXPECT_EQ(said(), u"Farben: hoher Kontrast");
    EXPECT_EQ(coreTheme().Colours(), ColourSet::HighContrast);
    touch(u"but_Colours");
    EXPECT_EQ(coreTheme().chosenColours(), std::nullopt);
}

TEST_F(TrainerColours, EachChoiceHasItsSign)
{
    std::vector<String> signs;
    for (int press = 0; press < 4; ++press) {
        signs.push_back(buttonText(u"but_Colours"));
        touch(u"but_Colours");
    }
    EXPECT_THAT(signs, ::testing::ElementsAre(u"\u25D0", u"\u2600", u"\u263E", u"\u25A3"));
    EXPECT_EQ(buttonText(u"but_Colours"), u"\u25D0");
}

TEST_F(TrainerColours, TheSwitchSpeaksEnglishAndTellsScreenReaders)
{
    phial::LNG()->CURRENT(phial::ID_Language_English);
    EXPECT_EQ(said(), u"Colours: as set on the computer");
    touch(u"but_Colours");
    EXPECT_EQ(form().control<phial::ctl_Button>(u"but_Colours")->frame().announcement(), u"Colours: light");
}

TEST_F(TrainerColours, TheChoiceIsKept)
{
    touch(u"but_Colours");
    touch(u"but_Colours");
    restart();
    EXPECT_EQ(coreTheme().Colours(), ColourSet::Dark);
    EXPECT_EQ(said(), u"Farben: dunkel");
}

TEST_F(TrainerColours, TheHeaderFollows)
{
    const std::string before = header();
    touch(u"but_Colours");
    touch(u"but_Colours");
    const std::string dark = header();
    EXPECT_NE(dark, before);
    EXPECT_NE(dark.find("#15395A"), std::string::npos) << dark;
}

} // namespace
} // namespace molmasse
