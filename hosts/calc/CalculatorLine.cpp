#include "calc/CalculatorLine.h"

#include "core/CoreNumbers.h"
#include "core/CoreStringOps.h"
#include "core/NumberText.h"
#include "core/RandomSource.h"
#include "core/RuntimeError.h"

#include <algorithm>
#include <istream>
#include <ostream>
#include <string_view>
#include <utility>

namespace phial::calcline
{

namespace
{

constexpr std::string_view HelpGerman =
    "phial-calc [--de|--en] [Name=Wert]... [Term]...\n"
    "\n"
    "Rechnet jeden Term aus und schreibt je Term eine Zeile. Ohne Term liest das Programm\n"
    "Terme und Zuweisungen von der Standardeingabe, je Zeile einen.\n"
    "\n"
    "  Name=Wert   setzt eine Variable für die folgenden Terme\n"
    "  --de, --en  Sprache und Dezimalzeichen der Ausgabe (ohne Angabe deutsch)\n"
    "  --          beendet die Optionen\n"
    "  --help      zeigt diesen Text\n"
    "\n"
    "Beispiel: phial-calc r=2,5 '3,14159*r^2' 'sqr(2)'\n";

constexpr std::string_view HelpEnglish =
    "phial-calc [--de|--en] [name=value]... [term]...\n"
    "\n"
    "Works out each term and writes one line a term. Without a term the program reads terms\n"
    "and assignments from standard input, one a line.\n"
    "\n"
    "  name=value  sets a variable for the terms that follow\n"
    "  --de, --en  language and decimal sign of the output (German unless told otherwise)\n"
    "  --          ends the options\n"
    "  --help      shows this text\n"
    "\n"
    "Example: phial-calc --en r=2.5 '3.14159*r^2' 'sqr(2)'\n";

bool isLetter(char16_t unit)
{
    return (unit >= u'A' && unit <= u'Z') || (unit >= u'a' && unit <= u'z');
}

/// Whether the solver can find a variable of this name, and it cannot be taken for a number.
bool isVariableName(StringView text)
{
    return !text.empty() && isLetter(text.front()) && std::ranges::all_of(text, [](char16_t unit) {
        return isLetter(unit) || (unit >= u'0' && unit <= u'9') || unit == u'.';
    });
}

/// The text without what stands around it on a line: blanks, tabs and line ends, and the byte order mark of
/// its file.
StringView bare(StringView text)
{
    constexpr StringView Around = u" \t\r\n\uFEFF";
    const std::size_t begin = std::min(text.find_first_not_of(Around), text.size());
    return text.substr(begin, text.find_last_not_of(Around) + 1 - begin);
}

/// A term as a message names it: its beginning, on one line.
String named(StringView term)
{
    constexpr std::int32_t Longest = 80;
    String name = CoreStringOps::Shorten(term, Longest, {});
    std::ranges::replace_if(
        name, [](char16_t unit) { return unit < u' '; }, u' ');
    return name.size() < term.size() ? name + u'\u2026' : name;
}

} // namespace

CalculatorLine::CalculatorLine(std::istream& input, std::ostream& output, std::ostream& errors,
                               std::shared_ptr<RandomSource> random)
    : input_(input), output_(output), errors_(errors), random_(std::move(random))
{
}

CalculatorLine::ExitStatus CalculatorLine::run(std::span<const std::string> arguments)
{
    if (!readArguments(arguments)) {
        return ExitStatus::WrongUse;
    }
    if (helpWanted_) {
        output_ << (isGerman() ? HelpGerman : HelpEnglish);
        return ExitStatus::Success;
    }
    solver_ = ExpressionSolver(random_, locale_);
    for (const Entry& entry : entries_) {
        workOut(entry);
    }
    if (std::ranges::all_of(entries_, [](const Entry& entry) { return entry.value.has_value(); })) {
        workOutInput();
    }
    checkStreams();
    return status_;
}

bool CalculatorLine::readArguments(std::span<const std::string> arguments)
{
    bool optionsEnded = false;
    for (const std::string& argument : arguments) {
        if (!optionsEnded && argument == "--") {
            optionsEnded = true;
        } else if (!optionsEnded && argument.starts_with("--")) {
            if (!readOption(argument)) {
                return false;
            }
        } else if (auto entry = readEntry(fromUtf8(argument))) {
            entries_.push_back(std::move(*entry));
        } else {
            return false;
        }
    }
    return true;
}

bool CalculatorLine::readOption(const std::string& option)
{
    if (option == "--help") {
        helpWanted_ = true;
    } else if (option == "--de") {
        locale_.language = LanguageGerman;
        locale_.decimalSign = u',';
    } else if (option == "--en") {
        locale_.language = LanguageEnglish;
        locale_.decimalSign = u'.';
    } else {
        complain(fromUtf8(option), u"unbekannte Option", u"unknown option");
        return false;
    }
    return true;
}

std::optional<CalculatorLine::Entry> CalculatorLine::readEntry(const String& text)
{
    const std::size_t equals = text.find(u'=');
    const StringView name = bare(StringView(text).substr(0, equals));
    if (equals == String::npos || !isVariableName(name)) {
        return Entry{text, std::nullopt};
    }
    double value = 0;
    if (!CoreNumbers::ToDouble(bare(StringView(text).substr(equals + 1)), value)) {
        complain(text, u"der Wert ist keine Zahl", u"the value is not a number");
        return std::nullopt;
    }
    return Entry{String(name), value};
}

void CalculatorLine::workOutInput()
{
    for (std::string line; std::getline(input_, line);) {
        const String text(bare(fromUtf8(line)));
        if (text.empty()) {
            continue;
        }
        if (const auto entry = readEntry(text)) {
            workOut(*entry);
            output_.flush(); // so that a dialogue over pipes goes on
        } else {
            status_ = ExitStatus::TermFailed;
        }
    }
}

void CalculatorLine::workOut(const Entry& entry)
{
    if (entry.value) {
        setVariable(entry);
    } else {
        writeValue(entry.text);
    }
}

void CalculatorLine::setVariable(const Entry& assignment)
{
    for (std::size_t name = 0; name < variables_.size(); name += 2) {
        if (equalsIgnoringCase(variables_[name].text(), assignment.text)) {
            variables_[name + 1] = *assignment.value;
            return;
        }
    }
    variables_.emplace_back(assignment.text);
    variables_.emplace_back(*assignment.value);
}

void CalculatorLine::writeValue(const String& term)
{
    String error;
    double value = 0;
    try {
        solver_.SOLVE(term, variables_, value);
        error = solver_.SolveError();
    } catch (const RuntimeError& raised) {
        error = raised.Description();
    }
    if (error.empty()) {
        output_ << toUtf8(plainText(value, locale_.decimalSign)) << '\n';
    } else {
        complain(term, error, error);
        status_ = ExitStatus::TermFailed;
    }
}

void CalculatorLine::checkStreams()
{
    if (input_.bad()) {
        complain(u"die Eingabe l\u00E4sst sich nicht lesen", u"the input cannot be read");
        status_ = ExitStatus::NoInputOrOutput;
    }
    if (!output_.flush()) {
        complain(u"die Ausgabe l\u00E4sst sich nicht schreiben", u"the output cannot be written");
        status_ = ExitStatus::NoInputOrOutput;
    }
}

void CalculatorLine::complain(StringView about, StringView german, StringView english)
{
    const String place = named(about) + u": ";
    complain(place + String(german), place + String(english));
}

void CalculatorLine::complain(StringView german, StringView english)
{
    errors_ << "phial-calc: " << toUtf8(isGerman() ? german : english) << '\n';
}

} // namespace phial::calcline
