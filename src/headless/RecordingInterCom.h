#pragma once

#include "core/InterCom.h"

#include <vector>

namespace phial::headless
{

/// A message to another program.
struct SentMessage {
    String target;
    std::int32_t number = 0;
    String text;

    friend bool operator==(const SentMessage&, const SentMessage&) = default;
};

/// Sends nothing and remembers what was to be sent.
class RecordingInterCom : public InterCom
{
public:
    /// Whether the targets run, from now on; at first they do.
    void answer(bool answer) { answer_ = answer; }
    const std::vector<SentMessage>& sent() const { return sent_; }

    bool Send(StringView pTarget, std::int32_t pNumber, StringView pText) override
    {
        sent_.push_back({String(pTarget), pNumber, String(pText)});
        return answer_;
    }

private:
    bool answer_ = true;
    std::vector<SentMessage> sent_;
};

} // namespace phial::headless
