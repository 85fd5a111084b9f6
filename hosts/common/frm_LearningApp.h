#pragma once

#include "common/AppColours.h"
#include "common/AppMascot.h"
#include "common/AppSounds.h"
#include "common/ClassroomLink.h"
#include "common/FrameLayout.h"
#include "common/LearningApp.h"
#include "common/SummaryPage.h"
#include "common/TaskPage.h"
#include "common/frm_MasterChoice.h"
#include "visual/ControlArray.h"
#include "visual/DesignedForm.h"
#include "visual/Timer.h"
#include "visual/ctl_Button.h"

#include <functional>
#include <optional>

namespace learning
{

/// The window of a learning app: choice of the level, the tasks of a round, the summary; or what is missing,
/// or that the teacher has not opened the app yet. The header shows who works here, and changes it when it is
/// pressed; the footer tells about the classroom. Return does what the coloured button says, F1 opens the
/// help book, F2 the masses or whatever may be looked up, F3 repeats what the mascot has said last, F4 opens
/// the pocket calculator where answers are numbers, F5 gives the hint, Escape ends; everything can be touched
/// as well.
class frm_LearningApp
{
public:
    /// `searchMasters` finds masters to choose from; empty: an address can only be typed.
    explicit frm_LearningApp(std::unique_ptr<LearningApp> app, MasterSearch searchMasters = {});
    phial::Form& form() { return *form_; }
    void Show();
    /// Before it is shown: makes room for the mascot where the screen has it.
    void widen();
    /// The width that this takes at the design's height, in pixels.
    double wideWidth() const;
    /// For the moment in which the window stands: asks who works here when no name is known yet, and logs on
    /// to the classroom. Events run meanwhile.
    void welcome();
    /// Puts all texts in the language in force.
    void TRANSLATE();

    LearningApp& app() { return *app_; }
    /// See TaskPage; for whoever presses faster than a hand.
    void deafFor(std::int32_t milliseconds) { tasks_->deafFor(milliseconds); }
    /// The round under way; null before the first.
    const Round* round() const { return tasks_->round(); }

private:
    enum class Page { Start, Task, Summary, Waiting, Missing };

    double pageMargin() const;
    void makeRoom();
    void buildLevels();
    void nameLevelButtons();
    void connect();
    void connectClassroom();

    void showHelp();
    void toggleFullScreen();
    void backToTask();
    void leave();
    bool leavesRound();
    void askBeforeClosing(bool& rKeeps);
    void showRemembered();
    void forgetMissed();
    void askForUser();
    void nameUser();
    void nameHelp();

    void enterClassroom();
    void chooseClassroom();
    void admit(bool tell);
    void showClassroom();

    void show(Page page);
    phial::ControlPtr firstOf(Page page) const;
    void startRound(std::size_t level);
    void startMissed();
    void finishRound();
    void judged(Verdict verdict);
    void keyDown(phial::KeyEvent& event);
    bool isForField(const phial::KeyEvent& event) const;
    std::function<void()> actionOf(const phial::KeyEvent& event);

    phial::String classroomText() const;
    phial::String missingText() const;
    void showAppTexts();
    template <typename Class>
    std::shared_ptr<Class> get(phial::StringView name) const
    {
        return form_->control<Class>(name);
    }

    std::unique_ptr<LearningApp> app_;
    std::vector<LevelTitle> levelTitles_;
    MasterSearch searchMasters_;
    phial::DesignedForm form_;
    std::optional<FrameLayout> layout_;
    phial::ControlArray<phial::ctl_Button> levels_;
    std::optional<TaskPage> tasks_;
    std::optional<SummaryPage> summary_;
    std::optional<AppSounds> sounds_;
    std::optional<AppColours> colours_;
    std::optional<AppMascot> mascot_;
    ClassroomLink classroom_;
    phial::Timer asking_;                        ///< asks the master again while the pupil waits
    std::optional<phial::WindowState> windowed_; ///< the state before the full screen; none without it
    Page page_ = Page::Start;
    std::size_t level_ = 0;
    bool isAsking_ = false;
    RoundKind kind_ = RoundKind::Counting;
};

} // namespace learning
