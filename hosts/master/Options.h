#pragma once

#include "core/String.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace phial::master
{

/// What the command line asks for. Texts are as the system gave them, in UTF-8.
struct Options {
    bool help = false;
    /// Serve without reading commands.
    bool serve = false;
    /// Keep `database` for the next starts.
    bool remember = false;
    std::optional<std::string> listen;
    std::optional<std::uint16_t> port;
    std::optional<std::uint16_t> udpPort;
    /// Connections of one computer.
    std::optional<std::uint16_t> perComputer;
    std::optional<std::string> database;
    std::optional<std::string> dataFolder;
    /// Commands as they would be typed: those that set something, which run before anything else, and those
    /// that show or write something, after which the program ends unless it is to serve.
    std::vector<String> settings;
    std::vector<String> reports;

    bool servesAfterwards() const { return serve || reports.empty(); }
};

/// An argument that makes no sense.
struct OptionProblem {
    enum class Kind { Unknown, NoValue, NoPort, NoCount, NoAssignment };
    Kind kind;
    std::string argument;
};

/// Reads the arguments behind the program's name.
std::pair<Options, std::optional<OptionProblem>> readOptions(std::span<const std::string> arguments);

} // namespace phial::master
