#include "server/ResultDelivery.h"

#include "app/cls_App.h"
#include "app/cls_AppUser.h"
#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "core/Arithmetic.h"
#include "core/CoreDialogs.h"
#include "core/CoreMachine.h"
#include "core/CoreParameters.h"
#include "core/CoreRoot.h"
#include "core/CoreStringOps.h"
#include "core/CoreSystem.h"
#include "core/CoreValuePacker.h"
#include "core/FileLock.h"
#include "core/NumberText.h"
#include "results/HandedIn.h"
#include "results/ListRecord.h"
#include "results/LocalLists.h"
#include "results/SubmissionMessages.h"
#include "results/cls_DataScores.h"
#include "server/WireText.h"
#include "server/cls_AppServer.h"

namespace phial
{

namespace
{

using Delivery = cls_AppServer::Delivery;

/// A result with its text for the master, which is made where there is one.
class Message
{
public:
    Message(const FinishedExercise& exercise, bool withMaster)
    {
        if (withMaster) {
            package_ = packed(exercise);
        }
    }

    const String& package() const { return package_; }
    bool isTooLong() const { return package_.size() > MaxResultUnits; }
    bool canBeSent() const { return !package_.empty() && !isTooLong(); }

private:
    /// Whose result it is: what a file's entry gets from `cls_DataScores.ADD`.
    static String packed(const FinishedExercise& exercise)
    {
        const CoreMachine& machine = coreRoot().CoreSystem().CoreMachine();
        const CoreParameters none;
        const CoreParameters& additional = exercise.additional != nullptr ? *exercise.additional : none;
        return CoreValuePacker::Pack({exercise.points, exercise.pointsMax, exercise.label, additional.Pack(),
                                      QVAPP()->USER()->SCREENNAME(), machine.ComputerName(),
                                      machine.UserName()});
    }

    String package_;
};

void tellThatItIsTooLong()
{
    coreRoot().CoreDialogs().Info(
        LNG()->TRANSLATE(u"Dein Ergebnis ist zu lang für den Klassenraum. Es bleibt auf diesem Computer.",
                         u"Your result is too long for the classroom. It stays on this computer."),
        u"Info");
}

Variant addTo(cls_DataScores& scores, const FinishedExercise& exercise)
{
    return scores.ADD(exercise.points, exercise.pointsMax, exercise.label, exercise.additional);
}

ResultPlace recordHere(const FinishedExercise& exercise)
{
    const String file = resultsFile();
    const FileLock lock(file);
    cls_DataScores scores;
    loadOrEmpty(scores, file);
    addTo(scores, exercise);
    return scores.SAVE(file) ? ResultPlace::ThisComputer : ResultPlace::Nowhere;
}

/// A number at the beginning of the rank's text, so that "3. Platz" is rank 3 and the empty value 0.
std::int32_t rankNumber(const Variant& rank)
{
    return toWhole(numberAtStart(rank.toText()).value);
}

/// Gives whether the master has taken the result in.
bool enterAtMaster(const String& package, const HighscoreEntry& entry, HandedIn& rResult)
{
    const auto answer = QVAPP()->SERVER()->answerTo(entry.module, u"SUBMIT", package);
    if (!answer) {
        rResult.wasUnanswered = true;
        return false;
    }
    if (isRefusal(*answer)) {
        return false;
    }
    if (entry.showInfo) {
        show(messageForAnswer(CoreStringOps::After(answer->toText(), u":")));
    }
    rResult.rank = rankNumber(*answer);
    rResult.listed = ResultPlace::Master;
    return true;
}

void enterHere(const FinishedExercise& exercise, const HighscoreEntry& entry, HandedIn& rResult)
{
    cls_DataScores scores;
    Variant rank;
    {
        const String file = highscoreFile(entry.module);
        const FileLock lock(file);
        loadOrEmpty(scores, file);
        scores.ONCE(false);
        scores.MAXIMUM(entry.localMax);
        rank = addTo(scores, exercise);
        rResult.listed = scores.SAVE(file) ? ResultPlace::ThisComputer : ResultPlace::Nowhere;
    }
    if (entry.showInfo) {
        show(messageForRank(rank, entry.localMax, scores.COUNT()));
    }
    rResult.rank = rankNumber(rank);
}

ResultPlace record(const FinishedExercise& exercise, const Message& message, bool& rUnanswered)
{
    if (message.canBeSent()) {
        const Delivery delivery = QVAPP()->SERVER()->deliver(u"RESULTS", u"SUBMIT", message.package());
        if (delivery == Delivery::Taken) {
            return ResultPlace::Master;
        }
        rUnanswered = delivery == Delivery::Unanswered;
    }
    return recordHere(exercise);
}

} // namespace

FinishedExercise::FinishedExercise(double reached, double reachable, StringView exercise,
                                   const CoreParameters* additionalValues)
    : points(reached), pointsMax(reachable), label(exercise), additional(additionalValues)
{
    requireFinite(points, pointsMax);
}

ResultPlace recordResult(const FinishedExercise& exercise, bool withMaster)
{
    const Message message(exercise, withMaster);
    bool unanswered = false;
    return record(exercise, message, unanswered);
}

HandedIn submitResult(const FinishedExercise& exercise, const HighscoreEntry& entry, bool withMaster)
{
    const Message message(exercise, withMaster);
    HandedIn result;
    result.recorded = record(exercise, message, result.wasUnanswered);
    if (entry.showInfo && message.isTooLong()) {
        tellThatItIsTooLong();
    }
    if (entry.module == u"RESULT" || entry.module == u"RESULTS") {
        result.listed = result.recorded;
        return result;
    }
    if (!message.canBeSent() || !enterAtMaster(message.package(), entry, result)) {
        enterHere(exercise, entry, result);
    }
    return result;
}

} // namespace phial
