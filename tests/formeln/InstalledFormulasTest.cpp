#include "chem/cls_DataElements.h"
#include "common/FormulaCard.h"
#include "core/CoreFiles.h"
#include "core/CoreRoot.h"
#include "core/NativePath.h"
#include "formeln/FormulaJudge.h"
#include "formeln/FormulaTasks.h"
#include "formeln/NameJudge.h"
#include "support/AppSession.h"
#include "support/Places.h"

#include <gtest/gtest.h>
#include <set>

namespace formeln
{
namespace
{

using namespace phial;

/// The tasks that the installation tree brings, with its element file.
class InstalledFormulas : public test::AppSession
{
protected:
    InstalledFormulas()
    {
        const String tree = systemPath(test::treeFolder());
        elements.IMPORT2(tree + u"\\Resources\\data\\elements2.dat");
        tasks = learning::readTaskFile(
            coreRoot().CoreFiles().ReadText(tree + u"\\apps\\Formeln\\data\\aufgaben.txt"),
            [this](const String& text) { return faultOf(text, elements); });
    }

    cls_DataElements elements;
    learning::TaskFile tasks;
};

TEST_F(InstalledFormulas, AreReadWithoutAComplaint)
{
    EXPECT_TRUE(tasks.complaints.empty())
        << (tasks.complaints.empty() ? "" : toUtf8(tasks.complaints[0].text));
    EXPECT_EQ(tasks.levels.size(), 8U);
    std::size_t count = 0;
    for (const learning::TaskLevel& level : tasks.levels) {
        EXPECT_GE(level.tasks.size(), 20U) << toUtf8(level.key);
        EXPECT_NE(level.title.german, level.title.english);
        count += level.tasks.size();
    }
    EXPECT_GE(count, 150U);
}

TEST_F(InstalledFormulas, AreWrittenOnceAndNamedInBothLanguages)
{
    std::set<String> texts;
    for (const learning::TaskLevel& level : tasks.levels) {
        for (const learning::ListedTask& task : level.tasks) {
            EXPECT_TRUE(texts.insert(task.text).second) << toUtf8(task.text);
            EXPECT_FALSE(task.germanName.empty() || task.englishName.empty()) << toUtf8(task.text);
        }
    }
}

TEST_F(InstalledFormulas, AreRightAnswersToThemselves)
{
    for (const learning::TaskLevel& level : tasks.levels) {
        for (const learning::ListedTask& task : level.tasks) {
            if (const auto equation = equationIn(task.text)) {
                const auto factors = balanced(*equation);
                ASSERT_TRUE(factors) << toUtf8(task.text);
                EXPECT_EQ(judgeFactors(*equation, *factors).judgement, learning::Judgement::Right);
            } else {
                EXPECT_EQ(judgeFormula(task.text, task.text).judgement, learning::Judgement::Right);
                EXPECT_EQ(judgeFormula(learning::formulaLine(task.text), task.text).judgement,
                          learning::Judgement::Right);
            }
        }
    }
}

/// Within a level a name must tell which substance is meant.
TEST_F(InstalledFormulas, HaveNamesOfTheirOwn)
{
    for (const learning::TaskLevel& level : tasks.levels) {
        std::map<String, String> formulas;
        for (const learning::ListedTask& task : level.tasks) {
            for (const String& column : {task.germanName, task.englishName}) {
                for (const String& name : namesIn(column)) {
                    const auto [known, isNew] = formulas.try_emplace(lowerCase(name), task.text);
                    EXPECT_EQ(known->second, task.text) << toUtf8(name);
                }
            }
        }
    }
}

TEST_F(InstalledFormulas, EquationsStandThereWithoutFactors)
{
    for (const learning::TaskLevel& level : tasks.levels) {
        for (const learning::ListedTask& task : level.tasks) {
            if (const auto equation = equationIn(task.text)) {
                for (const auto* side : {&equation->left, &equation->right}) {
                    for (const String& substance : *side) {
                        EXPECT_FALSE(isDigit(substance.front())) << toUtf8(task.text);
                    }
                }
            }
        }
    }
}

} // namespace
} // namespace formeln
