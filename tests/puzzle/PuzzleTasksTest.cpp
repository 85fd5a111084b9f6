#include "puzzle/PuzzleTasks.h"

#include "core/CoreFiles.h"
#include "core/CoreRoot.h"
#include "core/NativePath.h"
#include "support/HeadlessSession.h"
#include "support/Places.h"

#include <gmock/gmock-matchers.h>

namespace puzzle
{
namespace
{

using learning::TaskFault;
using phial::String;
using phial::StringView;

class PuzzleTasks : public phial::test::HeadlessSession
{
protected:
    std::optional<TaskFault> fault(StringView task) { return faultOf(String(task), book); }
    std::set<int> empties(StringView key, StringView task, std::initializer_list<StringView> others = {})
    {
        learning::TaskLevel level{.key = String(key)};
        level.tasks.push_back({String(task), {}, {}});
        for (const StringView other : others) {
            level.tasks.push_back({String(other), {}, {}});
        }
        return emptyPlaces(elementsOf(task, book), level, book);
    }

    ElementBook book{phial::systemPath(phial::test::treeFolder()) + u"\\Resources\\data\\elements2.dat"};
};

TEST_F(PuzzleTasks, AreOneToSixKnownElementsEachOnce)
{
    EXPECT_EQ(fault(u"Cl"), std::nullopt);
    EXPECT_EQ(fault(u"H, He,Li Be  B C"), std::nullopt);
    EXPECT_EQ(elementsOf(u"H, He,Li Be  B C", book).size(), 6U);
    EXPECT_EQ(fault(u"H He Li Be B C N"), TaskFault::TooLong);
    EXPECT_EQ(fault(u"H Xx"), TaskFault::UnknownElement);
    EXPECT_EQ(fault(u"CL"), TaskFault::UnknownElement) << "a symbol's case counts";
    EXPECT_EQ(fault(u"H He H"), TaskFault::NoTask);
    EXPECT_EQ(fault(u""), TaskFault::NoTask);
    EXPECT_EQ(fault(u" , "), TaskFault::NoTask);
}

TEST_F(PuzzleTasks, LeaveSomeOthersOfTheLevelEmptyAsWell)
{
    const auto empty = empties(u"nachbarn", u"F Cl", {u"Br I", u"F Na", u"K Rb Cs Fr"});
    EXPECT_EQ(empty.size(), 6U) << "two tiles, and four others";
    EXPECT_TRUE(empty.contains(9) && empty.contains(17));
    EXPECT_FALSE(empty.contains(6)) << "carbon is in no task";
    EXPECT_EQ(empties(u"whatever", u"F", {u"Na"}), (std::set{9, 11})) << "a level of two elements";
}

TEST_F(PuzzleTasks, ShowTheTopOfEachGroup)
{
    const auto empty = empties(u"gruppen", u"F Br");
    EXPECT_TRUE(empty.contains(9)) << "its place would be taken";
    EXPECT_TRUE(empty.contains(17) && empty.contains(35) && empty.contains(47) && empty.contains(92));
    for (const int shown : {1, 4, 5, 6, 7, 8, 2, 21, 30, 58, 71}) {
        EXPECT_FALSE(empty.contains(shown)) << shown;
    }
    EXPECT_EQ(empty.size(), 118U - 18 - 14 + 1);
}

TEST_F(PuzzleTasks, ShowNothingOfAnEmptyTable)
{
    EXPECT_EQ(empties(u"leer", u"F").size(), 118U);
}

// What the installation tree brings.
TEST_F(PuzzleTasks, ThatAreInstalledCanAllBePlaced)
{
    const auto file = learning::readTaskFile(
        phial::coreRoot().CoreFiles().ReadText(phial::systemPath(phial::test::treeFolder()) +
                                               u"\\apps\\Puzzle\\data\\kaertchen.txt"),
        [this](const String& task) { return faultOf(task, book); });
    EXPECT_TRUE(file.complaints.empty());
    ASSERT_EQ(file.levels.size(), 5U);
    std::set<String> tasks;
    for (const learning::TaskLevel& level : file.levels) {
        SCOPED_TRACE(phial::toUtf8(level.title.german));
        EXPECT_GE(level.tasks.size(), 2 * level.tasksInRound);
        EXPECT_NE(level.title.german, level.title.english);
        for (const learning::ListedTask& task : level.tasks) {
            SCOPED_TRACE(phial::toUtf8(task.text));
            EXPECT_FALSE(task.germanName.empty() || task.englishName.empty());
            EXPECT_TRUE(tasks.insert(level.title.german + task.text).second) << "twice";
            const auto tiles = elementsOf(task.text, book);
            EXPECT_GE(emptyPlaces(tiles, level, book).size(), tiles.size() + 4)
                << "no place follows from being the last one";
        }
    }
}

} // namespace
} // namespace puzzle
