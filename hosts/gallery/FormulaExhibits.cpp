#include "gallery/Catalogue.h"
#include "gallery/GalleryColours.h"
#include "gallery/GalleryFont.h"
#include "term/ctl_TermLabel.h"

namespace gallery
{

using namespace phial;

namespace
{

Sample term(StringView name, StringView text, double size = 28)
{
    return sample<ctl_TermLabel>(name, [text = String(text), size](ctl_TermLabel& label) {
        label.TEXTALIGN(TEXTALIGN::MiddleCentre);
        label.TEXTFONT(galleryFont(size));
        label.TEXTCOLOR(colours::Ink);
        label.Term(text);
    });
}

} // namespace

std::vector<Exhibit> formulaExhibits()
{
    return {control<ctl_TermLabel>(
        Group::Formulas, u"ctl_TermLabel",
        u"Zeigt eine Formel, wie man sie schreibt.|Shows a formula as one writes it.", {370, 120},
        {term(u"Summenformel|Formula", u"Ca(OH)2"), term(u"Ion|Ion", u"SO4^2-"),
         term(u"Reaktion|Reaction", u"2H2 + O2 -> 2H2O", 22), term(u"Bruch|Fraction", u"M = (m)/(n)", 24),
         term(u"Hydrat|Hydrate", u"CuSO4*5H2O"), term(u"Ungefähr|About", u"m ~~ 3,5 g", 24),
         term(u"Markiert|Marked", u"Na§Cl"), term(u"Gekürzt|Cancelled", u"g|mol", 28),
         sample<ctl_TermLabel>(u"Passende Größe|Size to fit", [](ctl_TermLabel& label) {
             label.TEXTFONT(galleryFont(28));
             label.TEXTCOLOR(colours::Link);
             label.Term(u"MgO");
             label.AUTOSIZE(true);
         })})};
}

} // namespace gallery
