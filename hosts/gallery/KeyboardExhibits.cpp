#include "dialogs/ctl_Keys.h"
#include "dialogs/frm_DialogKeyboard.h"
#include "gallery/Catalogue.h"
#include "gallery/GalleryColours.h"
#include "gallery/GalleryFont.h"
#include "term/clt_TermInput.h"
#include "visual/Label.h"
#include "visual/RichTextBox.h"
#include "visual/TextBox.h"
#include "visual/ctl_Label.h"

namespace gallery
{

using namespace phial;

namespace
{

constexpr std::int32_t ShiftKey = 37;
constexpr std::int32_t SymKey = 52;

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

/// A field of each kind that the keyboard edits, from above to below; gives the first one.
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
    return box;
}

/// The keyboard without its modal wait, so that the gallery goes on.
ObjectPtr buildKeyboard(Stage& stage)
{
    const auto note = stage.put<ctl_Label>({24, 4, stage.size().width - 48, NoteHeight});
    note->Font(galleryFont(11));
    note->ForeColor(colours::Ink);
    note->Alignment(TEXTALIGN::MiddleCentre);
    note->Caption(say(u"Der Knopf unten öffnet die Tastatur, ein Druck auf ein Feld auch.|"
                      u"The button below opens the keyboard, and so does a press on a field."));
    const auto keyboard = std::make_shared<frm_DialogKeyboard>();
    keyboard->TargetControl(putFields(stage));
    stage.atEnd([keyboard] { keyboard->form().discard(); });
    return keyboard->form().shared_from_this();
}

/// Opens it with a modifier that has been pressed so often.
Sample pressed(StringView name, std::int32_t modifier, int times)
{
    return sample<Form>(name, [=](Form& form) {
        const auto keys = form.control<ctl_Keys>(u"ctl_Keys");
        for (int i = 0; i < times; ++i) {
            keys->board().press(modifier);
        }
        keys->refresh();
        form.Show();
    });
}

} // namespace

std::vector<Exhibit> keyboardExhibits()
{
    return {{Group::Windows,
             u"frm_DialogKeyboard",
             u"Die Tastatur für Texte im Tipp-Modus.|The keyboard for texts in touch mode.",
             buildKeyboard,
             {sample<Form>(u"Geschlossen|Closed", [](Form&) {}),
              sample<Form>(u"Zeigen|Show", [](Form& form) { form.Show(); }),
              pressed(u"Umgeschaltet|Shifted", ShiftKey, 1), pressed(u"Symbole|Symbols", SymKey, 1),
              pressed(u"Festgestellt|Locked", ShiftKey, 2)}}};
}

} // namespace gallery
