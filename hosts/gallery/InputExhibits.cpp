#include "dialogs/ctl_QVInput.h"
#include "gallery/Catalogue.h"
#include "gallery/GalleryColours.h"
#include "gallery/GalleryFont.h"
#include "visual/ComboBox.h"
#include "visual/ListBox.h"
#include "visual/ListView.h"
#include "visual/RichTextBox.h"
#include "visual/ScrollBar.h"
#include "visual/TextBox.h"
#include "visual/ctl_Button.h"
#include "visual/ctl_Label.h"

namespace gallery
{

using namespace phial;

namespace
{

constexpr auto Elements = std::to_array<StringView>(
    {u"Wasserstoff|Hydrogen", u"Helium|Helium", u"Lithium|Lithium", u"Beryllium|Beryllium", u"Bor|Boron",
     u"Kohlenstoff|Carbon", u"Stickstoff|Nitrogen", u"Sauerstoff|Oxygen", u"Fluor|Fluorine", u"Neon|Neon",
     u"Natrium|Sodium", u"Magnesium|Magnesium", u"Aluminium|Aluminium", u"Silicium|Silicon",
     u"Phosphor|Phosphorus", u"Schwefel|Sulfur", u"Chlor|Chlorine", u"Argon|Argon"});
constexpr StringView Sentence = u"Die molare Masse ist der Quotient aus Masse und Stoffmenge.|"
                                u"The molar mass is the quotient of mass and amount of substance.";

template <typename List>
void fill(List& list, std::size_t count)
{
    list.Font(galleryFont(11));
    for (std::size_t i = 0; i < count; ++i) {
        list.AddItem(say(Elements[i]));
    }
}

Exhibit textBox()
{
    const auto typed = [](TextBox& box, StringView text) {
        box.Font(galleryFont(14));
        box.Text(say(text));
    };
    return control<TextBox>(
        Group::Input, u"TextBox", u"Ein Feld zum Schreiben.|A field to type in.", {300, 44},
        {sample<TextBox>(u"Leer|Empty", [=](TextBox& box) { typed(box, u""); }),
         sample<TextBox>(u"Text|Text", [=](TextBox& box) { typed(box, u"Natürlich!|Of course!"); }),
         sample<TextBox>(u"Rechts|Right",
                         [=](TextBox& box) {
                             typed(box, u"18,015|18.015");
                             box.Alignment(Alignment::Right);
                         }),
         sample<TextBox>(u"Kennwort|Password",
                         [=](TextBox& box) {
                             typed(box, u"geheim|secret");
                             box.PasswordChar(u"\u2022");
                         }),
         sample<TextBox>(u"Mehrzeilig|Several lines",
                         [=](TextBox& box) {
                             box.MultiLine(true);
                             box.Height(120);
                             typed(box, Sentence);
                         }),
         sample<TextBox>(u"Nur lesen|Read only",
                         [=](TextBox& box) {
                             typed(box, u"Nicht zu ändern|Not to be changed");
                             box.Locked(true);
                         }),
         sample<TextBox>(u"Gesperrt|Disabled", [=](TextBox& box) {
             typed(box, u"Nicht verfügbar|Not available");
             box.Enabled(false);
         })});
}

Exhibit richTextBox()
{
    const auto typed = [](RichTextBox& box, int paragraphs) {
        box.Font(galleryFont(11));
        String text;
        for (int i = 0; i < paragraphs; ++i) {
            text += (i > 0 ? u"\r\n\r\n" : u"") + say(Sentence);
        }
        box.Text(text);
    };
    return control<RichTextBox>(Group::Input, u"RichTextBox",
                                u"Ein Feld für längere Texte.|A field for longer texts.", {340, 200},
                                {sample<RichTextBox>(u"Kurz|Short", [=](RichTextBox& box) { typed(box, 1); }),
                                 sample<RichTextBox>(u"Lang|Long", [=](RichTextBox& box) { typed(box, 8); }),
                                 sample<RichTextBox>(u"Nur lesen|Read only", [=](RichTextBox& box) {
                                     typed(box, 2);
                                     box.Locked(true);
                                     box.BackColor(colours::Paper);
                                 })});
}

Exhibit button()
{
    const auto titled = [](ctl_Button& button, StringView caption) {
        button.Font(galleryFont(13));
        button.Caption(say(caption));
    };
    return control<ctl_Button>(
        Group::Input, u"ctl_Button", u"Ein Knopf zum Drücken.|A button to press.", {200, 56},
        {sample<ctl_Button>(u"Schlicht|Plain", [=](ctl_Button& button) { titled(button, u"Tipp|Hint"); }),
         sample<ctl_Button>(u"Betont|Accented",
                            [=](ctl_Button& button) {
                                titled(button, u"Prüfen|Check");
                                button.Accent(true);
                            }),
         sample<ctl_Button>(u"Mit Bild|With a picture",
                            [=](ctl_Button& button) {
                                titled(button, u"Blau|Blue");
                                const auto picture = std::make_shared<Picture>(PixelSize{20, 20});
                                std::ranges::fill(picture->pixels(), 0xFF006AB5U);
                                button.Picture(picture);
                            }),
         sample<ctl_Button>(u"Gesperrt|Disabled",
                            [=](ctl_Button& button) {
                                titled(button, u"Prüfen|Check");
                                button.Enabled(false);
                            }),
         sample<ctl_Button>(u"Beides|Both", [=](ctl_Button& button) {
             titled(button, u"Prüfen|Check");
             button.Accent(true);
             button.Enabled(false);
         })});
}

Exhibit listBox()
{
    return control<ListBox>(Group::Input, u"ListBox", u"Eine Liste zum Auswählen.|A list to choose from.",
                            {240, 220},
                            {sample<ListBox>(u"Kurz|Short", [](ListBox& list) { fill(list, 4); }),
                             sample<ListBox>(u"Gewählt|Chosen",
                                             [](ListBox& list) {
                                                 fill(list, 6);
                                                 list.ListIndex(2);
                                             }),
                             sample<ListBox>(u"Lang|Long",
                                             [](ListBox& list) {
                                                 fill(list, Elements.size());
                                                 list.ListIndex(14);
                                             }),
                             sample<ListBox>(u"Gesperrt|Disabled", [](ListBox& list) {
                                 fill(list, 4);
                                 list.Enabled(false);
                             })});
}

Exhibit comboBox()
{
    return control<ComboBox>(
        Group::Input, u"ComboBox",
        u"Eine Zeile mit einer Liste zum Aufklappen.|A line with a list that drops down.", {260, 40},
        {sample<ComboBox>(u"Schreibbar|Editable",
                          [](ComboBox& combo) {
                              fill(combo, Elements.size());
                              combo.Text(say(u"Knallgas|Oxyhydrogen"));
                          }),
         sample<ComboBox>(u"Nur Liste|List only",
                          [](ComboBox& combo) {
                              fill(combo, Elements.size());
                              combo.Style(ComboStyle::ListOnly);
                              combo.ListIndex(7);
                          }),
         sample<ComboBox>(u"Gesperrt|Disabled", [](ComboBox& combo) {
             fill(combo, 3);
             combo.ListIndex(0);
             combo.Enabled(false);
         })});
}

Exhibit scrollBar(ScrollDirection direction)
{
    const bool upright = direction == ScrollDirection::Vertical;
    const auto at = [](StringView name, std::int32_t value) {
        return sample<ScrollBar>(name, [value](ScrollBar& bar) {
            bar.Max(100);
            bar.LargeChange(20);
            bar.Value(value);
        });
    };
    return {
        Group::Input,
        upright ? u"VScrollBar" : u"HScrollBar",
        upright ? u"Eine senkrechte Bildlaufleiste.|An upright scroll bar."
                : u"Eine waagerechte Bildlaufleiste.|A level scroll bar.",
        [=](Stage& stage) {
            const auto bar = stage.putMiddle<ScrollBar>(upright ? PixelSize{24, 220} : PixelSize{280, 24});
            bar->Direction(direction);
            return bar;
        },
        {at(u"Anfang|Start", 0), at(u"Mitte|Middle", 50), at(u"Ende|End", 100)}};
}

/// Some elements with their signs and masses.
void fillTable(ListView& list, std::size_t count)
{
    struct Row {
        StringView sign;
        StringView mass; ///< "German|English"
    };
    constexpr auto Rows = std::to_array<Row>({{u"H", u"1,008|1.008"},
                                              {u"He", u"4,003|4.003"},
                                              {u"Li", u"6,94|6.94"},
                                              {u"Be", u"9,012|9.012"},
                                              {u"B", u"10,81|10.81"}});
    list.Font(galleryFont(11));
    list.COLUMNHEADERS()->Add(say(u"Element|Element"), 0);
    list.COLUMNHEADERS()->Add(say(u"Zeichen|Sign"), 90);
    const auto mass = list.COLUMNHEADERS()->Add(say(u"Masse in u|Mass in u"), 120);
    mass->Alignment(Alignment::Right);
    mass->ToolTipText(say(u"Mittel der Isotope|Mean of the isotopes"));
    for (std::size_t i = 0; i < count; ++i) {
        const auto row = list.ITEMS()->Add(say(Elements[i]));
        row->Cell(2, String(Rows[i].sign));
        row->Cell(3, say(Rows[i].mass));
    }
}

Exhibit listView()
{
    return control<ListView>(
        Group::Input, u"ListView", u"Eine Liste mit Spalten.|A list with columns.", {380, 220},
        {sample<ListView>(u"Leer|Empty", [](ListView& list) { fillTable(list, 0); }),
         sample<ListView>(u"Fünf Zeilen|Five rows", [](ListView& list) { fillTable(list, 5); }),
         sample<ListView>(u"Gewählt|Chosen", [](ListView& list) {
             fillTable(list, 5);
             list.ListIndex(3);
         })});
}

/// The field, and below it the value of which it tells.
ObjectPtr buildNumberField(Stage& stage)
{
    const PixelRectangle middle = stage.middle({260, 44});
    const auto field = stage.put<ctl_QVInput>(middle);
    field->Font(galleryFont(14));
    const auto value = stage.put<ctl_Label>({middle.left, middle.bottom() + 16, middle.width, 30});
    value->Font(galleryFont(11));
    value->ForeColor(colours::Ink);
    stage.keep(field->CHANGED.connect(
        [value](const Variant& now) { value->Caption(say(u"Neuer Wert: |New value: ") + now.toText()); }));
    return field;
}

Exhibit numberField()
{
    const auto number = [](ctl_QVInput& field, double value) {
        field.TEXT(say(u"Masse in g|Mass in g"));
        field.MODE(ID_InputMode_Double);
        field.DIGITS(3);
        field.VALUE(value);
    };
    return {Group::Input,
            u"ctl_QVInput",
            u"Ein Feld für eine Zahl oder einen Text, im Touch-Modus mit Tastatur.|"
            u"A field for a number or a text, with a keyboard in touch mode.",
            buildNumberField,
            {sample<ctl_QVInput>(u"Ganze Zahl|Whole number", [](ctl_QVInput& field) { field.VALUE(12); }),
             sample<ctl_QVInput>(u"Mit Stellen|Decimals", [=](ctl_QVInput& field) { number(field, 18.015); }),
             sample<ctl_QVInput>(u"1 bis 6|1 to 6",
                                 [](ctl_QVInput& field) {
                                     field.TEXT(say(u"Augen eines Würfels|Spots of a die"));
                                     field.MIN(1);
                                     field.MAX(6);
                                     field.VALUE(7);
                                 }),
             sample<ctl_QVInput>(u"Text|Text",
                                 [](ctl_QVInput& field) {
                                     field.TEXT(say(u"Ein Element|An element"));
                                     field.MODE(ID_InputMode_Text);
                                     field.VALUE(say(Elements[0]));
                                 }),
             sample<ctl_QVInput>(u"Wie getippt|As typed",
                                 [=](ctl_QVInput& field) {
                                     number(field, 0);
                                     field.AsTyped(true);
                                     field.input().Text(say(u"98,1|98.1"));
                                 }),
             sample<ctl_QVInput>(u"Nur lesen|Read only",
                                 [=](ctl_QVInput& field) {
                                     number(field, 18.015);
                                     field.input().Locked(true);
                                 }),
             sample<ctl_QVInput>(u"Gesperrt|Disabled", [=](ctl_QVInput& field) {
                 number(field, 18.015);
                 field.Enabled(false);
             })}};
}

} // namespace

std::vector<Exhibit> inputExhibits()
{
    return {textBox(),
            numberField(),
            richTextBox(),
            button(),
            listBox(),
            comboBox(),
            listView(),
            scrollBar(ScrollDirection::Vertical),
            scrollBar(ScrollDirection::Horizontal)};
}

} // namespace gallery
