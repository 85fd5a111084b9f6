#include "gallery/Catalogue.h"
#include "gallery/GalleryColours.h"
#include "gallery/GalleryFont.h"
#include "visual/Label.h"
#include "visual/PictureBox.h"
#include "visual/Shape.h"
#include "visual/ctl_Button.h"
#include "visual/ctl_Frame.h"
#include "visual/ctl_Gradient.h"
#include "visual/ctl_Label.h"
#include "visual/ctl_Pannel.h"

namespace gallery
{

using namespace phial;

namespace
{

constexpr StringView Markup = u"<b>Wasser</b> ist H<sub>2</sub>O,<br>und <i>E</i> = m·c<sup>2</sup>|"
                              u"<b>Water</b> is H<sub>2</sub>O,<br>and <i>E</i> = m·c<sup>2</sup>";
constexpr StringView LongText =
    u"Ein längerer Text bricht an den Leerzeichen um, damit er in die Breite des Feldes passt.|"
    u"A longer text breaks at its blanks, so that it fits into the width of the field.";

Exhibit label()
{
    const auto sized = [](Label& label, StringView text) {
        label.Font(galleryFont(12));
        label.Caption(say(text));
    };
    const auto fitting = [=](StringView name, StringView text) {
        return sample<Label>(name, [=](Label& label) {
            label.WordWrap(false);
            label.AutoSize(true);
            sized(label, text);
        });
    };
    return control<Label>(Group::Shown, u"Label", u"Zeigt einen Text.|Shows a text.", {280, 96},
                          {fitting(u"Schlicht|Plain", u"Guten Morgen!|Good morning!"),
                           fitting(u"Auszeichnung|Markup", Markup),
                           sample<Label>(u"Umbruch|Wrapped",
                                         [=](Label& label) {
                                             sized(label, LongText);
                                             label.WordWrap(true);
                                             label.Alignment(Alignment::Centre);
                                         }),
                           sample<Label>(u"Farbig|Coloured", [=](Label& label) {
                               label.WordWrap(false);
                               label.AutoSize(true);
                               sized(label, u"Weiß auf Blau|White on blue");
                               label.BackStyle(BackStyle::Opaque);
                               label.BackColor(colours::Blue);
                               label.ForeColor(colours::OnBlue);
                           })});
}

Exhibit styledLabel()
{
    const auto styled = [](ctl_Label& label, StringView text, double size, phial::TEXTALIGN alignment) {
        label.Font(galleryFont(size, true));
        label.ForeColor(colours::Ink);
        label.Caption(say(text));
        label.Alignment(alignment);
    };
    using enum phial::TEXTALIGN;
    return control<ctl_Label>(
        Group::Shown, u"ctl_Label",
        u"Text mit Auszeichnung, flach oder erhaben.|Text with markup, flat or raised.", {300, 110},
        {sample<ctl_Label>(
             u"Flach|Flat",
             [=](ctl_Label& label) { styled(label, u"Säuren und Basen|Acids and bases", 16, MiddleCentre); }),
         sample<ctl_Label>(u"Erhaben|Raised",
                           [=](ctl_Label& label) {
                               styled(label, u"Säuren und Basen|Acids and bases", 20, MiddleCentre);
                               label.Flat(false);
                               label.Raised(true);
                           }),
         sample<ctl_Label>(u"Auszeichnung|Markup",
                           [=](ctl_Label& label) {
                               styled(label, Markup, 14, TopLeft);
                               label.Font(galleryFont(14));
                           }),
         sample<ctl_Label>(
             u"Unten rechts|Bottom right",
             [=](ctl_Label& label) { styled(label, u"Hier unten|Down here", 12, BottomRight); }),
         sample<ctl_Label>(u"Passende Höhe|Height to fit", [=](ctl_Label& label) {
             styled(label, LongText, 12, TopLeft);
             label.AutoSize(true);
         })});
}

void drawFlask(DrawDevice& device)
{
    device.ForeColor(colours::Ink);
    device.FillStyle(FillStyle::Solid);
    device.FillColor(RGB(120, 190, 235));
    device.Polygon(std::vector<PixelPoint>{{80, 100}, {120, 100}, {150, 160}, {50, 160}});
    device.DrawWidth(3);
    device.FillStyle(FillStyle::Transparent);
    device.Polygon(std::vector<PixelPoint>{{88, 20}, {88, 84}, {44, 168}, {156, 168}, {112, 84}, {112, 20}});
    device.DrawWidth(1);
    device.FillStyle(FillStyle::Solid);
    device.FillColor(colours::White);
    for (const PixelPoint bubble : {PixelPoint{92, 140}, PixelPoint{108, 124}, PixelPoint{98, 110}}) {
        device.Circle(bubble.x, bubble.y, 5);
    }
}

PicturePtr chequered()
{
    constexpr std::size_t Edge = 160;
    constexpr std::size_t Field = 20;
    auto picture = std::make_shared<Picture>(PixelSize{Edge, Edge});
    const auto pixels = picture->pixels();
    for (std::size_t at = 0; at < pixels.size(); ++at) {
        const bool dark = (at % Edge / Field + at / Edge / Field) % 2 == 0;
        pixels[at] = dark ? 0xFF006AB5U : 0xFFF6F9FCU;
    }
    return picture;
}

Exhibit pictureBox()
{
    return control<PictureBox>(Group::Shown, u"PictureBox", u"Ein Feld zum Zeichnen.|A field to draw in.",
                               {200, 190},
                               {sample<PictureBox>(u"Zeichnung|Drawing",
                                                   [](PictureBox& box) {
                                                       box.ScaleMode(ScaleUnit::Pixels);
                                                       box.BackColor(colours::White);
                                                       drawFlask(box.device());
                                                   }),
                                sample<PictureBox>(u"Rahmen|Border",
                                                   [](PictureBox& box) {
                                                       box.ScaleMode(ScaleUnit::Pixels);
                                                       box.BackColor(colours::Paper);
                                                       box.border(true);
                                                       drawFlask(box.device());
                                                   }),
                                sample<PictureBox>(u"Bild|Picture",
                                                   [](PictureBox& box) {
                                                       box.AutoSize(true);
                                                       box.Picture(chequered());
                                                   }),
                                sample<PictureBox>(u"Durchsichtig|See-through", [](PictureBox& box) {
                                    box.ScaleMode(ScaleUnit::Pixels);
                                    box.transparent(true);
                                    drawFlask(box.device());
                                    box.MaskPicture(box.Image());
                                })});
}

Exhibit shape()
{
    const auto figure = [](StringView name, ShapeKind kind, Colour fill) {
        return sample<Shape>(name, [=](Shape& shape) {
            shape.Kind(kind);
            shape.BorderColor(colours::DarkBlue);
            shape.BorderWidth(3);
            shape.FillStyle(FillStyle::Solid);
            shape.FillColor(fill);
        });
    };
    return control<Shape>(Group::Shown, u"Shape", u"Eine einfache Figur.|A plain figure.", {220, 130},
                          {figure(u"Rechteck|Rectangle", ShapeKind::Rectangle, RGB(255, 214, 102)),
                           figure(u"Quadrat|Square", ShapeKind::Square, RGB(160, 214, 180)),
                           figure(u"Oval|Oval", ShapeKind::Oval, RGB(120, 190, 235)),
                           figure(u"Kreis|Circle", ShapeKind::Circle, RGB(236, 140, 120)),
                           figure(u"Abgerundet|Rounded", ShapeKind::RoundedRectangle, RGB(200, 180, 230))});
}

Exhibit gradient()
{
    const auto turned = [](StringView name, double angle) {
        return sample<ctl_Gradient>(name, [=](ctl_Gradient& field) {
            field.Color1(colours::Blue);
            field.Color2(RGB(190, 224, 246));
            field.Angle(angle);
        });
    };
    return control<ctl_Gradient>(
        Group::Shown, u"ctl_Gradient", u"Verlauf zwischen zwei Farben.|A passage between two colours.",
        {320, 180},
        {turned(u"Waagerecht|Across", 0), turned(u"Senkrecht|Downward", 90), turned(u"Schräg|Slanting", 45)});
}

Exhibit panel()
{
    return control<ctl_Pannel>(
        Group::Shown, u"ctl_Pannel",
        u"Fläche mit Text, trägt andere Steuerelemente.|A panel with a text, holds other controls.",
        {300, 140},
        {sample<ctl_Pannel>(u"Schlicht|Plain",
                            [](ctl_Pannel& panel) { panel.Caption(say(u"Fläche|Panel")); }),
         sample<ctl_Pannel>(u"Karte|Card",
                            [](ctl_Pannel& panel) {
                                panel.BackColor(colours::White);
                                panel.BorderColor(colours::Line);
                                panel.ForeColor(colours::Ink);
                                panel.Font(galleryFont(13));
                                panel.Caption(say(Markup));
                            }),
         sample<ctl_Pannel>(u"Farbig|Coloured", [](ctl_Pannel& panel) {
             panel.BackColor(colours::Blue);
             panel.BorderColor(colours::DarkBlue);
             panel.ForeColor(colours::OnBlue);
             panel.Font(galleryFont(16, true));
             panel.Caption(say(u"Weiter so!|Keep going!"));
         })});
}

ObjectPtr buildFrame(Stage& stage)
{
    const auto frame = stage.putMiddle<ctl_Frame>({320, 170});
    frame->BackColor(colours::White);
    frame->ForeColor(colours::Ink);
    frame->Font(galleryFont(11));
    stage.putInto<ctl_Button>(*frame, {24, 40, 272, 44})->Caption(say(u"Neue Aufgabe|New task"));
    stage.putInto<ctl_Button>(*frame, {24, 100, 272, 44})->Caption(say(u"Lösung zeigen|Show the solution"));
    return frame;
}

Exhibit frame()
{
    return {Group::Shown,
            u"ctl_Frame",
            u"Rahmen um andere Steuerelemente.|A frame around other controls.",
            buildFrame,
            {sample<ctl_Frame>(u"Mit Titel|With a caption",
                               [](ctl_Frame& frame) { frame.Caption(say(u"Übung|Exercise")); }),
             sample<ctl_Frame>(u"Ohne Titel|Without a caption", [](ctl_Frame& frame) { frame.Caption({}); }),
             sample<ctl_Frame>(u"Gesperrt|Disabled", [](ctl_Frame& frame) {
                 frame.Caption(say(u"Übung|Exercise"));
                 frame.Enabled(false);
             })}};
}

} // namespace

std::vector<Exhibit> shownExhibits()
{
    return {label(), styledLabel(), pictureBox(), shape(), gradient(), panel(), frame()};
}

} // namespace gallery
