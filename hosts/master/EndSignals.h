#pragma once

#include <functional>
#include <memory>

namespace phial::master
{

/// Lets the system's wish that the program end (a signal, the end of the desktop's session) come in as an
/// event, so that the program ends in order. A second wish ends it at once. One object at a time.
class EndSignals
{
public:
    explicit EndSignals(std::function<void()> onEnd);
    ~EndSignals();
    EndSignals(const EndSignals&) = delete;
    EndSignals& operator=(const EndSignals&) = delete;

private:
    struct Receiver;
    std::unique_ptr<Receiver> receiver_;
};

} // namespace phial::master
