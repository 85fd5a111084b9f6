#include "master/TypedText.h"

#include "core/Environment.h"
#include "core/NativePath.h"
#include "core/NumberText.h"
#include "core/SessionState.h"

#include <algorithm>
#include <array>
#include <limits>

namespace phial::master
{

namespace
{

constexpr std::array<StringView, 2> AllWords{u"alle", u"all"};
constexpr char16_t Quote = u'"';

String inBlanks(StringView line)
{
    return trimmed(replaced(line, u"\t", u" "));
}

/// The user's own folder; empty where the system names none.
std::filesystem::path homeFolder()
{
    const auto& environment = *SessionState::current().platform().environment;
    for (const StringView variable : {u"HOME", u"USERPROFILE"}) {
        if (const String folder = environment.variable(variable); !folder.empty()) {
            return nativePath(folder);
        }
    }
    return {};
}

} // namespace

std::pair<String, String> firstWord(StringView line)
{
    const String text = inBlanks(line);
    const std::size_t end = std::min(text.find(u' '), text.size());
    return {text.substr(0, end), trimmed(StringView(text).substr(end))};
}

std::pair<String, String> lastWord(StringView line)
{
    const String text = inBlanks(line);
    const std::size_t blank = text.rfind(u' ');
    const std::size_t begin = blank == String::npos ? 0 : blank + 1;
    return {trimmed(StringView(text).substr(0, begin)), text.substr(begin)};
}

std::vector<String> wordsOf(StringView line)
{
    std::vector<String> words;
    String word;
    bool isWord = false;
    bool isQuoted = false;
    for (const char16_t unit : inBlanks(line) + u' ') {
        if (unit == Quote) {
            isQuoted = !isQuoted;
            isWord = true;
        } else if (unit != u' ' || isQuoted) {
            word += unit;
            isWord = true;
        } else if (isWord) {
            words.push_back(std::exchange(word, {}));
            isWord = false;
        }
    }
    if (isWord) {
        words.push_back(trimmed(word));
    }
    return words;
}

std::optional<std::int32_t> positiveNumber(StringView text)
{
    const NumberAtStart number = numberAtStart(text);
    const bool isWhole = number.length == text.size() && number.length > 0 && number.value >= 1 &&
                         number.value <= std::numeric_limits<std::int32_t>::max() &&
                         number.value == static_cast<std::int32_t>(number.value);
    return isWhole ? std::optional(static_cast<std::int32_t>(number.value)) : std::nullopt;
}

std::optional<std::size_t> wantedCount(StringView text, std::size_t unlessTold)
{
    if (text.empty()) {
        return unlessTold;
    }
    if (std::ranges::any_of(AllWords, [&](StringView word) { return equalsIgnoringCase(text, word); })) {
        return MaxShown;
    }
    const auto number = positiveNumber(text);
    return number ? std::optional(std::min(static_cast<std::size_t>(*number), MaxShown)) : std::nullopt;
}

std::filesystem::path typedPath(StringView text)
{
    String typed = trimmed(text);
    if (typed.size() >= 2 && typed.front() == Quote && typed.back() == Quote) {
        typed = typed.substr(1, typed.size() - 2);
    }
    const bool isOfUser = typed == u"~" || typed.starts_with(u"~/") || typed.starts_with(u"~\\");
    if (const auto home = isOfUser ? homeFolder() : std::filesystem::path(); !home.empty()) {
        return typed.size() <= 2 ? home : home / toUtf8(StringView(typed).substr(2));
    }
    return std::filesystem::absolute(std::filesystem::path(toUtf8(typed)));
}

} // namespace phial::master
