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

SummaryPage::SummaryPage(phial::Form& form, const AppTexts& texts) : form_(form), texts_(texts)
{
    const auto press = [this](StringView button, auto action) {
        connections_ += form_.control<phial::ctl_Button>(button)->CLICK.connect(action);
    };
    press(u"but_List", [this] { showList(); });
    press(u"but_Certificate", [this] { printCertificate(); });
    press(u"but_Export", [this] { exportList(); });
}

void SummaryPage::show(const RoundResult& result, LevelTitle level, RoundKind kind)
{
    result_ = result;
    level_ = std::move(level);
    kind_ = kind;
    rank_ = 0;
    const auto bar = form_.control<phial::ctl_Pannel>(u"pan_ResultDone");
    bar->Width(form_.control<phial::ctl_Pannel>(u"pan_ResultBack")->Width() * result_.share());
    bar->Visible(result_.points > 0);
    form_.control<phial::ctl_Button>(u"but_Certificate")->Enabled(kind == RoundKind::Counting);
    offerMissed(result.solved < result.tasks);
    showMark();
    TRANSLATE();
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
        const phial::CoreParameters additional = additionalValues(result_);
        handedIn = QVAPP()->RATE()->handIn(result_.points, result_.maximum, result_.exercise, &additional);
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
        QVAPP()->RATE()->MARKPOINTS(result_.points, result_.maximum, result_.exercise)));
    // The control has its own size.
    const auto page = form_.control<phial::ctl_Pannel>(u"pan_Summary");
    mark->frame().Left((page->Width() - mark->frame().Width()) / 2);
}

void SummaryPage::TRANSLATE()
{
    caption(form_, u"lab_Praise",
            result_.share() >= 0.9   ? translate(u"Ausgezeichnet!", u"Excellent!")
            : result_.share() >= 0.6 ? translate(u"Gut gemacht!", u"Well done!")
                                     : translate(u"Übung macht den Meister!", u"Practice makes perfect!"));
    caption(form_, u"lab_Result",
            translate(u"{1} von {2} Punkten", u"{1} of {2} points",
                      {number(result_.points), number(result_.maximum)}));
    caption(form_, u"lab_Solved", translate(texts_.solved, {number(result_.solved), number(result_.tasks)}));
    caption(form_, u"lab_Mark", translate(u"Note {1}", u"Mark {1}", {markText(result_)}));
    showRank();
}

void SummaryPage::showRank()
{
    caption(
        form_, u"lab_Rank",
        isSubmitting_ ? translate(u"Dein Ergebnis wird eingetragen …", u"Your result is being handed in …")
        : kind_ == RoundKind::Practice ? translate(u"Diese Runde war zum Üben, sie zählt in keiner Liste.",
                                                   u"This round was for practice, it counts in no list.")
        : rank_ > 0 ? translate(u"Platz {1} der Bestenliste", u"Number {1} of the best", {number(rank_)})
                    : String());
}

void SummaryPage::showList()
{
    QVAPP()->RATE()->HIGHSCORELIST(translate(u"Die besten Runden", u"The best rounds"),
                                   rank_ > 0 ? rank_ : -1);
    tellAboutKeptLists();
}

void SummaryPage::printCertificate()
{
    orTell(
        [this] {
            phial::CoreParameters more;
            more.Set(u"TITLE", translate(texts_.diploma));
            QVAPP()->RATE()->PRINTCERTIFICATE(
                certificateText(texts_.certificate, result_, translate(level_.german, level_.english)),
                &more);
        },
        translate(u"Die Urkunde konnte nicht gedruckt werden. Bitte prüfe den Drucker.",
                  u"The certificate could not be printed. Please check the printer."));
}

void SummaryPage::exportList()
{
    orTell([] { QVAPP()->RATE()->HIGHSCORE()->EXPORT(); },
           translate(u"Die Datei konnte nicht geschrieben werden. Bitte wähle einen anderen Ort.",
                     u"The file could not be written. Please choose another place."));
}

} // namespace learning
