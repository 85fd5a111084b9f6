// The pocket calculator by itself: `rechner`, or `rechner --shots DIR` to draw its states into picture files.
// OK writes the result to the standard
// output and ends it.

#include "app/Session.h"
#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "core/Locale.h"
#include "core/NumberText.h"
#include "core/Palette.h"
#include "core/SessionState.h"
#include "desk/frm_ToolCalc.h"
#include "dialogs/OfferChoice.h"
#include "qt/desktop/DesktopApplication.h"
#include "qt/desktop/ShotBook.h"

#include <initializer_list>
#include <iostream>

namespace
{

using phial::StringView;

/// The calculator with that line, after some keys.
void take(phial::qt::ShotBook& book, const phial::String& name, StringView line,
          std::initializer_list<StringView> keys)
{
    phial::frm_ToolCalc calculator;
    calculator.form().Show();
    calculator.hShow(line);
    for (const StringView key : keys) {
        calculator.strike(key);
    }
    book.take(name, calculator.form());
    calculator.form().Unload();
}

void takeEachState(phial::qt::ShotBook& book)
{
    for (const auto language : {phial::ID_Language_German, phial::ID_Language_English}) {
        phial::LNG()->CURRENT(language);
        const auto named = [&](StringView state) {
            return phial::String(state) + (language == phial::ID_Language_German ? u"-de" : u"-en");
        };
        take(book, named(u"rechner"), u"0", {});
        take(book, named(u"rechner-result"), u"3*18,015", {u"=", u"+", u"1", u"=", u"STO1", u"*", u"2"});
        take(book, named(u"rechner-error"), u"(2+3)*", {u"="});
        take(book, named(u"rechner-table"), u"12,011+2*15,999", {u"PSE"});
    }
}

} // namespace

int main(int argc, char** argv)
{
    const phial::qt::DesktopApplication application(argc, argv, u"Rechner");
    const phial::Session session(application.platform());
    const auto& app = phial::QVAPP();
    app->CONFIG()->IDENT(u"Rechner");
    app->CONFIG()->NAME(u"Taschenrechner");
    app->CONFIG()->VERSION(u"" PHIAL_VERSION);
    // Without an installation it has no periodic table, and says so.
    phial::ignoringErrors([&] { app->INIT(application.commandLine()); });

    phial::coreTheme().SetColour(phial::ThemeSlot::Accent, phial::Palette::Accent);
    if (const auto folder = application.shotsFolder()) {
        phial::qt::takeShots(*folder, takeEachState);
        return 0;
    }
    phial::OfferLeave::current()->isGiven = true; // a formula is typed here for its mass, never as an answer
    phial::frm_ToolCalc calculator;
    app->READY();
    calculator.Show();
    if (calculator.result()) {
        std::cout << phial::toUtf8(phial::plainText(*calculator.result(), phial::currentLocale().decimalSign))
                  << '\n';
    }
    return 0;
}
