#pragma once

#include "common/TaskFile.h"

namespace learning
{

/// The tasks of an app whose file teachers extend, and the round that is drawn from them.
class TaskList
{
public:
    /// No tasks.
    TaskList() = default;
    /// Reads the file of that name in the program's own data. Nothing is raised: one that is missing or
    /// cannot be read holds no tasks.
    TaskList(phial::StringView name, const TaskCheck& check);

    /// Where the file is looked for.
    phial::String path() const;
    bool isEmpty() const { return file_.levels.empty(); }
    std::vector<LevelTitle> titles() const { return titlesOf(file_); }
    /// For the teacher, see complaintText.
    phial::String complaint() const { return complaintText(file_, name_); }

    /// Draws the tasks of a round of that level and gives how many there are.
    int begin(std::size_t level, const TaskChoice& choice);
    /// Whether a task of that text stands in one of the levels.
    bool holds(phial::StringView text) const { return learning::holds(file_, text); }
    /// The level that has begun, and all its tasks.
    const TaskLevel& level() const { return file_.levels.at(level_); }
    const std::vector<ListedTask>& tasks() const { return level().tasks; }
    /// The task of the round at that position, counted from 1.
    const ListedTask& at(int position) const { return round_.at(static_cast<std::size_t>(position - 1)); }

private:
    phial::String name_;
    TaskFile file_;
    std::size_t level_ = 0;
    std::vector<ListedTask> round_;
};

} // namespace learning
