#include "gallery/Catalogue.h"
#include "gallery/GalleryFont.h"
#include "mascot/ctl_Bubble.h"

namespace gallery
{

using namespace phial;

namespace
{

using BubbleSide = enm_BallonZipSide;

constexpr StringView Praise = u"Klammer richtig mitgezählt!|You counted the bracket right!";

/// A balloon of the gallery's size, which fits itself to its text.
void speak(ctl_Bubble& bubble, StringView text, BubbleSide side)
{
    bubble.TEXTFONT(galleryFont(12));
    bubble.ZIPSIDE(side);
    bubble.AUTOSIZE(true);
    bubble.TEXT(say(text));
}

Sample speaking(StringView name, StringView text, BubbleSide side)
{
    return sample<ctl_Bubble>(name, [=](ctl_Bubble& bubble) { speak(bubble, text, side); });
}

Exhibit bubble()
{
    const auto looking = [](StringView name, auto change) {
        return sample<ctl_Bubble>(name, [change](ctl_Bubble& bubble) {
            change(bubble);
            speak(bubble, Praise, BubbleSide::ID_BallonZipSide_LeftBottom);
        });
    };
    return control<ctl_Bubble>(
        Group::Mascot, u"ctl_Bubble",
        u"Eine Sprechblase, die sich ihrem Text anpasst.|A speech bubble that fits its text.", {220, 110},
        {speaking(u"Links unten|Left below", Praise, BubbleSide::ID_BallonZipSide_LeftBottom),
         speaking(u"Oben|Above", u"Hallo!|Hello!", BubbleSide::ID_BallonZipSide_TopLeft),
         speaking(u"Rechts|Right",
                  u"Ein längerer Text bricht an den Leerzeichen um, bis die Blase etwa doppelt so breit wie "
                  u"hoch ist. Auch Natriumhydrogencarbonatlösung passt hinein.|"
                  u"A longer text breaks at its blanks until the bubble is about twice as wide as high. "
                  u"Even triphenylphosphinechlorogold fits in.",
                  BubbleSide::ID_BallonZipSide_RightTop),
         speaking(u"Zeilen|Lines",
                  u"<b>Wasser</b>: H<sub>2</sub>O<br>2 · 1,0 + 16,0 = 18,0|"
                  u"<b>Water</b>: H<sub>2</sub>O<br>2 · 1.0 + 16.0 = 18.0",
                  BubbleSide::ID_BallonZipSide_BottomRight),
         looking(u"Eckig|Square", [](ctl_Bubble& shown) { shown.BORDERROUND(0); }),
         looking(u"Rund|Round",
                 [](ctl_Bubble& shown) {
                     shown.BORDERROUND(24);
                     shown.TEXTMARGIN(16);
                 }),
         looking(u"Ohne Zipfel|Without a tail", [](ctl_Bubble& shown) { shown.ZIP(false); }),
         looking(u"Fehler|Error", [](ctl_Bubble& shown) {
             shown.TEXTCOLOR(QBColor(15));
             shown.BORDERCOLOR(QBColor(4));
             shown.FILLCOLOR(QBColor(12));
             shown.SHADOWOFFX(-5);
         })});
}

} // namespace

std::vector<Exhibit> mascotExhibits()
{
    return {bubble()};
}

} // namespace gallery
