#include "core/CoreRegistry.h"

#include "support/HeadlessSession.h"
#include "support/Texts.h"

#include <gmock/gmock-more-matchers.h>

namespace phial
{
namespace
{

using test::texts;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr SettingsHive User = SettingsHive::CurrentUser;
constexpr SettingsHive Machine = SettingsHive::LocalMachine;

class CoreRegistryTest : public test::HeadlessSession
{
protected:
    CoreRegistryWrite& write = session.root().CoreRegistry().CoreRegistryWrite();
    const CoreRegistryRead& read = session.root().CoreRegistry().CoreRegistryRead();
};

TEST_F(CoreRegistryTest, HivesHaveTheirNumbers)
{
    EXPECT_EQ(static_cast<std::uint32_t>(User), 0x80000001U);
    EXPECT_EQ(static_cast<std::uint32_t>(Machine), 0x80000002U);
}

TEST_F(CoreRegistryTest, MissingValuesGiveTheDefaults)
{
    EXPECT_EQ(read.ReadString(User, u"Software\\A", u"none"), u"none");
    EXPECT_EQ(read.ReadLong(User, u"Software\\A", 4), 4);
    EXPECT_TRUE(read.ReadBool(User, u"Software\\A", true));
    EXPECT_THAT(texts(read.ReadList(User, u"Software\\A")), IsEmpty());
}

TEST_F(CoreRegistryTest, ValuesComeBackWhateverTheCaseOfTheirPath)
{
    write.WriteString(User, u"Software\\A\\Text", u"Säure");
    write.WriteLong(User, u"Software\\A\\Number", -5);
    write.WriteBool(User, u"Software\\A\\Flag", true);
    write.WriteList(User, u"Software\\A\\List", {u"one", u"", u"three"});
    EXPECT_EQ(read.ReadString(User, u"software\\a\\TEXT"), u"Säure");
    EXPECT_EQ(read.ReadLong(User, u"Software\\A\\number"), -5);
    EXPECT_TRUE(read.ReadBool(User, u"Software\\A\\flag"));
    EXPECT_THAT(texts(read.ReadList(User, u"Software\\A\\list")), ElementsAre(u"one", u"", u"three"));
}

TEST_F(CoreRegistryTest, TheHivesAreApart)
{
    write.WriteString(User, u"Software\\A", u"user");
    EXPECT_EQ(read.ReadString(Machine, u"Software\\A", u"none"), u"none");
}

TEST_F(CoreRegistryTest, ALongTextIsCutToTheLimit)
{
    write.WriteString(User, u"Software\\A", String(1500, u'x'));
    EXPECT_EQ(read.ReadString(User, u"Software\\A").size(), 1000U);
    EXPECT_EQ(read.ReadString(User, u"Software\\A", u"", 10).size(), 10U);
}

TEST_F(CoreRegistryTest, AValueOfAnotherTypeIsConvertedOrGivesTheDefault)
{
    write.WriteString(User, u"Software\\Number", u"12");
    write.WriteString(User, u"Software\\Junk", u"junk");
    EXPECT_EQ(read.ReadLong(User, u"Software\\Number", 3), 12);
    EXPECT_EQ(read.ReadLong(User, u"Software\\Junk", 3), 3);
    EXPECT_TRUE(read.ReadBool(User, u"Software\\Junk", true));
    EXPECT_THAT(texts(read.ReadList(User, u"Software\\Junk", {u"default"})), ElementsAre(u"default"));
}

TEST_F(CoreRegistryTest, AnUnchangedValueIsNotWritten)
{
    write.WriteBool(User, u"Software\\Flag", true);
    write.WriteList(User, u"Software\\List", {u"one"});
    outside.settings().forgetWritten();
    write.WriteBool(User, u"software\\flag", true);
    write.WriteList(User, u"Software\\List", {u"one"});
    EXPECT_THAT(outside.settings().written(), IsEmpty());
    write.WriteBool(User, u"Software\\Flag", false);
    EXPECT_THAT(outside.settings().written(), ElementsAre(u"Software\\Flag"));
}

TEST_F(CoreRegistryTest, TheSameValueOfAnotherTypeIsWritten)
{
    write.WriteLong(User, u"Software\\A", 1);
    outside.settings().forgetWritten();
    write.WriteString(User, u"Software\\A", u"1");
    EXPECT_THAT(outside.settings().written(), ElementsAre(u"Software\\A"));
}

} // namespace
} // namespace phial
