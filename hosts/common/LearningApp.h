#pragma once

#include "common/Round.h"
#include "common/ctl_Reference.h"
#include "core/String.h"
#include "visual/Form.h"
#include "visual/FormDesign.h"

#include <functional>
#include <memory>
#include <span>
#include <vector>

namespace learning
{

/// What the frame says for an app, each as "German|English".
struct AppTexts {
    phial::StringView title;
    // The start page.
    phial::StringView question;
    phial::StringView introduction; ///< up to four lines; ends with the choice of the level
    phial::StringView note;         ///< what counts as right
    /// What may be looked up while a task is worked on, such as "Atommassen|Atomic masses".
    phial::StringView reference{};
    /// What a pupil reads whom the teacher has not let in yet.
    phial::StringView waiting;
    /// Behind the last try of a task: {1} what would have been right.
    phial::StringView missed = u"Schade. Richtig wären {1}.|A pity. {1} would be right.";
    // Behind a round. {1} solved, {2} tasks.
    phial::StringView solved;
    /// Behind it, where it is more than in the last round: one more, and {1} more.
    phial::StringView oneMore{};
    phial::StringView more{};
    phial::StringView diploma; ///< title of the certificate
    /// The certificate's sentence, behind the name: {1} solved, {2} tasks, {3} level, {4} points, {5} of how
    /// many, {6} mark.
    phial::StringView certificate;
};

/// The start page has room for so many levels.
inline constexpr std::size_t MostLevelsShown = 8;

/// A level's name on the start page. The German one goes to the lists, in every language, since they compare
/// by it.
struct LevelTitle {
    phial::String german;
    phial::String english;
};

/// Which of a level's tasks a round is to have.
struct TaskChoice {
    /// Whether a task of that name comes before others.
    std::function<bool(phial::StringView name)> preferred;
    /// No others at all, unless none is preferred.
    bool preferredOnly = false;
};

/// How the page of tasks is divided between the app and the frame.
enum class TaskRoom : std::uint8_t {
    Card,  ///< a card, an answer and a pad, see frame_design::TaskPlaces
    Board, ///< one large board, with what the frame has beside and below it, see frame_design::BoardPlaces
};

/// What a learning app brings to the frame: its texts, its levels, the controls of its task page, and what it
/// knows about its tasks. The frame has everything else: the window, the pages, points and tries, the
/// classroom, lists and certificates.
///
/// The frame calls `attach` once, then `begin` for each round and `show` for each of its tasks, behind the
/// round once more to tell about them; everything below these two is called only while a task is shown.
class LearningApp
{
public:
    /// How an answer is filled in where nobody types: in pictures of the app.
    using Sample = Judgement;

    LearningApp() = default;
    virtual ~LearningApp() = default;
    LearningApp(const LearningApp&) = delete;
    LearningApp& operator=(const LearningApp&) = delete;

    virtual const AppTexts& texts() const = 0;
    /// What keeps the app from starting, in the language in force; empty when it has all it needs.
    virtual phial::String missing() const { return {}; }
    /// Further ones than MostLevelsShown are not offered.
    virtual std::vector<LevelTitle> levels() const = 0;
    /// The highscore of the app's rounds. A classroom has one list of a name for all apps, so an app whose
    /// rounds are not to be compared with those of others has a name of its own, which its `data/app.txt`
    /// tells the master as well.
    virtual phial::StringView highscore() const { return u"HIGHSCORE"; }
    /// What the teacher should mend in the app's files, in the language in force; empty for nothing.
    virtual phial::String complaint() const { return {}; }

    /// What the app's controls need of the page.
    virtual TaskRoom room() const { return TaskRoom::Card; }
    /// The app's controls, which stand in `pan_Task` at the places that its room has for them. The Tab key
    /// goes through them before it comes to the frame's buttons.
    virtual std::span<const phial::ControlDesign> controls() const = 0;
    /// They stand: the app finishes them. They end with the form, which outlives the app's last call.
    virtual void attach(phial::Form& form) = 0;
    /// Puts the texts that are not of the design in the language in force.
    virtual void TRANSLATE() {}

    /// Whether there is a task of that name, which may be from a former run and another list.
    virtual bool hasTask(phial::StringView /*name*/) const { return true; }
    /// Draws the tasks of a round and gives how many there are, at least one.
    virtual int begin(std::size_t level, const TaskChoice& choice) = 0;
    /// Shows a task of the round, counted from 1, without an answer and open for one.
    virtual void show(int position) = 0;
    /// What tells the task that is shown apart from all others, in any language.
    virtual phial::String taskName() const = 0;
    /// What screen readers say of the task that is shown, in the language in force; its name by itself.
    virtual phial::String spoken() const { return taskName(); }
    /// The task in one line of plain text, as the summary lists it.
    virtual phial::String taskTitle() const { return taskName(); }
    /// The present answer, by which the same one is known again however it was written.
    virtual phial::String answer() const = 0;
    /// What the present answer is worth.
    virtual Judgement judge() = 0;
    /// Opens the pocket calculator for the present answer; an app whose answers are no numbers has none.
    virtual void calculate() {}
    /// The present answer is to be replaced by what is typed next.
    virtual void retry() {}
    /// The task is decided: its answer can be read and no longer changed.
    virtual void close() = 0;
    /// What has the focus while the task is worked on.
    virtual phial::ControlPtr field() const = 0;

    /// The right answer with its unit, as it is written in the verdict.
    virtual phial::String solution() const = 0;
    /// What is told to a pupil whose answer is none, in the language in force.
    virtual phial::String unreadable() const = 0;
    /// What the hint tells; lines are divided by "<br>".
    virtual phial::String hint() const = 0;

    /// What the answer that was judged last, a wrong one, shows about how it was come by, in one sentence
    /// that does not give the solution; empty where nothing can be told.
    virtual phial::String remark() const { return {}; }
    /// What a pupil has mastered who has solved the task: short sentences about the work, "German|English",
    /// of which the frame chooses one. It has some of its own for how the task was solved.
    virtual std::vector<phial::StringView> mastered() const { return {}; }
    /// What is shown free of charge after a second wrong try; lines are divided by "<br>".
    virtual phial::String support() const { return {}; }
    /// How the solution is come by, shown when the task is decided.
    virtual phial::String working() const { return {}; }
    /// The chapter of the app's help book that belongs to the task that is shown, such as "K2"; empty for the
    /// book's menu.
    virtual phial::StringView helpChapter() const { return {}; }
    /// What may be looked up for nothing in a round of the level that has begun, in the language in force;
    /// without any there is no drawer.
    virtual std::vector<ReferenceEntry> reference() const { return {}; }

    /// Puts an answer of that kind into the page; a wrong one is another one than before.
    virtual void fill(Sample sample) = 0;
};

/// Makes the app anew, from what the installation tree holds now.
using MakeApp = std::function<std::unique_ptr<LearningApp>()>;

} // namespace learning
