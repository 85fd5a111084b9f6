#pragma once

#include "core/String.h"

#include <vector>

namespace molmasse
{

/// A formula to work out, in plain notation, with the compound's names ("" when the file gives none).
struct Task {
    phial::String formula;
    phial::String germanName;
    phial::String englishName;
};

/// The tasks of one difficulty, in file order.
struct Level {
    phial::String key; ///< the heading in the file, such as "leicht"
    phial::String germanTitle;
    phial::String englishTitle;
    std::vector<Task> tasks;
};

/// What a task file holds, with a complaint for each line that could not be used.
struct TaskList {
    std::vector<Level> levels;
    std::vector<phial::String> complaints;
};

/// Reads the text of a task file.
///
///     # a comment
///     [leicht] Leicht | Easy
///     H2O | Wasser | Water
///
/// A heading opens a level, every other line is a task: formula, German and English name between "|", the
/// names optional. A task before the first heading, a task without a capital letter and a level without tasks
/// are left out with a complaint; the rest of the file counts.
TaskList readTaskList(phial::StringView text);

} // namespace molmasse
