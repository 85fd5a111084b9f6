#include "app/cls_App.h"
#include "app/cls_AppURL.h"
#include "app/sys_Global.h"
#include "gallery/Catalogue.h"
#include "gallery/GalleryFont.h"
#include "mascot/ctl_Bubble.h"
#include "periodic/SheetMode.h"
#include "periodic/ctl_PSE.h"

namespace gallery
{

using namespace phial;

namespace
{

/// Without an installation the table stays empty.
void load(ctl_PSE& table)
{
    ignoringErrors([&] { table.LOAD(QVAPP()->URL()->DATASHARED() + u"elements2.dat"); });
}

/// A table in the state that `change` makes of a loaded one.
template <typename Change>
Sample tableSample(StringView name, Change change)
{
    return sample<ctl_PSE>(name, [change](ctl_PSE& table) {
        load(table);
        change(table);
        table.REDRAW();
    });
}

ObjectPtr buildTable(Stage& stage)
{
    const auto table = stage.put<ctl_PSE>({});
    table->FIXEDSIZE(true);
    table->frame().pixelRectangle(stage.middle(stage.size()));
    const auto bubble = stage.put<ctl_Bubble>({0, 0, 170, 90});
    bubble->TEXTFONT(galleryFont(9));
    bubble->Visible(false);
    table->BUBBLE(bubble);
    return table;
}

} // namespace

std::vector<Exhibit> periodicExhibits()
{
    return {
        {Group::Periodic,
         u"ctl_PSE",
         u"Das Periodensystem: Zeiger, Finger, Pfeile und Buchstaben führen zu Elementen, eine Blase sagt "
         u"mehr.|"
         u"The periodic table: pointer, finger, arrows and letters lead to elements, a bubble tells more.",
         buildTable,
         {tableSample(u"Symbole|Symbols", [](ctl_PSE&) {}),
          sample<ctl_PSE>(u"Namen|Names",
                          [](ctl_PSE& table) {
                              const NamesSheet names;
                              load(table);
                          }),
          tableSample(u"Orbitale|Orbitals", [](ctl_PSE& table) { table.ELEKTRONENZUSTAND(true); }),
          tableSample(u"Hervorgehoben|Highlighted",
                      [](ctl_PSE& table) {
                          table.HIGHLIGHTS()->Add(u"Na", Variant(0xB56A00));
                          table.HIGHLIGHT(u"Cl");
                      }),
          tableSample(u"Blass und grau|Pale and grey",
                      [](ctl_PSE& table) {
                          for (const StringView symbol : {u"He", u"Ne", u"Ar", u"Kr", u"Xe", u"Rn"}) {
                              table.FADED()->Add(String(symbol));
                          }
                          table.GONE()->Add(u"Tc");
                          table.GONE()->Add(u"Pm");
                      }),
          tableSample(u"Hoher Kontrast|High contrast",
                      [](ctl_PSE& table) { table.Colouring(TableColours::HighContrast); }),
          tableSample(u"Farben für alle|Colours for everybody",
                      [](ctl_PSE& table) { table.Colouring(TableColours::Distinct); }),
          tableSample(u"Einordnen|Put in order",
                      [](ctl_PSE& table) {
                          for (const StringView symbol : {u"H", u"He", u"Li", u"Ne"}) {
                              table.FADED()->Add(String(symbol));
                          }
                          table.MODE(enm_PSEMode::ID_PSEMode_Place);
                          for (const StringView symbol : {u"O", u"C", u"F", u"Be"}) {
                              table.DRAGADD(symbol);
                          }
                          table.activatePart(table.parts().size() - 3); // carbon is taken
                      })},
         true,
         true}};
}

} // namespace gallery
