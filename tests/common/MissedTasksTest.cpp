#include "common/MissedTasks.h"

#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/sys_Global.h"
#include "core/NumberText.h"
#include "support/AppSession.h"

#include <gtest/gtest.h>

namespace learning
{
namespace
{

class Missed : public phial::test::AppSession
{
protected:
    Missed() { phial::QVAPP()->CONFIG()->IDENT(u"Molmasse"); }
};

TEST_F(Missed, TasksAreKnownAgainUnderTheSameName)
{
    MissedTasks(u"Mia").missed(u"CO");
    EXPECT_TRUE(MissedTasks(u"Mia").has(u"CO"));
    EXPECT_FALSE(MissedTasks(u"Mia").has(u"Co")) << "cobalt is another one";
    EXPECT_FALSE(MissedTasks(u"Tom").has(u"CO"));
    phial::QVAPP()->CONFIG()->IDENT(u"Puzzle");
    EXPECT_FALSE(MissedTasks(u"Mia").has(u"CO"));
}

TEST_F(Missed, TasksThatAreSolvedAreForgotten)
{
    MissedTasks tasks(u"Mia");
    tasks.missed(u"CO");
    tasks.missed(u"CO");
    tasks.missed(u"H2O");
    EXPECT_EQ(tasks.count(), 2U);
    tasks.solved(u"CO");
    EXPECT_FALSE(MissedTasks(u"Mia").has(u"CO"));
    EXPECT_TRUE(MissedTasks(u"Mia").has(u"H2O"));
    tasks.forget();
    EXPECT_EQ(MissedTasks(u"Mia").count(), 0U);
}

TEST_F(Missed, TasksAreBounded)
{
    MissedTasks tasks(u"Mia");
    for (std::int32_t task = 0; task <= static_cast<std::int32_t>(MissedTasks::Most); ++task) {
        tasks.missed(phial::plainText(task));
    }
    EXPECT_EQ(tasks.count(), MissedTasks::Most);
    EXPECT_FALSE(tasks.has(u"0")) << "the oldest";
    EXPECT_TRUE(tasks.has(u"1"));
    EXPECT_EQ(MissedTasks(u"Mia").count(), MissedTasks::Most);
}

TEST_F(Missed, NamesDoNotOpenFolders)
{
    MissedTasks(u"Mia\\Tom").missed(u"CO");
    EXPECT_TRUE(MissedTasks(u"Mia Tom").has(u"CO"));
}

} // namespace
} // namespace learning
