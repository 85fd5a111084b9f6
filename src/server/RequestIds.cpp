#include "server/RequestIds.h"

#include <algorithm>

namespace phial
{

FrameId RequestIds::take(StringView receiver, StringView text, double now)
{
    std::erase_if(unanswered_,
                  [now](const Unanswered& entry) { return now - entry.since > RepetitionSeconds; });
    const auto found = std::ranges::find_if(unanswered_, [&](const Unanswered& entry) {
        return entry.text == text && entry.receiver == receiver;
    });
    if (found == unanswered_.end()) {
        return {sender_, ++last_};
    }
    // Two equal texts can wait at a time; each id serves one of them.
    const FrameId id = found->id;
    unanswered_.erase(found);
    return id;
}

void RequestIds::unanswered(StringView receiver, StringView text, FrameId id, double now)
{
    unanswered_.push_front({String(receiver), String(text), id, now});
    if (unanswered_.size() > Remembered) {
        unanswered_.pop_back();
    }
}

} // namespace phial
