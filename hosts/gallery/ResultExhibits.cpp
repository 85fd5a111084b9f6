#include "core/Variant.h"
#include "gallery/Catalogue.h"
#include "gallery/GalleryColours.h"
#include "results/ctl_Mark.h"

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

} // namespace

std::vector<Exhibit> resultExhibits()
{
    return {mark(), scale()};
}

} // namespace gallery
