#include "core/FileSystem.h"
#include "core/Platform.h"
#include "core/RecordFiles.h"
#include "sealing/PasswordSeal.h"
#include "support/Places.h"
#include "support/Raises.h"
#include "support/RecordOf.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock-matchers.h>

namespace phial
{
namespace
{

using ::testing::ElementsAre;
using Values = std::vector<Variant>;

class SealedRecords : public ::testing::Test
{
protected:
    SealedRecords()
    {
        platform.files = std::make_shared<NativeFileSystem>();
        platform.seal = std::make_shared<PasswordSeal>(PasswordSeal::Cost{1, 8});
    }

    void write(const Values& values, StringView password) const
    {
        RecordFiles(platform).write(path, password, test::recordOf(values));
    }
    Values read(StringView password) const { return RecordFiles(platform).read(path, password); }

    test::TemporaryFolder folder;
    const std::filesystem::path path = folder.native() / "list.qv-hsr";
    Platform platform;
};

TEST_F(SealedRecords, AreReadWithTheirPasswordOnly)
{
    write({u"2.0", u"Anna"}, u"geheim");
    EXPECT_EQ(read(u"geheim"), (Values{u"2.0", u"Anna"}));
    EXPECT_RAISES(read(u"anders"), FileAccess);
    EXPECT_RAISES(read(u""), FileAccess);
    EXPECT_EQ(folder.read("list.qv-hsr").find("Anna"), std::string::npos);
}

TEST_F(SealedRecords, AreReadThoughAnEarlierProgramSealedThem)
{
    const std::filesystem::path stored = test::vectorsFolder() / "records";
    const Values values = RecordFiles(platform).read(stored / "sealed.qv-hsr", u"Schlüssel");
    EXPECT_EQ(values, RecordFiles(platform).read(stored / "items_2.5.qv-hsr", u""));
    EXPECT_EQ(values.size(), 7U + 2 * 11);
}

TEST_F(SealedRecords, AFileInClearIsNotTakenForASealedOne)
{
    write({u"2.0", u"Anna"}, u"");
    EXPECT_RAISES(read(u"geheim"), FileAccess);
}

TEST_F(SealedRecords, AreReplacedWithTheSamePassword)
{
    write({u"2.0", u"Anna"}, u"geheim");
    write({u"2.0", u"Ben"}, u"geheim");
    EXPECT_EQ(read(u"geheim"), (Values{u"2.0", u"Ben"}));
    EXPECT_THAT(folder.names(), ElementsAre("list.qv-hsr"));
}

TEST_F(SealedRecords, WhatAnotherPasswordSealedIsKeptAside)
{
    write({u"2.0", u"Anna"}, u"geheim");
    const std::string old = folder.read("list.qv-hsr");
    write({u"2.0", u"Ben"}, u"anders");
    EXPECT_EQ(read(u"anders"), (Values{u"2.0", u"Ben"}));
    EXPECT_EQ(folder.read("list.qv-hsr.kept"), old);

    write({u"2.0", u"Clara"}, u"");
    EXPECT_EQ(read(u""), (Values{u"2.0", u"Clara"}));
    EXPECT_THAT(folder.names(), ElementsAre("list.qv-hsr", "list.qv-hsr.kept", "list.qv-hsr.kept2"));
}

TEST_F(SealedRecords, ALaterVersionIsKeptAsideToo)
{
    write({u"3.0"}, u"geheim");
    write({u"2.0"}, u"geheim");
    EXPECT_THAT(folder.names(), ElementsAre("list.qv-hsr", "list.qv-hsr.kept"));
}

TEST_F(SealedRecords, WithoutTheSealASealedFileIsKept)
{
    write({u"2.0", u"Anna"}, u"geheim");
    const std::string old = folder.read("list.qv-hsr");
    platform.seal = nullptr;
    EXPECT_RAISES(read(u"geheim"), FileAccess);
    EXPECT_RAISES(write({u"2.0"}, u"geheim"), InvalidArgument);
    EXPECT_EQ(folder.read("list.qv-hsr"), old);
    write({u"2.0"}, u"");
    EXPECT_EQ(folder.read("list.qv-hsr.kept"), old);
}

} // namespace
} // namespace phial
