#include "dialogs/frm_DialogMiniHTML.h"
#include "gallery/ActionExhibit.h"
#include "gallery/Catalogue.h"
#include "gallery/GalleryColours.h"
#include "gallery/GalleryFont.h"
#include "visual/ctl_Label.h"

namespace gallery
{

using namespace phial;

namespace
{

constexpr StringView SampleMarkup = u"<b>Wasser</b> ist H<sub>2</sub>O, ein Ion Na<sup>+</sup>.|<b>Water</b> "
                                    u"is H<sub>2</sub>O, an ion Na<sup>+</sup>.";
constexpr StringView CrossingMarkup = u"<b>fett <i>beides</b> kursiv</i>|<b>bold <i>both</b> italic</i>";

/// The field, and below it what a label makes of its text.
ObjectPtr buildField(Stage& stage)
{
    const double width = stage.size().width - 64;
    const auto field = stage.put<ctl_MiniHTMLInput>({32, 20, width, 210});
    const auto look = stage.put<ctl_Label>({32, 250, width, 70});
    look->Font(galleryFont(13));
    look->ForeColor(colours::Ink);
    look->BreaksWords(true);
    stage.keep(field->CHANGED.connect([look, shown = field.get()] { look->Caption(shown->TEXT()); }));
    return field;
}

/// The dialog without its modal wait, so that the gallery goes on.
ObjectPtr buildDialog(Stage& stage)
{
    putNote(stage, u"Der Knopf unten öffnet das Fenster.|The button below opens the window.");
    const auto dialog = std::make_shared<frm_DialogMiniHTML>();
    dialog->pText(say(SampleMarkup));
    dialog->pTitle(say(u"Deine Notiz|Your note"));
    dialog->pDefText(say(u"Was hast du beobachtet?|What have you observed?"));
    stage.atEnd([dialog] { dialog->form().discard(); });
    return dialog->form().shared_from_this();
}

} // namespace

std::vector<Exhibit> markupExhibits()
{
    return {{Group::Input,
             u"ctl_MiniHTMLInput",
             u"Ein Feld für Texte mit Auszeichnungen.|A field for texts with markup.",
             buildField,
             {sample<ctl_MiniHTMLInput>(u"Eine Zeile|One line",
                                        [](ctl_MiniHTMLInput& field) { field.TEXT(say(SampleMarkup)); }),
              sample<ctl_MiniHTMLInput>(u"Mehrere Zeilen|Several lines",
                                        [](ctl_MiniHTMLInput& field) {
                                            field.MULTILINE(true);
                                            field.Height(210);
                                            field.TEXT(say(SampleMarkup));
                                        }),
              sample<ctl_MiniHTMLInput>(u"Gekreuzt|Crossing",
                                        [](ctl_MiniHTMLInput& field) { field.TEXT(say(CrossingMarkup)); }),
              sample<ctl_MiniHTMLInput>(u"Repariert|Repaired",
                                        [](ctl_MiniHTMLInput& field) {
                                            field.TEXT(say(CrossingMarkup));
                                            field.REPAIR();
                                        }),
              sample<ctl_MiniHTMLInput>(u"Gesperrt|Disabled",
                                        [](ctl_MiniHTMLInput& field) {
                                            field.TEXT(say(SampleMarkup));
                                            field.Enabled(false);
                                        })}},
            {Group::Windows,
             u"frm_DialogMiniHTML",
             u"Das Fenster für Texte mit Auszeichnungen.|The window for texts with markup.",
             buildDialog,
             {sample<Form>(u"Geschlossen|Closed", [](Form&) {}),
              sample<Form>(u"Zeigen|Show", [](Form& form) { form.Show(); })}}};
}

} // namespace gallery
