#include "gallery/ActionExhibit.h"

#include "gallery/GalleryColours.h"
#include "gallery/GalleryFont.h"

namespace gallery
{

using namespace phial;

namespace
{

void writeNote(ctl_Label& note, StringView text)
{
    note.Font(galleryFont(12));
    note.ForeColor(colours::Ink);
    note.Alignment(TEXTALIGN::MiddleCentre);
    note.Caption(say(text));
}

} // namespace

std::shared_ptr<ctl_Label> putNote(Stage& stage, StringView text)
{
    const auto note = stage.putMiddle<ctl_Label>({stage.size().width - 48, 120});
    writeNote(*note, text);
    return note;
}

std::shared_ptr<ctl_Label> putNote(Stage& stage, const PixelRectangle& place, StringView text)
{
    const auto note = stage.put<ctl_Label>(place);
    writeNote(*note, text);
    return note;
}

Sample acting(StringView name, Act act)
{
    return waitingSample<ctl_Label>(name, [act = std::move(act)](ctl_Label& note) {
        const String result = act();
        note.Caption(say(u"Antwort: |Answer: ") + (result.empty() ? u"\u2013" : result));
    });
}

Sample printing(StringView name, Act act)
{
    Sample made = acting(name, std::move(act));
    made.prints = true;
    return made;
}

Exhibit actionExhibit(Group group, StringView title, StringView about, StringView note,
                      std::vector<Sample> samples)
{
    samples.insert(samples.begin(), sample<ctl_Label>(u"Geschlossen|Closed", [](ctl_Label&) {}));
    return {group, title, about, [note](Stage& stage) { return putNote(stage, note); }, std::move(samples),
            false};
}

} // namespace gallery
