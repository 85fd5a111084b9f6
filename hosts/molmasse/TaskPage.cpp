#include "molmasse/TaskPage.h"

#include "core/Locale.h"
#include "core/SessionState.h"
#include "molmasse/MolmasseDesign.h"
#include "molmasse/TrainerData.h"
#include "molmasse/TrainerTexts.h"

namespace molmasse
{

using phial::String;
using phial::Variant;

TaskPage::TaskPage(phial::Form& form, std::shared_ptr<phial::cls_DataElements> elements)
    : form_(form), elements_(std::move(elements)), answer_(form.control<phial::TextBox>(u"txt_Answer")),
      pad_(form, u"but_Key")
{
    buildPad();
    connect();
}

void TaskPage::buildPad()
{
    pad_.adopt();
    pad_.each([](phial::ctl_Button& key, std::int32_t index) {
        const phial::StringView face = layout::PadKeys[index];
        key.Caption(face == u"," ? String(1, phial::currentLocale().decimalSign) : String(face));
    });
}

void TaskPage::connect()
{
    connections_ += get<phial::ctl_Button>(u"but_Check")->CLICK.connect([this] {
        verdict_ && round_->decided() ? goOn() : check();
    });
    connections_ += get<phial::ctl_Button>(u"but_Hint")->CLICK.connect([this] { giveHint(); });
    pad_.connectEach([this](phial::ctl_Button& button, std::int32_t index) {
        return button.CLICK.connect([this, index] { pressPad(index); });
    });
}

void TaskPage::begin(Round round)
{
    round_ = std::move(round);
    showTask();
}

void TaskPage::end()
{
    round_.reset();
    caption(form_, u"lab_Points", {});
}

void TaskPage::TRANSLATE()
{
    pad_(pad_.UBound())
        ->frame()
        .AccessibleName(translate(u"Letztes Zeichen löschen", u"Delete last character"));
    if (round_) {
        showRoundTexts();
    }
}

void TaskPage::showTask()
{
    verdict_.reset();
    hintShown_ = false;
    get<phial::ctl_TermLabel>(u"trm_Formula")->Term(round_->task().formula);
    caption(form_, u"lab_Hint", {});
    get<phial::ctl_Button>(u"but_Hint")->Enabled(true);
    answer_->Text({});
    answer_->Locked(false);
    showRoundTexts();
}

/// The texts that depend on the state of the round.
void TaskPage::showRoundTexts()
{
    const Task& task = round_->task();
    caption(form_, u"lab_Name", translate(task.germanName, task.englishName));
    caption(form_, u"lab_Feedback", {});
    if (verdict_) {
        showVerdict(*verdict_);
    }
    showCheckCaption();
    showProgress();
}

void TaskPage::showCheckCaption()
{
    get<phial::ctl_Button>(u"but_Check")
        ->Caption(!round_->decided()   ? translate(u"Prüfen", u"Check")
                  : round_->finished() ? translate(u"Ergebnis", u"Result")
                                       : translate(u"Weiter", u"Next"));
}

void TaskPage::showProgress()
{
    caption(form_, u"lab_Progress",
            translate(u"Aufgabe {1} von {2}", u"Task {1} of {2}",
                      {number(round_->position()), number(round_->count())}));
    caption(form_, u"lab_Points", translate(u"{1} Punkte", u"{1} points", {number(round_->points())}));
    const int done = round_->position() - (round_->decided() ? 0 : 1);
    const double full = get<phial::ctl_Pannel>(u"pan_ProgressBack")->Width();
    const auto bar = get<phial::ctl_Pannel>(u"pan_ProgressDone");
    bar->Width(full * done / round_->count());
    bar->Visible(done > 0);
}

void TaskPage::check()
{
    const Verdict verdict = round_->check(answer_->Text());
    verdict_ = verdict;
    showRoundTexts();
    answer_->Locked(round_->decided());
    if (round_->decided()) {
        get<phial::ctl_Button>(u"but_Hint")->Enabled(false);
        if (verdict == Verdict::Missed) {
            giveHint();
        }
    } else {
        selectAnswer();
    }
    answer_->SetFocus();
}

void TaskPage::goOn()
{
    if (round_->next()) {
        showTask();
        answer_->SetFocus();
    } else {
        Finished.emit();
    }
}

void TaskPage::selectAnswer()
{
    answer_->SelStart(0);
    answer_->SelLength(static_cast<std::int32_t>(answer_->Text().size()));
}

void TaskPage::showVerdict(Verdict verdict)
{
    const auto feedback = get<phial::ctl_Label>(u"lab_Feedback");
    const Variant solution = massText(round_->solution());
    switch (verdict) {
    case Verdict::Right:
        feedback->ForeColor(phial::Palette::Right);
        feedback->Caption(translate(u"Richtig! {1} g/mol, {2} Punkte für dich.",
                                    u"Right! {1} g/mol, {2} points for you.",
                                    {solution, number(round_->lastPoints())}));
        break;
    case Verdict::Wrong:
        feedback->ForeColor(phial::Palette::Failure);
        feedback->Caption(round_->triesLeft() == 1 ? translate(u"Leider nicht. Du hast noch einen Versuch.",
                                                               u"Not quite. You have one try left.")
                                                   : translate(u"Leider nicht. Du hast noch {1} Versuche.",
                                                               u"Not quite. You have {1} tries left.",
                                                               {number(round_->triesLeft())}));
        break;
    case Verdict::Missed:
        feedback->ForeColor(phial::Palette::Failure);
        feedback->Caption(
            translate(u"Schade. Richtig wären {1} g/mol.", u"A pity. {1} g/mol would be right.", {solution}));
        break;
    case Verdict::NoNumber:
        feedback->ForeColor(phial::Palette::Failure);
        feedback->Caption(translate(u"Bitte gib eine Zahl ein, zum Beispiel 18,0.",
                                    u"Please type a number, for example 18.0."));
        break;
    }
}

void TaskPage::giveHint()
{
    if (!round_ || hintShown_) {
        return;
    }
    hintShown_ = true;
    if (!round_->decided()) {
        round_->takeHint();
    }
    caption(form_, u"lab_Hint", atomsCounted(*elements_, round_->task().formula));
    get<phial::ctl_Button>(u"but_Hint")->Enabled(false);
    answer_->SetFocus();
    if (verdict_ == Verdict::Wrong) {
        selectAnswer(); // the next try replaces the wrong one
    }
}

void TaskPage::pressPad(std::int32_t index)
{
    if (answer_->Locked()) {
        return;
    }
    if (index == pad_.UBound()) {
        if (answer_->SelLength() == 0 && answer_->SelStart() > 0) {
            answer_->SelStart(answer_->SelStart() - 1);
            answer_->SelLength(1);
        }
        answer_->SelText({});
    } else if (static_cast<std::int32_t>(answer_->Text().size()) - answer_->SelLength() <
               answer_->MaxLength()) {
        answer_->SelText(pad_(index)->Caption());
    }
    answer_->SetFocus();
}

} // namespace molmasse
