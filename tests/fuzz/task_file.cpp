// Task files as teachers write them: what is read can be shown and asked, is read again when it is written
// down, and whatever is wrong with a line is told in a line.

#include "FuzzInput.h"
#include "app/Session.h"
#include "common/TaskFile.h"
#include "headless/HeadlessPlatform.h"
#include "support/TemporaryFolder.h"

#include <algorithm>
#include <cstdio>

namespace
{

using namespace phial;
using learning::TaskFile;
using learning::TaskLevel;

/// A run of its own for all inputs, since complaints are told in the language in force.
struct Run {
    static void fail(const String& description)
    {
        std::fputs(toUtf8(description).c_str(), stderr);
        std::abort();
    }

    test::TemporaryFolder folder;
    headless::HeadlessPlatform outside{folder.path(), fail};
    Session session{outside.platform()};
};

TaskFile read(StringView text)
{
    return learning::readTaskFile(text, [](const String& task) {
        const bool hasCapital =
            std::ranges::any_of(task, [](char16_t unit) { return unit >= u'A' && unit <= u'Z'; });
        return hasCapital ? std::nullopt : std::optional(learning::TaskFault::NoTask);
    });
}

/// Whether a half of a pair stands by itself, as no reader shows it.
bool hasLoneHalf(StringView text)
{
    bool open = false;
    for (const char16_t unit : text) {
        if (open != isLowSurrogate(unit)) {
            return true;
        }
        open = isHighSurrogate(unit);
    }
    return open;
}

/// It stands in one line of the page, and in a list by its title.
void requireShown(StringView text)
{
    fuzz::require(!text.empty());
    fuzz::require(text.find_first_of(u"\n\r") == StringView::npos);
}

void requireAskable(const TaskLevel& level)
{
    requireShown(level.title.german);
    requireShown(level.title.english);
    fuzz::require(level.tasksInRound >= 1 && level.tasksInRound <= TaskLevel::LongestRound);
    fuzz::require(!level.tasks.empty());
    for (const learning::ListedTask& task : level.tasks) {
        requireShown(task.text);
    }
    const auto round = learning::drawRound(level, {[](StringView name) { return name.size() > 3; }, false});
    fuzz::require(round.size() == std::min(level.tasksInRound, level.tasks.size()));
}

void requireTold(const TaskFile& file, StringView text)
{
    const auto lines = std::ranges::count(text, u'\n') + 1;
    for (const learning::TaskComplaint& complaint : file.complaints) {
        requireShown(complaint.text);
        fuzz::require(complaint.line >= 1 && complaint.line <= lines);
    }
    fuzz::require(std::ranges::is_sorted(file.complaints, {}, &learning::TaskComplaint::line));
    const String told = learning::complaintText(file, u"tasks.txt");
    fuzz::require(told.empty() == file.complaints.empty());
    constexpr std::size_t TwoLines = 220;
    fuzz::require(told.size() < TwoLines && (hasLoneHalf(text) || !hasLoneHalf(told)));
}

String writtenDown(const TaskFile& file)
{
    String text;
    for (const TaskLevel& level : file.levels) {
        text += u"[" + level.key + u"]" + level.title.german + u"|" + level.title.english + u"|" +
                fromUtf8(std::to_string(level.tasksInRound)) + u"\n";
        for (const learning::ListedTask& task : level.tasks) {
            text += task.text + u"|" + task.germanName + u"|" + task.englishName + u"\n";
        }
    }
    return text;
}

void requireSame(const TaskLevel& one, const TaskLevel& other)
{
    fuzz::require(one.key == other.key && one.tasksInRound == other.tasksInRound);
    fuzz::require(one.title.german == other.title.german && one.title.english == other.title.english);
    fuzz::require(std::ranges::equal(one.tasks, other.tasks, [](const auto& left, const auto& right) {
        return left.text == right.text && left.germanName == right.germanName &&
               left.englishName == right.englishName;
    }));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static Run run;
    const String text = fuzz::textOf(data, size);
    const TaskFile file = read(text);
    std::ranges::for_each(file.levels, requireAskable);
    requireTold(file, text);

    const TaskFile again = read(writtenDown(file));
    fuzz::require(again.complaints.empty() && again.levels.size() == file.levels.size());
    for (std::size_t at = 0; at < file.levels.size(); ++at) {
        requireSame(file.levels[at], again.levels[at]);
    }
    return 0;
}
