#include "results/Certificate.h"

#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/cls_AppURL.h"
#include "app/cls_AppUser.h"
#include "app/sys_Global.h"
#include "core/Clock.h"
#include "core/CoreDialogs.h"
#include "core/CoreFormDocument.h"
#include "core/CoreMachine.h"
#include "core/CoreParameters.h"
#include "core/CoreRoot.h"
#include "core/CoreSystem.h"
#include "core/Format.h"
#include "core/SessionState.h"

namespace phial
{

namespace
{

constexpr StringView TextName = u"TEXT";

/// What the placeholders of a certificate stand for before the caller adds to them.
CoreParameters certificateValues()
{
    const CoreMachine& machine = coreRoot().CoreSystem().CoreMachine();
    const Variant now = SessionState::current().platform().clock->moment();
    const String name = QVAPP()->CONFIG()->NAME();
    CoreParameters values;
    values.Set(u"DATUM", formatPattern(now, u"dd. mmmm yyyy"));
    values.Set(u"COMPUTER", machine.ComputerName());
    values.Set(u"USER", machine.UserName());
    values.Set(u"NAME", QVAPP()->USER()->SCREENNAME());
    values.Set(u"ZEIT", formatPattern(now, u"HH:MM"));
    values.Set(u"APP", name);
    values.Set(u"TITLE", name + u"-Diplom");
    values.Set(u"FILE", u"Urkunde.zr-frm");
    return values;
}

/// The values with those of the caller, and behind them the text, whatever the caller calls one of his own.
CoreParameters withText(CoreParameters values, const CoreParameters* more, String text)
{
    for (std::int32_t entry = 1; more != nullptr && entry <= more->Count(); ++entry) {
        if (!equalsIgnoringCase(more->Name(entry), TextName)) {
            values.Set(more->Name(entry), more->Value(entry));
        }
    }
    values.Set(TextName, std::move(text));
    return values;
}

/// Puts the values in for their placeholders, value by value, so that a value may bring in the placeholder of
/// a later one.
void fillIn(CoreFormField& field, const CoreParameters& values)
{
    if (field.Text().find(u'{') == String::npos) {
        return;
    }
    for (std::int32_t entry = 1; entry <= values.Count(); ++entry) {
        const String placeholder = u"{" + values.Name(entry) + u"}";
        field.Text(replaced(field.Text(), placeholder, values.Value(entry).toText()));
    }
}

} // namespace

bool printCertificate(StringView text, const CoreParameters* more)
{
    const CoreParameters values = withText(certificateValues(), more, replaced(text, u"\r\n", u"\r\n\r\n"));
    const auto form = SessionState::current().platform().newFormDocument();
    const String path = QVAPP()->URL()->ROOT() + u"Resources\\Forms\\" + values.Get(u"FILE").toText();
    if (!form->Load(path)) {
        coreRoot().CoreDialogs().Error(
            u"Leider konnte ich die Urkunden-Datei nicht finden, daher kann ich die "
            u"Urkunde nicht drucken!");
        return false;
    }
    CoreFormFields& fields = form->Fields(1);
    for (std::int32_t field = 1; field <= fields.Count(); ++field) {
        fillIn(fields.Item(field), values);
    }
    return form->Print(1);
}

} // namespace phial
