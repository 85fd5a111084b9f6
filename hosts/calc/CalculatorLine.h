#pragma once

#include "calc/ExpressionSolver.h"
#include "core/Locale.h"
#include "core/String.h"
#include "core/Variant.h"

#include <iosfwd>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace phial::calcline
{

/// The calculator as a command line: `phial-calc [--de|--en] [name=value]... [term]...`.
///
/// Takes what it is given one after the other: `name=value` sets a variable for the terms that follow,
/// everything else is a term; blanks around name and value do not count. Without a term among the arguments
/// it reads the same, one a line, from its input, where blank lines do not count. Each value is written on a
/// line of its own, with the language's decimal sign; a term that fails gives none, but a message on the
/// error stream. `--` ends the options, so that a term may look like one.
class CalculatorLine
{
public:
    enum class ExitStatus : int { Success = 0, TermFailed = 1, WrongUse = 2, NoInputOrOutput = 3 };

    /// The streams must outlive the object. `random` serves RND and may be null.
    CalculatorLine(std::istream& input, std::ostream& output, std::ostream& errors,
                   std::shared_ptr<RandomSource> random);

    /// Works out everything, also behind a line or term that failed. Only where an argument is an unknown
    /// option, or gives a variable a value that is no number, nothing is worked out. Input that breaks off
    /// and output that cannot be written are told at the end. An object runs once.
    ExitStatus run(std::span<const std::string> arguments);

private:
    /// A term, or a variable's name with its value.
    struct Entry {
        String text;
        std::optional<double> value;
    };

    bool readArguments(std::span<const std::string> arguments);
    bool readOption(const std::string& option);
    std::optional<Entry> readEntry(const String& text);
    void workOutInput();
    void workOut(const Entry& entry);
    void setVariable(const Entry& assignment);
    void writeValue(const String& term);
    void checkStreams();
    void complain(StringView about, StringView german, StringView english);
    void complain(StringView german, StringView english);
    bool isGerman() const { return locale_.language == LanguageGerman; }

    std::istream& input_;
    std::ostream& output_;
    std::ostream& errors_;
    std::shared_ptr<RandomSource> random_;
    Locale locale_;
    bool helpWanted_ = false;
    std::vector<Entry> entries_;
    ExpressionSolver solver_;
    /// A name at each even index, its value behind it.
    std::vector<Variant> variables_;
    ExitStatus status_ = ExitStatus::Success;
};

} // namespace phial::calcline
