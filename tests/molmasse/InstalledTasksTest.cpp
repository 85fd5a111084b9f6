#include "chem/cls_DataElements.h"
#include "core/CoreFiles.h"
#include "core/CoreRoot.h"
#include "core/NativePath.h"
#include "molmasse/MassJudge.h"
#include "molmasse/TaskList.h"
#include "molmasse/TrainerData.h"
#include "support/HeadlessSession.h"
#include "support/Places.h"

#include <cmath>
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
        exactMasses =
            readExactMasses(coreRoot().CoreFiles().ReadText(tree + u"\\Resources\\data\\elements2.dat"));
        tasks = readTaskList(coreRoot().CoreFiles().ReadText(tree + u"\\apps\\Molmasse\\data\\formeln.txt"));
    }

    bool holdsHydrogen(const String& formula) const { return elements.ELEMENTSCOUNT(formula).Exists(u"H"); }

    cls_DataElements elements;
    std::map<String, double> exactMasses;
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

// Whoever works with the digits of another table is right, and whoever forgets a hydrogen atom is not.
TEST_F(InstalledTasks, AreSolvedByBothMassesAndByNeitherWithoutAHydrogenAtom)
{
    using learning::Judgement;
    for (const Level& level : tasks.levels) {
        for (const Task& task : level.tasks) {
            SCOPED_TRACE(toUtf8(task.formula));
            const double school = elements.MOL(task.formula);
            const auto exact = exactMass(exactMasses, task.formula);
            ASSERT_TRUE(exact);
            const double shown = std::round(*exact * 100) / 100;
            for (const double answer : {school, *exact, shown}) {
                EXPECT_EQ(judgeMass(answer, school, *exact), Judgement::Right) << answer;
            }
            if (holdsHydrogen(task.formula)) {
                EXPECT_EQ(judgeMass(school - 1.0, school, *exact), Judgement::Wrong);
                EXPECT_EQ(judgeMass(*exact - 1.008, school, *exact), Judgement::Wrong);
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
