#include "common/frm_LearningApp.h"

#include "app/FormTexts.h"
#include "app/RecentNames.h"
#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/cls_AppDialog.h"
#include "app/cls_AppURL.h"
#include "app/cls_AppUser.h"
#include "app/cls_Language.h"
#include "app/ctl_Avatar.h"
#include "app/sys_Global.h"
#include "common/FormerRound.h"
#include "common/FrameDesign.h"
#include "common/FrameTexts.h"
#include "common/LevelButtons.h"
#include "common/ListNotices.h"
#include "common/MissedTasks.h"
#include "common/frm_LeaveRound.h"
#include "core/CoreDialogs.h"
#include "core/CoreFiles.h"
#include "core/CoreParameters.h"
#include "core/CoreRoot.h"
#include "core/CoreTheme.h"
#include "core/SessionState.h"
#include "visual/TextBox.h"
#include "visual/VisualHost.h"

#include <algorithm>
#include <utility>

namespace learning
{

using phial::LNG;
using phial::QVAPP;
using phial::String;
using phial::StringView;

namespace
{

constexpr auto FullScreenKey = // F11
    static_cast<phial::Key>(static_cast<std::int32_t>(phial::Key::F1) + 10);
constexpr auto ReferenceKey = static_cast<phial::Key>(static_cast<std::int32_t>(phial::Key::F1) + 1);  // F2
constexpr auto SayAgainKey = static_cast<phial::Key>(static_cast<std::int32_t>(phial::Key::F1) + 2);   // F3
constexpr auto CalculatorKey = static_cast<phial::Key>(static_cast<std::int32_t>(phial::Key::F1) + 3); // F4
constexpr auto HintKey = static_cast<phial::Key>(static_cast<std::int32_t>(phial::Key::F1) + 4);       // F5
constexpr StringView HelpFolder = u"Hilfe\\";
constexpr std::int32_t AskingInterval = 5'000; // milliseconds

phial::FormDesign designOf(const AppTexts& texts)
{
    return {.name = u"frm_LearningApp",
            .caption = texts.title,
            .size = {frame_design::Width, frame_design::Height},
            .border = phial::BorderStyle::Sizable,
            .hearsKeysFirst = true,
            .controls = frame_design::Head};
}

/// Why no app can start at all; empty with an installation.
String missingInstallation()
{
    if (!QVAPP()->URL()->ROOT().empty()) {
        return {};
    }
    return translate(
        u"Die Installation von QV Phial wurde nicht gefunden. Bitte installiere QV Phial neu oder "
        u"starte das Programm aus seinem Ordner.",
        u"The installation of QV Phial was not found. Please install QV Phial again or start the "
        u"program from its own folder.");
}

/// Bars and titles of the boxes that the app opens are those of the frame.
void useFrameColours()
{
    phial::CoreTheme& theme = phial::coreTheme();
    theme.SetColour(phial::ThemeSlot::Accent, phial::Palette::Accent);
    theme.SetColour(phial::ThemeSlot::Frame, phial::Palette::Header);
    theme.SetColour(phial::ThemeSlot::FrameText, phial::Palette::OnHeader);
}

} // namespace

frm_LearningApp::frm_LearningApp(std::unique_ptr<LearningApp> app, MasterSearch searchMasters)
    : app_(std::move(app)), levelTitles_(app_->levels()), searchMasters_(std::move(searchMasters)),
      form_(designOf(app_->texts())), levels_(*form_, u"but_Level"), asking_(u"tmr_Asking", AskingInterval)
{
    useFrameColours();
    form_.add(app_->controls());
    form_.add(frame_design::Tail);
    makeRoom();
    buildLevels();
    layout_.emplace(*form_);
    app_->attach(*form_);
    tasks_.emplace(*form_, *app_);
    summary_.emplace(*form_, *app_);
    sounds_.emplace(*form_);
    colours_.emplace(*form_);
    mascot_.emplace(form_, pageMargin());
    connect();
    connectClassroom();
    TRANSLATE();
    show(missingText().empty() ? Page::Start : Page::Missing);
}

void frm_LearningApp::Show()
{
    form_->Show();
}

void frm_LearningApp::widen()
{
    const bool fits = phial::visualHost().screen().first().width >= wideWidth();
    if (fits && form_->WindowState() == phial::WindowState::Normal) {
        form_->innerSize({wideWidth(), frame_design::Height});
    }
}

double frm_LearningApp::wideWidth() const
{
    return frame_design::WideWidth + 2 * (frame_design::PageMargin - pageMargin());
}

/// What is empty at the left of the page that has the least.
double frm_LearningApp::pageMargin() const
{
    return app_->room() == TaskRoom::Board ? frame_design::BoardPlaces::Board.left : frame_design::PageMargin;
}

void frm_LearningApp::welcome()
{
    if (page_ == Page::Missing) {
        return;
    }
    tellAboutOwnFolder();
    if (phial::recentNames().empty()) {
        askForUser();
    }
    mascot_->greet();
    enterClassroom();
}

/// For what the app shows on the page of tasks.
void frm_LearningApp::makeRoom()
{
    if (app_->room() == TaskRoom::Board) {
        for (const auto& [control, place] : frame_design::BesideBoard) {
            form_->control<phial::Control>(control)->frame().pixelRectangle(
                {place.left, place.top, place.width, place.height});
        }
        if (app_->texts().reference.empty()) { // the hint has the room of the button that is not there
            const auto hint = get<phial::ctl_Label>(u"lab_Hint");
            const auto unused = get<phial::ctl_Button>(u"but_Reference");
            hint->Height(unused->Top() + unused->Height() - hint->Top());
        }
    }
}

void frm_LearningApp::buildLevels()
{
    levels_.adopt();
    levelTitles_.resize(std::min(levelTitles_.size(), MostLevelsShown));
    arrangeLevels(levels_, levelTitles_.size());
}

void frm_LearningApp::nameLevelButtons()
{
    std::vector<String> titles;
    for (const LevelTitle& level : levelTitles_) {
        titles.push_back(translate(level.german, level.english));
    }
    nameLevels(levels_, titles);
}

void frm_LearningApp::connect()
{
    form_.press(u"but_Again", [this] { show(Page::Start); });
    form_.press(u"but_Missed", [this] { startMissed(); });
    form_.press(u"but_Language", [this] {
        const bool german = LNG()->EFFECTIVE() == phial::ID_Language_German;
        LNG()->CURRENT(german ? phial::ID_Language_English : phial::ID_Language_German);
        backToTask();
    });
    for (const auto* button : {u"but_Quit", u"but_GiveUp", u"but_Leave"}) {
        form_.press(button, [this] { form_->Unload(); });
    }
    form_.press(u"but_Stop", [this] { leave(); });
    form_.press(u"but_Forget", [this] { forgetMissed(); });
    form_.on(form_->QueryUnload, [this](bool& rKeeps) { askBeforeClosing(rKeeps); });
    form_.on(get<phial::ctl_Avatar>(u"ctl_User")->CLICK, [this] { askForUser(); });
    form_.press(u"but_Help", [this] { showHelp(); });
    form_.press(u"but_About", [] { QVAPP()->DIALOG()->ABOUT(); });
    for (const auto* button : {u"but_Colours", u"but_Sound", u"but_Mascot"}) {
        form_.press(button, [this] { backToTask(); });
    }
    form_.press(u"but_Screen", [this] {
        toggleFullScreen();
        backToTask();
    });
    form_.on(form_->Resize, [this] {
        layout_->follow();
        mascot_->follow();
    });
    form_.on(form_->TRANSLATE, [this] { TRANSLATE(); });
    form_.on(form_->KeyDown, [this](phial::KeyEvent& event) { keyDown(event); });
    form_.on(tasks_->Judged, [this](Verdict verdict) { judged(verdict); });
    form_.on(tasks_->Shown, [this] { mascot_->taskShown(); });
    if (const auto field = std::dynamic_pointer_cast<phial::TextBox>(app_->field())) {
        form_.on(field->Change, [this] { mascot_->answerChanged(); });
    }
    form_.on(tasks_->HintGiven, [this] { mascot_->hintTaken(); });
    form_.on(tasks_->Finished, [this] { finishRound(); });
    levels_.connectEach([this](phial::ctl_Button& button, std::int32_t index) {
        return button.CLICK.connect([this, index] { startRound(static_cast<std::size_t>(index)); });
    });
}

void frm_LearningApp::connectClassroom()
{
    form_.press(u"but_Classroom", [this] { chooseClassroom(); });
    form_.press(u"but_Ask", [this] { admit(true); });
    form_.on(classroom_.Changed, [this] { showClassroom(); });
    form_.on(asking_.Tick, [this] { admit(false); });
    form_.on(form_->Unloaded, [this] { asking_.Enabled(false); });
}

/// Behind what was pressed in the header or the footer typing goes on in the answer.
void frm_LearningApp::backToTask()
{
    if (page_ == Page::Task && form_->Visible()) {
        app_->field()->SetFocus();
    }
}

/// Out of a round to the start page, which the pupil has to confirm; out of any other page to the end.
void frm_LearningApp::leave()
{
    if (page_ != Page::Task) {
        form_->Unload();
        return;
    }
    if (leavesRound() && form_->Visible()) {
        show(Page::Start);
    }
    backToTask();
}

/// Whether the round is to end, which the pupil has to confirm.
bool frm_LearningApp::leavesRound()
{
    const bool counts = kind_ == RoundKind::Counting;
    const bool leaves =
        frm_LeaveRound(counts ? std::optional(tasks_->round()->points()) : std::nullopt).Show();
    if (leaves) {
        classroom_.roundLeft();
    }
    return leaves;
}

/// The window is to be closed by its frame.
void frm_LearningApp::askBeforeClosing(bool& rKeeps)
{
    if (page_ == Page::Task) {
        rKeeps = !leavesRound();
        if (rKeeps) {
            backToTask();
        }
    }
}

/// What the next rounds begin with, and the way to do without it.
void frm_LearningApp::showRemembered()
{
    const MissedTasks missed(QVAPP()->USER()->SCREENNAME());
    const auto count =
        static_cast<int>(missed.count([this](StringView task) { return app_->hasTask(task); }));
    caption(*form_, u"lab_Remembered",
            count == 0 ? String()
            : count == 1
                ? translate(u"Eine Aufgabe ist zum Üben gemerkt.<br>Sie kommt in ihrer Stufe zuerst dran.",
                            u"One task is remembered for practice.<br>It comes first in its level.")
                : translate(u"{1} Aufgaben sind zum Üben gemerkt.<br>Sie kommen in ihrer Stufe zuerst dran.",
                            u"{1} tasks are remembered for practice.<br>They come first in their level.",
                            {number(count)}));
    get<phial::ctl_Button>(u"but_Forget")->Visible(count > 0);
}

void frm_LearningApp::forgetMissed()
{
    const auto answer = phial::coreRoot().CoreDialogs().YesNo(
        translate(u"Sollen die gemerkten Aufgaben vergessen werden? Sie kommen dann nicht mehr zuerst dran.",
                  u"Shall the remembered tasks be forgotten? They will not come first any more."));
    if (answer == phial::DialogAnswer::Yes) {
        MissedTasks(QVAPP()->USER()->SCREENNAME()).forget();
    }
    showRemembered();
    if (form_->Visible()) {
        levels_(0)->SetFocus();
    }
}

/// The app's help book, on the page of tasks with the chapter that belongs to the task. Without a book the
/// app tells what it is.
void frm_LearningApp::showHelp()
{
    const String book = QVAPP()->URL()->DATAAPP() + String(HelpFolder);
    if (QVAPP()->URL()->DATAAPP().empty() || !phial::coreRoot().CoreFiles().FolderExists(book)) {
        QVAPP()->DIALOG()->ABOUT();
    } else {
        phial::CoreParameters more;
        if (page_ == Page::Task) {
            more.Set(u"CHAPTER", String(app_->helpChapter()));
        }
        QVAPP()->DIALOG()->HELPIMAGES({}, book, &more);
    }
    backToTask();
}

void frm_LearningApp::toggleFullScreen()
{
    if (windowed_) {
        form_->BorderStyle(phial::BorderStyle::Sizable);
        form_->WindowState(*windowed_);
        windowed_.reset();
    } else {
        windowed_ = form_->WindowState();
        form_->BorderStyle(phial::BorderStyle::None);
        form_->WindowState(phial::WindowState::Maximized);
    }
}

void frm_LearningApp::askForUser()
{
    QVAPP()->USER()->SCREENNAMEINPUT();
    get<phial::ctl_Avatar>(u"ctl_User")->UPDATE();
    nameUser();
    mascot_->forgetText();
    showRemembered();
}

/// What the avatar is for, seen and heard.
void frm_LearningApp::nameUser()
{
    const auto avatar = get<phial::ctl_Avatar>(u"ctl_User");
    const String purpose = translate(u"Name und Bild ändern", u"Change name and picture");
    const String name = avatar->accessibleText();
    avatar->frame().ToolTipText(purpose);
    avatar->frame().AccessibleName(name.empty() ? purpose : name + u", " + purpose);
}

/// The keys of what bears only a sign or no key in its caption.
void frm_LearningApp::nameHelp()
{
    get<phial::ctl_Button>(u"but_Help")->frame().ToolTipText(translate(u"Hilfe (F1)", u"Help (F1)"));
    get<phial::ctl_Button>(u"but_Hint")
        ->frame()
        .ToolTipText(translate(u"Tipp zeigen (F5)", u"Show the hint (F5)"));
}

void frm_LearningApp::enterClassroom()
{
    if (ClassroomLink::isWanted()) {
        classroom_.join();
        admit(true);
    }
}

void frm_LearningApp::chooseClassroom()
{
    frm_MasterChoice dialog(ClassroomLink::address(), searchMasters_);
    dialog.Show();
    if (const auto& master = dialog.chosen()) {
        classroom_.join(*master);
        admit(true);
    }
}

/// Goes on to the choice of the level when the teacher has opened the app, or when there is no teacher.
/// One question at a time: a second one could throw the pupil out of the round that the first has allowed.
void frm_LearningApp::admit(bool tell)
{
    if (isAsking_ || !form_->Visible()) {
        return;
    }
    isAsking_ = true;
    showClassroom();
    const bool allowed = classroom_.allows(tell);
    isAsking_ = false;
    showClassroom();
    const bool isOpen = form_->Visible();
    asking_.Enabled(!allowed && isOpen);
    if (isOpen && (allowed || page_ != Page::Waiting)) {
        show(allowed ? Page::Start : Page::Waiting);
    }
}

/// The footer, and what must wait for the master.
void frm_LearningApp::showClassroom()
{
    const auto state = classroom_.state();
    const bool busy = state == ClassroomLink::State::Searching || isAsking_;
    caption(*form_, u"lab_Classroom", classroomText());
    get<phial::Shape>(u"shp_Classroom")
        ->FillColor(state == ClassroomLink::State::Online ? phial::Palette::Connected
                                                          : phial::Palette::Unconnected);
    if (busy && page_ == Page::Start) {
        form_->focus(nullptr); // the levels cannot keep it
    }
    levels_.each([busy](phial::ctl_Button& button, std::int32_t) { button.Enabled(!busy); });
    const auto choice = get<phial::ctl_Button>(u"but_Classroom");
    choice->Enabled(!busy);
    choice->Visible(ClassroomLink::isWanted() && (page_ == Page::Start || page_ == Page::Waiting));
}

String frm_LearningApp::classroomText() const
{
    switch (classroom_.state()) {
    case ClassroomLink::State::Alone:
        break;
    case ClassroomLink::State::Searching:
        return translate(u"Suche den Klassenraum …", u"Looking for the classroom …");
    case ClassroomLink::State::Online:
        return translate(u"Im Klassenraum angemeldet ({1})", u"Logged on to the classroom ({1})",
                         {ClassroomLink::address()});
    case ClassroomLink::State::Offline:
        return translate(u"Kein Klassenraum gefunden, du übst für dich.",
                         u"No classroom found, you practise by yourself.");
    }
    return translate(u"Ohne Klassenraum", u"Without a classroom");
}

void frm_LearningApp::TRANSLATE()
{
    phial::translateForm(form_);
    QVAPP()->CONFIG()->NAME(form_->Caption());
    nameLevelButtons();
    nameUser();
    nameHelp();
    showAppTexts();
    caption(*form_, u"lab_Missing", missingText());
    tasks_->TRANSLATE();
    summary_->TRANSLATE();
    if (page_ == Page::Summary) {
        summary_->showAgain(tasks_->review());
    }
    sounds_->TRANSLATE();
    mascot_->TRANSLATE();
    colours_->TRANSLATE();
    showClassroom();
}

void frm_LearningApp::showAppTexts()
{
    const AppTexts& texts = app_->texts();
    caption(*form_, u"lab_Title", translate(texts.title));
    caption(*form_, u"lab_Question", translate(texts.question));
    caption(*form_, u"lab_Intro", translate(texts.introduction));
    caption(*form_, u"lab_Note", translate(texts.note));
    caption(*form_, u"lab_Waiting", translate(texts.waiting));
    caption(*form_, u"lab_Complaint", app_->complaint());
    showRemembered();
}

String frm_LearningApp::missingText() const
{
    const String installation = missingInstallation();
    return installation.empty() ? app_->missing() : installation;
}

void frm_LearningApp::show(Page page)
{
    page_ = page;
    get<phial::ctl_Pannel>(u"pan_Start")->Visible(page == Page::Start);
    get<phial::ctl_Pannel>(u"pan_Task")->Visible(page == Page::Task);
    get<phial::ctl_Pannel>(u"pan_Summary")->Visible(page == Page::Summary);
    get<phial::ctl_Pannel>(u"pan_Waiting")->Visible(page == Page::Waiting);
    get<phial::ctl_Pannel>(u"pan_Missing")->Visible(page == Page::Missing);
    get<phial::ctl_Avatar>(u"ctl_User")->frame().Visible(page != Page::Missing);
    // A round and all that it gives belong to the pupil who plays it.
    get<phial::ctl_Avatar>(u"ctl_User")->frame().Enabled(page == Page::Start || page == Page::Waiting);
    if (page != Page::Task) {
        mascot_->leaveTask();
    }
    if (page != Page::Task && page != Page::Summary) {
        tasks_->end();
    }
    if (page == Page::Start) {
        showRemembered();
    }
    form_->DefaultControl(page == Page::Task ? get<phial::ctl_Button>(u"but_Check") : nullptr);
    showClassroom();
    if (const phial::ControlPtr first = firstOf(page); first->Enabled() && first->Visible()) {
        first->SetFocus();
    }
}

/// What has the focus when the page is shown.
phial::ControlPtr frm_LearningApp::firstOf(Page page) const
{
    switch (page) {
    case Page::Start:
        break;
    case Page::Task:
        return app_->field();
    case Page::Summary:
        return get<phial::ctl_Button>(u"but_Again");
    case Page::Waiting:
        return get<phial::ctl_Button>(u"but_Ask");
    case Page::Missing:
        return get<phial::ctl_Button>(u"but_Leave");
    }
    return levels_(0);
}

void frm_LearningApp::startRound(std::size_t level)
{
    level_ = level;
    kind_ = RoundKind::Counting;
    tasks_->begin(level);
    show(Page::Task);
    tasks_->sayTask();
    mascot_->says(tasks_->word());
    classroom_.roundStarted(levelTitles_[level].german);
}

/// For practice: a round of what was missed counts in no list.
void frm_LearningApp::startMissed()
{
    kind_ = RoundKind::Practice;
    tasks_->beginMissed(level_);
    show(Page::Task);
    tasks_->sayTask();
    mascot_->says(tasks_->word());
}

void frm_LearningApp::finishRound()
{
    const Round& round = *tasks_->round();
    const LevelTitle& level = levelTitles_[level_];
    const RoundResult result{.exercise = level.german,
                             .points = round.points(),
                             .maximum = round.maximum(),
                             .solved = round.solved(),
                             .tasks = round.count()};
    const bool counts = kind_ == RoundKind::Counting;
    summary_->show({.result = result,
                    .level = level,
                    .kind = kind_,
                    .solvedBefore = counts ? keepRound(QVAPP()->USER()->SCREENNAME(), result) : std::nullopt},
                   tasks_->review());
    show(Page::Summary);
    sounds_->roundFinished(result.points);
    mascot_->says(summary_->word());
    if (!counts) {
        return;
    }
    summary_->submit();
    if (form_->Visible()) {
        firstOf(Page::Summary)->SetFocus();
    }
    classroom_.roundFinished(result); // last: the pupil may go on while the master answers
    tellAboutKeptLists();
}

void frm_LearningApp::judged(Verdict verdict)
{
    sounds_->judged(verdict);
    mascot_->judged(verdict, *tasks_->round(), tasks_->word());
}

void frm_LearningApp::keyDown(phial::KeyEvent& event)
{
    if (page_ == Page::Task && !event.is(SayAgainKey)) {
        mascot_->typed();
    }
    const auto does = isForField(event) ? nullptr : actionOf(event);
    if (!does) {
        return;
    }
    event.KeyCode = 0;
    if (!event.isRepeat) {
        does();
    }
}

/// Whether what has the focus has a use for Escape.
bool frm_LearningApp::isForField(const phial::KeyEvent& event) const
{
    const auto active = form_->ActiveControl();
    return event.is(phial::Key::Escape) && active && active->wantsKey(phial::Key::Escape);
}

/// What the key does anywhere in the window; empty for a key that is the page's.
std::function<void()> frm_LearningApp::actionOf(const phial::KeyEvent& event)
{
    if (event.is(phial::Key::F1)) {
        return [this] { showHelp(); };
    }
    if (event.is(HintKey)) {
        return [this] {
            if (page_ == Page::Task) {
                tasks_->giveHint();
            }
        };
    }
    if (event.is(CalculatorKey)) {
        return [this] {
            if (page_ == Page::Task) {
                app_->calculate();
            }
        };
    }
    if (event.is(ReferenceKey)) {
        return [this] {
            if (page_ == Page::Task) {
                tasks_->lookUp();
            }
        };
    }
    if (event.is(SayAgainKey)) {
        return [this] { mascot_->sayLastAgain(); };
    }
    if (event.is(FullScreenKey)) {
        return [this] { toggleFullScreen(); };
    }
    if (event.is(phial::Key::Escape)) {
        return [this] {
            if (!tasks_->closeDrawer()) {
                leave();
            }
        };
    }
    return {};
}

} // namespace learning
