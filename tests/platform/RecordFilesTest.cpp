#include "core/RecordFiles.h"

#include "core/Platform.h"
#include "headless/FaultyFileSystem.h"
#include "support/Raises.h"
#include "support/RecordOf.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock-matchers.h>
#include <memory>

namespace phial
{
namespace
{

using headless::FaultyFileSystem;
using headless::FileStep;
using ::testing::ElementsAre;
using Values = std::vector<Variant>;

class RecordFilesTest : public ::testing::Test
{
protected:
    RecordFilesTest() { platform.files = files; }

    void write(const Values& values, StringView password = {}) const
    {
        RecordFiles(platform).write(path, password, test::recordOf(values));
    }
    Values read(StringView password = {}) const { return RecordFiles(platform).read(path, password); }

    test::TemporaryFolder folder;
    const std::filesystem::path path = folder.native() / "list.qv-hsr";
    std::shared_ptr<FaultyFileSystem> files =
        std::make_shared<FaultyFileSystem>(std::make_shared<NativeFileSystem>());
    Platform platform;
};

TEST_F(RecordFilesTest, WhatIsWrittenIsReadAndNothingElseIsLeft)
{
    write({u"2.0", u"Anna", 12.5});
    EXPECT_EQ(read(), (Values{u"2.0", u"Anna", 12.5}));
    write({u"2.0"});
    EXPECT_EQ(read(), (Values{u"2.0"}));
    EXPECT_THAT(folder.names(), ElementsAre("list.qv-hsr"));
}

TEST_F(RecordFilesTest, ARecordWithoutValuesIsAFileToo)
{
    write({});
    EXPECT_EQ(read(), Values());
}

TEST_F(RecordFilesTest, AMissingFileCannotBeRead)
{
    EXPECT_RAISES(read(), FileNotFound);
}

TEST_F(RecordFilesTest, ADamagedFileIsNotReadAndStaysAsItIs)
{
    write({u"2.0", u"Anna"});
    const std::string whole = folder.read("list.qv-hsr");
    for (std::size_t at = 0; at < whole.size(); ++at) {
        std::string damaged = whole;
        damaged[at] = static_cast<char>(damaged[at] ^ 0x40);
        for (const std::string& bytes : {damaged, whole.substr(0, at)}) {
            folder.write("list.qv-hsr", bytes);
            EXPECT_RAISES(read(), InvalidArgument);
            EXPECT_EQ(folder.read("list.qv-hsr"), bytes);
        }
    }
    EXPECT_THAT(folder.names(), ElementsAre("list.qv-hsr"));
}

TEST_F(RecordFilesTest, TheNextSaveKeepsADamagedFileAside)
{
    for (const char* const name : {"list.qv-hsr.damaged", "list.qv-hsr.damaged2"}) {
        folder.write("list.qv-hsr", "half a fi");
        write({u"2.0"});
        EXPECT_EQ(folder.read(name), "half a fi");
        EXPECT_EQ(read(), (Values{u"2.0"}));
    }
}

TEST_F(RecordFilesTest, AWholeFileWithoutValuesInItIsDamaged)
{
    folder.write("list.qv-hsr", record_format::framed("\x7F", false));
    EXPECT_RAISES(read(), InvalidArgument);
    write({u"2.0"});
    EXPECT_THAT(folder.names(), ElementsAre("list.qv-hsr", "list.qv-hsr.damaged"));
}

TEST_F(RecordFilesTest, AFileOfALaterFormatIsKeptAside)
{
    write({u"2.0"});
    std::string later = folder.read("list.qv-hsr");
    later[4] = 2;
    folder.write("list.qv-hsr", later);
    EXPECT_RAISES(read(), InvalidArgument);
    write({u"2.0"});
    EXPECT_EQ(folder.read("list.qv-hsr.kept"), later);
}

TEST_F(RecordFilesTest, AListOfALaterVersionIsKeptAside)
{
    const auto keepsAside = [&](const Values& old, const Values& values) {
        std::filesystem::remove(path);
        std::filesystem::remove(folder.native() / "list.qv-hsr.kept");
        write(old);
        write(values);
        EXPECT_EQ(read(), values);
        return folder.has("list.qv-hsr.kept");
    };
    EXPECT_TRUE(keepsAside({u"2.1", u"more"}, {u"2.0"}));
    EXPECT_TRUE(keepsAside({u"3.0"}, {u"2.5"}));
    EXPECT_TRUE(keepsAside({u"2.10"}, {u"2.9"}));
    EXPECT_FALSE(keepsAside({u"2.0"}, {u"2.0"}));
    EXPECT_FALSE(keepsAside({u"1.9"}, {u"2.0"}));
    EXPECT_FALSE(keepsAside({u"2.9"}, {u"2.10"}));
    EXPECT_FALSE(keepsAside({3.0}, {u"2.0"}));
    EXPECT_FALSE(keepsAside({u"zwei"}, {u"2.0"}));
    EXPECT_FALSE(keepsAside({u"9."}, {u"2.0"}));
    EXPECT_FALSE(keepsAside({u"9.0 "}, {u"2.0"}));
    EXPECT_FALSE(keepsAside({}, {u"2.0"}));
    EXPECT_FALSE(keepsAside({u"2.0"}, {}));
}

TEST_F(RecordFilesTest, WithoutASealNothingIsWrittenInClear)
{
    EXPECT_RAISES(write({u"2.0"}, u"geheim"), InvalidArgument);
    EXPECT_TRUE(folder.names().empty());
    write({u"2.0"});
    EXPECT_RAISES(write({u"2.0", u"Anna"}, u"geheim"), InvalidArgument);
    EXPECT_EQ(read(), (Values{u"2.0"}));
    EXPECT_RAISES(read(u"geheim"), FileAccess);
}

TEST_F(RecordFilesTest, AFileThatTheDiskDoesNotGiveIsNotReplaced)
{
    write({u"2.0", u"Anna"});
    const std::string old = folder.read("list.qv-hsr");
    files->fail(FileStep::Read);
    EXPECT_RAISES(write({u"2.0"}), FileAccess);
    EXPECT_EQ(folder.read("list.qv-hsr"), old);
}

TEST_F(RecordFilesTest, WhatWasKeptAsideComesBackWhenTheSaveFails)
{
    const std::string later = record_format::framed(test::recordOf({u"3.0", u"Anna"}).body(), false);
    for (const std::string& old : {std::string("damaged"), later}) {
        folder.write("list.qv-hsr", old);
        files->fail(FileStep::Write);
        EXPECT_RAISES(write({u"2.0"}), FileAccess);
        EXPECT_EQ(folder.read("list.qv-hsr"), old);
        EXPECT_THAT(folder.names(), ElementsAre("list.qv-hsr"));
        files->repair();
    }
}

TEST_F(RecordFilesTest, WhatCannotBeKeptAsideIsNotReplaced)
{
    folder.write("list.qv-hsr", "damaged");
    files->fail(FileStep::Rename);
    EXPECT_RAISES(write({u"2.0"}), FileAccess);
    EXPECT_EQ(folder.read("list.qv-hsr"), "damaged");
}

} // namespace
} // namespace phial
