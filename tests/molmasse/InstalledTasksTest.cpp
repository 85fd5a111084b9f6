#include "chem/cls_DataElements.h"
#include "core/CoreFiles.h"
#include "core/CoreRoot.h"
#include "core/NativePath.h"
#include "molmasse/MassJudge.h"
#include "molmasse/TaskList.h"
#include "support/HeadlessSession.h"
#include "support/Places.h"

#include <gtest/gtest.h>
#include <set>

namespace molmasse
{
namespace
{

using namespace phial;

// The tasks that the installation tree brings, with its element file.
class InstalledTasks : public test::HeadlessSession
{
protected:
    InstalledTasks()
    {
        const String tree = systemPath(test::treeFolder());
        elements.IMPORT2(tree + u"\\Resources\\data\\elements2.dat");
        tasks = readTaskList(coreRoot().CoreFiles().ReadText(tree + u"\\apps\\Molmasse\\data\\formeln.txt"));
    }

    cls_DataElements elements;
    TaskList tasks;
};

TEST_F(InstalledTasks, HaveThreeLevelsOfAtLeastTwentyFormulas)
{
    EXPECT_TRUE(tasks.complaints.empty());
    ASSERT_EQ(tasks.levels.size(), 3U);
    EXPECT_EQ(tasks.levels[0].key, u"leicht");
    EXPECT_EQ(tasks.levels[1].key, u"mittel");
    EXPECT_EQ(tasks.levels[2].key, u"schwer");
    for (const Level& level : tasks.levels) {
        EXPECT_GE(level.tasks.size(), 20U) << toUtf8(level.key);
        EXPECT_NE(level.germanTitle, level.englishTitle);
    }
}

// A symbol that nobody knows would ask the pupil for the answer, and a group without a number would count
// nothing.
TEST_F(InstalledTasks, CountEachAtomOfKnownElements)
{
    for (const Level& level : tasks.levels) {
        for (const Task& task : level.tasks) {
            const CoreTokenList atoms = elements.ELEMENTSCOUNT(task.formula);
            for (std::int32_t index = 1; index <= atoms.Count(); ++index) {
                EXPECT_TRUE(elements.EXISTS(atoms.Item(index).Name())) << toUtf8(task.formula);
                EXPECT_GE(atoms.Item(index).Values().Item(1).toReal(), 1) << toUtf8(task.formula);
            }
        }
    }
}

// The error message for an answer that is none has a number in it.
TEST_F(InstalledTasks, AreNotSolvedByTheExampleOfANumber)
{
    for (const Level& level : tasks.levels) {
        for (const Task& task : level.tasks) {
            EXPECT_FALSE(isRight(12.5, elements.MOL(task.formula))) << toUtf8(task.formula);
        }
    }
}

TEST_F(InstalledTasks, AreDistinctAndNamedInBothLanguages)
{
    std::set<String> formulas;
    for (const Level& level : tasks.levels) {
        for (const Task& task : level.tasks) {
            EXPECT_TRUE(formulas.insert(task.formula).second) << toUtf8(task.formula);
            EXPECT_FALSE(task.germanName.empty() || task.englishName.empty()) << toUtf8(task.formula);
        }
    }
}

} // namespace
} // namespace molmasse
