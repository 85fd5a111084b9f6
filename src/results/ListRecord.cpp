#include "results/ListRecord.h"

#include "app/cls_App.h"
#include "app/cls_AppUser.h"
#include "app/sys_Global.h"
#include "core/Clock.h"
#include "core/CoreMachine.h"
#include "core/CoreRoot.h"
#include "core/CoreSystem.h"
#include "core/Format.h"
#include "core/RuntimeError.h"
#include "core/SessionState.h"
#include "visual/OneLine.h"

#include <cmath>

namespace phial
{

EntryNames completed(EntryNames given)
{
    const CoreMachine& machine = coreRoot().CoreSystem().CoreMachine();
    if (given.user.empty()) {
        given.user = machine.UserName();
    }
    if (given.computer.empty()) {
        given.computer = machine.ComputerName();
    }
    if (given.screen.empty()) {
        given.screen = QVAPP()->USER()->SCREENNAME();
    }
    return given;
}

void requireFinite(double points, double pointsMax)
{
    if (!std::isfinite(points) || !std::isfinite(pointsMax)) {
        throw RuntimeError(ErrorNumber::InvalidArgument, u"points must be finite numbers");
    }
}

Moment presentMoment()
{
    return SessionState::current().platform().clock->moment();
}

const std::shared_ptr<CoreParameters>& madeIfMissing(std::shared_ptr<CoreParameters>& additional)
{
    if (!additional) {
        additional = std::make_shared<CoreParameters>();
    }
    return additional;
}

String momentText(Moment moment, StringView pattern)
{
    String text;
    ignoringErrors([&] { text = formatPattern(moment, pattern); });
    return text;
}

String dayText(Moment moment)
{
    return momentText(moment, u"dd.mm.yyyy");
}

String timeText(Moment moment)
{
    return momentText(moment, u"HH:MM:SS");
}

SearchKey::SearchKey(const Variant& key) : key_(&key), text_(key.isText() ? trimmed(key.text()) : String()) {}

bool SearchKey::fits(const Variant& value) const
{
    return value.isText() || value.isEmpty() ? fitsText(value.toText()) : value == *key_;
}

bool SearchKey::fitsText(StringView text) const
{
    return (key_->isText() || key_->isEmpty()) && equalsIgnoringCase(trimmed(text), text_);
}

String tabbed(std::span<const String> fields)
{
    String line;
    for (const String& field : fields) {
        line += oneLine(field);
        line += u'\t';
    }
    return line;
}

String headerLine(std::span<const StringView> titles)
{
    String line;
    for (const StringView title : titles) {
        line += line.empty() ? StringView() : StringView(u"\t");
        line += title;
    }
    return line += u"\r\n";
}

} // namespace phial
