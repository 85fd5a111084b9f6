#include "master/Options.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>

namespace phial::master
{

namespace
{

using Problem = OptionProblem::Kind;
using Outcome = std::optional<Problem>;

/// A number of 16 bits from `least` on.
Outcome readNumber(const std::string& value, std::uint16_t least, Problem otherwise,
                   std::optional<std::uint16_t>& rNumber)
{
    std::uint16_t number = 0;
    const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), number);
    if (error != std::errc() || end != value.data() + value.size() || number < least) {
        return otherwise;
    }
    rNumber = number;
    return std::nullopt;
}

Outcome readPort(const std::string& value, std::optional<std::uint16_t>& rPort)
{
    return readNumber(value, 0, Problem::NoPort, rPort);
}

Outcome set(Options& options, const std::string& value)
{
    const std::size_t equals = value.find('=');
    if (equals == std::string::npos || equals == 0) {
        return Problem::NoAssignment;
    }
    options.settings.push_back(fromUtf8("set " + value.substr(0, equals) + ' ' + value.substr(equals + 1)));
    return std::nullopt;
}

struct Switch {
    std::string_view name;
    void (*turnOn)(Options&);
};

constexpr std::array Switches{
    Switch{"--help", [](Options& options) { options.help = true; }},
    Switch{"--serve", [](Options& options) { options.serve = true; }},
    Switch{"--remember", [](Options& options) { options.remember = true; }},
    Switch{"--pupils", [](Options& options) { options.reports.emplace_back(u"pupils"); }},
    Switch{"--results", [](Options& options) { options.reports.emplace_back(u"results"); }},
    Switch{"--missing", [](Options& options) { options.reports.emplace_back(u"results --missing"); }},
    Switch{"--settings", [](Options& options) { options.reports.emplace_back(u"set"); }},
    Switch{"--changes", [](Options& options) { options.reports.emplace_back(u"changes"); }},
    Switch{"--events", [](Options& options) { options.reports.emplace_back(u"events"); }},
};

struct Valued {
    std::string_view name;
    Outcome (*take)(Options&, const std::string& value);
};

/// The same way for all options whose value is kept as it stands.
template <std::optional<std::string> Options::*Member>
Outcome keep(Options& options, const std::string& value)
{
    options.*Member = value;
    return std::nullopt;
}

/// The value becomes the argument of a command.
Outcome report(Options& options, std::string_view command, const std::string& value)
{
    options.reports.push_back(fromUtf8(std::string(command) + ' ' + value));
    return std::nullopt;
}

constexpr std::array ValuedOptions{
    Valued{"--listen", keep<&Options::listen>},
    Valued{"--database", keep<&Options::database>},
    Valued{"--data", keep<&Options::dataFolder>},
    Valued{"--port",
           [](Options& options, const std::string& value) { return readPort(value, options.port); }},
    Valued{"--udp",
           [](Options& options, const std::string& value) { return readPort(value, options.udpPort); }},
    Valued{"--per-computer",
           [](Options& options, const std::string& value) {
               return readNumber(value, 1, Problem::NoCount, options.perComputer);
           }},
    Valued{"--set", set},
    Valued{"--app",
           [](Options& options, const std::string& value) -> Outcome {
               options.settings.push_back(fromUtf8("app " + value));
               return std::nullopt;
           }},
    Valued{"--highscore",
           [](Options& options, const std::string& value) { return report(options, "highscore", value); }},
    Valued{"--export",
           [](Options& options, const std::string& value) { return report(options, "export", value); }},
};

} // namespace

std::pair<Options, std::optional<OptionProblem>> readOptions(std::span<const std::string> arguments)
{
    Options options;
    for (std::size_t at = 0; at < arguments.size(); ++at) {
        const std::string& argument = arguments[at];
        if (const auto* entry = std::ranges::find(Switches, argument, &Switch::name);
            entry != Switches.end()) {
            entry->turnOn(options);
            continue;
        }
        const auto* entry = std::ranges::find(ValuedOptions, argument, &Valued::name);
        if (entry == ValuedOptions.end()) {
            return {options, OptionProblem{Problem::Unknown, argument}};
        }
        if (at + 1 == arguments.size()) {
            return {options, OptionProblem{Problem::NoValue, argument}};
        }
        const std::string& value = arguments[++at];
        if (const Outcome problem = entry->take(options, value)) {
            return {options, OptionProblem{*problem, std::string(argument).append(" ").append(value)}};
        }
    }
    return {options, std::nullopt};
}

} // namespace phial::master
