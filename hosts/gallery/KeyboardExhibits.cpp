#include "dialogs/ctl_Keys.h"
#include "dialogs/frm_DialogKeyboard.h"
#include "gallery/ActionExhibit.h"
#include "gallery/Catalogue.h"
#include "gallery/GalleryColours.h"
#include "gallery/GalleryFont.h"
#include "term/clt_TermInput.h"
#include "visual/Label.h"
#include "visual/RichTextBox.h"
#include "visual/TextBox.h"
#include "visual/ctl_Label.h"

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

constexpr std::int32_t ScanStep = 1500; // milliseconds

constexpr double FieldWidth = 340;
constexpr double NoteHeight = 68;
constexpr double FieldTop = 74;
constexpr double FieldGap = 6;

/// A press on the field asks for its text as in touch mode.
void asksByPress(Stage& stage, const ControlPtr& field, Event<>& pressed)
{
    stage.keep(pressed.connect([target = std::weak_ptr<Control>(field)] {
        frm_DialogKeyboard keyboard;
        keyboard.TargetControl(target.lock());
        keyboard.Show();
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
    asksByPress(stage, box, box->Click);
    const auto lines = stage.put<TextBox>(place(56));
    lines->Font(galleryFont(11));
    lines->MultiLine(true);
    lines->Text(say(u"Mehrere|Several") + u"\r\n" + say(u"Zeilen|lines"));
    asksByPress(stage, lines, lines->Click);
    const auto label = stage.put<Label>(place(24));
    label->Font(galleryFont(13));
    label->ForeColor(colours::Ink);
    label->Caption(say(u"Eine Beschriftung|A label"));
    asksByPress(stage, label, label->Click);
    const auto rich = stage.put<RichTextBox>(place(36));
    rich->Font(galleryFont(11));
    rich->Text(say(u"Formatierter Text|Rich text"));
    asksByPress(stage, rich, rich->Click);
    const auto term = stage.put<clt_TermInput>(place(36));
    term->Term(u"2H2 + O2 -> 2H2O");
    asksByPress(stage, term, term->CLICK);
    return label;
}

/// The keyboard without its modal wait, so that the gallery goes on.
ObjectPtr buildKeyboard(Stage& stage)
{
    putNote(stage, {24, 4, stage.size().width - 48, NoteHeight},
            u"Der Knopf unten öffnet die Tastatur, ein Druck auf ein Feld auch.|"
            u"The button below opens the keyboard, and so does a press on a field.");
    const auto keyboard = std::make_shared<frm_DialogKeyboard>();
    keyboard->TargetControl(putFields(stage));
    stage.atEnd([keyboard] { keyboard->form().discard(); });
    return keyboard->form().shared_from_this();
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

/// Strikes a key.
void strike(ctl_Keys& keys, std::int32_t index)
{
    const PixelRectangle area = keys.areaOf(index);
    const PointerEvent event{PointerButton::Left, 0, area.left + area.width / 2, area.top + area.height / 2};
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

} // namespace

std::vector<Exhibit> keyboardExhibits()
{
    return {{Group::Windows, u"frm_DialogKeyboard",
             u"Die Tastatur für Texte im Tipp-Modus.|The keyboard for texts in touch mode.", buildKeyboard,
             keySamples()},
            {Group::Windows, u"ctl_Keys",
             u"Die Tasten für einen einzelnen Schalter, und das Feld darüber.|"
             u"The keys for a single switch, and the field above them.",
             buildKeyboard, fieldSamples()}};
}

} // namespace gallery
