#include "master/ProgramWords.h"

#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "master/StoreWords.h"
#include "qt/base/NetAddress.h"
#include "qt/base/QtText.h"

#include <iostream>

namespace phial::master
{

namespace
{

constexpr StringView HelpGerman =
    u"master [Optionen]\n"
    u"\n"
    u"Der Master für den Unterricht: Lern-Apps melden sich bei ihm an, schicken ihm Ergebnisse und\n"
    u"fragen ihn nach Bestenlisten. Er nimmt Befehle an; \"help\" zeigt sie.\n"
    u"\n"
    u"  --listen ADRESSE   nimmt Schüler von dort an: 0.0.0.0 für alle Netze; ohne Angabe nur diesen "
    u"Rechner\n"
    u"  --port NUMMER      Port für Anfragen (10049)\n"
    u"  --per-computer N   Verbindungen, die ein Rechner haben darf (64)\n"
    u"  --udp NUMMER       Port, auf dem der Master gefunden wird (10050); 0 für keinen\n"
    u"  --database ORT     Datei der Datenbank, oder postgresql://[Benutzer@]Rechner[:Port]/Datenbank\n"
    u"  --remember         merkt sich diese Datenbank für die nächsten Starts\n"
    u"  --data ORDNER      Ordner der Datenbank, wenn keine genannt ist\n"
    u"  --app IDENT        wählt die Lern-App, die laufen darf; none: keine\n"
    u"  --set NAME=WERT    setzt einen Wert, zum Beispiel WELCOMEMESSAGE=\"Guten Morgen!\"\n"
    u"  --pupils, --results, --missing, --events, --changes, --settings, --highscore MODUL\n"
    u"                     zeigt, was gespeichert ist, und endet; mit --app und --set davor auch, um einen\n"
    u"                     Master zu ändern, der schon läuft\n"
    u"  --export DATEI     schreibt alle Ergebnisse in eine CSV-Datei und endet\n"
    u"  --serve            nimmt keine Befehle an und läuft, bis er beendet wird\n"
    u"  --help             zeigt diesen Text\n";

constexpr StringView HelpEnglish =
    u"master [options]\n"
    u"\n"
    u"The classroom's master: learning apps log on to it, send it results and ask it for highscores.\n"
    u"It takes commands; \"help\" lists them.\n"
    u"\n"
    u"  --listen ADDRESS   takes pupils in from there: 0.0.0.0 for all networks; else this computer alone\n"
    u"  --port NUMBER      port for requests (10049)\n"
    u"  --per-computer N   connections that one computer may have (64)\n"
    u"  --udp NUMBER       port on which the master is found (10050); 0 for none\n"
    u"  --database PLACE   file of the database, or postgresql://[user@]computer[:port]/database\n"
    u"  --remember         keeps this database for the next starts\n"
    u"  --data FOLDER      folder of the database when none is named\n"
    u"  --app IDENT        chooses the learning app that may run; none: no app\n"
    u"  --set NAME=VALUE   sets a value, such as WELCOMEMESSAGE=\"Good morning!\"\n"
    u"  --pupils, --results, --missing, --events, --changes, --settings, --highscore MODULE\n"
    u"                     shows what is stored, and ends; with --app and --set in front also to change a\n"
    u"                     master that is running\n"
    u"  --export FILE      writes all results into a CSV file, and ends\n"
    u"  --serve            takes no commands and runs until it is ended\n"
    u"  --help             shows this text\n";

} // namespace

void tell(std::ostream& output, StringView german, StringView english, const Variant::Array& values)
{
    output << toUtf8(LNG()->TRANSLATE(german, english, values)) << std::endl;
}

void tellHelp(std::ostream& output)
{
    output << toUtf8(LNG()->TRANSLATE(HelpGerman, HelpEnglish));
}

void complain(StringView german, StringView english, const Variant::Array& values)
{
    tell(std::cerr, u"master: " + String(german), u"master: " + String(english), values);
}

void complain(const OptionProblem& problem)
{
    const String argument = fromUtf8(problem.argument);
    switch (problem.kind) {
    case OptionProblem::Kind::Unknown:
        complain(u"unbekannte Option {1}; --help zeigt alle", u"unknown option {1}; --help lists all",
                 {argument});
        break;
    case OptionProblem::Kind::NoValue:
        complain(u"hinter {1} fehlt die Angabe", u"the value behind {1} is missing", {argument});
        break;
    case OptionProblem::Kind::NoPort:
        complain(u"das ist kein Port: {1}", u"this is no port: {1}", {argument});
        break;
    case OptionProblem::Kind::NoCount:
        complain(u"das ist keine Anzahl: {1}", u"this is no number: {1}", {argument});
        break;
    case OptionProblem::Kind::NoAssignment:
        complain(u"erwartet wird NAME=WERT: {1}", u"NAME=VALUE is expected: {1}", {argument});
        break;
    }
}

void complain(const StoreError& error)
{
    const String words = storeWords({error.reason(), error.what()});
    complain(words, words);
}

void complain(const MasterServer& server, const MasterServer::Address& address)
{
    const Variant::Array where{qt::addressText(address.address), std::int32_t{address.port}};
    if (server.problem() == QAbstractSocket::AddressInUseError) {
        complain(u"Port {2} ist schon belegt; läuft schon ein Master? --port wählt einen anderen",
                 u"port {2} is in use already; is a master running? --port takes another one", where);
    } else if (server.problem() == QAbstractSocket::SocketAddressNotAvailableError) {
        complain(u"dieser Rechner hat die Adresse {1} nicht", u"this computer does not have the address {1}",
                 where);
    } else {
        complain(u"Port {2} lässt sich nicht öffnen: {3}", u"port {2} cannot be opened: {3}",
                 {where[0], where[1], qt::fromQt(server.problemText())});
    }
}

} // namespace phial::master
