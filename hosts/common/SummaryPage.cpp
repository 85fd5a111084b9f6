#include "common/SummaryPage.h"

#include "app/cls_App.h"
#include "app/sys_Global.h"
#include "common/FrameTexts.h"
#include "common/ListNotices.h"
#include "core/CoreDialogs.h"
#include "core/CoreRoot.h"
#include "core/RuntimeError.h"
#include "results/cls_AppRate.h"
#include "results/cls_DataScores.h"
#include "results/ctl_Mark.h"
#include "visual/ctl_Button.h"
#include "visual/ctl_Label.h"
#include "visual/ctl_Pannel.h"

namespace learning
{

using phial::QVAPP;
using phial::String;
using phial::StringView;

namespace
{

/// Does something that writes or prints; a failure is told with these words.
template <typename Action>
void orTell(Action action, const String& failure)
{
    try {
        action();
    } catch (const phial::RuntimeError&) {
        phial::coreRoot().CoreDialogs().Error(failure);
    }
}

} // namespace

SummaryPage::SummaryPage(phial::Form& form, const LearningApp& app)
    : form_(form), texts_(app.texts()), highscore_(app.highscore()), review_(form)
{
    const auto press = [this](StringView button, auto action) {
        connections_ += form_.control<phial::ctl_Button>(button)->CLICK.connect(action);
    };
    press(u"but_List", [this] { showList(); });
    press(u"but_Certificate", [this] { printCertificate(); });
    press(u"but_Export", [this] { exportList(); });
}

void SummaryPage::show(FinishedRound round, std::vector<ReviewedTask> tasks)
{
    round_ = std::move(round);
    const RoundResult& result = round_.result;
    rank_ = 0;
    const auto bar = form_.control<phial::ctl_Pannel>(u"pan_ResultDone");
    bar->Width(form_.control<phial::ctl_Pannel>(u"pan_ResultBack")->Width() * round_.result.share());
    bar->Visible(round_.result.points > 0);
    form_.control<phial::ctl_Button>(u"but_Certificate")->Enabled(round_.kind == RoundKind::Counting);
    offerMissed(result.solved < result.tasks);
    showMark();
    review_.show(std::move(tasks));
    TRANSLATE();
    const auto praise = form_.control<phial::ctl_Label>(u"lab_Praise");
    praise->frame().announce(praise->accessibleText() + u"\n" +
                             form_.control<phial::ctl_Label>(u"lab_Result")->accessibleText() + u"\n" +
                             form_.control<phial::ctl_Label>(u"lab_Solved")->accessibleText());
}

String SummaryPage::word() const
{
    return form_.control<phial::ctl_Label>(u"lab_Praise")->Caption() + u"<br>" +
           form_.control<phial::ctl_Label>(u"lab_Solved")->Caption();
}

/// Where nothing was missed the coloured button has the room of both.
void SummaryPage::offerMissed(bool available)
{
    const auto again = form_.control<phial::ctl_Button>(u"but_Again");
    const auto missed = form_.control<phial::ctl_Button>(u"but_Missed");
    const double end = form_.control<phial::ctl_Button>(u"but_Quit")->Left();
    const double gap = end - missed->Left() - missed->Width();
    missed->Visible(available);
    again->Width((available ? missed->Left() : end) - gap - again->Left());
}

void SummaryPage::submit()
{
    submitting(true);
    phial::HandedIn handedIn;
    try {
        const phial::CoreParameters additional = additionalValues(round_.result);
        handedIn = QVAPP()->RATE()->handIn(round_.result.points, round_.result.maximum,
                                           round_.result.exercise, &additional, highscore_);
    } catch (const phial::RuntimeError&) {
        submitting(false); // the page goes on whatever happens to the lists
        throw;
    }
    rank_ = handedIn.rank;
    submitting(false);
    tellAboutLists(handedIn);
}

void SummaryPage::submitting(bool value)
{
    isSubmitting_ = value;
    offer(!value);
    showRank();
}

void SummaryPage::offer(bool available)
{
    form_.focus(nullptr); // it would go on to the button that leaves
    for (const auto* button : {u"but_Again", u"but_Missed", u"but_List", u"but_Certificate", u"but_Export"}) {
        form_.control<phial::ctl_Button>(button)->Enabled(available);
    }
}

void SummaryPage::showMark()
{
    const auto mark = form_.control<phial::ctl_Mark>(u"ctl_Mark1");
    mark->MARK(static_cast<phial::enm_Mark>(
        QVAPP()->RATE()->MARKPOINTS(round_.result.points, round_.result.maximum, round_.result.exercise)));
    // The control has its own size.
    const auto words = form_.control<phial::ctl_Label>(u"lab_Mark");
    mark->frame().Left(words->Left() + (words->Width() - mark->frame().Width()) / 2);
}

void SummaryPage::TRANSLATE()
{
    const RoundResult& result = round_.result;
    showPraise();
    caption(form_, u"lab_Result",
            translate(u"{1} von {2} Punkten", u"{1} of {2} points",
                      {number(result.points), number(result.maximum)}));
    caption(form_, u"lab_Mark", translate(u"Note {1}", u"Mark {1}", {markText(result)}));
    showRank();
}

/// What comes first, and what stands below the points.
void SummaryPage::showPraise()
{
    const double share = round_.result.share();
    const String praise = share >= 0.9   ? translate(u"Ausgezeichnet!", u"Excellent!")
                          : share >= 0.6 ? translate(u"Gut gemacht!", u"Well done!")
                                         : translate(u"Übung macht den Meister!", u"Practice makes perfect!");
    const bool solvedFirst = share < 0.6 && round_.result.solved > 0;
    caption(form_, u"lab_Praise", solvedFirst ? solvedText() : praise);
    caption(form_, u"lab_Solved", solvedFirst ? praise : solvedText());
}

String SummaryPage::solvedText() const
{
    const RoundResult& result = round_.result;
    const int more = result.solved - round_.solvedBefore.value_or(result.solved);
    return translate(texts_.solved, {number(result.solved), number(result.tasks)}) +
           (more == 1  ? translate(texts_.oneMore)
            : more > 1 ? translate(texts_.more, phial::Variant::Array{number(more)})
                       : String());
}

void SummaryPage::showRank()
{
    caption(form_, u"lab_Rank",
            isSubmitting_
                ? translate(u"Dein Ergebnis wird eingetragen …", u"Your result is being handed in …")
            : round_.kind == RoundKind::Practice
                ? translate(u"Diese Runde war zum Üben, sie zählt in keiner Liste.",
                            u"This round was for practice, it counts in no list.")
            : rank_ > 0 ? translate(u"Platz {1} der Bestenliste", u"Number {1} of the best", {number(rank_)})
                        : String());
}

void SummaryPage::showList()
{
    QVAPP()->RATE()->HIGHSCORELIST(translate(u"Die besten Runden", u"The best rounds"),
                                   rank_ > 0 ? rank_ : -1, highscore_);
    tellAboutKeptLists();
}

void SummaryPage::printCertificate()
{
    orTell(
        [this] {
            phial::CoreParameters more;
            more.Set(u"TITLE", translate(texts_.diploma));
            QVAPP()->RATE()->PRINTCERTIFICATE(
                certificateText(texts_.certificate, round_.result,
                                translate(round_.level.german, round_.level.english)),
                &more);
        },
        translate(u"Die Urkunde konnte nicht gedruckt werden. Bitte prüfe den Drucker.",
                  u"The certificate could not be printed. Please check the printer."));
}

void SummaryPage::exportList()
{
    orTell([this] { QVAPP()->RATE()->HIGHSCORE(highscore_)->EXPORT(); },
           translate(u"Die Datei konnte nicht geschrieben werden. Bitte wähle einen anderen Ort.",
                     u"The file could not be written. Please choose another place."));
}

} // namespace learning
