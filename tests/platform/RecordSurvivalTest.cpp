// The power goes at every step of a save, and the folder is looked at in every state in which a disk can be
// then.

#include "core/AtomicFile.h"
#include "core/Platform.h"
#include "core/RecordFiles.h"
#include "headless/CrashingFileSystem.h"
#include "support/RandomValues.h"
#include "support/TemporaryFolder.h"

#include <algorithm>
#include <array>
#include <functional>
#include <gmock/gmock.h>

namespace phial
{
namespace
{

using headless::CrashingFileSystem;
using headless::PowerCut;
using ::testing::AnyOf;
using ::testing::Contains;
using ::testing::Eq;
using Values = std::vector<Variant>;

/// How much of a write was done when the power went.
constexpr std::array Shares = {0.0, 0.01, 0.2, 0.5, 0.8, 0.99, 1.0};

class RecordSurvival : public ::testing::Test
{
protected:
    using Save = std::function<void(FileSystem&)>;
    using Check = std::function<void(bool wasSaved)>;

    static RecordWriter writerOf(const Values& values)
    {
        RecordWriter writer;
        std::ranges::for_each(values, [&](const Variant& value) { writer.write(value); });
        return writer;
    }

    static std::string fileOf(const Values& values)
    {
        return record_format::framed(writerOf(values).body(), false);
    }

    RecordFiles recordsOn(std::shared_ptr<FileSystem> files)
    {
        platform.files = std::move(files);
        return RecordFiles(platform);
    }

    Values read() { return recordsOn(std::make_shared<NativeFileSystem>()).read(list, {}); }
    void save(const std::shared_ptr<FileSystem>& files, const Values& values)
    {
        recordsOn(files).write(list, {}, writerOf(values));
    }

    void empty() const
    {
        for (const std::string& name : folder.names()) {
            std::filesystem::remove(folder.native() / name);
        }
    }

    /// Saves over `old` (no file for none) with a power cut at every step, and then once without. `check` is
    /// asked in each state of the disk afterwards.
    void cutEverywhere(const std::string* old, const Values& values, const Check& check)
    {
        Stop stop = Stop::InWrite;
        for (int step = 0; stop != Stop::Never; ++step) {
            for (const double share : Shares) {
                stop = cutAt(step, share, old, values, check);
                ++stops;
                if (stop != Stop::InWrite) {
                    break;
                }
            }
        }
    }

    enum class Stop : std::uint8_t { InWrite, AtStep, Never };

    Stop cutAt(int step, double share, const std::string* old, const Values& values, const Check& check)
    {
        Stop stop = Stop::Never;
        int outcomes = 1;
        for (int outcome = 0; outcome < outcomes; ++outcome) {
            empty();
            if (old != nullptr) {
                folder.write("list.qv-hsr", *old);
            }
            const auto files = std::make_shared<CrashingFileSystem>(folder.native());
            files->cutPowerAt(step, share);
            try {
                save(files, values);
            } catch (const PowerCut& cut) {
                stop = cut.isInWrite ? Stop::InWrite : Stop::AtStep;
            }
            outcomes = files->outcomes();
            files->restart(outcome);
            ++states;
            check(stop == Stop::Never);
        }
        return stop;
    }

    test::TemporaryFolder folder;
    const std::filesystem::path list = folder.native() / "list.qv-hsr";
    Platform platform;
    int stops = 0;  ///< power cuts at different points
    int states = 0; ///< of the disk afterwards, that were looked at
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
        cutEverywhere(&old, after, [&](bool wasSaved) {
            const Values found = read();
            ASSERT_TRUE(found == after || (!wasSaved && found == before)) << "seed " << seed;
        });
    }
    EXPECT_GE(stops, 500);
    RecordProperty("stops", stops);
    RecordProperty("states", states);
}

TEST_F(RecordSurvival, AFirstListIsThereWholeOrNotAtAll)
{
    for (unsigned seed = 1; seed <= 5; ++seed) {
        const Values after = randomList(seed);
        cutEverywhere(nullptr, after, [&](bool wasSaved) {
            ASSERT_TRUE(!wasSaved || folder.has("list.qv-hsr"));
            ASSERT_TRUE(!folder.has("list.qv-hsr") || read() == after) << "seed " << seed;
        });
    }
}

TEST_F(RecordSurvival, ADamagedListIsKeptWhereverThePowerGoes)
{
    const std::string damaged = "half a list";
    const Values after = randomList(3);
    cutEverywhere(&damaged, after, [&](bool wasSaved) {
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
    cutEverywhere(&later, after, [&](bool wasSaved) {
        const std::string name = folder.has("list.qv-hsr.kept") ? "list.qv-hsr.kept" : "list.qv-hsr";
        ASSERT_EQ(folder.read(name), later);
        ASSERT_TRUE(!wasSaved || read() == after);
    });
}

TEST_F(RecordSurvival, AfterAPowerCutTheNextSaveWorksAndLeavesNothingElse)
{
    const std::string old = fileOf({u"2.0", u"old"});
    cutEverywhere(&old, randomList(3), [&](bool) {
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

// The crash itself is tried: a save that forgets a step must lose the list in some state.

TEST_F(RecordSurvival, AListWrittenInPlaceWouldBeLost)
{
    folder.write("list.qv-hsr", "old");
    std::vector<std::string> found;
    for (int outcome = 0; outcome < 4; ++outcome) {
        CrashingFileSystem files(folder.native());
        files.write(list, "newer");
        files.restart(outcome);
        found.push_back(folder.read("list.qv-hsr"));
        folder.write("list.qv-hsr", "old");
    }
    EXPECT_EQ(found, (std::vector<std::string>{"old", "ne", std::string(5, '\0'), "newer"}));
}

TEST_F(RecordSurvival, ARenameBeforeTheFlushWouldLoseTheList)
{
    std::vector<std::string> found;
    int outcomes = 1;
    for (int outcome = 0; outcome < outcomes; ++outcome) {
        empty();
        folder.write("list.qv-hsr", "old");
        CrashingFileSystem files(folder.native());
        files.write(folder.native() / "new", "newer");
        files.rename(folder.native() / "new", list);
        files.flushFolder(folder.native());
        outcomes = files.outcomes();
        files.restart(outcome);
        found.push_back(folder.read("list.qv-hsr"));
    }
    EXPECT_THAT(found, Contains(""));
}

TEST_F(RecordSurvival, WithoutAFlushOfTheFolderANewListCouldStillBeTheOldOne)
{
    std::vector<std::string> found;
    int outcomes = 1;
    for (int outcome = 0; outcome < outcomes; ++outcome) {
        empty();
        folder.write("list.qv-hsr", "old");
        CrashingFileSystem files(folder.native());
        files.write(folder.native() / "new", "newer");
        files.flush(folder.native() / "new");
        files.rename(folder.native() / "new", list);
        outcomes = files.outcomes();
        files.restart(outcome);
        found.push_back(folder.read("list.qv-hsr"));
    }
    EXPECT_THAT(found, Contains("old"));
    EXPECT_THAT(found, Contains("newer"));
}

} // namespace
} // namespace phial
