#include "master/Classroom.h"

#include "core/NumberText.h"
#include "core/RuntimeError.h"
#include "master/Packages.h"
#include "server/cls_AppServerConfig.h"

#include <algorithm>
#include <array>
#include <utility>

namespace phial::master
{

namespace
{

constexpr StringView Done = u"OK";
constexpr StringView NoSense = u"ERROR";
/// What stands in a rule for every module that no other rule names.
constexpr StringView AnyModule;

AnswerText answerOf(StringView text)
{
    return std::make_shared<const String>(answerText(text));
}

void tellOfPoints(const Result& result, std::vector<NoticeCase>& rNotices)
{
    if (isImplausible(result.points, result.pointsMax)) {
        rNotices.push_back(
            {Notice::ImplausiblePoints,
             {result.sender.screenName, plainText(result.points, u'.'), plainText(result.pointsMax, u'.')}});
    }
}

} // namespace

/// One kind of message and what answers it: at once, or when the class book has done it.
struct Classroom::Rule {
    StringView module;
    StringView command;
    String (Classroom::*atOnce)(const Message&) = nullptr;
    StoreJob (Classroom::*later)(const Message&) = nullptr;
    /// Whether the message adds something, so that a repeated one must not be taken in again.
    bool once = false;
};

std::span<const Classroom::Rule> Classroom::rules()
{
    static constexpr std::array Table{
        Rule{u"SERVER", u"LOGON", &Classroom::logOn},
        Rule{u"SERVER", u"LOGOFF", &Classroom::logOff},
        Rule{u"SERVER", u"ALIVE", &Classroom::keepAlive},
        Rule{u"SERVER", u"MODE", &Classroom::mode},
        Rule{u"SERVER", u"GAMEIDENT", &Classroom::gameIdent},
        Rule{u"SERVER", u"PACK", &Classroom::settingsFor},
        Rule{u"PROPERTIES", u"GET", &Classroom::property},
        Rule{u"EVENT", u"ADD", nullptr, &Classroom::addEvent, true},
        Rule{u"RESULTS", u"SUBMIT", nullptr, &Classroom::submitResult, true},
        Rule{u"RESULTS", u"GET", nullptr, &Classroom::scores},
        Rule{AnyModule, u"GET", nullptr, &Classroom::scores},
        Rule{AnyModule, u"SUBMIT", nullptr, &Classroom::submitScore, true},
    };
    return Table;
}

const Classroom::Rule* Classroom::ruleFor(const WireRequest& request)
{
    const auto table = rules();
    const bool isOwnModule = std::ranges::any_of(
        table, [&](const Rule& rule) { return equalsIgnoringCase(rule.module, request.module); });
    const StringView module = isOwnModule ? StringView(request.module) : AnyModule;
    const auto rule = std::ranges::find_if(table, [&](const Rule& entry) {
        return equalsIgnoringCase(entry.module, module) && equalsIgnoringCase(entry.command, request.command);
    });
    return rule == table.end() ? nullptr : &*rule;
}

Classroom::Classroom(StoreDesk& desk, const Clock& clock, Notices& notices, RoomState room,
                     const std::vector<LogOn>& logOns, std::size_t pupilsOfComputer)
    : desk_(desk), clock_(clock), notices_(notices), room_(std::move(room)), roster_(pupilsOfComputer)
{
    desk_.onNewRoomState([this](const RoomState& state) { room_ = state; });
    const Moment oldest{clock_.moment().days - Roster::GoneAfter};
    for (const LogOn& logOn : logOns) {
        if (logOn.since >= oldest) {
            roster_.logOn(logOn);
        }
    }
}

void Classroom::receive(const Envelope& envelope, StringView text, Reply reply)
{
    const Moment now = clock_.moment();
    roster_.hear(envelope.id.sender, now);
    const auto request = parseRequest(text);
    const Rule* rule = request ? ruleFor(*request) : nullptr;
    if (rule == nullptr) {
        notices_.tell({Notice::UnknownRequest, {envelope.address}});
        reply(answerOf(NoSense));
        return;
    }
    const Message message{envelope, *request, now};
    try {
        if (rule->atOnce != nullptr) {
            reply(answerOf((this->*rule->atOnce)(message)));
            return;
        }
        StoreJob job = (this->*rule->later)(message);
        job.at = now;
        if (rule->once) {
            job.once = envelope.id;
        }
        handOn(std::move(job), text.size() * sizeof(char16_t), std::move(reply));
    } catch (const RuntimeError& error) {
        tellWhyRefused(message, error); // the package is none of this message's
        reply(answerOf(NoSense));
    }
}

void Classroom::handOn(StoreJob job, std::size_t bytes, Reply reply)
{
    desk_.add(std::move(job), bytes, [reply = std::move(reply)](const JobOutcome& outcome) {
        reply(outcome.answer ? outcome.answer : answerOf(NoSense));
    });
}

void Classroom::tellWhyRefused(const Message& message, const RuntimeError& error)
{
    const bool isImpossible = error.Number() == static_cast<std::int32_t>(ErrorNumber::Overflow);
    notices_.tell({isImpossible ? Notice::ImpossiblePoints : Notice::NoPackage, {message.envelope.address}});
}

void Classroom::forgetOld()
{
    const auto isMore = std::make_shared<bool>(false);
    StoreJob job;
    job.work = [isMore, now = clock_.moment()](ClassBook& book, auto&) -> AnswerText {
        *isMore = book.forgetOld(now);
        return nullptr;
    };
    desk_.add(std::move(job), 0, [this, isMore](const JobOutcome& outcome) {
        if (outcome.isDone && *isMore) {
            forgetOld(); // those who have come meanwhile go first
        }
    });
}

void Classroom::lookForChanges()
{
    if (std::exchange(isLooking_, true)) {
        return;
    }
    StoreJob job;
    job.work = [](ClassBook& book, auto&) -> AnswerText {
        book.lookForChanges();
        return nullptr;
    };
    desk_.add(std::move(job), 0, [this](const JobOutcome&) { isLooking_ = false; });
}

String Classroom::settingsText(const MasterPlace& place) const
{
    cls_AppServerConfig config;
    config.DEFAULTS();
    config.SERVERIP(place.address);
    config.SERVERPORT(place.port);
    config.SERVERUDP(place.udpPort);
    config.SETTINGS(room_.settings.handedOut());
    return config.PACK();
}

String Classroom::logOn(const Message& message)
{
    const Envelope& envelope = message.envelope;
    const LogOn logOn{envelope.id.sender, cleaned(message.request.package, MaxNameLength), envelope.address,
                      message.at};
    const std::size_t crowdedOut = roster_.crowdedOut();
    StoreJob job;
    job.work = [logOn, replaced = roster_.logOn(logOn)](ClassBook& book, auto&) -> AnswerText {
        book.keepLogOn(logOn, replaced);
        return nullptr;
    };
    desk_.add(std::move(job), 0, {});
    if (roster_.crowdedOut() != crowdedOut) {
        notices_.tell({Notice::ManyPupils, {logOn.address}});
    }
    return u"LOGON:OK";
}

String Classroom::logOff(const Message& message)
{
    const std::uint64_t client = message.envelope.id.sender;
    roster_.logOff(client);
    StoreJob job;
    job.work = [client](ClassBook& book, auto&) -> AnswerText {
        book.forgetLogOn(client);
        return nullptr;
    };
    desk_.add(std::move(job), 0, {});
    return String(Done);
}

String Classroom::keepAlive(const Message& /*message*/)
{
    return String(Done); // that the client was heard of is noted for every message
}

String Classroom::mode(const Message& /*message*/)
{
    return room_.app.empty() ? u"0" : u"1";
}

String Classroom::gameIdent(const Message& /*message*/)
{
    return room_.app.empty() ? String(NoSense) : room_.app;
}

String Classroom::settingsFor(const Message& message)
{
    return settingsText(message.envelope.master);
}

String Classroom::property(const Message& message)
{
    const auto value = room_.settings.value(trimmed(message.request.package));
    return value ? value->toText() : String(NoSense);
}

StoreJob Classroom::addEvent(const Message& message)
{
    StoreJob job;
    job.work = [event = unpackEvent(message.request.package, message.at)](ClassBook& book, auto&) {
        book.addEvent(event);
        return answerOf(Done);
    };
    return job;
}

StoreJob Classroom::submitResult(const Message& message)
{
    StoreJob job;
    job.work = [result = unpackResult(message.request.package, message.at)](
                   ClassBook& book, std::vector<NoticeCase>& rNotices) {
        book.addResult(result);
        tellOfPoints(result, rNotices);
        return answerOf(Done);
    };
    return job;
}

StoreJob Classroom::submitScore(const Message& message)
{
    StoreJob job;
    job.work = [result = unpackResult(message.request.package, message.at), module = message.request.module,
                address = message.envelope.address](ClassBook& book, std::vector<NoticeCase>& rNotices) {
        const auto rank = book.submit(module, result, address, rNotices);
        tellOfPoints(result, rNotices);
        return rank ? answerOf(*rank) : nullptr;
    };
    return job;
}

StoreJob Classroom::scores(const Message& message)
{
    StoreJob job;
    job.work = [module = message.request.module](ClassBook& book, auto&) { return book.scoreList(module); };
    return job;
}

} // namespace phial::master
