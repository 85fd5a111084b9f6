#include "master/Dialogue.h"

#include "master/ProgramWords.h"

#include <QCoreApplication>

#include <iostream>

namespace phial::master
{

Dialogue::Dialogue(Console& console, qt::DispatchGuard& guard)
    : console_(console), guard_(guard),
      input_([this](const std::string& line) { guard_.run([&] { take(line); }); }, [] { end(); })
{
    if (ConsoleInput::isTerminal()) {
        tell(std::cout, u"\"help\" zeigt die Befehle.", u"\"help\" lists the commands.");
    }
    prompt();
}

void Dialogue::take(const std::string& line)
{
    lines_.push_back(fromUtf8(line));
    if (!isBusy_) {
        goOn();
    }
}

void Dialogue::goOn()
{
    while (!isBusy_ && !lines_.empty()) {
        const String line = lines_.front();
        lines_.pop_front();
        isBusy_ = true;
        console_.run(line, [this](Console::Outcome outcome) {
            isBusy_ = false;
            if (outcome == Console::Outcome::Quit) {
                lines_.clear();
                QCoreApplication::quit();
                return;
            }
            prompt();
            goOn();
        });
    }
}

/// The line stands by itself; what somebody is typing goes on behind a new prompt.
void Dialogue::say(const String& line)
{
    if (!ConsoleInput::isTerminal()) {
        complain(line, line);
        return;
    }
    std::cout << "\n! " << toUtf8(line) << '\n';
    if (!isBusy_) {
        prompt();
    }
    std::cout.flush();
}

void Dialogue::prompt()
{
    if (ConsoleInput::isTerminal()) {
        std::cout << "> " << std::flush;
    }
}

/// A teacher who ends the input is done; a script whose input has ended is not.
void Dialogue::end()
{
    if (ConsoleInput::isTerminal()) {
        std::cout << std::endl;
        QCoreApplication::quit();
    }
}

} // namespace phial::master
