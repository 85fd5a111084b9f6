#include "core/SettingsEncoding.h"

#include <gtest/gtest.h>

using namespace phial;

namespace
{

TEST(SettingsEncoding, WritesTheTypeInFrontOfTheValue)
{
    EXPECT_EQ(encodeSetting(u"Grüße"), u"text:Grüße");
    EXPECT_EQ(encodeSetting(-5), u"number:-5");
    EXPECT_EQ(encodeSetting(true), u"boolean:true");
    EXPECT_EQ(encodeSetting(false), u"boolean:false");
    EXPECT_EQ(encodeSetting(Variant::Array{u"Anna", u"Ben"}), u"list:|Anna|Ben");
}

TEST(SettingsEncoding, TellsNoItemFromOneEmptyItem)
{
    EXPECT_EQ(encodeSetting(Variant::Array{}), u"list:");
    EXPECT_EQ(encodeSetting(Variant::Array{u""}), u"list:|");
    EXPECT_EQ(decodeSetting(u"list:"), Variant(Variant::Array{}));
    EXPECT_EQ(decodeSetting(u"list:|"), Variant(Variant::Array{u""}));
}

TEST(SettingsEncoding, GivesBackEveryUnit)
{
    String all;
    for (unsigned unit = 0; unit <= 0xFFFF; ++unit) {
        all += static_cast<char16_t>(unit);
        all += u' '; // parts the surrogate halves
    }
    EXPECT_EQ(decodeSetting(encodeSetting(all)), Variant(all));
    EXPECT_EQ(decodeSetting(encodeSetting(Variant::Array{all, all})), Variant(Variant::Array{all, all}));
}

TEST(SettingsEncoding, KeepsALineALine)
{
    EXPECT_EQ(encodeSetting(u"a\r\n|%"), u"text:a%000D%000A%007C%0025");
}

TEST(SettingsEncoding, KeepsTheEndsOf32Bits)
{
    EXPECT_EQ(decodeSetting(u"number:2147483647"), Variant(2147483647));
    EXPECT_EQ(decodeSetting(u"number:-2147483648"), Variant(-2147483647 - 1));
    EXPECT_EQ(decodeSetting(u"number:2147483648"), std::nullopt);
}

TEST(SettingsEncoding, HasNoValueForALineOfAnotherForm)
{
    for (const StringView line :
         {u"", u"Deutsch", u"Text:a", u"text", u"text:%", u"text:%12", u"text:%00g0", u"number:",
          u"number:+5", u"number: 5", u"number:5 ", u"number:1e3", u"number:ü", u"boolean:", u"boolean:True",
          u"boolean:1", u"list:Anna", u"list:|%"}) {
        EXPECT_EQ(decodeSetting(line), std::nullopt) << toUtf8(line);
    }
    EXPECT_EQ(decodeSetting(u"text:" + String(MaxSettingLength, u'a')), std::nullopt);
}

TEST(SettingsEncoding, RaisesForAValueThatIsNoSetting)
{
    EXPECT_THROW(encodeSetting(Variant()), RuntimeError);
    EXPECT_THROW(encodeSetting(1.5), RuntimeError);
    EXPECT_THROW(encodeSetting(Variant::Array{1}), RuntimeError);
}

TEST(SettingsKey, DisregardsCaseAndEmptyParts)
{
    EXPECT_EQ(settingKey(u"Software\\QV Brunnhof\\Phial\\Config\\Sound"),
              u"software/qv brunnhof/phial/config/sound");
    EXPECT_EQ(settingKey(u"\\\\A\\\\b\\"), u"a/b");
    EXPECT_EQ(settingKey(u"MRU\\Ä/ö"), u"mru/ä%002Fö");
    EXPECT_EQ(settingKey(u""), u"");
}

} // namespace
