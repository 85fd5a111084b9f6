#pragma once

#include "common/LearningApp.h"
#include "common/MascotTexts.h"
#include "common/PraiseChoice.h"
#include "common/ReferenceDrawer.h"
#include "common/ReviewList.h"
#include "core/Event.h"
#include "visual/Form.h"
#include "visual/Timer.h"

#include <initializer_list>
#include <optional>
#include <vector>

namespace learning
{

/// The page of the tasks around what the app shows there: progress, verdict and hint, and the coloured
/// button, which checks the answer and goes on to the next task.
///
/// The controls are those of the window's design; the page belongs to the window and ends with it.
class TaskPage
{
public:
    TaskPage(phial::Form& form, LearningApp& app);
    TaskPage(const TaskPage&) = delete;
    TaskPage& operator=(const TaskPage&) = delete;

    /// Begins a round of that level and shows its first task. What the pupil missed in former rounds comes
    /// first.
    void begin(std::size_t level);
    /// Begins a round of those tasks of the last one that were missed.
    void beginMissed(std::size_t level);
    /// The tasks of the round that is over, in the language in force. Their page shows the last one then.
    std::vector<ReviewedTask> review();
    /// Forgets the round; its points leave the header.
    void end();
    /// The round under way or just finished; null without one.
    const Round* round() const { return round_ ? &*round_ : nullptr; }
    /// How long the coloured button hears no press behind a verdict, in milliseconds: 400 at first, so that a
    /// press that was meant once does not skip what it has brought. 0: it always hears.
    void deafFor(std::int32_t milliseconds);
    /// Tells the hint, once a task. Without a round nothing happens.
    void giveHint();
    /// Opens, turns and closes the drawer with what may be looked up.
    void lookUp() { drawer_.turn(); }
    /// Whether it was open.
    bool closeDrawer() { return drawer_.close(); }
    /// What the mascot may say now, which stands on the page as well: at the beginning of a round, at the
    /// second wrong try, and behind three tasks solved at once. Empty for nothing.
    phial::String word();
    /// Has screen readers say the task that is shown, once its page has the focus.
    void sayTask();
    /// Puts all texts that are not of the design in the language in force.
    void TRANSLATE();

    /// An answer has been judged, and the page shows it. One that was given before is not judged again.
    phial::Event<Verdict> Judged;
    /// Another task is shown.
    phial::Event<> Shown;
    /// The hint has been taken.
    phial::Event<> HintGiven;
    /// The last task is decided and the pupil wants the result.
    phial::Event<> Finished;

private:
    void begin(std::size_t level, const TaskChoice& choice);
    void fillDrawer();
    void press();
    void noteOutcome();
    void choosePraise();
    phial::StringView chooseOpening();
    phial::String openingText() const;
    void showTask();
    void showRoundTexts();
    void showCheckCaption();
    void showProgress();
    void check();
    void count(Judgement judgement);
    void goOn();
    void say(std::initializer_list<phial::String> texts);
    void showVerdict();
    phial::String verdictText();
    phial::String rightText() const;
    phial::String wrongText();
    void showHelp();
    phial::String helpText() const;

    template <typename Class>
    std::shared_ptr<Class> get(phial::StringView name) const
    {
        return form_.control<Class>(name);
    }

    phial::Form& form_;
    LearningApp& app_;
    phial::Connections connections_;
    std::optional<Round> round_;
    std::vector<phial::String> missed_; ///< of this round
    std::optional<Verdict> verdict_;    ///< what the present task shows
    MascotWords words_;
    phial::StringView opening_; ///< of the round
    phial::String greeted_;     ///< the pupil
    int streak_ = 0;            ///< tasks solved at once, one after the other
    PraiseChoice praises_;
    phial::StringView praise_; ///< of the present task, once it is solved
    bool hintShown_ = false;
    bool isRepeated_ = false;            ///< the last answer has been judged before
    std::vector<phial::String> answers_; ///< wrong ones to the present task
    phial::Timer deaf_;
    ReferenceDrawer drawer_;
};

} // namespace learning
