#include "chem/cls_DataElements.h"
#include "common/FormulaCard.h"
#include "core/CoreFiles.h"
#include "core/CoreRoot.h"
#include "core/NativePath.h"
#include "molmasse/MassJudge.h"
#include "molmasse/SaltParts.h"
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
        tasks = learning::readTaskFile(
            coreRoot().CoreFiles().ReadText(tree + u"\\apps\\Molmasse\\data\\formeln.txt"),
            [this](const String& formula) { return faultOf(elements, formula); });
    }

    bool holdsHydrogen(const String& formula) const
    {
        return elements.ELEMENTSCOUNT(withoutDots(formula)).Exists(u"H");
    }

    cls_DataElements elements;
    learning::TaskFile tasks;
};

TEST_F(InstalledTasks, HaveThreeLevelsOfAtLeastTwentyFormulas)
{
    EXPECT_TRUE(tasks.complaints.empty());
    ASSERT_EQ(tasks.levels.size(), 3U);
    EXPECT_EQ(tasks.levels[0].tasks.size() + tasks.levels[1].tasks.size() + tasks.levels[2].tasks.size(),
              90U);
    EXPECT_EQ(tasks.levels[0].key, u"leicht");
    EXPECT_EQ(tasks.levels[1].key, u"mittel");
    EXPECT_EQ(tasks.levels[2].key, u"schwer");
    for (const learning::TaskLevel& level : tasks.levels) {
        EXPECT_GE(level.tasks.size(), 20U) << toUtf8(level.key);
        EXPECT_NE(level.title.german, level.title.english);
    }
}

// A symbol that nobody knows would ask the pupil for the answer, and a group without a number would count
// nothing.
TEST_F(InstalledTasks, CountEachAtomOfKnownElements)
{
    for (const learning::TaskLevel& level : tasks.levels) {
        for (const learning::ListedTask& task : level.tasks) {
            const CoreTokenList atoms = elements.ELEMENTSCOUNT(withoutDots(task.text));
            for (std::int32_t index = 1; index <= atoms.Count(); ++index) {
                EXPECT_TRUE(elements.EXISTS(atoms.Item(index).Name())) << toUtf8(task.text);
                EXPECT_GE(atoms.Item(index).Values().Item(1).toReal(), 1) << toUtf8(task.text);
            }
        }
    }
}

// Whoever works with the digits of another table is right, and whoever forgets a hydrogen atom is not.
TEST_F(InstalledTasks, AreSolvedByBothMassesAndByNeitherWithoutAHydrogenAtom)
{
    using learning::Judgement;
    for (const learning::TaskLevel& level : tasks.levels) {
        for (const learning::ListedTask& task : level.tasks) {
            SCOPED_TRACE(toUtf8(task.text));
            const String counted = withoutDots(task.text);
            const double school = elements.MOL(counted);
            const auto exact = elements.exactMass(counted);
            ASSERT_TRUE(exact);
            const TaskMasses masses = massesOf(counted, school, *exact);
            EXPECT_TRUE(canBeJudged(masses));
            const double shown = std::round(*exact * 100) / 100;
            for (const double answer : {school, *exact, shown}) {
                EXPECT_EQ(judgeMass(answer, masses), Judgement::Right) << answer;
            }
            if (holdsHydrogen(task.text)) {
                EXPECT_EQ(judgeMass(school - 1.0, masses), Judgement::Wrong);
                EXPECT_EQ(judgeMass(*exact - 1.008, masses), Judgement::Wrong);
            }
        }
    }
}

// The error message for an answer that is none has a number in it.
TEST_F(InstalledTasks, AreNotSolvedByTheExampleOfANumber)
{
    for (const learning::TaskLevel& level : tasks.levels) {
        for (const learning::ListedTask& task : level.tasks) {
            EXPECT_FALSE(isRight(12.5, elements.MOL(withoutDots(task.text)))) << toUtf8(task.text);
        }
    }
}

TEST_F(InstalledTasks, AreDistinctAndNamedInBothLanguages)
{
    std::set<String> formulas;
    for (const learning::TaskLevel& level : tasks.levels) {
        for (const learning::ListedTask& task : level.tasks) {
            EXPECT_TRUE(formulas.insert(task.text).second) << toUtf8(task.text);
            EXPECT_FALSE(task.germanName.empty() || task.englishName.empty()) << toUtf8(task.text);
        }
    }
}

} // namespace
} // namespace molmasse
