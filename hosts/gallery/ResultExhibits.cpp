#include "app/cls_App.h"
#include "app/sys_Global.h"
#include "core/CoreDialogs.h"
#include "core/CoreRoot.h"
#include "core/Variant.h"
#include "gallery/ActionExhibit.h"
#include "gallery/Catalogue.h"
#include "gallery/GalleryColours.h"
#include "gallery/SampleLists.h"
#include "results/cls_AppRate.h"
#include "results/cls_DataEvents.h"
#include "results/cls_DataScores.h"
#include "results/ctl_Mark.h"
#include "results/frm_DialogHighscore.h"

namespace gallery
{

using namespace phial;

namespace
{

constexpr PixelSize MarkSize{300, 37}; // whatever it is given, it takes its own

ObjectPtr buildMark(Stage& stage)
{
    const auto mark = stage.putMiddle<ctl_Mark>(MarkSize);
    mark->BackColor(colours::White);
    return mark;
}

Exhibit mark()
{
    const auto shown = [](StringView name, enm_Mark value) {
        return sample<ctl_Mark>(name, [value](ctl_Mark& mark) { mark.MARK(value); });
    };
    return {Group::Results,
            u"ctl_Mark",
            u"Zeigt eine Note.|Shows a mark.",
            buildMark,
            {shown(u"1 plus|1 plus", enm_Mark::ID_Mark_1P), shown(u"2|2", enm_Mark::ID_Mark_2),
             shown(u"3 minus|3 minus", enm_Mark::ID_Mark_3M), shown(u"4 plus|4 plus", enm_Mark::ID_Mark_4P),
             shown(u"5|5", enm_Mark::ID_Mark_5), shown(u"6|6", enm_Mark::ID_Mark_6),
             sample<ctl_Mark>(u"Text 2-|Text 2-", [](ctl_Mark& mark) { mark.MARKTEXT(u"2-"); }),
             sample<ctl_Mark>(u"Dunkler Grund|Dark ground", [](ctl_Mark& mark) {
                 mark.MARK(enm_Mark::ID_Mark_3);
                 mark.BackColor(colours::DarkBlue);
             })}};
}

constexpr std::int32_t MarksShown = 8;

String markName(std::int32_t place)
{
    return u"ctl_Mark" + Variant(place + 1).toText();
}

/// Half of the scale, the best mark first.
void showMarks(Form& form, std::int32_t best)
{
    for (std::int32_t place = 0; place < MarksShown; ++place) {
        form.control<ctl_Mark>(markName(place))->MARK(static_cast<enm_Mark>(best - place));
    }
}

ObjectPtr buildScale(Stage& stage)
{
    const PixelRectangle all = stage.middle({MarkSize.width, MarksShown * MarkSize.height});
    for (std::int32_t place = 0; place < MarksShown; ++place) {
        const auto mark = stage.put<ctl_Mark>(
            {all.left, all.top + place * MarkSize.height, MarkSize.width, MarkSize.height});
        mark->frame().NAME(markName(place));
        mark->BackColor(colours::White);
    }
    return stage.form().shared_from_this();
}

Exhibit scale()
{
    const auto half = [](StringView name, enm_Mark best) {
        return sample<Form>(name, [best](Form& form) { showMarks(form, static_cast<std::int32_t>(best)); });
    };
    return {Group::Results,
            u"enm_Mark",
            u"Die ganze Skala der Noten.|The whole scale of marks.",
            buildScale,
            {half(u"1 bis 3|1 to 3", enm_Mark::ID_Mark_1P), half(u"3 bis 6|3 to 6", enm_Mark::ID_Mark_3M)},
            false};
}

/// The window at hand, without its modal wait, so that the gallery goes on.
using ShownList = std::shared_ptr<std::unique_ptr<frm_DialogHighscore>>;

constexpr std::int32_t StressedRank = 3;

Sample listOf(const ShownList& shown, StringView name, std::int32_t count, bool local)
{
    return sample<Form>(name, [shown, count, local](Form& form) {
        (*shown)->DialogScores(sampleScores(count));
        (*shown)->DialogRank(StressedRank);
        (*shown)->DialogLocal(local);
        form.Show();
    });
}

Exhibit highscore()
{
    const auto shown = std::make_shared<std::unique_ptr<frm_DialogHighscore>>();
    const auto build = [shown](Stage& stage) -> ObjectPtr {
        putNote(stage, u"Die Knöpfe unten öffnen das Fenster mit so vielen Einträgen.|"
                       u"The buttons below open the window with so many entries.");
        *shown = std::make_unique<frm_DialogHighscore>();
        stage.atEnd([shown] { shown->reset(); });
        return (*shown)->form().shared_from_this();
    };
    return {Group::Windows,
            u"frm_DialogHighscore",
            u"Zeigt eine Bestenliste.|Shows a list of high scores.",
            build,
            {sample<Form>(u"Geschlossen|Closed", [](Form&) {}), listOf(shown, u"500|500", 500, false),
             listOf(shown, u"20|20", 20, false), listOf(shown, u"11|11", 11, false),
             listOf(shown, u"10|10", 10, false), listOf(shown, u"1|1", 1, false),
             listOf(shown, u"Leer|Empty", 0, false), listOf(shown, u"Lokal|Local", 10, true)}};
}

constexpr StringView Pressed = u"Die Knöpfe unten zeigen, sichern und drucken die Liste.|"
                               u"The buttons below show, save and print the list.";
constexpr std::int32_t Entries = 60;

/// What both kinds of list can do.
template <typename Make>
std::vector<Sample> listActions(Make make)
{
    return {acting(u"Text|Text",
                   [make] {
                       coreRoot().CoreDialogs().Text(make(Entries)->TEXT(), say(u"Liste|List"));
                       return String();
                   }),
            acting(u"Text sichern|Save text",
                   [make] {
                       return make(Entries)->EXPORT() ? say(u"gesichert|saved")
                                                      : say(u"nicht gesichert|not saved");
                   }),
            acting(u"Drucken|Print", [make] { // a preview comes first
                make(Entries)->PRINTOUT(say(u"Liste der Galerie|List of the gallery"));
                return String();
            })};
}

Exhibit scores()
{
    return actionExhibit(Group::Results, u"cls_DataScores",
                         u"Eine Bestenliste als Text und auf Papier.|A list of scores as text and on paper.",
                         Pressed, listActions(sampleScores));
}

Exhibit events()
{
    return actionExhibit(Group::Results, u"cls_DataEvents",
                         u"Ein Protokoll als Text und auf Papier.|A log as text and on paper.", Pressed,
                         listActions(sampleEvents));
}

Exhibit rate()
{
    return actionExhibit(Group::Results, u"cls_AppRate", u"Druckt eine Urkunde.|Prints a certificate.",
                         u"Der Knopf unten druckt eine Urkunde.|The button below prints a certificate.",
                         {printing(u"Urkunde|Certificate", [] {
                             const bool printed = QVAPP()->RATE()->PRINTCERTIFICATE(
                                 say(u"hat die Übung zur molaren Masse\r\nmit der Note 1 abgeschlossen.|"
                                     u"has finished the exercise on molar masses\r\nwith the mark 1."));
                             return printed ? say(u"gedruckt|printed") : say(u"nicht gedruckt|not printed");
                         })});
}

} // namespace

std::vector<Exhibit> resultExhibits()
{
    return {mark(), scale(), scores(), events(), rate(), highscore()};
}

} // namespace gallery
