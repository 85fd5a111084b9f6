#include "dialogs/MarkupPreview.h"

#include "core/Arithmetic.h"
#include "visual/Markup.h"
#include "visual/VisualHost.h"

#include <algorithm>

namespace phial
{

namespace
{

/// How high that text would be on the label.
double previewHeight(ctl_Label& label, StringView text)
{
    return MarkupLayout(text, label.Font()->traits(), visualHost().metrics(), label.surface().size().width,
                        TextForm::FittedMarkup)
        .size()
        .height;
}

double topOf(ctl_Label& label)
{
    return label.frame().pixelRectangle().top;
}

} // namespace

MarkupPreview::MarkupPreview(Parts parts) : parts_(std::move(parts))
{
    const auto scrolled = [this] {
        PixelRectangle place = parts_.label->frame().pixelRectangle();
        place.top = -parts_.bar->Value();
        parts_.label->frame().pixelRectangle(place);
    };
    connections_ += parts_.bar->Change.connect(scrolled);
    connections_ += parts_.bar->Scroll.connect(scrolled);
    connections_ += parts_.holder->MouseWheel.connect([this](WheelEvent& event) { turn(event); });
    listenToPointer();
}

void MarkupPreview::listenToPointer()
{
    const auto listen = [this](auto& part, auto top) {
        connections_ +=
            part.MouseDown.connect([this, top](const PointerEvent& event) { press(event, event.Y + top()); });
        connections_ +=
            part.MouseMove.connect([this, top](const PointerEvent& event) { move(event.Y + top()); });
        connections_ += part.MouseUp.connect([this](const PointerEvent&) { hold_.reset(); });
    };
    listen(*parts_.holder, [] { return 0.0; });
    listen(*parts_.label, [this] { return topOf(*parts_.label); });
}

void MarkupPreview::show(const String& text, std::size_t place)
{
    parts_.label->Caption(text);
    fitBar();
    if (parts_.bar->Visible()) {
        bringIntoView(StringView(text).substr(0, place));
    }
}

void MarkupPreview::fitBar()
{
    const double view = parts_.holder->surface().size().height;
    const double hidden = parts_.label->surface().size().height - view;
    parts_.bar->Max(std::max(0, toWhole(hidden)));
    parts_.bar->SmallChange(toWhole(previewHeight(*parts_.label, u"")));
    parts_.bar->LargeChange(toWhole(view));
    parts_.bar->Visible(hidden > 0);
}

/// The line in which that beginning of the text ends.
void MarkupPreview::bringIntoView(StringView before)
{
    const double bottom = previewHeight(*parts_.label, before);
    const double top = bottom - parts_.bar->SmallChange();
    const double view = parts_.holder->surface().size().height;
    const double shown = parts_.bar->Value();
    scrollTo(std::min(std::max(shown, bottom - view), top));
}

void MarkupPreview::scrollTo(double value)
{
    parts_.bar->Value(toWhole(std::clamp(value, 0.0, static_cast<double>(parts_.bar->Max()))));
}

void MarkupPreview::press(const PointerEvent& event, double y)
{
    if (event.Button == PointerButton::Left) {
        hold_ = Hold{y, parts_.bar->Value()};
    }
}

void MarkupPreview::move(double y)
{
    if (hold_) {
        scrollTo(hold_->value + hold_->y - y);
    }
}

void MarkupPreview::turn(WheelEvent& event)
{
    if (parts_.bar->Visible()) {
        constexpr int LinesOfANotch = 3;
        event.used = true;
        scrollTo(parts_.bar->Value() - event.Notches * LinesOfANotch * parts_.bar->SmallChange());
    }
}

} // namespace phial
