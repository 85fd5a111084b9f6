#include "results/cls_AppRate.h"

#include "app/cls_App.h"
#include "app/sys_Global.h"
#include "core/Arithmetic.h"
#include "core/FileLock.h"
#include "core/FileSystem.h"
#include "core/RuntimeError.h"
#include "core/SessionState.h"
#include "results/Certificate.h"
#include "results/LocalLists.h"
#include "results/Mark.h"
#include "results/cls_DataScores.h"
#include "server/ResultDelivery.h"
#include "server/WireText.h"
#include "server/cls_AppServer.h"

#include <algorithm>

namespace phial
{

namespace
{

/// Whether the file is still as this list has taken it in, or is missing as it was then.
bool isAsLoaded(cls_DataScores& scores)
{
    const LoadedFile& loaded = scores.DATA()->loadedFile();
    const bool isKnown =
        loaded.state == LoadedFile::State::Whole || loaded.state == LoadedFile::State::Absent;
    bool isSame = false;
    ignoringErrors([&] {
        isSame = isKnown && SessionState::current().platform().files->status(loaded.path) == loaded.status;
    });
    return isSame;
}

} // namespace

void cls_AppRate::MARK(double pPoints, double pPointsMax, StringView /*pUEBM*/, String& rMarkText,
                       std::int32_t& rMarkNumeric) const
{
    const MarkRow& row = markFor(pPoints, pPointsMax);
    rMarkText = row.words;
    rMarkNumeric = static_cast<std::int32_t>(row.mark);
}

String cls_AppRate::MARKTEXT(double pPoints, double pPointsMax, StringView /*pUEBM*/) const
{
    return String(markFor(pPoints, pPointsMax).words);
}

std::int32_t cls_AppRate::MARKPOINTS(double pPoints, double pPointsMax, StringView /*pUEBM*/) const
{
    return static_cast<std::int32_t>(markFor(pPoints, pPointsMax).mark);
}

String cls_AppRate::MARKSCHOOL(double pPoints, double pPointsMax, StringView /*pUEBM*/) const
{
    return String(markFor(pPoints, pPointsMax).school);
}

std::int32_t cls_AppRate::POINTS(std::int32_t pPoints, std::int32_t pErrorsMax,
                                 std::int32_t pErrorsMade) const
{
    // Not std::clamp, which knows no negative greatest number of errors.
    const std::int32_t made = std::min(std::max(pErrorsMade, 0), pErrorsMax);
    return toWhole(pPoints - checkedDivide(pPoints, pErrorsMax) * made);
}

std::shared_ptr<cls_DataScores> cls_AppRate::HIGHSCORE(StringView pModule) const
{
    auto scores = std::make_shared<cls_DataScores>();
    if (!QVAPP()->SERVER()->ONLINE()) {
        loadOrEmpty(*scores, highscoreFile(pModule));
        return scores;
    }
    const Variant answer = QVAPP()->SERVER()->REQUEST(pModule, u"GET");
    if (const String text = answer.toText(); !text.empty() && !isRefusal(answer)) {
        scores->DATA()->Unpack(text);
    }
    return scores;
}

void cls_AppRate::HIGHSCORELIST(StringView pTitle, std::int32_t pRank, StringView pModule,
                                const void* /*pFlags*/) const
{
    const std::shared_ptr<cls_AppServer> server = QVAPP()->SERVER();
    const bool isMasters = server->ONLINE();
    std::shared_ptr<cls_DataScores> scores = HIGHSCORE(pModule);
    if (server->ONLINE()) {
        scores->SHOW(pTitle, pRank, true);
        return;
    }
    if (isMasters) {
        scores = HIGHSCORE(pModule); // the master has gone while it was asked
    }
    const String file = highscoreFile(pModule);
    const std::int32_t shown = scores->COUNT();
    scores->SHOWLOCAL(pTitle, pRank, true);
    const bool reset = shown > 0 && scores->COUNT() == 0;
    // The window stood open without a lock: what another program has entered meanwhile must not be lost.
    const FileLock lock(file);
    if (reset || (lock.held() && isAsLoaded(*scores))) {
        scores->SAVE(file);
    }
}

std::int32_t cls_AppRate::SUBMIT(double pPoints, double pPointsMax, StringView pUEBM,
                                 const CoreParameters* pAdditional, StringView pHSModule, bool pShowInfo,
                                 std::int32_t pLocalMax) const
{
    const FinishedExercise exercise(pPoints, pPointsMax, pUEBM, pAdditional);
    const bool withMaster = QVAPP()->SERVER()->AVAILABLE();
    return submitResult(exercise, {String(pHSModule), pShowInfo, pLocalMax}, withMaster).rank;
}

HandedIn cls_AppRate::handIn(double points, double pointsMax, StringView exercise,
                             const CoreParameters* additional, StringView module, bool showInfo,
                             std::int32_t localMax) const
{
    const FinishedExercise finished(points, pointsMax, exercise, additional);
    const bool withMaster = QVAPP()->SERVER()->isStillThere();
    const HandedIn result = submitResult(finished, {String(module), showInfo, localMax}, withMaster);
    if (result.wasUnanswered) {
        QVAPP()->SERVER()->isStillThere();
    }
    return result;
}

void cls_AppRate::RESULT(double pPoints, double pPointsMax, StringView pUEBM,
                         const CoreParameters* pAdditionalData) const
{
    const FinishedExercise exercise(pPoints, pPointsMax, pUEBM, pAdditionalData);
    recordResult(exercise, QVAPP()->SERVER()->AVAILABLE());
}

bool cls_AppRate::PRINTCERTIFICATE(StringView pText, const CoreParameters* pMore) const
{
    return printCertificate(pText, pMore);
}

} // namespace phial
