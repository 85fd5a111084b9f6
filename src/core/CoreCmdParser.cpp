#include "core/CoreCmdParser.h"

#include <cstddef>
#include <utility>

namespace phial
{

namespace
{

/// Takes the next parameter off the command line, quotes carried out; empty at its end.
String takeParameter(StringView& line)
{
    String parameter;
    bool quoted = false;
    std::size_t at = line.find_first_not_of(u" \t\r\n");
    for (; at < line.size(); ++at) {
        const char16_t unit = line[at];
        if (unit == u'"') {
            const bool doubled = quoted && at + 1 < line.size() && line[at + 1] == u'"';
            if (doubled) {
                parameter += unit;
                ++at;
            } else {
                quoted = !quoted;
            }
        } else if (!quoted && StringView(u" \t\r\n").find(unit) != StringView::npos) {
            break;
        } else {
            parameter += unit;
        }
    }
    line = at < line.size() ? line.substr(at) : StringView();
    return parameter;
}

/// The parameter without the sign that makes it an option, or as it stands.
StringView withoutOptionSign(StringView parameter)
{
    if (parameter.starts_with(u'/') && parameter.find(u'/', 1) == StringView::npos) {
        return parameter.substr(1);
    }
    if (parameter.starts_with(u'-')) {
        const StringView name = parameter.substr(parameter.starts_with(u"--") ? 2 : 1);
        const bool digitFollows = !name.empty() && name.front() >= u'0' && name.front() <= u'9';
        return digitFollows ? parameter : name;
    }
    return parameter;
}

struct NamedValue {
    String name;
    String value;
};

NamedValue interpreted(StringView parameter)
{
    const StringView option = withoutOptionSign(parameter);
    const std::size_t equals = option.find(u'=');
    const StringView name = option.substr(0, equals);
    // What cannot stand in a name shows that a path was meant.
    if (name.empty() || name.find_first_of(u"/\\: ") != StringView::npos) {
        return {String(parameter), {}};
    }
    return {String(name), String(equals == StringView::npos ? StringView() : option.substr(equals + 1))};
}

} // namespace

CoreTokenList CoreCmdParser::Parse(StringView pCommandLine)
{
    CoreTokenList tokens;
    for (const String& parameter : Words(pCommandLine)) {
        NamedValue entry = interpreted(parameter);
        tokens.Add(entry.name, Variant(std::move(entry.value)));
    }
    return tokens;
}

std::vector<String> CoreCmdParser::Words(StringView pCommandLine)
{
    std::vector<String> words;
    while (!pCommandLine.empty()) {
        String parameter = takeParameter(pCommandLine);
        if (!parameter.empty()) {
            words.push_back(std::move(parameter));
        }
    }
    return words;
}

CoreStringList CoreCmdParser::Split(StringView pText, StringView pSeparator)
{
    CoreStringList pieces;
    for (const StringView piece : split(pText, pSeparator)) {
        pieces.Add(String(piece));
    }
    return pieces;
}

} // namespace phial
