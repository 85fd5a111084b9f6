#include "common/TaskPage.h"

#include "app/cls_App.h"
#include "app/cls_AppUser.h"
#include "app/sys_Global.h"
#include "common/FrameDesign.h"
#include "common/FrameTexts.h"
#include "common/MissedTasks.h"
#include "common/OutcomeSigns.h"
#include "common/TermFit.h"
#include "common/ctl_RoundDots.h"
#include "core/CoreRoot.h"
#include "core/CoreTiming.h"
#include "visual/Markup.h"
#include "visual/ctl_Button.h"
#include "visual/ctl_Label.h"

#include <algorithm>
#include <utility>

namespace learning
{

using phial::String;
using phial::StringView;

namespace
{

constexpr std::int32_t DeafTime = 400; // milliseconds
constexpr int StreakLength = 3;

OutcomeSign signOf(Verdict verdict)
{
    switch (verdict) {
    case Verdict::Right:
        return RightSign;
    case Verdict::Missed:
        return MissedSign;
    case Verdict::Wrong:
    case Verdict::Unreadable:
        break;
    }
    return TryAgainSign;
}

MissedTasks ofThisPupil()
{
    return MissedTasks(phial::QVAPP()->USER()->SCREENNAME());
}

} // namespace

TaskPage::TaskPage(phial::Form& form, LearningApp& app)
    : form_(form), app_(app), words_(static_cast<std::size_t>(phial::coreRoot().CoreTiming().Now())),
      deaf_(u"tmr_Deaf", DeafTime), drawer_(form)
{
    connections_ += deaf_.Tick.connect([this] { deaf_.Enabled(false); });
    connections_ += get<phial::ctl_Button>(u"but_Check")->CLICK.connect([this] { press(); });
    connections_ += get<phial::ctl_Button>(u"but_Hint")->CLICK.connect([this] { giveHint(); });
}

void TaskPage::begin(std::size_t level)
{
    const MissedTasks known = ofThisPupil();
    begin(level, {.preferred = [&known](phial::StringView task) { return known.has(task); }});
}

void TaskPage::beginMissed(std::size_t level)
{
    const auto again = std::exchange(missed_, {});
    begin(level, {.preferred =
                      [&again](phial::StringView task) {
                          return std::find(again.begin(), again.end(), task) != again.end();
                      },
                  .preferredOnly = true});
}

void TaskPage::begin(std::size_t level, const TaskChoice& choice)
{
    missed_.clear();
    round_.emplace(app_.begin(level, choice));
    streak_ = 0;
    opening_ = chooseOpening();
    drawer_.close();
    fillDrawer();
    showTask();
}

/// Who sits down for the first time is greeted.
StringView TaskPage::chooseOpening()
{
    const String name = phial::QVAPP()->USER()->SCREENNAME();
    const bool isKnown = std::exchange(greeted_, name) == name;
    return words_.next(isKnown ? MascotMoment::RoundBegins : MascotMoment::Greeting);
}

/// What stands in the place of a verdict until the first one.
String TaskPage::openingText() const
{
    return round_->position() == 1 ? translate(opening_, phial::Variant::Array{phial::plainMarkup(greeted_)})
                                   : String();
}

void TaskPage::fillDrawer()
{
    drawer_.fill(app_.reference(), translate(app_.texts().reference));
}

std::vector<ReviewedTask> TaskPage::review()
{
    std::vector<ReviewedTask> tasks;
    for (int position = 1; position <= round_->count(); ++position) {
        app_.show(position);
        tasks.push_back(
            {app_.taskTitle(), app_.working(), round_->outcome(position), round_->pointsOf(position)});
    }
    return tasks;
}

void TaskPage::deafFor(std::int32_t milliseconds)
{
    deaf_.Interval(milliseconds);
}

void TaskPage::end()
{
    deaf_.Enabled(false);
    round_.reset();
    caption(form_, u"lab_Points", {});
}

void TaskPage::TRANSLATE()
{
    app_.TRANSLATE();
    if (round_) {
        fillDrawer();
        showRoundTexts();
    }
}

void TaskPage::press()
{
    if (deaf_.Enabled()) {
        return;
    }
    verdict_ && round_->decided() ? goOn() : check();
}

void TaskPage::showTask()
{
    verdict_.reset();
    answers_.clear();
    isRepeated_ = false;
    hintShown_ = false;
    app_.show(round_->position());
    get<phial::ctl_Button>(u"but_Hint")->Enabled(true);
    showRoundTexts();
    Shown.raise();
}

void TaskPage::sayTask()
{
    say({openingText(), get<phial::ctl_Label>(u"lab_Progress")->accessibleText(), app_.spoken()});
}

String TaskPage::word()
{
    if (!verdict_) {
        return openingText();
    }
    if (*verdict_ == Verdict::Right) {
        return streak_ == StreakLength ? translate(praise_) : String();
    }
    if (*verdict_ != Verdict::Wrong || round_->triesLeft() != 1) {
        return {};
    }
    const String remark = app_.remark();
    return remark.empty() ? helpText() : remark;
}

/// What comes into view while the focus stays in the answer is said, one sentence after the other.
void TaskPage::say(std::initializer_list<String> texts)
{
    String said;
    for (const String& text : texts) {
        said += said.empty() || text.empty() ? text : u"\n" + text;
    }
    get<phial::ctl_Label>(u"lab_Feedback")->frame().announce(said);
}

/// The texts that depend on the state of the round.
void TaskPage::showRoundTexts()
{
    showVerdict();
    showHelp();
    showCheckCaption();
    showProgress();
    get<phial::ctl_Button>(u"but_Hint")
        ->Caption(translate(u"Tipp (−{1} Punkte)", u"Hint (−{1} points)", {number(Round::Deduction)}));
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
    get<ctl_RoundDots>(u"dot_Round")->show(*round_);
}

void TaskPage::check()
{
    count(app_.judge());
    deaf_.Enabled(deaf_.Interval() > 0);
    showRoundTexts();
    if (round_->decided()) {
        noteOutcome();
        app_.close();
        get<phial::ctl_Button>(u"but_Hint")->Enabled(false);
    } else {
        app_.retry();
    }
    app_.field()->SetFocus();
    say({get<phial::ctl_Label>(u"lab_Feedback")->accessibleText(),
         get<phial::ctl_Label>(u"lab_Hint")->accessibleText()});
    if (!isRepeated_) {
        Judged.raise(*verdict_);
    }
}

/// Remembers for later rounds what went wrong, and forgets what has been learnt.
void TaskPage::noteOutcome()
{
    const String task = app_.taskName();
    switch (round_->outcome(round_->position())) {
    case Outcome::Missed:
        missed_.push_back(task);
        ofThisPupil().missed(task);
        return;
    case Outcome::AtOnce:
        ofThisPupil().solved(task);
        return;
    case Outcome::Later:
    case Outcome::Open:
        return;
    }
}

/// The same wrong answer again is most likely a slip, and costs no try.
void TaskPage::count(Judgement judgement)
{
    const String answer = app_.answer();
    isRepeated_ = judgement == Judgement::Wrong && std::ranges::find(answers_, answer) != answers_.end();
    if (isRepeated_) {
        return;
    }
    verdict_ = round_->count(judgement);
    if (verdict_ == Verdict::Wrong) {
        answers_.push_back(answer);
    } else if (verdict_ == Verdict::Right) {
        choosePraise();
    } else if (verdict_ == Verdict::Missed) {
        streak_ = 0;
    }
}

/// A streak is worth more than what was mastered in its last task.
void TaskPage::choosePraise()
{
    const Outcome outcome = round_->outcome(round_->position());
    streak_ = outcome == Outcome::AtOnce ? streak_ % StreakLength + 1 : 0;
    praise_ = streak_ == StreakLength ? words_.next(MascotMoment::Streak)
                                      : praises_.choose(app_.mastered(), outcome);
}

void TaskPage::goOn()
{
    if (round_->next()) {
        showTask();
        app_.field()->SetFocus();
        sayTask();
    } else {
        Finished.raise();
    }
}

void TaskPage::showVerdict()
{
    const OutcomeSign look = verdict_ ? signOf(*verdict_) : OutcomeSign{};
    caption(form_, u"lab_Verdict", String(look.sign));
    caption(form_, u"lab_Feedback", verdictText());
    for (const StringView label : {u"lab_Verdict", u"lab_Feedback"}) {
        get<phial::ctl_Label>(label)->ForeColor(look.colour);
    }
}

String TaskPage::verdictText()
{
    if (!verdict_) {
        return openingText();
    }
    if (isRepeated_) {
        return translate(u"Das hattest du schon. Versuche es anders.",
                         u"You had that already. Try another way.");
    }
    switch (*verdict_) {
    case Verdict::Right:
        return rightText();
    case Verdict::Wrong:
        return wrongText();
    case Verdict::Missed:
        return translate(app_.texts().missed, phial::Variant::Array{app_.solution()});
    case Verdict::Unreadable:
        break;
    }
    return app_.unreadable();
}

String TaskPage::rightText() const
{
    const int points = round_->lastPoints();
    const String right =
        points == 1 ? translate(u"Richtig! {1}, ein Punkt für dich.", u"Right! {1}, one point for you.",
                                {app_.solution()})
                    : translate(u"Richtig! {1}, {2} Punkte für dich.", u"Right! {1}, {2} points for you.",
                                {app_.solution(), number(points)});
    return right + u"<br>" + translate(praise_);
}

/// A kind of error that can be told says more than "not quite".
String TaskPage::wrongText()
{
    const String tries = round_->triesLeft() == 1
                             ? translate(u"Du hast noch einen Versuch.", u"You have one try left.")
                             : translate(u"Du hast noch {1} Versuche.", u"You have {1} tries left.",
                                         {number(round_->triesLeft())});
    const String remark = app_.remark();
    return (remark.empty() ? translate(u"Leider nicht. ", u"Not quite. ") : remark + u"<br>") + tries;
}

void TaskPage::showHelp()
{
    showFitting(*get<phial::ctl_Label>(u"lab_Hint"), helpText(), frame_design::HelpSize);
}

/// What stands beside the button of the hint.
String TaskPage::helpText() const
{
    if (round_->decided()) {
        return app_.working();
    }
    if (hintShown_) {
        return app_.hint();
    }
    return round_->triesLeft() == 1 ? app_.support() : String();
}

void TaskPage::giveHint()
{
    if (!round_ || round_->decided() || hintShown_) {
        return;
    }
    hintShown_ = true;
    round_->takeHint();
    showHelp();
    get<phial::ctl_Button>(u"but_Hint")->Enabled(false);
    app_.field()->SetFocus();
    if (verdict_ == Verdict::Wrong) {
        app_.retry(); // the next try replaces the wrong one
    }
    say({get<phial::ctl_Label>(u"lab_Hint")->accessibleText()});
    HintGiven.raise();
}

} // namespace learning
