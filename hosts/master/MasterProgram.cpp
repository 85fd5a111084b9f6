#include "master/MasterProgram.h"

#include "app/Session.h"
#include "app/Settings.h"
#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/cls_AppURL.h"
#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "core/CoreRegistry.h"
#include "core/CoreRegistryRead.h"
#include "core/CoreRegistryWrite.h"
#include "core/CoreRoot.h"
#include "core/NativePath.h"
#include "core/SessionState.h"
#include "master/Classroom.h"
#include "master/Console.h"
#include "master/ConsoleInput.h"
#include "master/MasterServer.h"
#include "master/OpenFiles.h"
#include "master/Options.h"
#include "master/SqlStore.h"
#include "qt/base/BasePlatform.h"
#include "qt/base/NetAddress.h"
#include "qt/base/QtText.h"

#include <QCoreApplication>
#include <QNetworkInterface>

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <optional>

namespace phial::master
{

namespace
{

namespace fs = std::filesystem;

enum ExitStatus : int { Success = 0, Failed = 1, WrongUse = 2, NoStore = 3, NoPort = 4 };

constexpr StringView DatabaseSetting = u"Master\\Database";
constexpr StringView DatabaseName = u"master.sqlite";

constexpr StringView HelpGerman =
    u"master [Optionen]\n"
    u"\n"
    u"Der Master für den Unterricht: Lern-Apps melden sich bei ihm an, schicken ihm Ergebnisse und\n"
    u"fragen ihn nach Bestenlisten. Er nimmt Befehle an; \"help\" zeigt sie.\n"
    u"\n"
    u"  --listen ADRESSE   nimmt Schüler von dort an: 0.0.0.0 für alle Netze; ohne Angabe nur diesen "
    u"Rechner\n"
    u"  --port NUMMER      Port für Anfragen (10049)\n"
    u"  --udp NUMMER       Port, auf dem der Master gefunden wird (10050); 0 für keinen\n"
    u"  --database ORT     Datei der Datenbank, oder postgresql://[Benutzer@]Rechner[:Port]/Datenbank\n"
    u"  --remember         merkt sich diese Datenbank für die nächsten Starts\n"
    u"  --data ORDNER      Ordner der Datenbank, wenn keine genannt ist\n"
    u"  --app IDENT        wählt die Lern-App, die laufen darf; none: keine\n"
    u"  --set NAME=WERT    setzt einen Wert, zum Beispiel WELCOMEMESSAGE=\"Guten Morgen!\"\n"
    u"  --pupils, --results, --events, --highscore MODUL\n"
    u"                     zeigt, was gespeichert ist, und endet\n"
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
    u"  --udp NUMBER       port on which the master is found (10050); 0 for none\n"
    u"  --database PLACE   file of the database, or postgresql://[user@]computer[:port]/database\n"
    u"  --remember         keeps this database for the next starts\n"
    u"  --data FOLDER      folder of the database when none is named\n"
    u"  --app IDENT        chooses the learning app that may run; none: no app\n"
    u"  --set NAME=VALUE   sets a value, such as WELCOMEMESSAGE=\"Good morning!\"\n"
    u"  --pupils, --results, --events, --highscore MODULE\n"
    u"                     shows what is stored, and ends\n"
    u"  --export FILE      writes all results into a CSV file, and ends\n"
    u"  --serve            takes no commands and runs until it is ended\n"
    u"  --help             shows this text\n";

void tell(std::ostream& output, StringView german, StringView english, const Variant::Array& values = {})
{
    output << toUtf8(LNG()->TRANSLATE(german, english, values)) << std::endl;
}

/// What is said goes to the error stream, with the program's name in front.
void complain(StringView german, StringView english, const Variant::Array& values = {})
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
    case OptionProblem::Kind::NoAssignment:
        complain(u"erwartet wird NAME=WERT: {1}", u"NAME=VALUE is expected: {1}", {argument});
        break;
    }
}

