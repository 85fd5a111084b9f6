#include "master/Classroom.h"

#include "core/RuntimeError.h"
#include "master/Packages.h"
#include "results/cls_DataScores.h"
#include "server/cls_AppServerConfig.h"

#include <algorithm>
#include <array>

namespace phial::master
{

namespace
{

constexpr StringView Done = u"OK";
constexpr StringView NoSense = u"ERROR";
/// What stands in a rule for every module that no other rule names.
constexpr StringView AnyModule;
constexpr StringView NotInTheList = u"-1";

} // namespace

/// One kind of message and what answers it.
struct Classroom::Rule {
    StringView module;
    StringView command;
    String (Classroom::*answer)(const Message&);
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
        Rule{u"EVENT", u"ADD", &Classroom::addEvent, true},
        Rule{u"RESULTS", u"SUBMIT", &Classroom::submitResult, true},
        Rule{u"RESULTS", u"GET", &Classroom::scores},
        Rule{AnyModule, u"GET", &Classroom::scores},
        Rule{AnyModule, u"SUBMIT", &Classroom::submitScore, true},
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

Classroom::Classroom(MasterStore& store, const Clock& clock)
    : store_(store), clock_(clock), app_(store.app()), settings_(store), highscores_(store, settings_.all())
{
    takeUpLogOns();
}

String Classroom::answer(const Envelope& envelope, StringView text)
{
    const Moment now = clock_.moment();
    roster_.hear(envelope.id.sender, now);
    const auto request = parseRequest(text);
    if (!request) {
        return answerText(NoSense);
    }
    const Rule* rule = ruleFor(*request);
    if (rule == nullptr) {
        return answerText(NoSense);
    }
    const Message message{envelope, *request, now};
    try {
        return rule->once ? answerOnce(*rule, message) : answerText((this->*rule->answer)(message));
    } catch (const RuntimeError&) {
        return answerText(NoSense); // the package is none of this message's
    }
}

String Classroom::answerOnce(const Rule& rule, const Message& message)
{
    const FrameId& id = message.envelope.id;
    if (auto given = store_.answerTo(id)) {
        return *std::move(given);
    }
    String answer = answerText((this->*rule.answer)(message));
    store_.keepAnswer(id, answer, message.at);
    return answer;
}

void Classroom::commit()
{
    highscores_.store();
    store_.commit();
}

void Classroom::undo()
{
    store_.rollBack();
    highscores_.forget();
    app_ = store_.app();
    settings_.load();
}

void Classroom::forgetOld()
{
    const double now = clock_.moment().days;
    store_.forgetAnswers(Moment{now - AnswersKept}, MaxAnswers);
    store_.forgetLogOns(Moment{now - Roster::GoneAfter});
    store_.commit();
}

void Classroom::chooseApp(StringView app)
{
    String chosen = cleaned(app, MaxAppLength);
    store_.keepApp(chosen);
    app_ = std::move(chosen);
}

String Classroom::settingsText(const MasterPlace& place) const
{
    cls_AppServerConfig config;
    config.DEFAULTS();
    config.SERVERIP(place.address);
    config.SERVERPORT(place.port);
    config.SERVERUDP(place.udpPort);
    config.SETTINGS(settings_.handedOut());
    return config.PACK();
}

String Classroom::logOn(const Message& message)
{
    const Envelope& envelope = message.envelope;
    const LogOn logOn{envelope.id.sender, cleaned(message.request.package, MaxNameLength), envelope.address,
                      message.at};
    for (const std::uint64_t replaced : roster_.logOn(logOn)) {
        store_.forgetLogOn(replaced);
    }
    store_.keepLogOn(logOn);
    return u"LOGON:OK";
}

String Classroom::logOff(const Message& message)
{
    const std::uint64_t client = message.envelope.id.sender;
    roster_.logOff(client);
    store_.forgetLogOn(client);
    return String(Done);
}

String Classroom::keepAlive(const Message& /*message*/)
{
    return String(Done); // that the client was heard of is noted for every message
}

String Classroom::mode(const Message& /*message*/)
{
    return app_.empty() ? u"0" : u"1";
}

String Classroom::gameIdent(const Message& /*message*/)
{
    return app_.empty() ? String(NoSense) : app_;
}

String Classroom::settingsFor(const Message& message)
{
    return settingsText(message.envelope.master);
}

String Classroom::property(const Message& message)
{
    const auto value = settings_.value(trimmed(message.request.package));
    return value ? value->toText() : String(NoSense);
}

String Classroom::addEvent(const Message& message)
{
    store_.addEvent(unpackEvent(message.request.package, message.at));
    return String(Done);
}

String Classroom::submitResult(const Message& message)
{
    store_.addResult(unpackResult(message.request.package, message.at));
    return String(Done);
}

String Classroom::scores(const Message& message)
{
    return highscores_.list(message.request.module)->DATA()->Pack();
}

String Classroom::submitScore(const Message& message)
{
    const Result result = unpackResult(message.request.package, message.at);
    const auto rank = highscores_.submit(message.request.module, result);
    if (!rank) {
        return String(NotInTheList);
    }
    store_.addSubmission(HighscoreLists::nameOf(message.request.module), result, *rank);
    return *rank;
}

void Classroom::takeUpLogOns()
{
    const Moment oldest{clock_.moment().days - Roster::GoneAfter};
    for (const LogOn& logOn : store_.logOns()) {
        if (logOn.since >= oldest) {
            roster_.logOn(logOn);
        }
    }
}

} // namespace phial::master
