#include "results/cls_AppRate.h"

#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/cls_AppURL.h"
#include "app/cls_AppUser.h"
#include "app/sys_Global.h"
#include "core/Arithmetic.h"
#include "core/Clock.h"
#include "core/CoreDialogs.h"
#include "core/CoreFiles.h"
#include "core/CoreFormDocument.h"
#include "core/CoreMachine.h"
#include "core/CoreParameters.h"
#include "core/CoreRoot.h"
#include "core/CoreStringOps.h"
#include "core/CoreSystem.h"
#include "core/CoreValuePacker.h"
#include "core/FileLock.h"
#include "core/Format.h"
#include "core/NumberText.h"
#include "core/SessionState.h"
#include "results/Mark.h"
#include "results/SubmissionMessages.h"
#include "results/cls_DataScores.h"
#include "server/cls_AppServer.h"

namespace phial
{

namespace
{

/// Whose result it is, for the master: what a file's entry gets from `cls_DataScores.ADD`.
String packedResult(double points, double pointsMax, StringView exercise, const CoreParameters* additional)
{
    const CoreMachine& machine = coreRoot().CoreSystem().CoreMachine();
    return CoreValuePacker::Pack({points, pointsMax, exercise,
                                  additional != nullptr ? additional->Pack() : CoreParameters().Pack(),
                                  QVAPP()->USER()->SCREENNAME(), machine.ComputerName(), machine.UserName()});
}

String resultsFile()
{
    return QVAPP()->URL()->DATAHIGHSCORES() + u"results.qv-rsl";
}

String highscoreFile(StringView module)
{
    return QVAPP()->URL()->DATAHIGHSCORES() + String(module) + u".qv-hsr";
}

/// A list whose load fails half way counts as empty, whatever it holds by then.
void loadOrEmpty(cls_DataScores& scores, StringView file)
{
    if (!scores.LOAD(file)) {
        scores.CLEAR();
    }
}

Variant submitToMaster(const String& result, StringView module, bool showInfo)
{
    const Variant answer = QVAPP()->SERVER()->REQUEST(module, u"SUBMIT", result);
    if (showInfo) {
        show(messageForAnswer(CoreStringOps::After(answer.toText(), u":")));
    }
    return answer;
}

/// A number at the beginning of the rank's text, so that "3. Platz" is rank 3 and the empty value 0.
std::int32_t rankNumber(const Variant& rank)
{
    return toWhole(numberAtStart(rank.toText()).value);
}

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
    const std::int32_t atLeastNone = pErrorsMade < 0 ? 0 : pErrorsMade;
    const std::int32_t made = atLeastNone > pErrorsMax ? pErrorsMax : atLeastNone;
    return toWhole(pPoints - checkedDivide(pPoints, pErrorsMax) * made);
}

std::shared_ptr<cls_DataScores> cls_AppRate::HIGHSCORE(StringView pModule) const
{
    auto scores = std::make_shared<cls_DataScores>();
    if (!QVAPP()->SERVER()->ONLINE()) {
        loadOrEmpty(*scores, highscoreFile(pModule));
        return scores;
    }
    const String answer = QVAPP()->SERVER()->REQUEST(pModule, u"GET").toText();
    if (!answer.empty()) {
        scores->DATA()->Unpack(answer);
    }
    return scores;
}

void cls_AppRate::HIGHSCORELIST(StringView pTitle, std::int32_t pRank, StringView pModule,
                                const void* /*pFlags*/) const
{
    const String file = highscoreFile(pModule);
    const CoreFiles& files = coreRoot().CoreFiles();
    const FileStamp before = files.Changed(file);
    const auto scores = HIGHSCORE(pModule);
    if (QVAPP()->SERVER()->ONLINE()) {
        scores->SHOW(pTitle, pRank, true);
        return;
    }
    const std::int32_t shown = scores->COUNT();
    scores->SHOWLOCAL(pTitle, pRank, true);
    const bool reset = shown > 0 && scores->COUNT() == 0;
    // The window stood open without a lock: what another program has entered meanwhile must not be lost.
    const FileLock lock(file);
    if (reset || files.Changed(file) == before) {
        scores->SAVE(file);
    }
}

std::int32_t cls_AppRate::SUBMIT(double pPoints, double pPointsMax, StringView pUEBM,
                                 const CoreParameters* pAdditional, StringView pHSModule, bool pShowInfo,
                                 std::int32_t pLocalMax) const
{
    RESULT(pPoints, pPointsMax, pUEBM, pAdditional);
    if (pHSModule == u"RESULT" || pHSModule == u"RESULTS") {
        return 0;
    }
    if (QVAPP()->SERVER()->AVAILABLE()) {
        return rankNumber(
            submitToMaster(packedResult(pPoints, pPointsMax, pUEBM, pAdditional), pHSModule, pShowInfo));
    }
    cls_DataScores scores;
    Variant rank;
    {
        const String file = highscoreFile(pHSModule);
        const FileLock lock(file);
        loadOrEmpty(scores, file);
        scores.ONCE(false);
        scores.MAXIMUM(pLocalMax);
        rank = scores.ADD(pPoints, pPointsMax, pUEBM, pAdditional);
        scores.SAVE(file);
    }
    if (pShowInfo) {
        show(messageForRank(rank, pLocalMax, scores.COUNT()));
    }
    return rankNumber(rank);
}

void cls_AppRate::RESULT(double pPoints, double pPointsMax, StringView pUEBM,
                         const CoreParameters* pAdditionalData) const
{
    if (QVAPP()->SERVER()->AVAILABLE()) {
        QVAPP()->SERVER()->COMMAND(u"RESULTS", u"SUBMIT",
                                   packedResult(pPoints, pPointsMax, pUEBM, pAdditionalData));
        return;
    }
    const String file = resultsFile();
    const FileLock lock(file);
    cls_DataScores scores;
    loadOrEmpty(scores, file);
    scores.ADD(pPoints, pPointsMax, pUEBM, pAdditionalData);
    scores.SAVE(file);
}

bool cls_AppRate::PRINTCERTIFICATE(StringView pText, const CoreParameters* pMore) const
{
    CoreParameters values = certificateValues();
    if (pMore != nullptr) {
        values.Merge(*pMore);
    }
    values.Set(u"TEXT", replaced(pText, u"\r\n", u"\r\n\r\n"));

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
