#include "app/AppTest.h"
#include "app/cls_AppConfig.h"
#include "core/CoreRoot.h"
#include "core/CoreRuntimeOptions.h"

namespace phial
{

namespace
{

class AppConfig : public AppTest
{
};

TEST_F(AppConfig, HasItsDefaultsOnAFreshMachine)
{
    cls_AppConfig config;
    EXPECT_TRUE(config.SOUND());
    EXPECT_TRUE(config.EFFECTS());
    EXPECT_FALSE(config.TOUCHMODE());
    EXPECT_EQ(config.SOUNDMODE(), ID_SoundMode_User);
    EXPECT_EQ(config.NAME(), u"QV Phial");
    EXPECT_EQ(config.VERSION(), u"5.0");
    EXPECT_FALSE(config.COPYRIGHT().empty());
    EXPECT_EQ(config.IDENT(), u"");
    EXPECT_EQ(config.CMDLINE(), u"");
    EXPECT_EQ(config.PARAMETERS()->Count(), 0);
}

TEST_F(AppConfig, ReadsTheThreeSettings)
{
    prepareUserSetting(u"Config\\TouchMode", true);
    prepareUserSetting(u"Config\\Effects", false);
    prepareUserSetting(u"Config\\Sound", false);
    cls_AppConfig config;
    EXPECT_TRUE(config.TOUCHMODE());
    EXPECT_FALSE(config.EFFECTS());
    EXPECT_FALSE(config.SOUND());
}

TEST_F(AppConfig, SavesTheThreeSettingsAndNothingElse)
{
    cls_AppConfig config;
    config.TOUCHMODE(true);
    config.SOUND(false);
    config.EFFECTS(false);
    config.SOUNDMODE(ID_SoundMode_AllOff);
    config.IDENT(u"Molmasse");
    config.NAME(u"Molare Masse");
    config.SAVE();
    EXPECT_EQ(userSetting(u"Config\\TouchMode"), Variant(true));
    EXPECT_EQ(userSetting(u"Config\\Sound"), Variant(false));
    EXPECT_EQ(userSetting(u"Config\\Effects"), Variant(false));
    EXPECT_EQ(outside.settings().written().size(), 3U);
}

TEST_F(AppConfig, StartsSilentAfterASavedSilence)
{
    cls_AppConfig().SAVE();
    cls_AppConfig first;
    first.SOUND(false);
    first.SAVE();
    EXPECT_FALSE(cls_AppConfig().SOUND());
}

TEST_F(AppConfig, WritesNothingUnlessSaved)
{
    cls_AppConfig config;
    config.SOUND(false);
    config.TOUCHMODE(true);
    EXPECT_TRUE(outside.settings().written().empty());
}

TEST_F(AppConfig, PassesTouchModeOnAtConstruction)
{
    prepareUserSetting(u"Config\\TouchMode", true);
    cls_AppConfig config;
    EXPECT_EQ(coreRoot().CoreRuntimeOptions().Option(u"TOUCHMODE"), Variant(true));
}

TEST_F(AppConfig, PassesTouchModeOnTwiceWhenAssignedTwice)
{
    cls_AppConfig config;
    int told = 0;
    const Connection watch =
        coreRoot().CoreRuntimeOptions().OPTIONSET.connect([&](const String& name, const Variant& value) {
            EXPECT_EQ(name, u"TOUCHMODE");
            EXPECT_EQ(value, Variant(true));
            ++told;
        });
    config.TOUCHMODE(true);
    config.TOUCHMODE(true);
    EXPECT_EQ(told, 2);
}

TEST_F(AppConfig, KeepsItsParametersOnceRead)
{
    cls_AppConfig config;
    config.PARAMETERS()->Set(u"A", 1);
    EXPECT_EQ(config.PARAMETERS()->Get(u"a"), Variant(1));
    config.PARAMETERS(nullptr);
    EXPECT_EQ(config.PARAMETERS()->Count(), 0);
}

} // namespace

} // namespace phial
