#include "server/TrafficLog.h"

namespace phial
{

namespace
{

// A sign beyond U+FFFF stands in two units, which are not torn apart.
bool isFirstHalf(char16_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}

String cut(StringView text)
{
    if (text.size() <= TrafficLog::MaxText) {
        return String(text);
    }
    String kept(text.substr(0, TrafficLog::MaxText));
    if (isFirstHalf(kept.back())) {
        kept.pop_back();
    }
    return kept + u"…";
}

} // namespace

void TrafficLog::add(Moment time, TrafficKind kind, StringView peer, StringView text)
{
    TrafficLine line{time, kind, String(peer), cut(text)};
    lines_.push_back(line);
    if (lines_.size() > MaxLines) {
        lines_.pop_front();
    }
    ADDED.emit(line);
}

void TrafficLog::clear()
{
    lines_.clear();
    CLEARED.emit();
}

} // namespace phial
