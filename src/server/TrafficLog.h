#pragma once

#include "core/Event.h"
#include "core/Moment.h"
#include "core/String.h"

#include <cstddef>
#include <deque>

namespace phial
{

/// Which way a text went; a note tells about the connection itself.
enum class TrafficKind { Sent, Received, Note };

/// One line of the traffic: a text, cut where it is long.
struct TrafficLine {
    Moment time;
    TrafficKind kind = TrafficKind::Note;
    /// The other end, as address and port.
    String peer;
    String text;
};

/// What has lately gone over a client's connections, for people who look for a fault. Nothing of it is kept
/// beyond the run.
class TrafficLog
{
public:
    /// Lines kept; the oldest go first.
    static constexpr std::size_t MaxLines = 500;
    /// Units of a text that are kept; `…` tells that there was more.
    static constexpr std::size_t MaxText = 300;

    void add(Moment time, TrafficKind kind, StringView peer, StringView text);
    void clear();

    /// From the oldest to the latest.
    const std::deque<TrafficLine>& lines() const { return lines_; }

    /// A line has been added; the oldest one has gone if there were MaxLines.
    Event<const TrafficLine&> ADDED;
    Event<> CLEARED;

private:
    std::deque<TrafficLine> lines_;
};

} // namespace phial
