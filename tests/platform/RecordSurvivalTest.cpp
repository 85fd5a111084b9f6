// The power goes at every step of a save, and the folder is looked at in every state in which a disk can be
// then.

#include "core/Platform.h"
#include "core/RecordFiles.h"
#include "headless/CrashingFileSystem.h"
#include "support/PowerCuts.h"
#include "support/RandomValues.h"
#include "support/RecordOf.h"
#include "support/TemporaryFolder.h"

#include <functional>
#include <gmock/gmock-matchers.h>
#include <set>

namespace phial
{
namespace
{

using headless::CrashingFileSystem;
using headless::PowerCut;
using ::testing::Contains;
using ::testing::IsSupersetOf;
using ::testing::UnorderedElementsAre;
using Values = std::vector<Variant>;

class RecordSurvival : public ::testing::Test
{
protected:
    static std::string fileOf(const Values& values)
    {
        return record_format::framed(test::recordOf(values).body(), false);
    }

    RecordFiles recordsOn(std::shared_ptr<FileSystem> files)
    {
        platform.files = std::move(files);
        return RecordFiles(platform);
    }

    Values read() { return recordsOn(std::make_shared<NativeFileSystem>()).read(list, {}); }
    void save(const std::shared_ptr<FileSystem>& files, const Values& values)
    {
        recordsOn(files).write(list, {}, test::recordOf(values));
    }

    /// Saves over these files with power cuts everywhere.
    void cutEverywhere(const test::PowerCuts::Files& before, const Values& values,
                       const test::PowerCuts::Check& check)
    {
        cuts.everywhere(
            before, [&](const std::shared_ptr<FileSystem>& files) { save(files, values); }, check);
    }

    static constexpr bool WhenSaved = true;

    /// What the list's file may hold after a save in such steps, ended or not.
    std::set<std::string> listsAfter(const std::function<void(FileSystem&)>& steps, bool onlySaved = false)
    {
        std::set<std::string> found;
        cuts.everywhere(
            {{"list.qv-hsr", "old"}}, [&](const std::shared_ptr<FileSystem>& files) { steps(*files); },
            [&](bool wasSaved) {
                if (wasSaved || !onlySaved) {
                    found.insert(folder.read("list.qv-hsr"));
                }
            });
        return found;
    }

    test::TemporaryFolder folder;
    const std::filesystem::path temporary = folder.native() / "new";
    const std::filesystem::path list = folder.native() / "list.qv-hsr";
    Platform platform;
    test::PowerCuts cuts{folder};
};

Values randomList(unsigned seed)
{
    test::RandomValues random(seed);
    Values values = {u"2.0"};
    for (unsigned count = seed * seed % 61; count > 0; --count) {
        values.push_back(random.value());
    }
    return values;
}

TEST_F(RecordSurvival, TheOldOrTheNewListIsThereWhole)
{
    for (unsigned seed = 1; seed <= 50; ++seed) {
        const Values before = randomList(seed);
        const Values after = randomList(seed + 100);
        const std::string old = fileOf(before);
        cutEverywhere({{"list.qv-hsr", old}}, after, [&](bool wasSaved) {
            const Values found = read();
            ASSERT_TRUE(found == after || (!wasSaved && found == before)) << "seed " << seed;
        });
    }
    EXPECT_GE(cuts.stops(), 500);
    RecordProperty("stops", cuts.stops());
    RecordProperty("states", cuts.states());
}

TEST_F(RecordSurvival, AFirstListIsThereWholeOrNotAtAll)
{
    for (unsigned seed = 1; seed <= 5; ++seed) {
        const Values after = randomList(seed);
        cutEverywhere({}, after, [&](bool wasSaved) {
            ASSERT_TRUE(!wasSaved || folder.has("list.qv-hsr"));
            ASSERT_TRUE(!folder.has("list.qv-hsr") || read() == after) << "seed " << seed;
        });
    }
}

TEST_F(RecordSurvival, ADamagedListIsKeptWhereverThePowerGoes)
{
    const std::string damaged = "half a list";
    const Values after = randomList(3);
    cutEverywhere({{"list.qv-hsr", damaged}}, after, [&](bool wasSaved) {
        bool isKept = false;
        for (const std::string& name : folder.names()) {
            isKept = isKept || folder.read(name) == damaged;
        }
        ASSERT_TRUE(isKept);
        ASSERT_TRUE(!wasSaved || read() == after);
    });
}

TEST_F(RecordSurvival, ALaterVersionIsKeptWhereverThePowerGoes)
{
    const std::string later = fileOf({u"3.0", u"Anna"});
    const Values after = randomList(3);
    cutEverywhere({{"list.qv-hsr", later}}, after, [&](bool wasSaved) {
        const std::string name = folder.has("list.qv-hsr.kept") ? "list.qv-hsr.kept" : "list.qv-hsr";
        ASSERT_EQ(folder.read(name), later);
        ASSERT_TRUE(!wasSaved || read() == after);
    });
}

TEST_F(RecordSurvival, AfterAPowerCutTheNextSaveWorksAndLeavesNothingElse)
{
    const std::string old = fileOf({u"2.0", u"old"});
    cutEverywhere({{"list.qv-hsr", old}}, randomList(3), [&](bool) {
        const auto files = std::make_shared<CrashingFileSystem>(folder.native());
        save(files, {u"2.0", u"next"});
        ASSERT_EQ(read(), (Values{u"2.0", u"next"}));
        ASSERT_EQ(folder.names(), std::vector<std::string>{"list.qv-hsr"});
    });
}

TEST_F(RecordSurvival, SeveralSavesInARowSurviveAPowerCutInTheLast)
{
    const auto files = std::make_shared<CrashingFileSystem>(folder.native());
    for (int round = 0; round < 30; ++round) {
        const Values before = {u"2.0", round};
        const Values after = {u"2.0", round + 1};
        save(files, before);
        files->cutPowerAt(round % 4, 0.5);
        EXPECT_THROW(save(files, after), PowerCut);
        files->restart(round * 7 % files->outcomes());
        const Values found = read();
        EXPECT_TRUE(found == before || found == after) << "round " << round;
    }
}

// The power cut itself is tried: a save that forgets a step must lose the list in some state.

TEST_F(RecordSurvival, AListWrittenInPlaceWouldBeLost)
{
    EXPECT_THAT(listsAfter([&](FileSystem& files) {
                    files.write(list, "newer");
                    files.flush(list);
                }),
                IsSupersetOf({"old", "ne", "newer", ""}));
}

TEST_F(RecordSurvival, ARenameBeforeTheFlushWouldLoseTheList)
{
    EXPECT_THAT(listsAfter([&](FileSystem& files) {
                    files.write(temporary, "newer");
                    files.rename(temporary, list);
                    files.flushFolder(folder.native());
                }),
                Contains(""));
}

TEST_F(RecordSurvival, WithoutAFlushOfTheFolderASavedListCouldStillBeTheOldOne)
{
    EXPECT_THAT(listsAfter(
                    [&](FileSystem& files) {
                        files.write(temporary, "newer");
                        files.flush(temporary);
                        files.rename(temporary, list);
                    },
                    WhenSaved),
                UnorderedElementsAre("old", "newer"));
}

} // namespace
} // namespace phial
