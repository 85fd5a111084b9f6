#pragma once

#include <functional>
#include <memory>
#include <string>

namespace phial::master
{

/// Reads the standard input line by line while the event loop runs. Both calls come from the event loop,
/// `onEnd` once, when there is nothing more to be read.
class ConsoleInput
{
public:
    ConsoleInput(std::function<void(const std::string& line)> onLine, std::function<void()> onEnd);
    /// Calls nothing any more. A line that is being waited for keeps nothing alive but its reader.
    ~ConsoleInput();
    ConsoleInput(const ConsoleInput&) = delete;
    ConsoleInput& operator=(const ConsoleInput&) = delete;

    /// Whether somebody types there.
    static bool isTerminal();

private:
    struct Receiver;
    std::shared_ptr<Receiver> receiver_;
};

} // namespace phial::master
