#include "molmasse/TaskList.h"

#include <gtest/gtest.h>

namespace molmasse
{
namespace
{

TEST(TaskListTest, ReadsLevelsWithTitlesAndNames)
{
    const TaskList list = readTaskList(u"# Kommentar\n\n[leicht] Leicht | Easy\nH2O | Wasser | Water\nNaCl\n"
                                       u"[mittel] Mittel|Medium\nCa(OH)2|Calciumhydroxid\n");

    ASSERT_EQ(list.levels.size(), 2U);
    EXPECT_EQ(list.levels[0].key, u"leicht");
    EXPECT_EQ(list.levels[0].germanTitle, u"Leicht");
    EXPECT_EQ(list.levels[0].englishTitle, u"Easy");
    ASSERT_EQ(list.levels[0].tasks.size(), 2U);
    EXPECT_EQ(list.levels[0].tasks[0].formula, u"H2O");
    EXPECT_EQ(list.levels[0].tasks[0].englishName, u"Water");
    EXPECT_EQ(list.levels[0].tasks[1].germanName, u"");
    EXPECT_TRUE(list.complaints.empty());
}

TEST(TaskListTest, AMissingEnglishTextIsTheGermanOne)
{
    const TaskList list = readTaskList(u"[leicht] Leicht\nH2O | Wasser\n[x]\nHCl\n");

    ASSERT_EQ(list.levels.size(), 2U);
    EXPECT_EQ(list.levels[0].englishTitle, u"Leicht");
    EXPECT_EQ(list.levels[0].tasks[0].englishName, u"Wasser");
    EXPECT_EQ(list.levels[1].germanTitle, u"x");
}

TEST(TaskListTest, AcceptsByteOrderMarkAndWindowsLineEnds)
{
    const TaskList list = readTaskList(u"\xFEFF[leicht] Leicht | Easy\r\nH2O | Wasser | Water\r\n");

    ASSERT_EQ(list.levels.size(), 1U);
    EXPECT_EQ(list.levels[0].englishTitle, u"Easy");
    EXPECT_EQ(list.levels[0].tasks[0].englishName, u"Water");
}

TEST(TaskListTest, LeavesOutWhatIsNoTaskWithAComplaintEach)
{
    const TaskList list = readTaskList(u"H2O\n[leicht] Leicht | Easy\nwasser\nH2O\n[leer] Leer | Empty\n");

    ASSERT_EQ(list.levels.size(), 1U);
    EXPECT_EQ(list.levels[0].tasks.size(), 1U);
    EXPECT_EQ(list.complaints.size(), 3U);
}

TEST(TaskListTest, SurvivesAnUnclosedHeading)
{
    const TaskList list = readTaskList(u"[leicht\nH2O\n");

    ASSERT_EQ(list.levels.size(), 1U);
    EXPECT_EQ(list.levels[0].key, u"leicht");
}

TEST(TaskListTest, AnEmptyTextHasNoLevels)
{
    EXPECT_TRUE(readTaskList(u"").levels.empty());
}

} // namespace
} // namespace molmasse
