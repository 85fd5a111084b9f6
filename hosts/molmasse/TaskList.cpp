#include "molmasse/TaskList.h"

#include <algorithm>
#include <array>

namespace molmasse
{

using phial::String;
using phial::StringView;

namespace
{

String cleaned(StringView text)
{
    const StringView blanks = u" \t\r";
    const auto first = text.find_first_not_of(blanks);
    if (first == StringView::npos) {
        return {};
    }
    return String(text.substr(first, text.find_last_not_of(blanks) - first + 1));
}

/// Up to three columns between "|"; missing ones are empty.
std::array<String, 3> columns(StringView line)
{
    std::array<String, 3> result;
    const auto pieces = phial::split(line, u"|");
    for (std::size_t i = 0; i < std::min(result.size(), pieces.size()); ++i) {
        result[i] = cleaned(pieces[i]);
    }
    return result;
}

bool looksLikeFormula(StringView text)
{
    return std::any_of(text.begin(), text.end(), [](char16_t unit) { return unit >= u'A' && unit <= u'Z'; });
}

Level readHeading(StringView line)
{
    const auto end = line.find(u']');
    Level level;
    level.key = cleaned(line.substr(1, end == StringView::npos ? end : end - 1));
    const auto titles = columns(end == StringView::npos ? StringView() : line.substr(end + 1));
    level.germanTitle = titles[0].empty() ? level.key : titles[0];
    level.englishTitle = titles[1].empty() ? level.germanTitle : titles[1];
    return level;
}

void dropEmptyLevels(TaskList& list)
{
    std::erase_if(list.levels, [&list](const Level& level) {
        if (level.tasks.empty()) {
            list.complaints.push_back(u"No tasks below [" + level.key + u"]");
        }
        return level.tasks.empty();
    });
}

} // namespace

TaskList readTaskList(StringView text)
{
    TaskList list;
    if (text.starts_with(u'\xFEFF')) {
        text.remove_prefix(1);
    }
    for (const StringView raw : phial::split(text, u"\n")) {
        const String line = cleaned(raw);
        if (line.empty() || line.front() == u'#') {
            continue;
        }
        if (line.front() == u'[') {
            list.levels.push_back(readHeading(line));
            continue;
        }
        auto [formula, german, english] = columns(line);
        if (list.levels.empty() || !looksLikeFormula(formula)) {
            list.complaints.push_back(u"Not a task: " + line);
            continue;
        }
        if (english.empty()) {
            english = german;
        }
        list.levels.back().tasks.push_back({std::move(formula), std::move(german), std::move(english)});
    }
    dropEmptyLevels(list);
    return list;
}

} // namespace molmasse
