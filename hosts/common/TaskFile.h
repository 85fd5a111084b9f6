#pragma once

#include "common/LearningApp.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace learning
{

/// A task as a teacher writes it down: what is asked, in the app's own notation, and what it is called (""
/// where the file gives no name).
struct ListedTask {
    phial::String text;
    phial::String germanName;
    phial::String englishName;
};

/// The tasks of one difficulty, in file order.
struct TaskLevel {
    static constexpr std::size_t UsualRound = 10;
    static constexpr std::size_t LongestRound = 999;

    phial::String key{}; ///< the heading in the file, such as "leicht"
    LevelTitle title{};
    std::size_t tasksInRound = UsualRound; ///< at most; a shorter list is asked whole
    std::vector<ListedTask> tasks{};
};

/// Why a line of a task file is left out.
enum class TaskFault : std::uint8_t {
    NoTask,         ///< nothing that the app can ask
    UnknownElement, ///< it names an element that there is not
    Ambiguous,      ///< a forgotten hydrogen atom could not be told from a right answer
    TooLong,        ///< there is no room for it on the page
    NoTasks,        ///< a heading with no task below it
    TooManyLevels,  ///< a heading behind the last one that has room on the start page
    NoCount         ///< what should tell how many tasks a round has; the level counts all the same
};

/// A complaint about a line, counted from 1.
struct TaskComplaint {
    TaskFault fault = TaskFault::NoTask;
    int line = 0;
    phial::String text; ///< the line's task or heading

    friend bool operator==(const TaskComplaint&, const TaskComplaint&) = default;
};

/// What a task file holds, with a complaint for each line that could not be used.
struct TaskFile {
    std::vector<TaskLevel> levels;
    std::vector<TaskComplaint> complaints;
};

/// What keeps an app from asking a task; empty for nothing.
using TaskCheck = std::function<std::optional<TaskFault>(const phial::String& text)>;

/// Reads the text of a task file.
///
///     # a comment
///     [leicht] Leicht | Easy | 20
///     H2O | Wasser | Water
///
/// A heading opens a level: German and English title, and how many tasks a round has at most, 10 where it
/// does not tell. One without any name is called by its place, "Stufe 2". Every other line is a task with its
/// German and English name, which may be left out. A task before the first heading, one that does not pass
/// the check, a level without tasks and one behind MostLevelsShown others are left out with a complaint; the
/// rest of the file counts.
TaskFile readTaskFile(phial::StringView text, const TaskCheck& check);

/// The complaints for the teacher, in the language in force: the first one in full, and how many more there
/// are. Empty for none. `name` is the file's.
phial::String complaintText(const TaskFile& file, phial::StringView name);

std::vector<LevelTitle> titlesOf(const TaskFile& file);

/// Whether a task of that text stands in one of the levels.
bool holds(const TaskFile& file, phial::StringView text);

/// Draws the tasks of a round.
std::vector<ListedTask> drawRound(const TaskLevel& level, const TaskChoice& choice);

} // namespace learning
