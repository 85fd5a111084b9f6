#include "common/TaskList.h"

#include "app/cls_App.h"
#include "app/cls_AppURL.h"
#include "app/sys_Global.h"
#include "support/AppSession.h"

#include <gmock/gmock-matchers.h>

namespace learning
{
namespace
{

using phial::String;
using phial::StringView;

/// Tasks in a program's own data; "?" is none.
class TaskListTest : public phial::test::AppSession
{
protected:
    TaskListTest() { phial::QVAPP()->URL()->DATAAPP(path(u"data\\")); }

    TaskList read(std::string_view text)
    {
        folder.write("data/tasks.txt", text);
        return missing();
    }
    static TaskList missing()
    {
        return {u"tasks.txt", [](const String& task) {
                    return task == u"?" ? std::optional(TaskFault::NoTask) : std::nullopt;
                }};
    }

    TaskChoice any{[](StringView) { return false; }};
};

TEST_F(TaskListTest, IsEmptyWithoutAFileAndTellsWhereOneIsLookedFor)
{
    EXPECT_TRUE(TaskList().isEmpty());
    const TaskList list = missing();
    EXPECT_TRUE(list.isEmpty());
    EXPECT_EQ(list.path(), path(u"data\\tasks.txt"));
    EXPECT_EQ(list.complaint(), u"");
}

TEST_F(TaskListTest, DrawsARoundOfALevel)
{
    outside.random().numbers({0.0});
    TaskList list = read("[a] Leicht | Easy\nH2O\n[b] Schwer | Hard | 2\nCO2\nNH3\nCH4\n");
    EXPECT_FALSE(list.isEmpty());
    EXPECT_EQ(list.titles().at(1).english, u"Hard");
    EXPECT_EQ(list.begin(1, any), 2);
    EXPECT_EQ(list.at(1).text, u"CO2");
    EXPECT_EQ(list.at(2).text, u"NH3");
    EXPECT_EQ(list.tasks().size(), 3U);
}

TEST_F(TaskListTest, NamesTheFileInItsComplaint)
{
    EXPECT_THAT(phial::toUtf8(read("[a]\nH2O\n?\n").complaint()), testing::HasSubstr("tasks.txt"));
}

} // namespace
} // namespace learning
