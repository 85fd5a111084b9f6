#include "common/TaskFile.h"

#include "common/Drawing.h"
#include "common/FrameTexts.h"
#include "core/CoreNumbers.h"
#include "core/CoreStringOps.h"
#include "visual/OneLine.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace learning
{

using phial::String;
using phial::StringView;

namespace
{

constexpr std::size_t LongestQuote = 40; // units of a line in a complaint

String withoutBlanks(StringView text)
{
    const StringView blanks = u" \t\r";
    const auto first = text.find_first_not_of(blanks);
    if (first == StringView::npos) {
        return {};
    }
    return String(text.substr(first, text.find_last_not_of(blanks) - first + 1));
}

/// Up to three columns between "|"; missing ones are empty.
std::array<String, 3> columnsOf(StringView line)
{
    std::array<String, 3> result;
    const auto pieces = phial::split(line, u"|");
    for (std::size_t i = 0; i < std::min(result.size(), pieces.size()); ++i) {
        result[i] = withoutBlanks(pieces[i]);
    }
    return result;
}

/// Takes a task file line by line.
class TaskFileReader
{
public:
    explicit TaskFileReader(const TaskCheck& check) : check_(check) {}

    void take(StringView raw)
    {
        ++line_;
        const String line = withoutBlanks(phial::oneLine(String(raw)));
        if (line.empty() || line.front() == u'#') {
            return;
        }
        if (line.front() == u'[') {
            beginLevel(line);
        } else {
            takeTask(line);
        }
    }

    TaskFile finished()
    {
        dropLevels();
        std::ranges::stable_sort(file_.complaints, {}, &TaskComplaint::line);
        return std::move(file_);
    }

private:
    void beginLevel(const String& line)
    {
        const auto end = line.find(u']');
        const auto [key, second, third] =
            columnsOf(StringView(line).substr(1, end == String::npos ? end : end - 1));
        const auto [german, english, count] =
            end == String::npos ? std::array{String(), second, third} // the bracket was forgotten
                                : columnsOf(StringView(line).substr(end + 1));
        TaskLevel level;
        level.key = key;
        level.title = titleOf(level.key, german, english);
        if (!count.empty()) {
            level.tasksInRound = countOf(count);
        }
        file_.levels.push_back(std::move(level));
        headings_.push_back(line_);
    }

    LevelTitle titleOf(const String& key, const String& german, const String& english) const
    {
        const String& first = german.empty() ? key : german;
        if (first.empty() && english.empty()) {
            const String place = number(static_cast<int>(file_.levels.size()) + 1);
            return {u"Stufe " + place, u"Level " + place};
        }
        return {first.empty() ? english : first, english.empty() ? first : english};
    }

    std::size_t countOf(const String& text)
    {
        double count = 0;
        if (!phial::CoreNumbers::ToDouble(text, count) || count < 1 || count > TaskLevel::LongestRound ||
            count != std::floor(count)) {
            complain(TaskFault::NoCount, line_, text);
            return TaskLevel::UsualRound;
        }
        return static_cast<std::size_t>(count);
    }

    void takeTask(const String& line)
    {
        auto [text, german, english] = columnsOf(line);
        const auto fault = file_.levels.empty() ? TaskFault::NoTask : check_(text);
        if (fault) {
            complain(*fault, line_, text.empty() ? line : text);
            return;
        }
        if (english.empty()) {
            english = german;
        }
        file_.levels.back().tasks.push_back({std::move(text), std::move(german), std::move(english)});
    }

    void dropLevels()
    {
        std::vector<TaskLevel> kept;
        for (std::size_t at = 0; at < file_.levels.size(); ++at) {
            TaskLevel& level = file_.levels[at];
            const String& name = level.key.empty() ? level.title.german : level.key;
            if (level.tasks.empty()) {
                complain(TaskFault::NoTasks, headings_[at], name);
            } else if (kept.size() == MostLevelsShown) {
                complain(TaskFault::TooManyLevels, headings_[at], name);
            } else {
                kept.push_back(std::move(level));
            }
        }
        file_.levels = std::move(kept);
    }

    void complain(TaskFault fault, int line, const String& text)
    {
        file_.complaints.push_back({fault, line, text});
    }

    const TaskCheck& check_;
    TaskFile file_;
    std::vector<int> headings_; ///< the levels' lines
    int line_ = 0;
};

/// Behind the file's name, the line and what stands there.
StringView reasonOf(TaskFault fault)
{
    switch (fault) {
    case TaskFault::NoTask:
        break;
    case TaskFault::UnknownElement:
        return u"enthält ein unbekanntes Element und wurde ausgelassen.|"
               u"names an unknown element and was left out.";
    case TaskFault::Ambiguous:
        return u"lässt ein vergessenes H-Atom nicht erkennen und wurde ausgelassen.|"
               u"hides a forgotten H atom and was left out.";
    case TaskFault::TooLong:
        return u"ist zu lang für die Seite und wurde ausgelassen.|"
               u"is too long for the page and was left out.";
    case TaskFault::NoTasks:
        return u"hat keine Aufgabe und wurde ausgelassen.|has no task and was left out.";
    case TaskFault::TooManyLevels:
        return u"hat auf der Startseite keinen Platz mehr und wurde ausgelassen.|"
               u"has no room left on the start page and was left out.";
    case TaskFault::NoCount:
        return u"ist keine Zahl von Aufgaben; es bleibt bei zehn.|is no number of tasks; it stays at ten.";
    }
    return u"ist keine Aufgabe und wurde ausgelassen.|is no task and was left out.";
}

} // namespace

TaskFile readTaskFile(StringView text, const TaskCheck& check)
{
    if (text.starts_with(u'\xFEFF')) {
        text.remove_prefix(1);
    }
    TaskFileReader reader(check);
    for (const StringView line : phial::split(text, u"\n")) {
        reader.take(line);
    }
    return reader.finished();
}

String complaintText(const TaskFile& file, StringView name)
{
    if (file.complaints.empty()) {
        return {};
    }
    const TaskComplaint& first = file.complaints.front();
    const String quote =
        first.text.size() > LongestQuote
            ? phial::CoreStringOps::Shorten(first.text, static_cast<std::int32_t>(LongestQuote) - 1, {}) +
                  u"…"
            : first.text;
    const String text =
        translate(u"Für die Lehrkraft: {1}, Zeile {2}: „{3}“ ", u"For the teacher: {1}, line {2}: “{3}” ",
                  {String(name), number(first.line), quote}) +
        translate(reasonOf(first.fault));
    const int more = static_cast<int>(file.complaints.size()) - 1;
    return text + (more == 0   ? String()
                   : more == 1 ? translate(u" Noch eine Zeile ist fehlerhaft.", u" One more line is faulty.")
                               : translate(u" Noch {1} Zeilen sind fehlerhaft.",
                                           u" {1} more lines are faulty.", {number(more)}));
}

std::vector<LevelTitle> titlesOf(const TaskFile& file)
{
    std::vector<LevelTitle> titles;
    for (const TaskLevel& level : file.levels) {
        titles.push_back(level.title);
    }
    return titles;
}

bool holds(const TaskFile& file, StringView text)
{
    return std::ranges::any_of(file.levels, [&](const TaskLevel& level) {
        return std::ranges::find(level.tasks, text, &ListedTask::text) != level.tasks.end();
    });
}

std::vector<ListedTask> drawRound(const TaskLevel& level, const TaskChoice& choice)
{
    const auto isPreferred = [&choice](const ListedTask& task) { return choice.preferred(task.text); };
    std::vector<ListedTask> pool = level.tasks;
    if (choice.preferredOnly && std::ranges::any_of(pool, isPreferred)) {
        std::erase_if(pool, std::not_fn(isPreferred));
    }
    return drawTasks(std::move(pool), level.tasksInRound, randomBelow, isPreferred);
}

} // namespace learning
