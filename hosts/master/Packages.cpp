#include "master/Packages.h"

#include "core/CoreParameters.h"
#include "core/CoreValuePacker.h"
#include "core/RuntimeError.h"
#include "core/Variant.h"
#include "master/CodePoints.h"

namespace phial::master
{

namespace
{

constexpr char16_t Replacement = u'\uFFFD';

/// At the beginning of a text databases drop it, so that a name would not be found again.
constexpr char16_t ByteOrderMark = u'\uFEFF';

bool isControl(char16_t unit)
{
    return unit < u' ' || (unit >= u'\u007F' && unit <= u'\u009F') || unit == u'\u2028' ||
           unit == u'\u2029' || unit == ByteOrderMark;
}

/// The beginning of a text, which never ends within a sign.
StringView cut(StringView text, std::size_t maxLength)
{
    if (text.size() <= maxLength) {
        return text;
    }
    const bool withinSign = maxLength > 0 && isHighHalf(text[maxLength - 1]);
    return text.substr(0, withinSign ? maxLength - 1 : maxLength);
}

double possible(const Variant& value, double least)
{
    const double number = value.toReal();
    if (!(number >= least && number <= MaxPoints)) { // nor what is no number
        throw RuntimeError(ErrorNumber::Overflow);
    }
    return number;
}

/// Packed values as they may be kept: whatever client sent them, the list is written anew.
String packedAnew(const Variant& packed)
{
    const String& text = packed.text();
    if (text.size() > MaxAdditionalLength) {
        throw RuntimeError(ErrorNumber::InvalidArgument);
    }
    CoreParameters list;
    list.Unpack(text);
    return list.Pack();
}

Sender sender(const Variant& screenName, const Variant& computer, const Variant& userName)
{
    Sender who{cleaned(screenName.text(), MaxNameLength), cleaned(userName.text(), MaxNameLength),
               cleaned(computer.text(), MaxNameLength)};
    if (who.screenName.empty()) {
        who.screenName = who.userName;
    }
    return who;
}

} // namespace

String cleaned(StringView text, std::size_t maxLength)
{
    String clean(cut(trimmed(text), maxLength));
    for (std::size_t at = 0; at < clean.size(); ++at) {
        if (isControl(clean[at])) {
            clean[at] = u' ';
        } else if (isHighHalf(clean[at]) && at + 1 < clean.size() && isLowHalf(clean[at + 1])) {
            ++at;
        } else if (isHighHalf(clean[at]) || isLowHalf(clean[at])) {
            clean[at] = Replacement;
        }
    }
    return trimmed(clean);
}

Result unpackResult(StringView package, Moment at)
{
    Variant points;
    Variant pointsMax;
    Variant exercise;
    Variant additional;
    Variant screenName;
    Variant computer;
    Variant userName;
    CoreValuePacker::Unpack(package,
                            {points, pointsMax, exercise, additional, screenName, computer, userName});
    return {at,
            sender(screenName, computer, userName),
            cleaned(exercise.text(), MaxLabelLength),
            possible(points, -MaxPoints),
            possible(pointsMax, 0),
            packedAnew(additional)};
}

bool isImplausible(double points, double pointsMax)
{
    return points > pointsMax;
}

PupilEvent unpackEvent(StringView package, Moment at)
{
    Variant action;
    Variant additional;
    Variant screenName;
    Variant computer;
    Variant userName;
    CoreValuePacker::Unpack(package, {action, additional, screenName, computer, userName});
    return {at, sender(screenName, computer, userName), cleaned(action.text(), MaxLabelLength),
            packedAnew(additional)};
}

String shownAdditional(const String& packed)
{
    CoreParameters values;
    ignoringErrors([&] { values.Unpack(packed); });
    return values.TextLine();
}

} // namespace phial::master
