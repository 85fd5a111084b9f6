#include "desk/frm_ToolCalc.h"

#include "app/FormTexts.h"
#include "app/cls_App.h"
#include "app/cls_AppDialog.h"
#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "calc/CalculatorDisplay.h"
#include "calc/TermAdvice.h"
#include "calc/TermReading.h"
#include "chem/cls_DataElement.h"
#include "chem/cls_DataElements.h"
#include "chem/formula/FormulaComposition.h"
#include "chem/formula/FormulaReader.h"
#include "core/Locale.h"
#include "core/Platform.h"
#include "core/RuntimeError.h"
#include "core/SessionState.h"
#include "desk/CalculatorDesign.h"
#include "desk/CalculatorLayout.h"
#include "mascot/ctl_Bubble.h"
#include "media/cls_AppMedia.h"
#include "periodic/ElementFile.h"
#include "periodic/ctl_PSE.h"
#include "visual/VisualHost.h"
#include "visual/ctl_Pannel.h"

#include <algorithm>
#include <utility>

namespace phial
{

namespace calc_design = tool_calc_design;

namespace
{

constexpr StringView TableKey = u"PSE";
constexpr StringView FormulaKey = u"M()";
constexpr StringView DigitsKey = u"DIGITS";

constexpr std::int32_t CommaIndex = 16;
constexpr std::int32_t EqualsIndex = 19;
constexpr std::int32_t FormulaIndex = 21;
constexpr std::int32_t DigitsIndex = 26;

/// What each key is called, by its index; its face may show another sign.
struct KeyText {
    std::int32_t index;
    StringView text;
};

constexpr KeyText KeyTexts[] = {
    {0, u"0"},
    {1, u"1"},
    {2, u"2"},
    {3, u"3"},
    {4, u"4"},
    {5, u"5"},
    {6, u"6"},
    {7, u"7"},
    {8, u"8"},
    {9, u"9"},
    {10, u"("},
    {11, u")"},
    {12, u"*"},
    {13, u":"},
    {14, u"+"},
    {15, u"-"},
    {CommaIndex, u","},
    {17, u"(-)"},
    {18, u"^"},
    {EqualsIndex, u"="},
    {20, TableKey},
    {FormulaIndex, FormulaKey},
    {22, u"log"},
    {23, u"<-"},
    {24, u"CE"},
    {25, u"OK"},
    {DigitsIndex, DigitsKey},
    {calc_design::FirstStoreKey, u"STO1"},
    {calc_design::FirstStoreKey + 1, u"STO2"},
    {calc_design::FirstStoreKey + 2, u"STO3"},
    {calc_design::FirstStoreKey + 3, u"STO4"},
};

constexpr StringView NoRoom = u"Kein Platz mehr: 20 Zeichen sind das Höchste.|"
                              u"No more room: 20 signs are the most.";
constexpr StringView NoValue = u"Das kann ich nicht ausrechnen.|I cannot work that out.";
constexpr StringView NoMass = u"Von dieser Formel kenne ich keine molare Masse.|"
                              u"I know no molar mass of this formula.";

/// The part of a line that keeps an interval within another one; a longer one begins where that begins.
double within(double from, double length, double outerFrom, double outerLength)
{
    return std::max(outerFrom, std::min(from, outerFrom + outerLength - length));
}

} // namespace

frm_ToolCalc::frm_ToolCalc()
    : display_(std::make_unique<CalculatorDisplay>(SessionState::current().platform().random)),
      form_(calc_design::Design), term_(form_->control<ctl_Label>(u"lab_Term")),
      reading_(form_->control<ctl_Label>(u"Label1")), table_(form_->control<ctl_PSE>(u"ctl_PSE")),
      tape_(form_->control<ListBox>(u"lst_Tape")), keys_(*form_, u"but_Key"),
      variableKeys_(*form_, u"but_Var"), memories_(form_, *display_)
{
    keys_.adopt();
    for (const KeyText& key : KeyTexts) {
        keys_(key.index)->Tag(String(key.text));
    }
    table_->BUBBLE(form_->control<ctl_Bubble>(u"ctl_Bubble1"));
    connect();
    showTerm();
}

frm_ToolCalc::~frm_ToolCalc() = default;

const std::optional<double>& frm_ToolCalc::result() const
{
    return display_->result();
}

void frm_ToolCalc::Variables(const CoreTokenList& value)
{
    std::vector<Variant> pairs;
    names_.clear();
    readings_.clear();
    for (std::int32_t at = 1; at <= value.Count(); ++at) {
        const CoreToken& variable = value.Item(at);
        const CoreValueList& values = variable.Values();
        const Variant number = values.Count() > 0 ? values.Item(1) : Variant();
        const String unit = values.Count() > 1 ? u" " + values.Item(2).toText() : String();
        names_.push_back(variable.Name());
        readings_.push_back({variable.Name(), number.toText() + unit});
        pairs.emplace_back(variable.Name());
        pairs.push_back(number);
    }
    display_->variables(std::move(pairs));
}

void frm_ToolCalc::Title(String value)
{
    title_ = std::move(value);
}

void frm_ToolCalc::Show()
{
    form_->Show(FormShow::Modal);
}

void frm_ToolCalc::connect()
{
    form_.on(form_->Load, [this] { load(); });
    form_.on(form_->Activate, [this] { goOnScreen(); });
    form_.on(form_->TRANSLATE, [this] { TRANSLATE(); });
    form_.on(form_->KeyDown, [this](KeyEvent& event) { keyDown(event); });
    form_.on(form_->KeyPress, [this](KeyPressEvent& event) { keyPress(event); });
    keys_.connectEach([this](ctl_Button& key, std::int32_t) {
        return key.CLICK.connect([this, &key] { strike(key.Tag()); });
    });
    form_.on(memories_.RECALL, [this](std::int32_t memory) { answer(display_->recall(memory)); });
    // Whoever taps an element twice wants it twice.
    form_.on(table_->CLICK, [this](const auto& element) { take(*element); });
    form_.on(table_->CLICKAGAIN, [this](const auto& element) { take(*element); });
    form_.on(tape_->Click, [this] { recallLine(); });
}

void frm_ToolCalc::TRANSLATE()
{
    translateForm(form_);
    if (!title_.empty()) {
        form_->Caption(title_);
    }
    keys_(CommaIndex)->Caption(String(1, currentLocale().decimalSign));
    form_->control<ctl_Label>(u"lab_Task")->Caption(parameters_.Get(u"TASK").toText());
    memories_.show();
    showDigits();
    showReading();
}

void frm_ToolCalc::load()
{
    isTableThere_ = checkElementFile();
    keys_(FormulaIndex)->Enabled(parameters_.Get(u"FORMULA", true).toBoolean());
    makeVariableKeys();
    TRANSLATE();
    if (std::exchange(showsTable_, false)) {
        togglePSE();
    } else {
        fit();
    }
    place();
    keys_(EqualsIndex)->SetFocus();
}

/// A key for each variable, with its name and its value.
void frm_ToolCalc::makeVariableKeys()
{
    const auto bar = form_->control<ctl_Pannel>(u"bar_Var");
    for (std::size_t at = variableKeys_.Count(); at < names_.size(); ++at) {
        const auto key = variableKeys_.add(static_cast<std::int32_t>(at), std::make_shared<ctl_Button>(),
                                           bar->container());
        key->Font(form_->control<ctl_Button>(u"but_Recall", 0)->Font());
        key->Caption(names_[at] + u" = " + readings_[at].reading);
        form_.on(key->CLICK, [this, name = names_[at]] { answer(display_->addVariable(name)); });
    }
}

// The line.

void frm_ToolCalc::hShow(StringView pText)
{
    display_->show(pText);
    showTerm();
}

const String& frm_ToolCalc::hGet() const
{
    return display_->text();
}

void frm_ToolCalc::Preset(double value)
{
    hShow(display_->fitted(value));
}

const String& frm_ToolCalc::SolveError() const
{
    return display_->solveError();
}

void frm_ToolCalc::SOLVE(StringView pTerm, std::span<const Variant> pVars, double& rResult)
{
    display_->solver().SOLVE(pTerm, pVars, rResult);
}

CalculatorAnswer frm_ToolCalc::CALC(bool pKeep)
{
    return work(pKeep ? StringView(u"OK") : StringView(u"="));
}

/// A key that works out the line: it goes onto the tape, and what is wrong with it is said.
CalculatorAnswer frm_ToolCalc::work(StringView key)
{
    const String term = display_->text();
    const CalculatorAnswer worked = display_->press(key);
    if (worked == CalculatorAnswer::Done) {
        noteLine(term);
    }
    answerValue(term, worked);
    return worked;
}

void frm_ToolCalc::strike(StringView key)
{
    if (key == TableKey) {
        togglePSE();
    } else if (key == FormulaKey) {
        askForFormula();
    } else if (key == DigitsKey) {
        swapDigits();
    } else if (key == u"OK") {
        if (work(key) == CalculatorAnswer::Done) {
            form_->Unload();
        }
    } else if (key == u"=" || key.starts_with(u"STO")) {
        work(key);
    } else {
        answer(display_->press(key));
    }
}

/// Behind a key that changes the term.
void frm_ToolCalc::answer(CalculatorAnswer answer)
{
    if (answer == CalculatorAnswer::NoRoom) {
        QVAPP()->MEDIA()->PLAYCATEGORY(u"wrong", false);
        say(LNG()->TRANSLATEAUTO(NoRoom));
    } else {
        showTerm();
    }
}

/// Behind one that works it out: the value, or what is wrong with the term.
void frm_ToolCalc::answerValue(const String& term, CalculatorAnswer answer)
{
    showTerm();
    memories_.show();
    const String& asked = display_->isFailed() ? display_->failedTerm() : term;
    const auto flaw = flawIn(asked, names_, display_->solver(), display_->variables());
    if (flaw) {
        say(LNG()->TRANSLATEAUTO(adviceOn(*flaw)));
    } else if (answer == CalculatorAnswer::Failed) {
        say(LNG()->TRANSLATEAUTO(NoValue));
    } else {
        term_->frame().announce(display_->text());
    }
}

/// In place of the reading, until the next key.
void frm_ToolCalc::say(const String& text)
{
    reading_->ForeColor(Palette::TryAgain);
    reading_->Caption(text);
    reading_->frame().AccessibleName({});
    reading_->frame().announce(text);
}

/// On top of the tape. A number that stands for itself, and the line of before once more, say nothing new.
void frm_ToolCalc::noteLine(const String& term)
{
    if (term == display_->text() || (!lines_.empty() && lines_.front() == term)) {
        return;
    }
    lines_.insert(lines_.begin(), term);
    tape_->AddItem(tapeLine(term, display_->text()), 0);
}

/// The term and its value, in the room of a line: a long term loses its beginning, since the value counts.
String frm_ToolCalc::tapeLine(StringView term, const String& value) const
{
    const auto face = visualHost().metrics().face(tape_->Font()->traits());
    String line = String(term) + u" = " + value;
    for (StringView rest = term; !rest.empty() && face->width(line) > calc_design::TapeRoom;) {
        rest.remove_prefix(1);
        line = u"…" + String(rest) + u" = " + value;
    }
    return line;
}

/// The term of the line that was chosen, to be changed or worked out again.
void frm_ToolCalc::recallLine()
{
    const std::int32_t line = tape_->ListIndex();
    if (line >= 0) {
        hShow(lines_.at(static_cast<std::size_t>(line)));
    }
}

// Molar masses.

void frm_ToolCalc::take(const cls_DataElement& element)
{
    addMass(element.MOL(), display_->addMass(element.MOL()));
}

/// The formula comes from the periodic keyboard, the masses of its elements from the table.
void frm_ToolCalc::askForFormula()
{
    const String title = LNG()->TRANSLATE(u"Molare Masse von:", u"Molar mass of:");
    const String text = QVAPP()->DIALOG()->PSEINPUTDIRECT({}, title, {});
    if (text.empty() || !openTable()) {
        return;
    }
    const FormulaReading reading = readFormula(text);
    if (reading.refusal) {
        say(LNG()->TRANSLATE(germanSentence(*reading.refusal), englishSentence(*reading.refusal)));
        return;
    }
    const FormulaSpecies& species = reading.tree.species.front();
    const auto mass = molarMassOf(reading.tree, species, [&](StringView symbol) {
        return std::optional(table_->Elements()->ITEM(String(symbol), false)->MOL());
    });
    if (mass && *mass > 0) {
        addMass(*mass, display_->addFormulaMass(*mass));
    } else {
        say(LNG()->TRANSLATEAUTO(NoMass));
    }
}

void frm_ToolCalc::addMass(double mass, CalculatorAnswer answer)
{
    if (answer == CalculatorAnswer::Done) {
        const String text = display_->fitted(mass);
        readings_.push_back({text, text + u" g/mol"});
    }
    this->answer(answer);
}

// What is shown.

void frm_ToolCalc::showTerm()
{
    term_->Caption(display_->text());
    term_->Font()->Size(fittingSize(display_->text()));
    showReading();
}

void frm_ToolCalc::showReading()
{
    const String& term = display_->isFailed() ? display_->failedTerm() : display_->text();
    const String spoken = LNG()->TRANSLATEAUTO(spokenTerm(term, readings_));
    reading_->ForeColor(Palette::Muted);
    const String readable = readableTerm(term, readings_);
    reading_->Caption(readable == display_->text() ? String() : readable);
    reading_->frame().AccessibleName(spoken);
    term_->frame().AccessibleName(display_->isFailed() ? display_->text() : spoken);
}

void frm_ToolCalc::showDigits()
{
    const bool isAll = display_->digits() == ResultDigits::All;
    keys_(DigitsIndex)
        ->Caption(isAll ? LNG()->TRANSLATE(u"Alle Stellen", u"All digits")
                        : LNG()->TRANSLATE(u"Gültige Stellen", u"Significant digits"));
}

/// The largest size, by steps of 1, in which the text has room.
double frm_ToolCalc::fittingSize(StringView text) const
{
    const double room = term_->frame().pixelRectangle().width - calc_design::DisplayMargin;
    FontSpec font = term_->Font()->traits();
    font.size = calc_design::LargestPoints;
    while (font.size > calc_design::LeastPoints && visualHost().metrics().face(font)->width(text) > room) {
        --font.size;
    }
    return font.size;
}

void frm_ToolCalc::swapDigits()
{
    display_->digits(display_->digits() == ResultDigits::All ? ResultDigits::Significant : ResultDigits::All);
    showDigits();
}

/// The table is read when it is first needed.
bool frm_ToolCalc::openTable()
{
    if (isTableThere_ && !std::exchange(isTableRead_, true)) {
        table_->LOAD(elementFile(), ctl_PSE::ElementFile);
    }
    return isTableThere_;
}

void frm_ToolCalc::togglePSE()
{
    showsTable_ = !showsTable_ && openTable();
    fit();
}

void frm_ToolCalc::fit()
{
    if (roomyZoom_) {
        form_->Zoom(*std::exchange(roomyZoom_, std::nullopt));
    }
    layOut();
    goOnScreen();
}

void frm_ToolCalc::layOut()
{
    layOutCalculator(*form_, showsTable_ ? CalculatorSide::Table : CalculatorSide::Lines);
}

/// All of the window stays on the screen that shows its corner. One that is too large for it, since there are
/// many variables or the screen is small, is shown smaller as a whole.
void frm_ToolCalc::goOnScreen()
{
    constexpr int Tries = 2; // the frame around the window does not shrink with it
    const double twips = visualHost().screen().TwipsPerPixelX();
    const auto window = [&] {
        return PixelRectangle{form_->Left() / twips, form_->Top() / twips, form_->Width() / twips,
                              form_->Height() / twips};
    };
    const PixelRectangle area = visualHost().screen().at({window().left, window().top});
    for (int attempt = 0; attempt < Tries; ++attempt) {
        const double share = std::min(area.width / window().width, area.height / window().height);
        if (share < 1) {
            roomyZoom_ = roomyZoom_.value_or(form_->Zoom());
            form_->Zoom(form_->Zoom() * share);
            layOut();
        }
    }
    form_->Move(within(window().left, window().width, area.left, area.width) * twips,
                within(window().top, window().height, area.top, area.height) * twips);
}

/// At its corner, or in the middle of the screen.
void frm_ToolCalc::place()
{
    const Screen& screen = visualHost().screen();
    if (corner_) {
        form_->Move(corner_->x, corner_->y);
    } else {
        const double twips = screen.TwipsPerPixelX();
        const PixelRectangle area = screen.first();
        form_->Move((area.left + area.width / 2) * twips - form_->Width() / 2,
                    (area.top + area.height / 2) * twips - form_->Height() / 2);
    }
    goOnScreen();
}

// Keys of the desk.

void frm_ToolCalc::keyDown(KeyEvent& event)
{
    const bool isCommand = (event.Shift & ShiftMask::Control) != 0;
    const auto done = [&](auto&& deed) {
        event.KeyCode = 0;
        deed();
    };
    if (event.is(Key::Return)) {
        done([&] { strike(isCommand ? StringView(u"OK") : StringView(u"=")); });
    } else if (event.is(Key::Delete)) {
        done([&] {
            if (!memories_.clearFocused()) {
                strike(u"CE");
            }
        });
    } else if (isCommand && event.KeyCode == u'C') {
        done([&] { visualHost().clipboardText(display_->text()); });
    } else if (isCommand && event.KeyCode == u'V') {
        done([&] { answer(display_->paste(visualHost().clipboardText())); });
    }
}

void frm_ToolCalc::keyPress(KeyPressEvent& event)
{
    const StringView key = CalculatorDisplay::keyFor(event.KeyAscii);
    if (!key.empty()) {
        event.KeyAscii = 0;
        strike(key);
    }
}

} // namespace phial
