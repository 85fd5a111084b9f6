#include "gallery/Catalogue.h"

#include "app/cls_Language.h"
#include "app/sys_Global.h"

#include <algorithm>
#include <iterator>

namespace gallery
{

phial::String say(phial::StringView both)
{
    return phial::LNG()->TRANSLATEAUTO(both);
}

phial::String groupTitle(Group group)
{
    switch (group) {
    case Group::Shown:
        return say(u"Anzeige|Shown");
    case Group::Input:
        return say(u"Eingabe|Input");
    case Group::Bars:
        return say(u"Leisten und Menüs|Bars and menus");
    case Group::Parts:
        return say(u"Unsichtbares|Without a face");
    case Group::Windows:
        return say(u"Fenster und Dialoge|Windows and dialogs");
    case Group::Results:
        return say(u"Ergebnisse|Results");
    case Group::Formulas:
        return say(u"Formeln|Formulas");
    case Group::Sounds:
        return say(u"Klänge|Sounds");
    case Group::Mascot:
        return say(u"Maskottchen|Mascot");
    case Group::Periodic:
        return say(u"Periodensystem|Periodic table");
    }
    return {};
}

std::vector<Exhibit> catalogue()
{
    std::vector<Exhibit> all;
    for (const auto section :
         {shownExhibits, inputExhibits, barExhibits, partExhibits, windowExhibits, userExhibits,
          keyboardExhibits, deskExhibits, markupExhibits, helpExhibits, resultExhibits, formulaExhibits,
          soundExhibits, mascotExhibits, periodicExhibits}) {
        std::ranges::move(section(), std::back_inserter(all));
    }
    std::ranges::stable_sort(all, {}, &Exhibit::group);
    return all;
}

} // namespace gallery
