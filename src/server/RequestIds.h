#pragma once

#include "core/String.h"
#include "server/Frame.h"

#include <cstdint>
#include <deque>

namespace phial
{

/// The ids of a sender's requests.
///
/// Each text gets a new id, with one exception: a text that is sent again to the same receiver after its
/// answer did not come gets the id of that first try, so that a receiver that had done its work, and whose
/// answer alone was lost, does it only once. A text counts as sent again within `RepetitionSeconds`; what
/// comes later, or after an answer, is an equal new one. The latest `Remembered` texts without answer are
/// known.
class RequestIds
{
public:
    static constexpr double RepetitionSeconds = 30;
    static constexpr std::size_t Remembered = 16;

    /// `sender` tells this sender's ids from all others': a number drawn at random.
    explicit RequestIds(std::uint64_t sender) : sender_(sender) {}

    /// The id under which a text goes out now. `receiver` is the receiver's name; times are seconds of a
    /// clock that does not run backwards.
    FrameId take(StringView receiver, StringView text, double now);

    /// Nobody waits for the answer to that text any more, and it has not come.
    void unanswered(StringView receiver, StringView text, FrameId id, double now);

private:
    struct Unanswered {
        String receiver;
        String text;
        FrameId id;
        double since;
    };

    std::uint64_t sender_;
    std::uint64_t last_ = 0;
    std::deque<Unanswered> unanswered_; // the latest in front
};

} // namespace phial
