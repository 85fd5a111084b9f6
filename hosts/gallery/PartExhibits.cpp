#include "gallery/Catalogue.h"
#include "gallery/GalleryColours.h"
#include "gallery/GalleryFont.h"
#include "visual/ImageList.h"
#include "visual/PictureBox.h"
#include "visual/Timer.h"
#include "visual/ctl_Button.h"
#include "visual/ctl_Label.h"
#include "visual/ctl_ReEvent.h"

namespace gallery
{

using namespace phial;

namespace
{

using enum phial::TEXTALIGN;

std::shared_ptr<ctl_Label> putCounter(Stage& stage, const PixelRectangle& area)
{
    const auto label = stage.put<ctl_Label>(area);
    label->Font(galleryFont(28, true));
    label->ForeColor(colours::Link);
    label->Alignment(MiddleCentre);
    label->Caption(u"0");
    return label;
}

void countUp(ctl_Label& label)
{
    label.Caption(Variant(Variant(label.Caption()).toWhole() + 1).toText());
}

ObjectPtr buildTimer(Stage& stage)
{
    const auto counter = putCounter(stage, stage.middle({200, 80}));
    const auto timer = std::make_shared<Timer>(u"tmr_Sample");
    stage.addComponent(timer);
    stage.atEnd([timer] { timer->Enabled(false); });
    stage.keep(timer->Tick.connect([counter] { countUp(*counter); }));
    return timer;
}

Exhibit timer()
{
    const auto every = [](StringView name, std::int32_t milliseconds) {
        return sample<Timer>(name, [milliseconds](Timer& timer) {
            timer.Interval(milliseconds);
            timer.Enabled(true);
        });
    };
    return {Group::Parts,
            u"Timer",
            u"Meldet sich in gleichen Abständen.|Makes itself heard at equal intervals.",
            buildTimer,
            {sample<Timer>(u"Steht|Stopped", [](Timer& timer) { timer.Interval(1000); }),
             every(u"Jede Sekunde|Every second", 1000), every(u"Schnell|Fast", 100)}};
}

PicturePtr plainPicture(std::uint32_t pixel)
{
    auto picture = std::make_shared<Picture>(PixelSize{120, 120});
    std::ranges::fill(picture->pixels(), pixel);
    return picture;
}

ObjectPtr buildImageList(Stage& stage)
{
    const PixelRectangle middle = stage.middle({120, 120});
    const auto box = stage.put<PictureBox>({middle.left, middle.top - 40, 120, 120});
    box->border(true);
    const auto next = stage.put<ctl_Button>({middle.left - 40, middle.bottom() - 16, 200, 48});
    next->Caption(say(u"Nächstes Bild|Next picture"));
    next->Font(galleryFont(11));
    const auto list = std::make_shared<ImageList>(u"img_Sample");
    list->Add(u"blau", plainPicture(0xFF006AB5U));
    list->Add(u"gelb", plainPicture(0xFFFFD666U));
    box->Picture(list->Picture(1));
    stage.addComponent(list);
    stage.keep(next->CLICK.connect([box, list, at = 1]() mutable {
        if (list->Count() > 0) {
            at = at % list->Count() + 1;
            box->Picture(list->Picture(at));
        }
    }));
    return list;
}

Exhibit imageList()
{
    return {Group::Parts,
            u"ImageList",
            u"Bilder nach Nummer und Namen.|Pictures by number and key.",
            buildImageList,
            {sample<ImageList>(u"Zwei Bilder|Two pictures", [](ImageList&) {}),
             sample<ImageList>(u"Drei Bilder|Three pictures",
                               [](ImageList& list) { list.Add(u"rot", plainPicture(0xFFEC8C78U)); })}};
}

ObjectPtr buildRelay(Stage& stage)
{
    const PixelRectangle middle = stage.middle({200, 56});
    const auto button = stage.put<ctl_Button>({middle.left, middle.top - 60, 200, 56});
    button->Caption(say(u"Drück mich|Press me"));
    button->Font(galleryFont(12));
    const auto counter = putCounter(stage, {middle.left, middle.top + 20, 200, 80});
    const auto relay = std::make_shared<ctl_ReEvent>(u"rel_Sample");
    stage.addComponent(relay);
    stage.keep(button->CLICK.connect([relay] { relay->REPEAT(u"CLICK"); }));
    stage.keep(
        relay->REPEATED.connect([counter](const String&, const Variant::Array&) { countUp(*counter); }));
    return relay;
}

Exhibit relay()
{
    return {
        Group::Parts,
        u"ctl_ReEvent",
        u"Gibt Ereignisse weiter, ohne ihre Quelle zu zeigen.|Passes events on without showing their source.",
        buildRelay,
        {sample<ctl_ReEvent>(u"Bereit|Ready", [](ctl_ReEvent&) {}),
         sample<ctl_ReEvent>(u"Einmal gemeldet|Told once",
                             [](ctl_ReEvent& relay) { relay.REPEAT(u"CLICK"); })}};
}

} // namespace

std::vector<Exhibit> partExhibits()
{
    return {timer(), imageList(), relay()};
}

} // namespace gallery
