#include "results/ResultsTest.h"
#include "support/PowerCuts.h"

#include <array>
#include <gtest/gtest.h>
#include <utility>

namespace phial
{
namespace
{

/// Score lists, saved while the power goes.
class ScoreListSurvival : public ::testing::Test
{
protected:
    /// Runs `work` in a session of its own, on those files.
    template <typename Work>
    void onFiles(const std::shared_ptr<FileSystem>& files, const Work& work)
    {
        Platform platform = headless::HeadlessPlatform(folder.path(), test::AppSession::fail).platform();
        platform.files = files;
        const SessionState session(platform);
        work();
    }

    static void fill(cls_DataScores& list, int entries)
    {
        for (int entry = 1; entry <= entries; ++entry) {
            const auto score = std::make_shared<cls_DataScore>();
            score->SCREENNAME(u"Schüler " + Variant(entry).toText());
            score->POINTS(entry * 1.5);
            score->ADDITIONAL()->Set(u"ZEIT", entry);
            list.DATABASE()->Import(score);
        }
    }

    std::string savedFile(int entries)
    {
        onFiles(std::make_shared<NativeFileSystem>(), [&] {
            cls_DataScores list;
            fill(list, entries);
            ASSERT_TRUE(list.SAVE(path));
        });
        return folder.read("list.qv-hsr");
    }

    /// How many entries a list loads with, all of them whole.
    int loadedEntries()
    {
        int entries = -1;
        onFiles(std::make_shared<NativeFileSystem>(), [&] {
            cls_DataScores list;
            ASSERT_TRUE(list.LOAD(path));
            cls_DataScores expected;
            fill(expected, list.COUNT());
            ASSERT_EQ(list.DATA()->Pack(), expected.DATA()->Pack());
            entries = list.COUNT();
        });
        return entries;
    }

    test::TemporaryFolder folder;
    const String path = folder.path() + u"list.qv-hsr";
    test::PowerCuts cuts{folder};
};

TEST_F(ScoreListSurvival, TheOldOrTheNewListIsThereWhole)
{
    constexpr std::array<std::pair<int, int>, 5> Changes = {{{0, 1}, {1, 0}, {9, 10}, {10, 10}, {200, 201}}};
    for (const auto& [before, after] : Changes) {
        const test::PowerCuts::Files old = {{"list.qv-hsr", savedFile(before)}};
        const auto save = [&, after = after](const std::shared_ptr<FileSystem>& files) {
            onFiles(files, [&] {
                cls_DataScores list;
                fill(list, after);
                ASSERT_TRUE(list.SAVE(path));
            });
        };
        cuts.everywhere(old, save, [&, before = before, after = after](bool wasSaved) {
            const int entries = loadedEntries();
            ASSERT_TRUE(entries == after || (!wasSaved && entries == before))
                << before << " to " << after << ": " << entries;
        });
    }
    EXPECT_GE(cuts.stops(), 50);
}

} // namespace
} // namespace phial
