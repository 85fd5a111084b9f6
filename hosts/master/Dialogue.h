#pragma once

#include "core/String.h"
#include "master/Console.h"
#include "master/ConsoleInput.h"
#include "qt/base/DispatchGuard.h"

#include <deque>
#include <string>

namespace phial::master
{

/// Reads commands from the standard input until there is an end to them, and carries them out one behind the
/// other, however long the store takes.
class Dialogue
{
public:
    Dialogue(Console& console, qt::DispatchGuard& guard);

    /// Says something that nobody has asked for.
    void say(const String& line);

private:
    void take(const std::string& line);
    void goOn();
    static void prompt();
    static void end();

    Console& console_;
    qt::DispatchGuard& guard_;
    std::deque<String> lines_;
    bool isBusy_ = false;
    ConsoleInput input_;
};

} // namespace phial::master
