#include "app/screen/frm_AppAbout.h"
#include "app/screen/frm_Fade.h"
#include "core/CoreDialogs.h"
#include "core/CoreRoot.h"
#include "gallery/ActionExhibit.h"
#include "gallery/Catalogue.h"
#include "gallery/GalleryColours.h"
#include "gallery/GalleryFont.h"
#include "server/frm_NetMonitor.h"
#include "visual/ctl_Button.h"
#include "visual/ctl_Label.h"

namespace gallery
{

using namespace phial;

namespace
{

using enum phial::TEXTALIGN;

/// A small window that a button closes.
std::shared_ptr<Form> makeWindow(Stage& stage)
{
    const auto form = std::make_shared<Form>(u"frm_Sample");
    form->Caption(say(u"Beispielfenster|Sample window"));
    form->ScaleMode(ScaleUnit::Pixels);
    form->innerSize({360, 180});
    form->centred(true);
    form->BackColor(colours::Paper);
    const auto text = form->add<ctl_Label>(u"lab_Text");
    text->Move(24, 16, 312, 72);
    text->Font(galleryFont(12));
    text->ForeColor(colours::Ink);
    text->Alignment(MiddleCentre);
    text->Caption(say(u"Ein Fenster des Systems|A window of the system"));
    const auto close = form->add<ctl_Button>(u"but_Close");
    close->Move(90, 104, 180, 52);
    close->Font(galleryFont(12));
    close->Caption(say(u"Schließen|Close"));
    form->DefaultControl(close);
    form->CancelControl(close);
    stage.keep(close->CLICK.connect([form = form.get()] { form->Unload(); }));
    stage.atEnd([form] { form->discard(); });
    return form;
}

ObjectPtr buildForm(Stage& stage)
{
    putNote(stage, u"Die Knöpfe unten öffnen ein Fenster. Seine Eigenschaften stehen rechts.|"
                   u"The buttons below open a window. Its properties are on the right.");
    return makeWindow(stage);
}

Exhibit form()
{
    const auto bordered = [](StringView name, BorderStyle border) {
        return sample<Form>(name, [border](Form& form) {
            form.BorderStyle(border);
            form.Show();
        });
    };
    return {Group::Windows,
            u"Form",
            u"Ein Fenster.|A window.",
            buildForm,
            {sample<Form>(u"Geschlossen|Closed", [](Form&) {}),
             bordered(u"Größe änderbar|Sizable", BorderStyle::Sizable),
             bordered(u"Feste Größe|Fixed size", BorderStyle::FixedSingle),
             bordered(u"Ohne Rand|Without border", BorderStyle::None),
             sample<Form>(u"Durchscheinend|Translucent",
                          [](Form& form) {
                              form.translucency({.opacity = 170, .colourKey = std::nullopt, .mask = nullptr});
                              form.Show();
                          }),
             sample<Form>(u"Ausgestanzt|Cut out",
                          [](Form& form) {
                              form.BorderStyle(BorderStyle::None);
                              form.translucency(
                                  {.opacity = 255, .colourKey = colours::Paper, .mask = nullptr});
                              form.Show();
                          }),
             waitingSample<Form>(u"Modal|Modal", [](Form& form) {
                 form.BorderStyle(BorderStyle::FixedDialog);
                 form.Show(FormShow::Modal);
             })}};
}

ObjectPtr buildFade(Stage& stage)
{
    putNote(stage, u"Deckt den ganzen Bildschirm ab. Ein Klick oder eine Taste nimmt sie wieder weg.|"
                   u"Covers the whole screen. A click or a key takes it away again.");
    const auto fade = std::make_shared<frm_Fade>();
    Form& form = fade->form();
    form.KeyPreview(true);
    stage.keep(form.Click.connect([fade = fade.get()] { fade->Unload(); }));
    stage.keep(form.KeyDown.connect([fade = fade.get()](KeyEvent&) { fade->Unload(); }));
    stage.atEnd([fade] { fade->form().discard(); });
    return form.shared_from_this();
}

Exhibit fade()
{
    return {Group::Windows,
            u"frm_Fade",
            u"Die Abdeckung hinter einem eingebetteten Programm.|The cover behind an embedded program.",
            buildFade,
            {sample<Form>(u"Geschlossen|Closed", [](Form&) {}),
             sample<Form>(u"Zeigen|Show", [](Form& form) { form.Show(); })}};
}

ObjectPtr buildAbout(Stage& stage)
{
    putNote(stage, u"Der Knopf unten öffnet das Fenster; in Programmen steht es im Menü Hilfe.|"
                   u"The button below opens the window; programs have it in their Help menu.");
    const auto about = std::make_shared<frm_AppAbout>();
    stage.atEnd([about] { about->form().discard(); });
    return about->form().shared_from_this();
}

Exhibit about()
{
    return {Group::Windows,
            u"frm_AppAbout",
            u"Sagt, was das Programm ist.|Tells what the program is.",
            buildAbout,
            {sample<Form>(u"Geschlossen|Closed", [](Form&) {}),
             sample<Form>(u"Zeigen|Show", [](Form& form) { form.Show(); })}};
}

/// What goes over the wire when a pupil logs on and hands in a result.
std::shared_ptr<TrafficLog> sampleTraffic()
{
    constexpr Moment Start{45292.375};
    constexpr double Second = 1.0 / 86400;
    constexpr StringView Master = u"192.168.1.20:10049";
    const auto traffic = std::make_shared<TrafficLog>();
    const auto add = [&](double seconds, TrafficKind kind, StringView text) {
        traffic->add(Moment{Start.days + seconds * Second}, kind, Master, text);
    };
    add(0, TrafficKind::Note, u"verbunden|connected");
    add(0, TrafficKind::Sent, u"SERVER::LOGON::Anna");
    add(0, TrafficKind::Received, u"008:LOGON:OK");
    add(2, TrafficKind::Sent, u"SERVER::GAMEIDENT::");
    add(2, TrafficKind::Received, u"008:Molmasse");
    add(64, TrafficKind::Sent,
        u"HIGHSCORE::SUBMIT::QV1;7;D1=8;D2=10;T4=Salz;T6=QV1;0;;T4=Anna;T4=PC07;T5=anna7;");
    add(64, TrafficKind::Received, u"008:3");
    add(300, TrafficKind::Note, u"von der Gegenseite getrennt|closed by the other end");
    return traffic;
}

ObjectPtr buildMonitor(Stage& stage)
{
    putNote(stage, u"Der Knopf unten öffnet das Fenster, wie es die Netzwerk-Verbindung eines Programms tut.|"
                   u"The button below opens the window, as a program's network connection does.");
    const auto monitor = std::make_shared<frm_NetMonitor>(sampleTraffic());
    stage.atEnd([monitor] { monitor->form().discard(); });
    return monitor->form().shared_from_this();
}

Exhibit monitor()
{
    return {Group::Windows,
            u"frm_NetMonitor",
            u"Zeigt, was mit dem Master ausgetauscht wird.|Shows what is exchanged with the master.",
            buildMonitor,
            {sample<Form>(u"Geschlossen|Closed", [](Form&) {}),
             sample<Form>(u"Zeigen|Show", [](Form& form) { form.Show(); })}};
}

/// A way to open a box: gives what the user has answered.
using Ask = String (*)(CoreDialogs&);

Sample asking(StringView name, Ask ask)
{
    return acting(name, [ask] { return ask(coreRoot().CoreDialogs()); });
}

Exhibit dialog(StringView title, StringView about, std::vector<Sample> asked)
{
    return actionExhibit(Group::Windows, title, about,
                         u"Die Knöpfe unten öffnen den Dialog.|The buttons below open the dialog.",
                         std::move(asked));
}

String saidLong()
{
    String text;
    for (int line = 0; line < 40; ++line) {
        text += say(u"Zeile |Line ") + Variant(line + 1).toText() +
                say(u": Natriumchlorid löst sich in Wasser.|: Sodium chloride dissolves in water.") + u"\r\n";
    }
    return text;
}

std::vector<Exhibit> tellingDialogs()
{
    return {dialog(u"CoreDialogs.Info", u"Eine Mitteilung.|A message.",
                   {asking(u"Kurz|Short",
                           [](CoreDialogs& dialogs) {
                               dialogs.Info(say(u"Die Übung ist zu Ende.|The exercise is over."));
                               return String();
                           }),
                    asking(u"Mit Titel|With a title",
                           [](CoreDialogs& dialogs) {
                               dialogs.Info(
                                   say(u"Alle Ergebnisse sind gespeichert. Du kannst das Programm jetzt "
                                       u"beenden oder weiter üben.|All results are stored. You can leave "
                                       u"the program now or go on."),
                                   say(u"Ergebnisse|Results"));
                               return String();
                           })}),
            dialog(u"CoreDialogs.Error", u"Eine Fehlermeldung.|A message of an error.",
                   {asking(u"Zeigen|Show",
                           [](CoreDialogs& dialogs) {
                               dialogs.Error(say(
                                   u"Die Datei konnte nicht gelesen werden.|The file could not be read."));
                               return String();
                           })}),
            dialog(u"CoreDialogs.Text", u"Ein langer Text zum Lesen.|A long text to read.",
                   {asking(u"Zeigen|Show",
                           [](CoreDialogs& dialogs) {
                               dialogs.Text(saidLong(), say(u"Protokoll|Log"));
                               return String();
                           })}),
            dialog(u"CoreDialogs.Done", u"Eine kurze Bestätigung.|A short confirmation.",
                   {asking(u"Zeigen|Show", [](CoreDialogs& dialogs) {
                       dialogs.Done(say(u"Gespeichert|Saved"));
                       return String();
                   })})};
}

std::vector<Exhibit> askingDialogs()
{
    return {dialog(u"CoreDialogs.YesNo", u"Eine Frage.|A question.",
                   {asking(u"Zeigen|Show",
                           [](CoreDialogs& dialogs) {
                               return dialogs.YesNo(
                                          say(u"Möchtest du noch eine Runde üben?|Would you like another "
                                              u"round?")) == DialogAnswer::Yes
                                          ? say(u"Ja|Yes")
                                          : say(u"Nein|No");
                           })}),
            dialog(u"CoreDialogs.Input", u"Fragt nach einer Zeile Text.|Asks for a line of text.",
                   {asking(u"Leer|Empty",
                           [](CoreDialogs& dialogs) {
                               return dialogs.Input(say(u"Wie heißt du?|What is your name?"));
                           }),
                    asking(u"Mit Vorschlag|With a proposal",
                           [](CoreDialogs& dialogs) {
                               return dialogs.Input(say(u"Wie heißt du?|What is your name?"),
                                                    say(u"Anmeldung|Sign in"), u"Jürgen");
                           })}),
            dialog(u"CoreDialogs.SaveFile",
                   u"Fragt nach einer Datei zum Schreiben.|Asks for a file to write.",
                   {asking(u"Zeigen|Show", [](CoreDialogs& dialogs) {
                       return dialogs.SaveFile({}, say(u"Ergebnisse sichern|Save results"),
                                               say(u"Textdatei|Text file") + u"|*.txt");
                   })})};
}

} // namespace

std::vector<Exhibit> windowExhibits()
{
    std::vector<Exhibit> all{form(), fade(), about(), monitor()};
    for (auto section : {tellingDialogs, askingDialogs}) {
        std::ranges::move(section(), std::back_inserter(all));
    }
    return all;
}

} // namespace gallery
