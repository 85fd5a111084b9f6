#include "master/MasterProgram.h"

#include "app/Session.h"
#include "app/Settings.h"
#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/cls_AppURL.h"
#include "app/sys_Global.h"
#include "core/CoreRegistry.h"
#include "core/CoreRegistryRead.h"
#include "core/CoreRegistryWrite.h"
#include "core/CoreRoot.h"
#include "core/NativePath.h"
#include "core/SessionState.h"
#include "master/Dialogue.h"
#include "master/EndSignals.h"
#include "master/MasterServer.h"
#include "master/OpenFiles.h"
#include "master/Options.h"
#include "master/ProgramWords.h"
#include "master/Room.h"
#include "master/TypedText.h"
#include "qt/base/BasePlatform.h"
#include "qt/base/NetAddress.h"
#include "qt/base/QtText.h"

#include <QCoreApplication>
#include <QNetworkInterface>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <memory>
#include <optional>

namespace phial::master
{

namespace
{

namespace fs = std::filesystem;

enum ExitStatus : int { Success = 0, Failed = 1, WrongUse = 2, NoStore = 3, NoPort = 4 };

constexpr StringView DatabaseSetting = u"Master\\Database";
constexpr StringView DatabaseName = u"master.sqlite";

/// Without an installation there are shared files all the same.
void findInstallation()
{
    ignoringErrors([] { QVAPP()->URL()->INITROOT({}, false); });
}

/// The folder of the score lists, which all users of the computer share where that is possible.
fs::path usualFolder()
{
    const auto& url = QVAPP()->URL();
    const String folder = url->DATAHIGHSCORES();
    return nativePath(folder.empty() ? url->SHAREDFILES() + u"Highscores\\Master\\" : folder);
}

/// A file's name may begin with `~` where the shell has not seen it.
std::optional<StorePlace> placeOf(const std::string& text)
{
    auto place = parseStorePlace(text);
    if (place && !place->isServer()) {
        place->file = typedPath(fromUtf8(text));
    }
    return place;
}

std::optional<StorePlace> databasePlace(const Options& options)
{
    if (options.database) {
        return placeOf(*options.database);
    }
    if (!options.dataFolder) {
        const String stored = coreRoot().CoreRegistry().CoreRegistryRead().ReadString(
            SettingsHive::CurrentUser, settings::path(DatabaseSetting), {}, settings::TextLimit);
        if (!stored.empty()) {
            return placeOf(toUtf8(stored));
        }
    }
    const fs::path folder = options.dataFolder ? typedPath(fromUtf8(*options.dataFolder)) : usualFolder();
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

ServerLimits limitsOf(const Options& options)
{
    constexpr std::size_t FilesOfItsOwn = 64;
    ServerLimits limits;
    limits.connections = std::min(limits.connections, allowManyOpenFiles() - FilesOfItsOwn);
    limits.ofAddress = options.perComputer.value_or(limits.ofAddress);
    return limits;
}

ExitStatus serve(const Options& options, Room& room, const StorePlace& place,
                 std::optional<Dialogue>& rDialogue, qt::DispatchGuard& guard)
{
    MasterServer::Address address;
    address.port = options.port.value_or(address.port);
    address.udpPort = options.udpPort.value_or(address.udpPort);
    if (options.listen && !address.address.setAddress(QString::fromStdString(*options.listen))) {
        complain(u"das ist keine Adresse: {1}", u"this is no address: {1}", {fromUtf8(*options.listen)});
        return WrongUse;
    }
    MasterServer server(room.classroom(), room.desk(), *SessionState::current().platform().clock,
                        limitsOf(options), room.notices(), guard);
    if (!server.listen(address)) {
        complain(server, address);
        return NoPort;
    }
    tellWhereItListens(server, address.address);
    tell(std::cout, u"Gespeichert wird in {1}", u"Everything is kept in {1}", {fromUtf8(place.shown())});
    const EndSignals ends([] { QCoreApplication::quit(); });
    if (!options.serve) {
        rDialogue.emplace(room.console(), guard);
    }
    room.keepHouse();
    QCoreApplication::exec();
    server.stopListening();
    room.finish();
    rDialogue.reset(); // its last command may have been under way
    return Success;
}

/// The room, also beside a master that runs when there is only something to be set or looked at.
std::unique_ptr<Room> roomFor(const Options& options, const StorePlace& place, qt::DispatchGuard& guard,
                              const Room::Say& say)
{
    const std::size_t ofComputer = limitsOf(options).ofAddress;
    const bool changes = options.servesAfterwards() || !options.settings.empty();
    try {
        return std::make_unique<Room>(place, changes ? StoreUse::Serve : StoreUse::Look, ofComputer, guard,
                                      say);
    } catch (const StoreError& error) {
        if (options.servesAfterwards() || error.reason() != StoreError::Reason::InUse) {
            throw;
        }
    }
    return std::make_unique<Room>(place, StoreUse::Change, ofComputer, guard, say);
}

ExitStatus runIn(Room& room, const Options& options, const StorePlace& place,
                 std::optional<Dialogue>& rDialogue, qt::DispatchGuard& guard)
{
    if (!room.keptAside().empty()) {
        complain(u"die Datenbank ist beschädigt und wird aufgehoben als {1}; der Master beginnt eine neue",
                 u"the database is damaged and is kept as {1}; the master begins a new one",
                 {fromUtf8(room.keptAside().string())});
    }
    if (!room.runAll(options.settings) || !room.runAll(options.reports)) {
        return Failed;
    }
    if (!options.servesAfterwards()) {
        return Success;
    }
    return serve(options, room, place, rDialogue, guard);
}

ExitStatus runWith(const Options& options, const StorePlace& place, qt::DispatchGuard& guard)
{
    std::optional<Dialogue> dialogue;
    const auto say = [&dialogue](const String& line) {
        if (dialogue) {
            dialogue->say(line);
        } else {
            complain(line, line);
        }
    };
    const auto room = roomFor(options, place, guard, say);
    const ExitStatus status = runIn(*room, options, place, dialogue, guard);
    if (!room->close()) {
        complain(u"die Datenbank antwortet nicht; was Schülern bestätigt wurde, ist gespeichert",
                 u"the database does not answer; what pupils were told is stored is stored");
        std::cout.flush();
        std::_Exit(status); // its thread waits for it still
    }
    return status;
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
        tellHelp(std::cout);
        return Success;
    }
    findInstallation();
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
