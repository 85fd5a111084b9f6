#include "chem/cls_DataElements.h"
#include "dialogs/FreeTermKeys.h"
#include "dialogs/OfferChoice.h"
#include "dialogs/ctl_Keys.h"
#include "dialogs/frm_DialogKeyboard.h"
#include "dialogs/frm_DialogKeyboardPSE.h"
#include "dialogs/frm_DialogKeyboardTerm.h"
#include "dialogs/frm_DialogNumericTouch.h"
#include "gallery/ActionExhibit.h"
#include "gallery/Catalogue.h"
#include "gallery/GalleryColours.h"
#include "gallery/GalleryFont.h"
#include "periodic/ctl_PSE.h"
#include "term/clt_TermInput.h"
#include "visual/Label.h"
#include "visual/RichTextBox.h"
#include "visual/TextBox.h"
#include "visual/ctl_Label.h"

#include <utility>
#include <vector>

namespace gallery
{

using namespace phial;

namespace
{

// Keys of the layout.
constexpr std::int32_t LetterA = 26;
constexpr std::int32_t ShiftKey = 37;
constexpr std::int32_t CtrlKey = 50;
constexpr std::int32_t AltKey = 51;
constexpr std::int32_t SymKey = 52;
constexpr std::int32_t EnterKey = 58;

// Keys of the pad for numbers.
constexpr std::int32_t PadSwap = 0;
constexpr std::int32_t PadOne = 1;
constexpr std::int32_t PadSeven = 7;
constexpr std::int32_t PadOk = 11;
constexpr std::int32_t PadSign = 45;

// Keys of the keyboards for terms.
constexpr std::int32_t TermOpen = 0;
constexpr std::int32_t TermTwo = 2;
constexpr std::int32_t TermClose = 24;
constexpr std::int32_t TermClear = 59;
constexpr std::int32_t TermLetterC = 40;
constexpr std::int32_t TermMinus = 47;

constexpr std::int32_t ScanStep = 1500; // milliseconds

constexpr double FieldWidth = 340;
constexpr double NoteHeight = 68;
constexpr double FieldTop = 74;
constexpr double FieldGap = 6;

/// A press on the field asks for its text as in touch mode.
template <typename InputForm>
void asksByPress(Stage& stage, const ControlPtr& field, Event<>& pressed)
{
    stage.keep(pressed.connect([target = std::weak_ptr<Control>(field)] {
        InputForm form;
        form.TargetControl(target.lock());
        form.Show();
    }));
}

/// A field of each kind that the keyboard edits, from above to below; gives the label, which can have lines.
ControlPtr putFields(Stage& stage)
{
    double top = FieldTop;
    const auto place = [&](double height) {
        const PixelRectangle area{(stage.size().width - FieldWidth) / 2, top, FieldWidth, height};
        top += height + FieldGap;
        return area;
    };
    const auto box = stage.put<TextBox>(place(36));
    box->Font(galleryFont(13));
    box->Text(say(u"Ein Textfeld|A text field"));
    asksByPress<frm_DialogKeyboard>(stage, box, box->Click);
    const auto lines = stage.put<TextBox>(place(56));
    lines->Font(galleryFont(11));
    lines->MultiLine(true);
    lines->Text(say(u"Mehrere|Several") + u"\r\n" + say(u"Zeilen|lines"));
    asksByPress<frm_DialogKeyboard>(stage, lines, lines->Click);
    const auto label = stage.put<Label>(place(24));
    label->Font(galleryFont(13));
    label->ForeColor(colours::Ink);
    label->Caption(say(u"Eine Beschriftung|A label"));
    asksByPress<frm_DialogKeyboard>(stage, label, label->Click);
    const auto rich = stage.put<RichTextBox>(place(36));
    rich->Font(galleryFont(11));
    rich->Text(say(u"Formatierter Text|Rich text"));
    asksByPress<frm_DialogKeyboard>(stage, rich, rich->Click);
    const auto term = stage.put<clt_TermInput>(place(36));
    term->Term(u"2H2 + O2 -> 2H2O");
    asksByPress<frm_DialogKeyboard>(stage, term, term->CLICK);
    return label;
}

void putWindowNote(Stage& stage, StringView both)
{
    putNote(stage, {24, 4, stage.size().width - 48, NoteHeight}, both);
}

/// The form without its modal wait, so that the gallery goes on.
template <typename InputForm>
ObjectPtr asExhibit(Stage& stage, const std::shared_ptr<InputForm>& form)
{
    stage.atEnd([form] { form->form().discard(); });
    return form->form().shared_from_this();
}

ObjectPtr buildTitledKeyboard(Stage& stage, StringView title)
{
    putWindowNote(stage, u"Der Knopf unten öffnet die Tastatur, ein Druck auf ein Feld auch.|"
                         u"The button below opens the keyboard, and so does a press on a field.");
    const auto keyboard = std::make_shared<frm_DialogKeyboard>();
    keyboard->TargetControl(putFields(stage));
    keyboard->TitleText(say(title));
    return asExhibit(stage, keyboard);
}

ObjectPtr buildPad(Stage& stage)
{
    putWindowNote(stage, u"Der Knopf unten öffnet den Zahlenblock, ein Druck auf das Feld auch. Wer woanders "
                         u"hintippt, bestätigt.|"
                         u"The button below opens the number pad, and so does a press on the field. A tap "
                         u"elsewhere confirms.");
    const auto box = stage.put<TextBox>({(stage.size().width - FieldWidth) / 2, FieldTop, FieldWidth, 36});
    box->Font(galleryFont(13));
    box->Text(say(u"18,015|18.015"));
    asksByPress<frm_DialogNumericTouch>(stage, box, box->Click);
    const auto pad = std::make_shared<frm_DialogNumericTouch>();
    pad->TargetControl(box);
    return asExhibit(stage, pad);
}

/// A keyboard for terms, and a field that it edits.
template <typename TermForm>
ObjectPtr buildTerms(Stage& stage, StringView note, const String& term)
{
    putWindowNote(stage, note);
    const auto field =
        stage.put<clt_TermInput>({(stage.size().width - FieldWidth) / 2, FieldTop, FieldWidth, 44});
    field->TEXTFONT(galleryFont(13));
    field->Term(term);
    FreeTermKeys::current()->showArrowAndFraction();
    asksByPress<TermForm>(stage, field, field->CLICK);
    const auto keyboard = std::make_shared<TermForm>();
    keyboard->TargetControl(field);
    return asExhibit(stage, keyboard);
}

ObjectPtr buildTermKeyboard(Stage& stage)
{
    return buildTerms<frm_DialogKeyboardTerm>(
        stage,
        u"Der Knopf unten öffnet die Tastatur für Formeln, ein Druck auf das Feld auch. Ein Tipp auf einen "
        u"Buchstaben gibt den großen.|"
        u"The button below opens the formula keyboard, and so does a press on the field. A tap on a letter "
        u"gives its capital.",
        u"2H2 + O2 -> 2H2O");
}

ObjectPtr buildPeriodicKeyboard(Stage& stage)
{
    return buildTerms<frm_DialogKeyboardPSE>(
        stage,
        u"Der Knopf unten öffnet die Tastatur, ein Druck auf das Feld auch. Wer ein Element noch einmal "
        u"antippt, zählt es hoch.|"
        u"The button below opens the keyboard, and so does a press on the field. A second tap on an element "
        u"counts it up.",
        u"CuSO4*5H2O");
}

ObjectPtr buildKeyboard(Stage& stage)
{
    return buildTitledKeyboard(stage, {});
}

ObjectPtr buildQuestion(Stage& stage)
{
    return buildTitledKeyboard(stage, u"Wie heißt die Verbindung, die in der Probe enthalten ist, und woran "
                                      u"erkennst du sie?|What is the compound in the sample called, and how "
                                      u"do you recognize it?");
}

/// Opens it, and does something with its keys.
template <typename Act>
Sample opened(StringView name, Act act)
{
    return sample<Form>(name, [=](Form& form) {
        form.Show();
        act(form, *form.control<ctl_Keys>(u"ctl_Keys"));
    });
}

PixelPoint middleOf(const ctl_Keys& keys, std::int32_t index)
{
    const PixelRectangle area = keys.areaOf(index);
    return {area.left + area.width / 2, area.top + area.height / 2};
}

/// Strikes a key.
void strike(ctl_Keys& keys, std::int32_t index)
{
    const PixelPoint at = middleOf(keys, index);
    const PointerEvent event{PointerButton::Left, 0, at.x, at.y};
    keys.pointerDown(event);
    keys.pointerUp(event);
}

/// Strikes keys one after the other.
Sample struck(StringView name, std::initializer_list<std::int32_t> indices)
{
    return opened(name, [all = std::vector(indices)](Form&, ctl_Keys& keys) {
        for (const std::int32_t index : all) {
            strike(keys, index);
        }
    });
}

Sample withField(StringView name, void (*change)(TextBox& field))
{
    return opened(name, [change](Form& form, ctl_Keys&) { change(*form.control<TextBox>(u"txt_Input")); });
}

std::vector<Sample> keySamples()
{
    return {
        sample<Form>(u"Geschlossen|Closed", [](Form&) {}),
        sample<Form>(u"Zeigen|Show", [](Form& form) { form.Show(); }),
        struck(u"Umgeschaltet|Shifted", {ShiftKey}),
        struck(u"Symbole|Symbols", {SymKey}),
        struck(u"Festgestellt|Locked", {ShiftKey, ShiftKey}),
        struck(u"Befehle|Commands", {CtrlKey}),
        struck(u"Strg und Alt|Ctrl and Alt", {CtrlKey, CtrlKey, AltKey, AltKey}),
        opened(u"Gedrückt|Pressed",
               [](Form&, ctl_Keys& keys) {
                   const PixelRectangle area = keys.areaOf(EnterKey);
                   keys.pointerDown({PointerButton::Left, 0, area.right() - 2, area.top + 2});
               }),
        opened(u"Varianten|Variants", [](Form&, ctl_Keys& keys) { keys.showVariants(LetterA); }),
    };
}

std::vector<Sample> padSamples()
{
    return {
        sample<Form>(u"Geschlossen|Closed", [](Form&) {}),
        sample<Form>(u"Zeigen|Show", [](Form& form) { form.Show(); }),
        struck(u"Getippt|Typed", {PadSeven, PadSign, PadOne, PadSwap}),
        opened(u"Gedrückt|Pressed",
               [](Form&, ctl_Keys& keys) {
                   const PixelRectangle area = keys.areaOf(PadOk);
                   keys.pointerDown({PointerButton::Left, 0, area.left + 2, area.bottom() - 2});
               }),
        opened(u"Abtasten|Scan",
               [](Form&, ctl_Keys& keys) {
                   keys.scanInterval(ScanStep);
                   strike(keys, PadSeven);
               }),
        struck(u"Lange Zahl|Long number", {PadOne, PadSign, PadSeven, PadSeven, PadSeven, PadSeven, PadSeven,
                                           PadSeven, PadSeven, PadSeven, PadSeven, PadSeven, PadOne}),
        withField(u"Gesperrt|Read only", [](TextBox& field) { field.Locked(true); }),
    };
}

/// As if the key were held.
Sample withVariants(StringView name, std::int32_t index)
{
    return opened(name, [index](Form&, ctl_Keys& keys) { keys.showVariants(index); });
}

Sample withTerm(StringView name, void (*change)(clt_TermInput& field))
{
    return opened(name,
                  [change](Form& form, ctl_Keys&) { change(*form.control<clt_TermInput>(u"txt_Input")); });
}

/// What both keyboards for terms show alike; each begins with samples of its own.
std::vector<Sample> termSamples(std::vector<Sample> own)
{
    const std::vector<Sample> alike{
        struck(u"Getippt|Typed", {TermClear, TermOpen, TermTwo, TermClose, TermTwo}),
        withTerm(u"Bruch|Fraction", [](clt_TermInput& field) { field.Term(u"m = (n*M)/(V + V2)"); }),
        withTerm(u"Lange Formel|Long formula",
                 [](clt_TermInput& field) {
                     field.Term(u"2KMnO4 + 16HCl -> 2KCl + 2MnCl2 + 5Cl2 + 8H2O + 2KMnO4 + 16HCl + SO4^2-");
                     field.CARET(0);
                 }),
        withTerm(u"Gesperrt|Read only", [](clt_TermInput& field) { field.LOCKED(true); }),
        opened(u"Gedrückt|Pressed",
               [](Form&, ctl_Keys& keys) {
                   const PixelRectangle area = keys.areaOf(PadOk);
                   keys.pointerDown({PointerButton::Left, 0, area.left + 2, area.bottom() - 2});
               }),
        opened(u"Abtasten|Scan", [](Form&, ctl_Keys& keys) { keys.scanInterval(ScanStep); }),
    };
    own.insert(own.end(), alike.begin(), alike.end());
    return own;
}

std::vector<Sample> termKeySamples()
{
    return termSamples({
        sample<Form>(u"Geschlossen|Closed", [](Form&) {}),
        sample<Form>(u"Zeigen|Show", [](Form& form) { form.Show(); }),
        struck(u"Umgeschaltet|Shifted", {ShiftKey}),
    });
}

/// Its field has a formula that goes on in several ways.
Sample withOffers(StringView name, StringView begun)
{
    return sample<Form>(name, [begun](Form& form) {
        OfferLeave::current()->isGiven = true;
        form.Show();
        OfferLeave::current()->isGiven = false;
        const auto field = form.control<clt_TermInput>(u"txt_Input");
        field->edit(0, field->Term().size(), begun);
    });
}

std::vector<Sample> offerSamples()
{
    return {
        sample<Form>(u"Geschlossen|Closed", [](Form&) {}),
        withOffers(u"Formeln|Formulas", u"Zn + H2S"),
        withOffers(u"Viele Formeln|Many formulas", u"Ca"),
        withVariants(u"Hoch und tief|Raised and lowered", TermTwo),
        withVariants(u"Elemente mit C|Elements with C", TermLetterC),
        withVariants(u"Pfeile|Arrows", TermMinus),
        withVariants(u"Ein Bruch|A fraction", TermOpen),
    };
}

std::vector<Sample> periodicKeySamples()
{
    return termSamples({
        sample<Form>(u"Geschlossen|Closed", [](Form&) {}),
        sample<Form>(u"Zeigen|Show", [](Form& form) { form.Show(); }),
        withOffers(u"Formeln|Formulas", u"Zn + H2S"),
    });
}

std::vector<Sample> tableSamples()
{
    const auto iron = [](Form& form) -> std::shared_ptr<cls_DataElement> {
        return form.control<ctl_PSE>(u"ctl_PSE")->Elements()->ITEM(u"Fe", false);
    };
    return {
        sample<Form>(u"Geschlossen|Closed", [](Form&) {}),
        opened(u"Ionen|Ions",
               [iron](Form& form, ctl_Keys&) {
                   bool isUsed = false;
                   form.control<ctl_PSE>(u"ctl_PSE")->HELD.raise(iron(form), isUsed);
               }),
        opened(u"Mit Tasten|By keys",
               [](Form& form, ctl_Keys&) { form.control<ctl_PSE>(u"ctl_PSE")->frame().SetFocus(); }),
    };
}

std::vector<Sample> fieldSamples()
{
    return {
        sample<Form>(u"Geschlossen|Closed", [](Form&) {}),
        opened(u"Abtasten, Reihe|Scan, row", [](Form&, ctl_Keys& keys) { keys.scanInterval(ScanStep); }),
        opened(u"Abtasten, Taste|Scan, key",
               [](Form&, ctl_Keys& keys) {
                   keys.scanInterval(ScanStep);
                   strike(keys, LetterA);
               }),
        struck(u"Zeilen|Lines", {SymKey, EnterKey, LetterA}),
        withField(u"Lange Zeile|Long line",
                  [](TextBox& field) {
                      field.Text({});
                      field.SelText(say(u"Eine Beschriftung, die länger ist als das Feld|"
                                        u"A label that is longer than its field"));
                  }),
        withField(u"Gesperrt|Read only", [](TextBox& field) { field.Locked(true); }),
        withField(u"Kennwort|Password", [](TextBox& field) { field.PasswordChar(u"*"); }),
    };
}

std::vector<Sample> questionSamples()
{
    return {
        sample<Form>(u"Geschlossen|Closed", [](Form&) {}),
        sample<Form>(u"Zeigen|Show", [](Form& form) { form.Show(); }),
        struck(u"Symbole fest|Symbols locked", {SymKey, SymKey}),
        struck(u"Beide|Both", {ShiftKey, SymKey, SymKey}),
        struck(u"Tasten mit Alt|Keys with Alt", {AltKey}),
        opened(u"Gehalten|Held",
               [](Form&, ctl_Keys& keys) {
                   const PixelPoint shift = middleOf(keys, ShiftKey);
                   const PixelPoint letter = middleOf(keys, LetterA);
                   keys.pointerDown({PointerButton::Left, 0, shift.x, shift.y, 1});
                   keys.pointerDown({PointerButton::Left, 0, letter.x, letter.y, 2});
               }),
    };
}

} // namespace

std::vector<Exhibit> keyboardExhibits()
{
    const auto inEveryLook = [](StringView title, StringView about, auto build,
                                std::vector<Sample>&& samples) {
        return Exhibit{.group = Group::Windows,
                       .title = title,
                       .about = about,
                       .build = build,
                       .samples = std::move(samples),
                       .everyLook = true};
    };
    return {inEveryLook(u"frm_DialogKeyboard",
                        u"Die Tastatur für Texte im Tipp-Modus.|The keyboard for texts in touch mode.",
                        buildKeyboard, keySamples()),
            inEveryLook(u"frm_DialogNumericTouch",
                        u"Der Zahlenblock im Tipp-Modus.|The number pad in touch mode.", buildPad,
                        padSamples()),
            inEveryLook(u"frm_DialogKeyboardTerm", u"Die Tastatur für Formeln.|The keyboard for formulas.",
                        buildTermKeyboard, termKeySamples()),
            inEveryLook(u"frm_DialogKeyboardPSE",
                        u"Das Periodensystem als Tastatur für Formeln.|"
                        u"The periodic table as a keyboard for formulas.",
                        buildPeriodicKeyboard, periodicKeySamples()),
            inEveryLook(u"TermPad",
                        u"Was die Tastatur für Formeln anbietet, von selbst und wenn man eine Taste hält.|"
                        u"What the formula keyboard offers by itself and when a key is held.",
                        buildTermKeyboard, offerSamples()),
            inEveryLook(u"PeriodicPad",
                        u"Was das Periodensystem als Tastatur anbietet, und wie man es mit Tasten erreicht.|"
                        u"What the periodic keyboard offers, and how keys reach its table.",
                        buildPeriodicKeyboard, tableSamples()),
            inEveryLook(u"ctl_Keys",
                        u"Die Tasten für einen einzelnen Schalter, und das Feld darüber.|"
                        u"The keys for a single switch, and the field above them.",
                        buildKeyboard, fieldSamples()),
            inEveryLook(u"KeyboardWindow",
                        u"Eine lange Frage über der Tastatur, und was mehrere Finger tun.|"
                        u"A long question above the keyboard, and what several fingers do.",
                        buildQuestion, questionSamples())};
}

} // namespace gallery
