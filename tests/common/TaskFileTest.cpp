#include "common/TaskFile.h"

#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "common/FrameTexts.h"
#include "support/AppSession.h"

#include <gmock/gmock-matchers.h>

namespace learning
{
namespace
{

using phial::String;
using phial::StringView;
using ::testing::ElementsAre;

/// What has a capital letter can be asked; "XXX" has no room.
TaskFile read(StringView text)
{
    return readTaskFile(text, [](const String& task) -> std::optional<TaskFault> {
        if (task == u"XXX") {
            return TaskFault::TooLong;
        }
        const bool hasCapital =
            std::ranges::any_of(task, [](char16_t unit) { return unit >= u'A' && unit <= u'Z'; });
        return hasCapital ? std::nullopt : std::optional(TaskFault::NoTask);
    });
}

TEST(TaskFiles, ReadsLevelsWithTitlesAndNames)
{
    const TaskFile list = read(u"# Kommentar\n\n[leicht] Leicht | Easy\nH2O | Wasser | Water\nNaCl\n"
                               u"[mittel] Mittel|Medium\nCa(OH)2|Calciumhydroxid\n");

    ASSERT_EQ(list.levels.size(), 2U);
    EXPECT_EQ(list.levels[0].key, u"leicht");
    EXPECT_EQ(list.levels[0].title.german, u"Leicht");
    EXPECT_EQ(list.levels[0].title.english, u"Easy");
    ASSERT_EQ(list.levels[0].tasks.size(), 2U);
    EXPECT_EQ(list.levels[0].tasks[0].text, u"H2O");
    EXPECT_EQ(list.levels[0].tasks[0].englishName, u"Water");
    EXPECT_EQ(list.levels[0].tasks[1].germanName, u"");
    EXPECT_TRUE(list.complaints.empty());
}

TEST(TaskFiles, AMissingEnglishTextIsTheGermanOne)
{
    const TaskFile list = read(u"[leicht] Leicht\nH2O | Wasser\n[x]\nHCl\n");

    ASSERT_EQ(list.levels.size(), 2U);
    EXPECT_EQ(list.levels[0].title.english, u"Leicht");
    EXPECT_EQ(list.levels[0].tasks[0].englishName, u"Wasser");
    EXPECT_EQ(list.levels[1].title.german, u"x");
}

TEST(TaskFiles, AcceptsByteOrderMarkAndWindowsLineEnds)
{
    const TaskFile list = read(u"\xFEFF[leicht] Leicht | Easy\r\nH2O | Wasser | Water\r\n");

    ASSERT_EQ(list.levels.size(), 1U);
    EXPECT_EQ(list.levels[0].title.english, u"Easy");
    EXPECT_EQ(list.levels[0].tasks[0].englishName, u"Water");
}

TEST(TaskFiles, LeavesOutWhatIsNoTaskWithAComplaintEach)
{
    const TaskFile list = read(u"H2O\n[leicht] Leicht | Easy\nwasser\nH2O\n[leer] Leer | Empty\n");

    ASSERT_EQ(list.levels.size(), 1U);
    EXPECT_EQ(list.levels[0].tasks.size(), 1U);
    EXPECT_THAT(list.complaints, ElementsAre(TaskComplaint{TaskFault::NoTask, 1, u"H2O"},
                                             TaskComplaint{TaskFault::NoTask, 3, u"wasser"},
                                             TaskComplaint{TaskFault::NoTasks, 5, u"leer"}));
}

TEST(TaskFiles, SurvivesAnUnclosedHeading)
{
    const TaskFile list = read(u"[leicht\nH2O\n");

    ASSERT_EQ(list.levels.size(), 1U);
    EXPECT_EQ(list.levels[0].key, u"leicht");
    EXPECT_EQ(read(u"[leicht | Easy | 5\nH2O\n").levels.at(0).title.german, u"leicht");
    EXPECT_EQ(read(u"[leicht | Easy | 5\nH2O\n").levels.at(0).title.english, u"Easy");
    EXPECT_EQ(read(u"[leicht | Easy | 5\nH2O\n").levels.at(0).tasksInRound, 5U);
}

TEST(TaskFiles, ALevelWithoutANameIsCalledByItsPlace)
{
    const TaskFile list = read(u"[a]\nH2O\n[]\nCO2\n[] | Third\nNH3\n[]\n");
    ASSERT_EQ(list.levels.size(), 3U);
    EXPECT_EQ(list.levels[1].title.german, u"Stufe 2");
    EXPECT_EQ(list.levels[1].title.english, u"Level 2");
    EXPECT_EQ(list.levels[2].title.german, u"Third");
    EXPECT_THAT(list.complaints, ElementsAre(TaskComplaint{TaskFault::NoTasks, 7, u"Stufe 4"}));
}

TEST(TaskFiles, TakesControlSignsForBlanks)
{
    const TaskFile list = read(u"[a\tb] Eins\rZwei\nH2O\u0001 | Wasser\n");
    ASSERT_EQ(list.levels.size(), 1U);
    EXPECT_EQ(list.levels[0].key, u"a b");
    EXPECT_EQ(list.levels[0].title.german, u"Eins Zwei");
    EXPECT_EQ(list.levels[0].tasks.at(0).text, u"H2O");
}

TEST(TaskFiles, AnEmptyTextHasNoLevels)
{
    EXPECT_TRUE(read(u"").levels.empty());
}

TEST(TaskFiles, TellHowManyTasksARoundHas)
{
    const TaskFile list = read(u"[a] Kurz | Short | 1\nH2O\n[b] Lang | Long | 37\nH2O\n[c] Wie immer\nH2O\n");
    ASSERT_EQ(list.levels.size(), 3U);
    EXPECT_EQ(list.levels[0].tasksInRound, 1U);
    EXPECT_EQ(list.levels[1].tasksInRound, 37U);
    EXPECT_EQ(list.levels[2].tasksInRound, 10U);
}

TEST(TaskFiles, StayAtTenWhereThatIsNoCount)
{
    for (const auto* count : {u"0", u"-3", u"2,5", u"viel", u"1000", u"1e300"}) {
        const TaskFile list = read(u"[a] Leicht | Easy | " + String(count) + u"\nH2O\n");
        EXPECT_EQ(list.levels.at(0).tasksInRound, 10U);
        EXPECT_THAT(list.complaints, ElementsAre(TaskComplaint{TaskFault::NoCount, 1, count}));
    }
}

class TaskComplaints : public phial::test::AppSession
{
protected:
    TaskComplaints() { phial::LNG()->CURRENT(phial::ID_Language_German); }
};

TEST_F(TaskComplaints, NameTheFileTheLineAndTheReason)
{
    EXPECT_EQ(complaintText(read(u"[a]\nH2O\n"), u"formeln.txt"), u"");
    const TaskFile list = read(u"[a]\nH2O\nXXX | Lang\n");
    EXPECT_EQ(
        complaintText(list, u"formeln.txt"),
        u"Für die Lehrkraft: formeln.txt, Zeile 3: „XXX“ ist zu lang für die Seite und wurde ausgelassen.");
    phial::LNG()->CURRENT(phial::ID_Language_English);
    EXPECT_EQ(complaintText(list, u"formeln.txt"),
              u"For the teacher: formeln.txt, line 3: “XXX” is too long for the page and was left out.");
}

TEST_F(TaskComplaints, TellHowManyThereAre)
{
    EXPECT_THAT(phial::toUtf8(complaintText(read(u"[a]\nH2O\nx\ny\n"), u"f")),
                ::testing::HasSubstr("Noch eine Zeile ist fehlerhaft."));
    EXPECT_THAT(phial::toUtf8(complaintText(read(u"[a]\nH2O\nx\ny\nz\n"), u"f")),
                ::testing::HasSubstr("Noch 2 Zeilen sind fehlerhaft."));
}

TEST_F(TaskComplaints, QuoteTheBeginningOfALongLine)
{
    const String text = complaintText(read(u"[a]\nH2O\n" + String(5000, u'x')), u"f");
    EXPECT_LT(text.size(), 140U);
}

TEST_F(TaskComplaints, QuoteNoHalfOfASign)
{
    const String line = String(38, u'x') + u"\U0001F600\U0001F600";
    const String text = complaintText(read(u"[a]\nH2O\n" + line + u"\n"), u"f");
    EXPECT_THAT(phial::toUtf8(text), ::testing::HasSubstr(std::string(38, 'x') + "…"));
}

using TaskRounds = phial::test::AppSession;

TEST_F(TaskRounds, HaveTheTasksThatAreWantedFirst)
{
    TaskLevel level{.tasksInRound = 2, .tasks = {{u"A", {}, {}}, {u"B", {}, {}}, {u"C", {}, {}}}};
    const auto wantsC = [](StringView name) { return name == u"C"; };
    const auto textsOf = [](const std::vector<ListedTask>& tasks) {
        std::vector<String> texts;
        for (const ListedTask& task : tasks) {
            texts.push_back(task.text);
        }
        return texts;
    };
    EXPECT_EQ(textsOf(drawRound(level, {.preferred = wantsC})).front(), u"C");
    EXPECT_THAT(textsOf(drawRound(level, {.preferred = wantsC, .preferredOnly = true})), ElementsAre(u"C"));
    EXPECT_EQ(drawRound(level, {.preferred = [](StringView) { return false; }, .preferredOnly = true}).size(),
              2U);
}

TEST(TaskFiles, LevelsBehindTheLastThatHasRoomAreToldAndLeftOut)
{
    String text = u"[leer]\n";
    for (int level = 1; level <= 10; ++level) {
        text += u"[" + number(level) + u"]\nH2O\n";
    }
    const TaskFile list = read(text);
    EXPECT_EQ(list.levels.size(), MostLevelsShown);
    EXPECT_EQ(list.levels.back().key, u"8");
    EXPECT_THAT(list.complaints, ElementsAre(TaskComplaint{TaskFault::NoTasks, 1, u"leer"},
                                             TaskComplaint{TaskFault::TooManyLevels, 18, u"9"},
                                             TaskComplaint{TaskFault::TooManyLevels, 20, u"10"}));
}

} // namespace
} // namespace learning
