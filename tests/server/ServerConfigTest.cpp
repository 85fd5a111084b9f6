#include "server/ServerTest.h"

namespace phial
{

namespace
{

/// Settings on a machine that a test has prepared.
class ServerConfig : public ServerTest
{
protected:
    Variant userSetting(StringView name)
    {
        return outside.settings().read(SettingsHive::CurrentUser, settings::path(name)).value_or(Variant());
    }

    /// Everything that PACK holds and what it leaves out.
    static void expectDefaults(cls_AppServerConfig& config)
    {
        EXPECT_EQ(config.SERVERIP(), u"127.0.0.1");
        EXPECT_EQ(config.SERVERPORT(), 10049);
        EXPECT_EQ(config.SERVERUDP(), 10050);
        EXPECT_EQ(config.CLIENTPORT(), 10051);
        EXPECT_EQ(config.TIMEOUT(), 30);
        EXPECT_TRUE(config.AUTOEVENTS());
    }
};

TEST_F(ServerConfig, IsThatOfAFreshMachineAtFirst)
{
    cls_AppServerConfig config;
    expectDefaults(config);
    EXPECT_FALSE(config.DEBUGGER());
    EXPECT_EQ(config.SETTINGS()->Count(), 0);
}

TEST_F(ServerConfig, ComesBackAfterSaving)
{
    cls_AppServerConfig config;
    config.SERVERIP(u"10.0.0.7");
    config.TIMEOUT(12);
    config.SETTINGS()->Set(u"WELCOMEMESSAGE", u"Hallo|du {da}");
    config.SAVE();

    cls_AppServerConfig again;
    EXPECT_EQ(again.SERVERIP(), u"10.0.0.7");
    EXPECT_EQ(again.TIMEOUT(), 12);
    EXPECT_EQ(again.SETTINGS()->Get(u"welcomemessage"), Variant(u"Hallo|du {da}"));
}

TEST_F(ServerConfig, SavesThreeValuesInOrder)
{
    cls_AppServerConfig config;
    config.SERVERIP(u"10.0.0.7");
    config.TIMEOUT(12);
    config.AUTOEVENTS(false);
    config.DEBUGGER(true);
    config.SETTINGS()->Set(u"SCREENNAMES", false);
    outside.settings().prepare(SettingsHive::CurrentUser, u"Unrelated", 1);
    config.SAVE();
    const auto& written = outside.settings().written();
    ASSERT_EQ(written.size(), 3U);
    EXPECT_EQ(userSetting(u"Config\\ServerSettings"), Variant(config.SETTINGS()->Pack()));
    EXPECT_EQ(userSetting(u"Config\\ServerIP"), Variant(u"10.0.0.7"));
    EXPECT_EQ(userSetting(u"Config\\TimeOut"), Variant(12));
}

TEST_F(ServerConfig, GivesUpPortsWhenLoading)
{
    cls_AppServerConfig config;
    config.SERVERPORT(1);
    config.SERVERUDP(2);
    config.CLIENTPORT(3);
    config.SERVERIP(u"10.0.0.7");
    config.LOAD();
    EXPECT_EQ(config.SERVERPORT(), 10049);
    EXPECT_EQ(config.SERVERUDP(), 10050);
    EXPECT_EQ(config.CLIENTPORT(), 10051);
    EXPECT_EQ(config.SERVERIP(), u"10.0.0.7") << "what is not stored stays";
}

TEST_F(ServerConfig, LeavesDebuggerAndSettingsWithTheDefaults)
{
    cls_AppServerConfig config;
    config.DEBUGGER(true);
    config.AUTOEVENTS(false);
    config.TIMEOUT(1);
    config.SERVERPORT(1);
    config.SETTINGS()->Set(u"A", 1);
    config.DEFAULTS();
    expectDefaults(config);
    EXPECT_TRUE(config.DEBUGGER());
    EXPECT_EQ(config.SETTINGS()->Get(u"A"), Variant(1));
}

TEST_F(ServerConfig, LoadsNoSettingsFromATextThatWasCut)
{
    CoreParameters longSettings;
    longSettings.Set(u"WELCOMEMESSAGE", String(2000, u'x'));
    prepareUserSetting(u"Config\\ServerSettings", longSettings.Pack());
    cls_AppServerConfig config;
    EXPECT_EQ(config.SETTINGS()->Count(), 0);

    config.SETTINGS()->Set(u"A", 1);
    config.LOAD();
    EXPECT_EQ(config.SETTINGS()->Get(u"A"), Variant(1)) << "what was there stays";
}

TEST_F(ServerConfig, PacksItsValuesInOrder)
{
    cls_AppServerConfig config;
    EXPECT_EQ(config.PACK(),
              u"QV_PHIAL_MASTER|1.0|127.0.0.1|10049|10050|10051|30|" + CoreParameters().Pack());
}

TEST_F(ServerConfig, TakesItsOwnPackedText)
{
    cls_AppServerConfig config;
    const String packed = config.PACK();
    config.PACK(packed);
    expectDefaults(config);
    EXPECT_EQ(config.PACK(), packed);
}

TEST_F(ServerConfig, TakesThePackedValuesOfAnother)
{
    cls_AppServerConfig sender;
    sender.SERVERIP(u"10.0.0.7");
    sender.SERVERPORT(20049);
    sender.SERVERUDP(20050);
    sender.CLIENTPORT(20051);
    sender.TIMEOUT(5);
    sender.AUTOEVENTS(false);
    sender.DEBUGGER(true);
    sender.SETTINGS()->Set(u"WELCOMEMESSAGE", u"eins|zwei");

    cls_AppServerConfig client;
    client.SETTINGS()->Set(u"OLD", 1);
    client.PACK(sender.PACK());
    EXPECT_EQ(client.PACK(), sender.PACK());
    EXPECT_EQ(client.SETTINGS()->Get(u"WELCOMEMESSAGE"), Variant(u"eins|zwei"));
    EXPECT_FALSE(client.SETTINGS()->Exists(u"OLD"));
    EXPECT_TRUE(client.AUTOEVENTS());
    EXPECT_FALSE(client.DEBUGGER());
    EXPECT_TRUE(outside.settings().written().empty()) << "nothing is saved by it";
}

TEST_F(ServerConfig, IgnoresATextWithAnotherHead)
{
    cls_AppServerConfig config;
    config.PACK(u"");
    config.PACK(u"|");
    config.PACK(u"QV_PHIAL_CLIENT|1.0|a|1|2|3|4|");
    config.PACK(u"QV_PHIAL_MASTER|1.1|a|1|2|3|4|");
    config.PACK(u"QV_PHIAL_MASTER|1.1");
    expectDefaults(config);
}

TEST_F(ServerConfig, TakesTheFieldsBeforeAMissingOneAndRaises)
{
    cls_AppServerConfig config;
    EXPECT_RAISES(config.PACK(u"QV_PHIAL_MASTER"), IndexOutOfBounds);
    EXPECT_RAISES(config.PACK(u"QV_PHIAL_MASTER|1.0|10.0.0.7|1|2"), IndexOutOfBounds);
    EXPECT_EQ(config.SERVERIP(), u"10.0.0.7");
    EXPECT_EQ(config.SERVERPORT(), 1);
    EXPECT_EQ(config.SERVERUDP(), 2);
    EXPECT_EQ(config.CLIENTPORT(), 10051);
}

TEST_F(ServerConfig, ReadsNumbersAtTheBeginningOfTheirFields)
{
    cls_AppServerConfig config;
    config.PACK(u"QV_PHIAL_MASTER|1.0||port|7x|2.5| 9|");
    EXPECT_EQ(config.SERVERIP(), u"");
    EXPECT_EQ(config.SERVERPORT(), 0);
    EXPECT_EQ(config.SERVERUDP(), 7);
    EXPECT_EQ(config.CLIENTPORT(), 2);
    EXPECT_EQ(config.TIMEOUT(), 9);
}

TEST_F(ServerConfig, RaisesForANumberBeyondTheRange)
{
    cls_AppServerConfig config;
    EXPECT_RAISES(config.PACK(u"QV_PHIAL_MASTER|1.0|a|9999999999|2|3|4|"), Overflow);
}

TEST_F(ServerConfig, CutsSettingsAtTheFirstDivider)
{
    cls_AppServerConfig config;
    config.PACK(u"QV_PHIAL_MASTER|1.0|a|1|2|3|4|A = 1|B = 2");
    EXPECT_EQ(config.SETTINGS()->Get(u"A"), Variant(1));
    EXPECT_FALSE(config.SETTINGS()->Exists(u"B"));
}

TEST_F(ServerConfig, LeavesItsSettingsWhenTheTextOfTheOthersIsDamaged)
{
    cls_AppServerConfig config;
    config.SETTINGS()->Set(u"A", 1);
    config.PACK(u"QV_PHIAL_MASTER|1.0|a|1|2|3|4|no settings");
    EXPECT_EQ(config.SETTINGS()->Get(u"A"), Variant(1));
    EXPECT_EQ(config.TIMEOUT(), 4);
}

} // namespace

} // namespace phial