void complain(const StoreError& error)
{
    const String text = fromUtf8(error.what());
    switch (error.reason()) {
    case StoreError::Reason::Database:
        complain(u"die Datenbank meldet einen Fehler: {1}", u"the database reports an error: {1}", {text});
        break;
    case StoreError::Reason::InUse:
        complain(u"ein anderer Master benutzt {1}, oder der Ordner ist nicht beschreibbar",
                 u"another master is using {1}, or the folder cannot be written", {text});
        break;
    case StoreError::Reason::Missing:
        complain(u"noch leer: {1}", u"still empty: {1}", {text});
        break;
    case StoreError::Reason::OtherProgram:
        complain(u"das ist die Datenbank eines anderen Programms: {1}",
                 u"this is the database of another program: {1}", {text});
        break;
    case StoreError::Reason::LaterVersion:
        complain(u"die Datenbank ist von einer neueren Version des Masters: {1}",
                 u"the database is of a later version of the master: {1}", {text});
        break;
    }
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

/// The folder of the score lists, which all users of the computer share where that is possible.
fs::path usualFolder()
{
    const auto& url = QVAPP()->URL();
    ignoringErrors([&] { url->INITROOT({}, false); }); // without an installation there are still shared files
    const String folder = url->DATAHIGHSCORES();
    return nativePath(folder.empty() ? url->SHAREDFILES() + u"Highscores\\Master\\" : folder);
}

std::optional<StorePlace> databasePlace(const Options& options)
{
    if (options.database) {
        return parseStorePlace(*options.database);
    }
    if (!options.dataFolder) {
        const String stored = coreRoot().CoreRegistry().CoreRegistryRead().ReadString(
            SettingsHive::CurrentUser, settings::path(DatabaseSetting), {}, settings::TextLimit);
        if (!stored.empty()) {
            return parseStorePlace(toUtf8(stored));
        }
    }
    const fs::path folder = options.dataFolder ? fs::path(*options.dataFolder) : usualFolder();
    return parseStorePlace((folder / toUtf8(DatabaseName)).string());
}

/// Keeps the database for the next starts, unless a password would be kept with it.
bool remember(const Options& options, const StorePlace& place)
{
    if (!options.database || !place.password.empty()) {
        complain(u"gemerkt wird nur, was --database nennt, und kein Passwort",
                 u"only what --database names is kept, and no password");
        return false;
    }
    const String text = fromUtf8(place.isServer() ? *options.database : fs::absolute(place.file).string());
    coreRoot().CoreRegistry().CoreRegistryWrite().WriteString(SettingsHive::CurrentUser,
                                                              settings::path(DatabaseSetting), text);
    return true;
}

/// The addresses under which other computers find this one, as pupils would type them.
String ownAddresses()
{
    String list;
    for (const QHostAddress& address : QNetworkInterface::allAddresses()) {
        if (address.protocol() == QAbstractSocket::IPv4Protocol && !address.isLoopback()) {
            list.append(list.empty() ? u"" : u", ").append(qt::addressText(address));
        }
    }
    return list;
}

void tellWhereItListens(const MasterServer& server, const QHostAddress& address)
{
    tell(std::cout, u"Der Master läuft auf {1}, Port {2}.", u"The master is running on {1}, port {2}.",
         {qt::addressText(address), std::int32_t{server.port()}});
    if (address.isLoopback()) {
        tell(std::cout,
             u"Nur Programme auf diesem Rechner erreichen ihn; --listen 0.0.0.0 öffnet ihn für das Netz.",
             u"Only programs on this computer reach it; --listen 0.0.0.0 opens it to the network.");
    } else if (address == QHostAddress(QHostAddress::AnyIPv4) || address == QHostAddress(QHostAddress::Any)) {
        tell(std::cout, u"Adresse für die Schüler: {1}", u"Address for pupils: {1}", {ownAddresses()});
    }
    if (!server.answersQuestions()) {
        tell(std::cout, u"Er lässt sich nicht suchen, seine Adresse muss eingegeben werden.",
             u"It cannot be searched for, its address must be typed.");
    }
}

/// Commands one after the other, until one fails.
bool runAll(Console& console, const std::vector<String>& commands)
{
    return std::ranges::all_of(
        commands, [&](const String& command) { return console.run(command) == Console::Outcome::Done; });
}

/// Reads commands until there is an end to them.
class Dialogue
{
public:
    Dialogue(Console& console, qt::DispatchGuard& guard)
        : console_(console), guard_(guard),
          input_([this](const std::string& line) { guard_.run([&] { take(line); }); }, [] { end(); })
    {
        if (ConsoleInput::isTerminal()) {
            tell(std::cout, u"\"help\" zeigt die Befehle.", u"\"help\" lists the commands.");
        }
        prompt();
    }

private:
    void take(const std::string& line)
    {
        if (console_.run(fromUtf8(line)) == Console::Outcome::Quit) {
            QCoreApplication::quit();
        } else {
            prompt();
        }
    }

    static void prompt()
    {
        if (ConsoleInput::isTerminal()) {
            std::cout << "> " << std::flush;
        }
    }

    /// A teacher who ends the input is done; a script whose input has ended is not.
    static void end()
    {
        if (ConsoleInput::isTerminal()) {
            std::cout << std::endl;
            QCoreApplication::quit();
        }
    }

    Console& console_;
    qt::DispatchGuard& guard_;
    ConsoleInput input_;
};

ExitStatus serve(const Options& options, Classroom& classroom, Console& console, qt::DispatchGuard& guard)
{
    MasterServer::Address address;
    address.port = options.port.value_or(address.port);
    address.udpPort = options.udpPort.value_or(address.udpPort);
    if (options.listen && !address.address.setAddress(QString::fromStdString(*options.listen))) {
        complain(u"das ist keine Adresse: {1}", u"this is no address: {1}", {fromUtf8(*options.listen)});
        return WrongUse;
    }
    constexpr std::size_t FilesOfItsOwn = 64;
    ServerLimits limits;
    limits.connections = std::min(limits.connections, allowManyOpenFiles() - FilesOfItsOwn);
    const auto complainOnce = [](const std::string& trouble) { complain(StoreError(trouble)); };
    MasterServer server(classroom, *SessionState::current().platform().clock, limits, guard, complainOnce);
    if (!server.listen(address)) {
        complain(server, address);
        return NoPort;
    }
    tellWhereItListens(server, address.address);
    std::optional<Dialogue> dialogue;
    if (!options.serve) {
        dialogue.emplace(console, guard);
    }
    QCoreApplication::exec();
    return Success;
}

ExitStatus runWith(const Options& options, const StorePlace& place, qt::DispatchGuard& guard)
{
    const bool changes = options.servesAfterwards() || !options.settings.empty();
    SqlStore store(place, changes ? StoreUse::Serve : StoreUse::Look);
    if (!store.keptAside().empty()) {
        complain(u"die Datenbank ist beschädigt und wird aufgehoben als {1}; der Master beginnt eine neue",
                 u"the database is damaged and is kept as {1}; the master begins a new one",
                 {fromUtf8(store.keptAside().string())});
    }
    const Platform& platform = SessionState::current().platform();
    Classroom classroom(store, *platform.clock);
    Console console(classroom, store, *platform.files, std::cout);
    if (!runAll(console, options.settings) || !runAll(console, options.reports)) {
        return Failed;
    }
    if (!options.servesAfterwards()) {
        return Success;
    }
    classroom.forgetOld();
    return serve(options, classroom, console, guard);
}

} // namespace

int runMaster(std::span<const std::string> arguments)
{
    const auto guard = std::make_shared<qt::DispatchGuard>();
    const Session session(qt::basePlatform(guard));
    QVAPP()->CONFIG()->IDENT(u"Master");
    const auto [options, problem] = readOptions(arguments);
    if (problem) {
        complain(*problem);
        return WrongUse;
    }
    if (options.help) {
        std::cout << toUtf8(LNG()->TRANSLATE(HelpGerman, HelpEnglish));
        return Success;
    }
    const auto place = databasePlace(options);
    if (!place) {
        complain(u"das ist weder eine Datei noch eine Datenbank auf einem Server",
                 u"this is neither a file nor a database on a server");
        return WrongUse;
    }
    if (options.remember && !remember(options, *place)) {
        return WrongUse;
    }
    try {
        return runWith(options, *place, *guard);
    } catch (const StoreError& error) {
        complain(error);
        return NoStore;
    }
}

} // namespace phial::master
