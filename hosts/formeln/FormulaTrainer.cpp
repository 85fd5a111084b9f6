#include "formeln/FormulaTrainer.h"

#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/sys_Global.h"
#include "common/FormulaCard.h"
#include "common/FrameTexts.h"
#include "common/TermFit.h"
#include "formeln/FormulaJudge.h"
#include "formeln/NameJudge.h"
#include "media/cls_AppMedia.h"
#include "term/TermSpeech.h"

#include <algorithm>

namespace formeln
{

using learning::Judgement;
using learning::translate;
using phial::spelledTerm;
using phial::String;

namespace
{

constexpr learning::AppTexts Texts{
    .title = u"Formel-Trainer|Formula trainer",
    .question = u"Wie heißt es, wie schreibt man es?|What is it called, how is it written?",
    .introduction =
        u"Schreibe zu jedem Namen die Formel und zu jeder Formel den Namen, oder gleiche Gleichungen aus. "
        u"Was du tippst, wird gleich gezeichnet. Wähle, womit du übst:|"
        u"Write the formula of each name and the name of each formula, or balance equations. "
        u"What you type is drawn at once. Choose what to practise:",
    .note = u"Ladungen schreibst du hinter „^“: SO4^2-.<br>"
            u"Gleichungen brauchen die kleinsten ganzen Zahlen.|"
            u"Charges are written behind “^”: SO4^2-.<br>"
            u"Equations need the smallest whole numbers.",
    .waiting = u"Sobald deine Lehrkraft den Formel-Trainer freigibt, geht es hier von selbst weiter.|"
               u"As soon as your teacher opens the formula trainer for you, it goes on here by itself.",
    .missed = u"Schade. Richtig wäre {1}.|A pity. {1} would be right.",
    .solved = u"{1} von {2} Aufgaben gelöst|{1} of {2} tasks solved",
    .oneMore = u", eine mehr als zuletzt|, one more than last time",
    .more = u", {1} mehr als zuletzt|, {1} more than last time",
    .diploma = u"Formel-Diplom|Formula Diploma",
    .certificate =
        u"hat {1} von {2} Aufgaben zu Formeln und Namen ({3}) gelöst und dabei {4} von {5} Punkten "
        u"erreicht.\r\nNote: {6}|"
        u"has solved {1} of {2} tasks on formulas and names ({3}) and reached {4} of {5} "
        u"points.\r\nMark: {6}",
};

constexpr double CardWidth = 528;
constexpr double NameSize = 24; // points
constexpr auto AnswerPlace = learning::frame_design::TaskPlaces::Answer;
constexpr auto PadPlace = learning::frame_design::TaskPlaces::Pad;
constexpr double PadStep = 72; // from one of the buttons beside the card to the one above

constexpr phial::ControlDesign Controls[] = {
    learning::frame_design::card(u"pan_Substance"),
    phial::design<phial::ctl_Label>(u"lab_Asked", {16, 8, CardWidth, 32})
        .inside(u"pan_Substance")
        .font(12)
        .ink(phial::Palette::Muted)
        .align(phial::TEXTALIGN::MiddleCentre),
    phial::design<phial::ctl_TermLabel>(u"trm_Formula", {16, 48, CardWidth, 100})
        .inside(u"pan_Substance")
        .ink(phial::Palette::Ink)
        .align(phial::TEXTALIGN::MiddleCentre),
    phial::design<phial::ctl_Label>(u"lab_Substance", {16, 48, CardWidth, 100})
        .inside(u"pan_Substance")
        .font(NameSize, phial::FontWeight::Bold)
        .ink(phial::Palette::Ink)
        .align(phial::TEXTALIGN::MiddleCentre)
        .set(u"PlainText", true),
    EquationCard::card(),
    EquationCard::title(),
    EquationCard::substances(),
    EquationCard::signs(),
    EquationCard::factors(),
    TermAnswer::frame(),
    TermAnswer::row(u"Formel|Formula"),
    phial::design<phial::ctl_QVInput>(u"txt_Name", {AnswerPlace.left, AnswerPlace.top,
                                                    AnswerPlace.width - learning::AnswerLock::Width - 4,
                                                    AnswerPlace.height})
        .inside(u"pan_Task")
        .font(18)
        .ground(phial::Palette::Surface)
        .set(u"MODE", phial::ID_InputMode_Text)
        .set(u"AsTyped", true)
        .set(u"MaxLength", 60)
        .spoken(u"Name des Stoffs|Name of the substance"),
    learning::frame_design::sideButton(
        u"but_Table", {PadPlace.left, PadPlace.top - PadStep, PadPlace.width, PadPlace.height},
        u"Periodensystem|Periodic table")
        .inside(u"pan_Task")
        .unfocusable(),
    learning::frame_design::sideButton(u"but_Pad", PadPlace, u"Tastatur|Keyboard")
        .inside(u"pan_Task")
        .unfocusable(),
};

} // namespace

const learning::AppTexts& FormulaTrainer::texts() const
{
    return Texts;
}

String FormulaTrainer::missing() const
{
    if (data_.missingFile.empty()) {
        return {};
    }
    return data_.elements
               ? translate(u"Die Datei mit den Aufgaben fehlt oder enthält keine:<br>{1}",
                           u"The file of the tasks is missing or holds none:<br>{1}", {data_.missingFile})
               : translate(u"Die Datei mit den Elementen fehlt oder ist leer:<br>{1}<br>"
                           u"Bitte installiere QV Phial neu.",
                           u"The file of the elements is missing or empty:<br>{1}<br>"
                           u"Please install QV Phial again.",
                           {data_.missingFile});
}

std::span<const phial::ControlDesign> FormulaTrainer::controls() const
{
    return Controls;
}

void FormulaTrainer::attach(phial::Form& form)
{
    form_ = &form;
    card_.emplace(form);
    term_.emplace(form);
    lock_.emplace(form);
    name_ = form.control<phial::ctl_QVInput>(u"txt_Name");
    name_->KeyboardBeside(form.control<phial::ctl_Pannel>(u"pan_Substance"));
    nameField_ = std::static_pointer_cast<phial::TextBox>(name_->input().shared_from_this());
    nameField_->Alignment(phial::Alignment::Left);
    connections_ += form.control<phial::ctl_Button>(u"but_Pad")->CLICK.connect([this] {
        phial::QVAPP()->MEDIA()->CLICK();
        openKeyboard();
    });
    connections_ += form.control<phial::ctl_Button>(u"but_Table")->CLICK.connect([this] {
        phial::QVAPP()->MEDIA()->CLICK();
        term_->field()->frame().SetFocus();
        term_->openTable(question());
    });
    connections_ += form.control<phial::clt_TermInput>(u"trm_Answer")->CLICK.connect([this] {
        if (phial::QVAPP()->CONFIG()->TOUCHMODE()) {
            openKeyboard();
        }
    });
}

void FormulaTrainer::TRANSLATE()
{
    name_->TEXT(name_->frame().AccessibleName());
    if (form_ && !task_.listed.text.empty()) {
        learning::caption(*form_, u"lab_Asked",
                          asks(Asked::Name)
                              ? translate(u"Wie heißt dieser Stoff?", u"What is this substance called?")
                              : translate(u"Wie lautet die Formel?", u"What is the formula?"));
        learning::showFitting(*form_->control<phial::ctl_Label>(u"lab_Substance"), firstName(), NameSize);
        form_->control<phial::ctl_TermLabel>(u"trm_Formula")
            ->frame()
            .AccessibleName(spelledTerm(task_.listed.text)); // without the name that is asked for
        card_->TRANSLATE(question());
    }
}

void FormulaTrainer::show(int position)
{
    task_ = data_.tasks.at(position);
    opinion_ = {};
    if (const auto equation = equationIn(task_.listed.text)) {
        equation_ = *equation;
        solution_ = balanced(equation_).value_or(std::vector<int>(equation_.count(), 1));
        card_->show(equation_, question());
    } else {
        learning::showFitting(*form_->control<phial::ctl_TermLabel>(u"trm_Formula"), task_.listed.text);
    }
    card_->Visible(asks(Asked::Factors));
    form_->control<phial::ctl_Pannel>(u"pan_Substance")->Visible(!asks(Asked::Factors));
    form_->control<phial::ctl_TermLabel>(u"trm_Formula")->Visible(asks(Asked::Name));
    form_->control<phial::ctl_Label>(u"lab_Substance")->Visible(asks(Asked::Formula));
    term_->Visible(asks(Asked::Formula));
    name_->Visible(asks(Asked::Name));
    form_->control<phial::ctl_Button>(u"but_Table")->Visible(asks(Asked::Formula));
    term_->type({});
    nameField_->Text({});
    close(false);
    TRANSLATE();
}

void FormulaTrainer::close(bool isClosed)
{
    card_->close(isClosed);
    term_->close(isClosed);
    nameField_->Locked(isClosed);
    nameField_->BackColor(isClosed ? phial::Palette::DisabledGround : phial::Palette::Surface);
    nameField_->ForeColor(isClosed ? phial::Palette::DisabledText : phial::Palette::Ink);
    lock_->Visible(isClosed);
    form_->control<phial::ctl_Button>(u"but_Pad")->Enabled(!isClosed);
    form_->control<phial::ctl_Button>(u"but_Table")->Enabled(!isClosed);
}

phial::ControlPtr FormulaTrainer::field() const
{
    switch (task_.asked) {
    case Asked::Factors:
        return card_->field();
    case Asked::Name:
        return nameField_;
    case Asked::Formula:
        break;
    }
    return term_->field();
}

void FormulaTrainer::openKeyboard()
{
    switch (task_.asked) {
    case Asked::Factors:
        card_->openKeyboard();
        return;
    case Asked::Name:
        nameField_->SetFocus();
        name_->OpenKeyboard();
        return;
    case Asked::Formula:
        term_->field()->frame().SetFocus();
        term_->openKeyboard(question());
        return;
    }
}

// What is asked and answered.

String FormulaTrainer::firstName() const
{
    const auto names = namesIn(translate(task_.listed.germanName, task_.listed.englishName));
    return names.empty() ? task_.listed.text : names.front();
}

/// In one line, as a keyboard shows it that hides the card.
String FormulaTrainer::question() const
{
    switch (task_.asked) {
    case Asked::Factors:
        return translate(u"{1}: Welche Faktoren fehlen?", u"{1}: which factors are missing?",
                         {phial::upperCase(firstName().substr(0, 1)) + firstName().substr(1)});
    case Asked::Name:
        return translate(u"Wie heißt {1}?", u"What is {1} called?",
                         {learning::formulaLine(task_.listed.text)});
    case Asked::Formula:
        break;
    }
    return translate(u"Formel: {1}", u"Formula: {1}", {firstName()});
}

String FormulaTrainer::spoken() const
{
    if (asks(Asked::Formula)) {
        return question();
    }
    if (asks(Asked::Name)) {
        return translate(u"Wie heißt dieser Stoff? {1}", u"What is this substance called? {1}",
                         {spelledTerm(task_.listed.text)});
    }
    return question() + u" " + spelledTerm(task_.listed.text);
}

String FormulaTrainer::taskTitle() const
{
    return asks(Asked::Formula) ? firstName() : learning::formulaLine(task_.listed.text);
}

String FormulaTrainer::typedName() const
{
    return phial::trimmed(nameField_->Text());
}

String FormulaTrainer::answer() const
{
    switch (task_.asked) {
    case Asked::Name:
        return phial::lowerCase(typedName());
    case Asked::Formula:
        return term_->text();
    case Asked::Factors:
        break;
    }
    String text;
    for (const int factor : card_->values().value_or(std::vector<int>())) {
        text += learning::number(factor) + u" ";
    }
    return text;
}

Judgement FormulaTrainer::judge()
{
    switch (task_.asked) {
    case Asked::Name:
        opinion_ = [this, name = typedName()] { return opinionOfName(name); };
        break;
    case Asked::Factors:
        opinion_ = [this, factors = card_->values()] { return opinionOfFactors(factors); };
        break;
    case Asked::Formula:
        opinion_ = [this, formula = term_->text()] { return judgeFormula(formula, task_.listed.text); };
        break;
    }
    return opinion_().judgement;
}

FormulaOpinion FormulaTrainer::opinionOfName(const String& name) const
{
    const bool isAnion = task_.listed.text.ends_with(u'-');
    const NameMatch match = matchOf(name, data_.tasks.namesOf(task_.listed.text), isAnion);
    if (match == NameMatch::Same) {
        return {Judgement::Right};
    }
    if (name.empty()) {
        return {Judgement::Unreadable,
                translate(u"Bitte schreibe den Namen des Stoffs.", u"Please write the substance's name.")};
    }
    const String other = otherSubstance(name);
    if (!other.empty()) {
        return {Judgement::Wrong, other};
    }
    return {match == NameMatch::Misspelt ? Judgement::Unreadable : Judgement::Wrong, explained(match)};
}

/// Tells whose name was typed, if it is that of another substance of the level.
String FormulaTrainer::otherSubstance(const String& name) const
{
    for (const learning::ListedTask& other : data_.tasks.list().tasks()) {
        const bool isAnion = other.text.ends_with(u'-');
        if (other.text != task_.listed.text && !equationIn(other.text) &&
            matchOf(name, data_.tasks.namesOf(other.text), isAnion) == NameMatch::Same) {
            return translate(u"So heißt {1}.", u"That is the name of {1}.", {formulaMarkup(other.text)});
        }
    }
    return {};
}

FormulaOpinion FormulaTrainer::opinionOfFactors(const std::optional<std::vector<int>>& factors) const
{
    return factors ? judgeFactors(equation_, *factors)
                   : FormulaOpinion{Judgement::Unreadable,
                                    translate(u"Bitte trage ganze Zahlen ein; ein leeres Feld zählt als 1.",
                                              u"Please type whole numbers; an empty field counts as 1.")};
}

void FormulaTrainer::retry()
{
    switch (task_.asked) {
    case Asked::Factors:
        card_->retry();
        return;
    case Asked::Formula:
        term_->retry();
        return;
    case Asked::Name:
        nameField_->SelStart(0);
        nameField_->SelLength(static_cast<std::int32_t>(nameField_->Text().size()));
        return;
    }
}

// What is told about it.

String FormulaTrainer::solution() const
{
    switch (task_.asked) {
    case Asked::Name:
        return firstName();
    case Asked::Formula:
        return formulaMarkup(task_.listed.text);
    case Asked::Factors:
        break;
    }
    return balancedMarkup(equation_, solution_);
}

String FormulaTrainer::hint() const
{
    if (asks(Asked::Name)) {
        constexpr std::size_t Shown = 3;
        return translate(
            u"Der Name hat {1} Zeichen und beginnt mit „{2}“.",
            u"The name has {1} characters and begins with “{2}”.",
            {learning::number(static_cast<int>(firstName().size())), firstName().substr(0, Shown)});
    }
    if (asks(Asked::Formula)) {
        return translate(u"Diese Elemente kommen darin vor: {1}.", u"These elements are in it: {1}.",
                         {elementsOf(task_.listed.text)});
    }
    const auto largest = std::ranges::max_element(solution_);
    const auto at = static_cast<std::size_t>(largest - solution_.begin());
    const String& substance =
        at < equation_.left.size() ? equation_.left[at] : equation_.right[at - equation_.left.size()];
    return translate(u"Vor {1} steht {2}.", u"{1} has the factor {2}.",
                     {formulaMarkup(substance), learning::number(*largest)});
}

String FormulaTrainer::support() const
{
    if (asks(Asked::Factors)) {
        return atomsOnBothSides(equation_, card_->values().value_or(std::vector<int>(equation_.count(), 1)));
    }
    return asks(Asked::Formula)
               ? atomsOf(task_.listed.text)
               : translate(u"Gelesen wird die Formel so: {1}", u"The formula is read like this: {1}",
                           {spelledTerm(task_.listed.text)});
}

String FormulaTrainer::working() const
{
    if (asks(Asked::Factors)) {
        return balancedMarkup(equation_, solution_) + u"<br>" + atomsOnBothSides(equation_, solution_);
    }
    return firstName() + u": " + formulaMarkup(task_.listed.text) + u"<br>" + atomsOf(task_.listed.text);
}

std::vector<phial::StringView> FormulaTrainer::mastered() const
{
    if (asks(Asked::Factors)) {
        return {u"Links wie rechts gleich viele Atome: So muss es sein.|"
                u"As many atoms on the left as on the right: that is how it must be.",
                u"Du gleichst sicher aus.|You balance with a sure hand."};
    }
    const String& text = task_.listed.text;
    if (text.find(u'^') != String::npos) {
        return {u"Die Ladung sitzt.|The charge is right.", u"Ionen erkennst du.|You know your ions."};
    }
    if (text.find(u'(') != String::npos) {
        return {u"Auch die Klammer stimmt.|The bracket is right, too."};
    }
    return asks(Asked::Name) ? std::vector<phial::StringView>{u"Der Name stimmt.|The name is right."}
                             : std::vector<phial::StringView>{u"Die Zahlen stimmen.|The numbers are right."};
}

phial::StringView FormulaTrainer::helpChapter() const
{
    switch (task_.asked) {
    case Asked::Name:
        return u"K2";
    case Asked::Factors:
        return u"K3";
    case Asked::Formula:
        break;
    }
    return u"K1";
}

// Pictures.

void FormulaTrainer::type(const String& answer)
{
    if (asks(Asked::Name)) {
        nameField_->Text(answer);
    } else {
        term_->type(answer);
    }
}

void FormulaTrainer::fill(Sample sample)
{
    constexpr int Some = 7;
    const bool isName = asks(Asked::Name);
    const String before = isName ? typedName() : term_->text();
    switch (sample) {
    case Sample::Right:
        if (asks(Asked::Factors)) {
            card_->fill(solution_);
        } else {
            type(isName ? firstName() : task_.listed.text);
        }
        return;
    case Sample::Wrong:
        if (asks(Asked::Factors)) {
            const auto now = card_->values();
            card_->fill(std::vector<int>(equation_.count(), now && now->front() == Some ? Some + 1 : Some));
        } else if (isName) {
            type(before == u"Luft" ? String(u"Gas") : String(u"Luft"));
        } else {
            type(before == u"XeF2" ? String(u"XeF4") : String(u"XeF2"));
        }
        return;
    case Sample::Unreadable:
        if (asks(Asked::Factors)) {
            card_->fillUnreadable();
        } else {
            type(isName ? String() : String(u"h2o"));
        }
        return;
    }
}

} // namespace formeln
