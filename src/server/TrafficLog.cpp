#include "server/TrafficLog.h"

#include "core/CoreStringOps.h"

namespace phial
{

namespace
{

String cut(StringView text)
{
    constexpr auto Length = static_cast<std::int32_t>(TrafficLog::MaxText);
    return text.size() <= TrafficLog::MaxText ? String(text)
                                              : CoreStringOps::Shorten(text, Length, {}) + u"…";
}

} // namespace

void TrafficLog::add(Moment time, TrafficKind kind, StringView peer, StringView text)
{
    TrafficLine line{time, kind, String(peer), cut(text)};
    lines_.push_back(line);
    if (lines_.size() > MaxLines) {
        lines_.pop_front();
    }
    ADDED.raise(line);
}

void TrafficLog::clear()
{
    lines_.clear();
    CLEARED.raise();
}

} // namespace phial
