#include "core/CoreText.h"
#include "gallery/ActionExhibit.h"
#include "gallery/Catalogue.h"
#include "gallery/GalleryColours.h"
#include "visual/Menu.h"
#include "visual/ctl_CmdBar.h"
#include "visual/ctl_Label.h"
#include "visual/ctl_Title.h"
#include "visual/ctl_UICommandbar.h"

namespace gallery
{

using namespace phial;

namespace
{

/// A command bar with a line below that tells the last key.
template <typename Bar>
ObjectPtr buildBar(Stage& stage)
{
    const double width = stage.size().width - 32;
    const auto bar = stage.put<Bar>({16, 100, width, 52});
    const auto told = putNote(stage, {16, 180, width, 40}, {});
    told->ForeColor(colours::Quiet);
    stage.keep(bar->BUTTON.connect([told](std::int32_t, const String& key) { told->Caption(key); }));
    return bar;
}

template <typename Bar>
Exhibit commandBar(StringView title, StringView about)
{
    return {Group::Bars,
            title,
            about,
            buildBar<Bar>,
            {sample<Bar>(u"Zwei Knöpfe|Two buttons",
                         [](Bar& bar) {
                             bar.BUTTONS()->Add(u"DIALOG.OK();", say(u"Übernehmen|Apply"));
                             bar.BUTTONS()->Add(u"DIALOG.CANCEL();", say(u"Abbrechen|Cancel"));
                         }),
             sample<Bar>(u"Einer gesperrt|One disabled",
                         [](Bar& bar) {
                             bar.BUTTONS()->Add(u"DIALOG.OK();", say(u"Übernehmen|Apply"))->Enabled(false);
                             bar.BUTTONS()->Add(u"DIALOG.CANCEL();", say(u"Abbrechen|Cancel"));
                         }),
             sample<Bar>(u"Fünf Knöpfe|Five buttons",
                         [](Bar& bar) {
                             for (const StringView caption : {u"Neu|New", u"Öffnen|Open", u"Sichern|Save",
                                                              u"Drucken|Print", u"Hilfe|Help"}) {
                                 bar.BUTTONS()->Add(say(caption), say(caption));
                             }
                         }),
             sample<Bar>(u"Mit Feldern|With panels", [](Bar& bar) {
                 bar.PANELS()->Add(u"", say(u"Zeile 3|Line 3"));
                 bar.PANELS()->Add(u"", say(u"Spalte 14|Column 14"))->Enabled(false);
                 bar.BUTTONS()->Add(u"DIALOG.OK();", say(u"Übernehmen|Apply"));
             })}};
}

Exhibit title()
{
    return {Group::Bars,
            u"ctl_Title",
            u"Der Kopf eines Dialogs.|The head of a dialog.",
            [](Stage& stage) {
                return stage.put<ctl_Title>({16, 100, stage.size().width - 32, 44});
            },
            {sample<ctl_Title>(u"Zum Schließen|Closable",
                               [](ctl_Title& title) { title.Title(say(u"Taschenrechner|Calculator")); }),
             sample<ctl_Title>(u"Fest|Fixed",
                               [](ctl_Title& title) {
                                   title.Title(say(u"Bitte warten …|Please wait …"));
                                   title.Closable(false);
                               }),
             sample<ctl_Title>(u"Mit Symbol|With an icon",
                               [](ctl_Title& title) {
                                   title.Title(say(u"Übungen|Exercises"));
                                   const auto icon = std::make_shared<Picture>(PixelSize{16, 16});
                                   std::ranges::fill(icon->pixels(), 0xFF78BEEBU);
                                   title.Icon(icon);
                               }),
             sample<ctl_Title>(u"Mit Nebentexten|With further texts", [](ctl_Title& title) {
                 title.Title(say(u"Hilfe|Help"));
                 title.TextLeft(say(u"Formeln schreiben|How to write formulas"));
                 title.TextRight(u"3/12");
             })}};
}

ObjectPtr buildMenu(Stage& stage)
{
    const auto told =
        putNote(stage, u"Das Menü steht oben in der Menüleiste.|The menu stands in the menu bar above.");
    const auto menu = stage.form().menu().add(u"men_Sample", say(u"&Beispiel|Sa&mple"));
    menu->add(u"men_Level", say(u"&Leicht|&Easy"), 0);
    menu->load(u"men_Level", 1)->Caption(say(u"&Mittel|&Medium"));
    menu->entry(u"men_Level", 1)->Visible(true);
    menu->add(u"men_Line", u"-");
    menu->add(u"men_Hints", say(u"&Tipps zeigen|Show &hints"));
    stage.keep(menu->Chosen.connect(
        [told](Menu& entry) { told->Caption(CoreText::Replace(entry.Caption(), u"&", u"")); }));
    stage.atEnd([&stage, menu] { stage.form().menu().remove(*menu); });
    return menu;
}

Exhibit menu()
{
    return {Group::Bars,
            u"Menu",
            u"Ein Menü mit Einträgen, auch als Feld.|A menu with entries, as an array too.",
            buildMenu,
            {sample<Menu>(u"Schlicht|Plain", [](Menu&) {}),
             sample<Menu>(u"Angehakt|Checked", [](Menu& menu) { menu.entry(u"men_Hints")->Checked(true); }),
             sample<Menu>(u"Gesperrt|Disabled", [](Menu& menu) { menu.Enabled(false); }),
             sample<Menu>(u"Ein Eintrag mehr|One entry more", [](Menu& menu) {
                 const auto entry = menu.load(u"men_Level", 2);
                 entry->Caption(say(u"&Schwer|&Difficult"));
                 entry->Visible(true);
             })}};
}

} // namespace

std::vector<Exhibit> barExhibits()
{
    return {commandBar<ctl_CmdBar>(u"ctl_CmdBar", u"Die Befehle eines Dialogs.|The commands of a dialog."),
            commandBar<ctl_UICommandbar>(u"ctl_UICommandbar",
                                         u"Die Befehle eines Editors.|The commands of an editor."),
            title(), menu()};
}

} // namespace gallery
