#include "gallery/Catalogue.h"
#include "gallery/GalleryColours.h"
#include "gallery/GalleryFont.h"
#include "gallery/Sliders.h"
#include "mascot/ctl_Bubble.h"
#include "mascot/ctl_DrAtom.h"
#include "visual/TextBox.h"
#include "visual/ctl_Button.h"

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

/// A balloon with a slider for each of its lengths.
Exhibit bubbleSliders()
{
    static constexpr Slider Lengths[] = {
        {u"ZIPSIDE", 0, 7},     {u"ZIPDISTANCE", 0, 60},  {u"ZIPSIZE", 1, 80},      {u"BORDERROUND", 0, 40},
        {u"TEXTMARGIN", 0, 30}, {u"SHADOWOFFX", -20, 20}, {u"SHADOWOFFY", -20, 20}, {u"SHADOWALT", 0, 1}};
    const auto build = [](Stage& stage) {
        const auto shown = stage.put<ctl_Bubble>({80, 12, 260, 130});
        shown->TEXTFONT(galleryFont(12));
        putSliders(stage, shown, Lengths, {16, 150, stage.size().width - 32, 140});
        return shown;
    };
    const auto looking = [](StringView name, auto change) {
        return sample<ctl_Bubble>(name, [change](ctl_Bubble& shown) {
            shown.TEXT(say(Praise));
            change(shown);
        });
    };
    return {Group::Mascot,
            u"enm_BallonZipSide",
            u"Regler für die Maße einer Sprechblase.|Sliders for the measures of a speech bubble.",
            build,
            {looking(u"Gezeigt|Shown", [](ctl_Bubble&) {}),
             looking(u"Ohne Zipfel|Without a tail", [](ctl_Bubble& shown) { shown.ZIP(false); })}};
}

/// A line to type in, and buttons that let the mascot say it.
void putTalk(Stage& stage, const std::shared_ptr<ctl_DrAtom>& mascot)
{
    const auto text = stage.put<TextBox>({16, 118, 200, 32});
    text->Font(galleryFont(11));
    text->Text(say(u"Ich bin ein Atom.|I am an atom."));
    text->frame().AccessibleName(say(u"Was das Maskottchen sagt|What the mascot says"));
    const auto speaker = [&](StringView caption, double left, bool isError) {
        const auto button = stage.put<ctl_Button>({left, 118, 88, 32});
        button->Font(galleryFont(11));
        button->Caption(say(caption));
        stage.keep(button->CLICK.connect(
            [mascot, text, isError] { mascot->BUBBLESAY(nullptr, text->Text(), isError); }));
    };
    speaker(u"Sagen|Say", 224, false);
    speaker(u"Fehler|Error", 316, true);
}

ObjectPtr buildMascot(Stage& stage)
{
    static constexpr Slider Looks[] = {
        {u"EYESIZE", 0, 12},      {u"EYEMOVE", 0, 5},         {u"EYEDIRECTION", -100, 360},
        {u"EYEBLINKING", 0, 100}, {u"MOUTHOPEN", -3, 5, 0.1}, {u"MOUTHSIZE", 1, 15},
        {u"ORBS", 0, 24},         {u"ORBSPEED", -60, 60}};
    const auto balloon = stage.put<ctl_Bubble>({124, 8, 280, 70});
    balloon->Visible(false);
    balloon->TEXTFONT(galleryFont(11));
    balloon->ZIPSIDE(BubbleSide::ID_BallonZipSide_LeftTop);
    balloon->ZIPDISTANCE(14);
    const auto mascot = stage.put<ctl_DrAtom>({16, 8, 100, 100});
    mascot->BUBBLE(balloon->NAME());
    mascot->frame().AccessibleName(say(u"Maskottchen|Mascot"));
    putTalk(stage, mascot);
    putSliders(stage, mascot, Looks, {16, 156, stage.size().width - 32, 140});
    return mascot;
}

Exhibit mascot()
{
    const auto moody = [](StringView name, enm_DrAtomMood mood) {
        return sample<ctl_DrAtom>(name, [mood](ctl_DrAtom& shown) { shown.MOOD(mood); });
    };
    const auto saying = [](StringView name, StringView text, bool isError) {
        return sample<ctl_DrAtom>(name,
                                  [=](ctl_DrAtom& shown) { shown.BUBBLESAY(nullptr, say(text), isError); });
    };
    using enum enm_DrAtomMood;
    return {Group::Mascot,
            u"ctl_DrAtom",
            u"Das Maskottchen: ein Atom, das blinzelt und spricht.|"
            u"The mascot: an atom that blinks and talks.",
            buildMascot,
            {moody(u"Schlicht|Plain", ID_DrAtomMood_Custom),
             moody(u"Aufmerksam|Attentive", ID_DrAtomMood_Neutral), moody(u"Froh|Happy", ID_DrAtomMood_Happy),
             moody(u"Verärgert|Angry", ID_DrAtomMood_Angry), moody(u"Aufgeregt|Upset", ID_DrAtomMood_Upset),
             moody(u"Überrascht|Surprised", ID_DrAtomMood_Surprised),
             moody(u"Ungeduldig|Impatient", ID_DrAtomMood_Impatient),
             saying(u"Sagt etwas|Says something", Praise, false),
             saying(u"Fehler|Error", u"Da fehlt noch ein Index.|An index is missing there.", true)}};
}

} // namespace

std::vector<Exhibit> mascotExhibits()
{
    return {mascot(), bubble(), bubbleSliders()};
}

} // namespace gallery
