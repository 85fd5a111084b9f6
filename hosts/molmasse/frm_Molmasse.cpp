#include "molmasse/frm_Molmasse.h"

#include "app/RecentNames.h"
#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/cls_AppDialog.h"
#include "app/cls_AppUser.h"
#include "app/cls_Language.h"
#include "app/ctl_Avatar.h"
#include "app/sys_Global.h"
#include "core/Locale.h"
#include "core/NumberText.h"
#include "core/RandomSource.h"
#include "core/SessionState.h"
#include "molmasse/MolmasseLayout.h"
#include "molmasse/MolmasseStyle.h"

#include <algorithm>
#include <cmath>

namespace molmasse
{

using phial::LNG;
using phial::String;
using phial::StringView;
using phial::Variant;

namespace
{

constexpr std::int32_t LongestAnswer = 12; // characters

String number(int value)
{
    return phial::plainText(static_cast<std::int32_t>(value));
}

String translate(StringView german, StringView english, const Variant::Array& values = {})
{
    return LNG()->TRANSLATE(german, english, values);
}

int randomBelow(int bound)
{
    const double share = phial::SessionState::current().platform().random->next();
    return std::min(bound - 1, static_cast<int>(share * bound));
}

} // namespace

frm_Molmasse::frm_Molmasse(TrainerData data)
    : data_(std::move(data)), form_(std::make_shared<phial::Form>(u"frm_Molmasse")),
      levels_(*form_, u"but_Level"), pad_(*form_, u"but_Key")
{
    build();
    TRANSLATE();
    show(data_.missing == Missing::Nothing ? Page::Start : Page::Missing);
}

frm_Molmasse::~frm_Molmasse()
{
    form_->discard();
}

void frm_Molmasse::Show()
{
    form_->Show();
}

void frm_Molmasse::welcome()
{
    if (page_ != Page::Missing && phial::recentNames().empty()) {
        askForUser();
    }
}

void frm_Molmasse::build()
{
    form_->ScaleMode(phial::ScaleUnit::Pixels);
    form_->BorderStyle(phial::BorderStyle::FixedSingle);
    form_->innerSize({layout::Width, layout::Height});
    form_->centred(true);
    form_->KeyPreview(true);
    phial::applyLayout(*form_, layout::Frame);
    for (const auto& item : layout::Frame) {
        form_->control<phial::Control>(item.name)->container()->ScaleMode(phial::ScaleUnit::Pixels);
    }
    // The formula stands in a panel of a page, whose unit is set as soon as it is there.
    for (const auto& item : layout::Contents) {
        phial::applyLayout(*form_, {&item, 1});
        if (phial::Container* inner = form_->control<phial::Control>(item.name, item.index)->container()) {
            inner->ScaleMode(phial::ScaleUnit::Pixels);
        }
    }
    buildLevels();
    buildPad();
    form_->menu().add(u"mnu_Help", {})->add(u"mnu_HelpInfo", {});
    style::apply(*form_);
    get<phial::TextBox>(u"txt_Answer")->MaxLength(LongestAnswer);
    connect();
}

void frm_Molmasse::buildLevels()
{
    levels_.adopt();
    const auto first = levels_(0);
    const double left = first->Left();
    for (std::size_t i = 0; i < data_.tasks.levels.size(); ++i) {
        const auto index = static_cast<std::int32_t>(i);
        const auto button = levels_.has(index) ? levels_(index) : levels_.load(index);
        button->Left(left + static_cast<double>(i) * (first->Width() + 21));
        button->Visible(true);
    }
    first->Visible(!data_.tasks.levels.empty());
}

void frm_Molmasse::buildPad()
{
    pad_.adopt();
    const auto first = pad_(0);
    const double left = first->Left();
    const double top = first->Top();
    for (int i = 0; i < static_cast<int>(std::size(layout::PadKeys)); ++i) {
        const auto key = pad_.has(i) ? pad_(i) : pad_.load(i);
        const int row = i / layout::PadColumns;
        const int column = i % layout::PadColumns;
        key->Move(left + column * layout::PadStep, top + row * layout::PadStep);
        key->Caption(layout::PadKeys[i] == u"," ? String(1, phial::currentLocale().decimalSign)
                                                : String(layout::PadKeys[i]));
        // The answer keeps the focus, and with it its selection, while the pad is touched.
        key->frame().canFocus(false);
        key->Visible(true);
    }
}

void frm_Molmasse::connect()
{
    const auto press = [this](StringView button, auto action) {
        connections_ += get<phial::ctl_Button>(button)->CLICK.connect(action);
    };
    press(u"but_Check", [this] { verdict_ && round_->decided() ? goOn() : check(); });
    press(u"but_Hint", [this] { giveHint(); });
    press(u"but_Again", [this] { show(Page::Start); });
    connections_ += get<phial::ctl_Avatar>(u"ctl_User")->CLICK.connect([this] { askForUser(); });
    press(u"but_Language", [] {
        const bool german = LNG()->EFFECTIVE() == phial::ID_Language_German;
        LNG()->CURRENT(german ? phial::ID_Language_English : phial::ID_Language_German);
    });
    connections_ += form_->control<phial::Menu>(u"mnu_HelpInfo")->Click.connect([](std::int32_t) {
        phial::QVAPP()->DIALOG()->ABOUT();
    });
    connections_ += form_->TRANSLATE.connect([this] { TRANSLATE(); });
    for (const auto* button : {u"but_Stop", u"but_Quit", u"but_Leave"}) {
        press(button, [this] { form_->Unload(); });
    }
    levels_.connectEach([this](phial::ctl_Button& button, std::int32_t index) {
        return button.CLICK.connect([this, index] { startRound(static_cast<std::size_t>(index)); });
    });
    pad_.connectEach([this](phial::ctl_Button& button, std::int32_t index) {
        return button.CLICK.connect([this, index] { pressPad(index); });
    });
    connections_ += form_->KeyDown.connect([this](phial::KeyEvent& event) { keyDown(event); });
}

void frm_Molmasse::askForUser()
{
    phial::QVAPP()->USER()->SCREENNAMEINPUT();
    get<phial::ctl_Avatar>(u"ctl_User")->UPDATE();
    nameUser();
}

/// What the avatar is for, seen and heard.
void frm_Molmasse::nameUser()
{
    const auto avatar = get<phial::ctl_Avatar>(u"ctl_User");
    const String purpose = translate(u"Name und Bild ändern", u"Change name and picture");
    const String name = avatar->accessibleText();
    avatar->frame().ToolTipText(purpose);
    avatar->frame().AccessibleName(name.empty() ? purpose : name + u", " + purpose);
}

void frm_Molmasse::TRANSLATE()
{
    form_->Caption(translate(u"Molmassen-Trainer", u"Molar mass trainer"));
    phial::QVAPP()->CONFIG()->NAME(form_->Caption());
    form_->control<phial::Menu>(u"mnu_Help")->Caption(translate(u"&Hilfe", u"&Help"));
    form_->control<phial::Menu>(u"mnu_HelpInfo")->Caption(translate(u"&Info", u"&About"));
    for (const auto& item : layout::Contents) {
        if (!item.text.empty()) {
            phial::setMember(*form_->find(item.name, item.index), u"Caption",
                             LNG()->TRANSLATEAUTO(item.text));
        }
    }
    levels_.each([this](phial::ctl_Button& button, std::int32_t index) {
        if (static_cast<std::size_t>(index) < data_.tasks.levels.size()) {
            const Level& level = data_.tasks.levels[static_cast<std::size_t>(index)];
            button.Caption(translate(level.germanTitle, level.englishTitle));
        }
    });
    get<phial::TextBox>(u"txt_Answer")
        ->frame()
        .AccessibleName(translate(u"Molare Masse in g/mol", u"Molar mass in g/mol"));
    pad_(pad_.UBound())
        ->frame()
        .AccessibleName(translate(u"Letztes Zeichen löschen", u"Delete last character"));
    nameUser();
    caption(u"lab_Missing", missingText());
    if (round_) {
        showRoundTexts();
    }
}

/// The texts that depend on the state of the round.
void frm_Molmasse::showRoundTexts()
{
    const Task& task = round_->task();
    caption(u"lab_Name", translate(task.germanName, task.englishName));
    caption(u"lab_Feedback", {});
    if (verdict_) {
        showVerdict(*verdict_);
    }
    showCheckCaption();
    showProgress();
    showSummaryTexts();
}

void frm_Molmasse::showCheckCaption()
{
    get<phial::ctl_Button>(u"but_Check")
        ->Caption(!round_->decided()   ? translate(u"Prüfen", u"Check")
                  : round_->finished() ? translate(u"Ergebnis", u"Result")
                                       : translate(u"Weiter", u"Next"));
}

void frm_Molmasse::caption(StringView label, String text) const
{
    get<phial::ctl_Label>(label)->Caption(std::move(text));
}

String frm_Molmasse::missingText() const
{
    switch (data_.missing) {
    case Missing::Installation:
        return translate(
            u"Die Installation von QV Phial wurde nicht gefunden. Bitte installiere QV Phial neu oder "
            u"starte das Programm aus seinem Ordner.",
            u"The installation of QV Phial was not found. Please install QV Phial again or start the "
            u"program from its own folder.");
    case Missing::Elements:
        return translate(
            u"Die Datei mit den Elementen fehlt oder ist leer:<br>{1}<br>Bitte installiere QV Phial neu.",
            u"The file of the elements is missing or empty:<br>{1}<br>Please install QV Phial again.",
            {data_.file});
    case Missing::Tasks:
        return translate(u"Die Datei mit den Formeln fehlt oder enthält keine Aufgabe:<br>{1}",
                         u"The file of the formulas is missing or holds no task:<br>{1}", {data_.file});
    case Missing::Nothing:
        break;
    }
    return {};
}

void frm_Molmasse::show(Page page)
{
    page_ = page;
    get<phial::ctl_Pannel>(u"pan_Start")->Visible(page == Page::Start);
    get<phial::ctl_Pannel>(u"pan_Task")->Visible(page == Page::Task);
    get<phial::ctl_Pannel>(u"pan_Summary")->Visible(page == Page::Summary);
    get<phial::ctl_Pannel>(u"pan_Missing")->Visible(page == Page::Missing);
    get<phial::ctl_Avatar>(u"ctl_User")->frame().Visible(page != Page::Missing);
    phial::ControlPtr first;
    switch (page) {
    case Page::Start:
        round_.reset();
        caption(u"lab_Points", {});
        first = levels_(0);
        break;
    case Page::Task:
        first = get<phial::TextBox>(u"txt_Answer");
        break;
    case Page::Summary:
        first = get<phial::ctl_Button>(u"but_Again");
        break;
    case Page::Missing:
        first = get<phial::ctl_Button>(u"but_Leave");
        break;
    }
    form_->DefaultControl(page == Page::Task ? get<phial::ctl_Button>(u"but_Check") : nullptr);
    if (first->Enabled() && first->Visible()) {
        first->SetFocus();
    }
}

void frm_Molmasse::startRound(std::size_t level)
{
    level_ = level;
    round_.emplace(
        data_.tasks.levels[level], [this](const String& formula) { return data_.elements->MOL(formula); },
        randomBelow);
    showTask();
    show(Page::Task);
}

void frm_Molmasse::showTask()
{
    verdict_.reset();
    hintShown_ = false;
    get<phial::ctl_TermLabel>(u"trm_Formula")->Term(round_->task().formula);
    caption(u"lab_Hint", {});
    get<phial::ctl_Button>(u"but_Hint")->Enabled(true);
    const auto answer = get<phial::TextBox>(u"txt_Answer");
    answer->Text({});
    answer->Locked(false);
    showRoundTexts();
}

void frm_Molmasse::showProgress()
{
    caption(u"lab_Progress", translate(u"Aufgabe {1} von {2}", u"Task {1} of {2}",
                                       {number(round_->position()), number(round_->count())}));
    caption(u"lab_Points", translate(u"{1} Punkte", u"{1} points", {number(round_->points())}));
    const int done = round_->position() - (round_->decided() ? 0 : 1);
    const double full = get<phial::ctl_Pannel>(u"pan_ProgressBack")->Width();
    const auto bar = get<phial::ctl_Pannel>(u"pan_ProgressDone");
    bar->Width(full * done / round_->count());
    bar->Visible(done > 0);
}

void frm_Molmasse::check()
{
    const auto answer = get<phial::TextBox>(u"txt_Answer");
    const Verdict verdict = round_->check(answer->Text());
    verdict_ = verdict;
    showRoundTexts();
    answer->Locked(round_->decided());
    if (round_->decided()) {
        get<phial::ctl_Button>(u"but_Hint")->Enabled(false);
        if (verdict == Verdict::Missed) {
            giveHint();
        }
    } else {
        selectAnswer();
    }
    answer->SetFocus();
}

void frm_Molmasse::selectAnswer()
{
    const auto answer = get<phial::TextBox>(u"txt_Answer");
    answer->SelStart(0);
    answer->SelLength(static_cast<std::int32_t>(answer->Text().size()));
}

void frm_Molmasse::showVerdict(Verdict verdict)
{
    const auto feedback = get<phial::ctl_Label>(u"lab_Feedback");
    const Variant solution = massText(round_->solution());
    switch (verdict) {
    case Verdict::Right:
        feedback->ForeColor(style::Good);
        feedback->Caption(translate(u"Richtig! {1} g/mol, {2} Punkte für dich.",
                                    u"Right! {1} g/mol, {2} points for you.",
                                    {solution, number(round_->lastPoints())}));
        break;
    case Verdict::Wrong:
        feedback->ForeColor(style::Bad);
        feedback->Caption(round_->triesLeft() == 1 ? translate(u"Leider nicht. Du hast noch einen Versuch.",
                                                               u"Not quite. You have one try left.")
                                                   : translate(u"Leider nicht. Du hast noch {1} Versuche.",
                                                               u"Not quite. You have {1} tries left.",
                                                               {number(round_->triesLeft())}));
        break;
    case Verdict::Missed:
        feedback->ForeColor(style::Bad);
        feedback->Caption(
            translate(u"Schade. Richtig wären {1} g/mol.", u"A pity. {1} g/mol would be right.", {solution}));
        break;
    case Verdict::NoNumber:
        feedback->ForeColor(style::Bad);
        feedback->Caption(translate(u"Bitte gib eine Zahl ein, zum Beispiel 18,0.",
                                    u"Please type a number, for example 18.0."));
        break;
    }
}

void frm_Molmasse::giveHint()
{
    if (page_ != Page::Task || hintShown_) {
        return;
    }
    hintShown_ = true;
    if (!round_->decided()) {
        round_->takeHint();
    }
    caption(u"lab_Hint", atomsCounted(*data_.elements, round_->task().formula));
    get<phial::ctl_Button>(u"but_Hint")->Enabled(false);
    get<phial::TextBox>(u"txt_Answer")->SetFocus();
    if (verdict_ == Verdict::Wrong) {
        selectAnswer(); // the next try replaces the wrong one
    }
}

void frm_Molmasse::goOn()
{
    if (round_->next()) {
        showTask();
        get<phial::TextBox>(u"txt_Answer")->SetFocus();
    } else {
        showSummary();
    }
}

void frm_Molmasse::pressPad(std::int32_t index)
{
    const auto answer = get<phial::TextBox>(u"txt_Answer");
    if (answer->Locked()) {
        return;
    }
    if (index == pad_.UBound()) {
        if (answer->SelLength() == 0 && answer->SelStart() > 0) {
            answer->SelStart(answer->SelStart() - 1);
            answer->SelLength(1);
        }
        answer->SelText({});
    } else if (static_cast<std::int32_t>(answer->Text().size()) - answer->SelLength() < answer->MaxLength()) {
        answer->SelText(pad_(index)->Caption());
    }
    answer->SetFocus();
}

void frm_Molmasse::showSummaryTexts()
{
    const double share = static_cast<double>(round_->points()) / round_->maximum();
    caption(u"lab_Praise", share >= 0.9 ? translate(u"Ausgezeichnet!", u"Excellent!")
                           : share >= 0.6
                               ? translate(u"Gut gemacht!", u"Well done!")
                               : translate(u"Übung macht den Meister!", u"Practice makes perfect!"));
    caption(u"lab_Result", translate(u"{1} von {2} Punkten", u"{1} of {2} points",
                                     {number(round_->points()), number(round_->maximum())}));
    caption(u"lab_Solved", translate(u"{1} von {2} Formeln gelöst", u"{1} of {2} formulas solved",
                                     {number(round_->solved()), number(round_->count())}));
}

void frm_Molmasse::showSummary()
{
    showSummaryTexts();
    const double share = static_cast<double>(round_->points()) / round_->maximum();
    const auto bar = get<phial::ctl_Pannel>(u"pan_ResultDone");
    bar->Width(get<phial::ctl_Pannel>(u"pan_ResultBack")->Width() * share);
    bar->Visible(round_->points() > 0);
    show(Page::Summary);
}

void frm_Molmasse::keyDown(phial::KeyEvent& event)
{
    if (event.is(phial::Key::F1)) {
        giveHint();
        event.KeyCode = 0;
    } else if (event.is(phial::Key::Escape)) {
        event.KeyCode = 0;
        form_->Unload();
    }
}

} // namespace molmasse
