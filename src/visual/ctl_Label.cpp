#include "visual/ctl_Label.h"

#include "visual/Change.h"
#include "visual/FrameMembers.h"
#include "visual/VisualHost.h"

#include <cmath>

namespace phial
{

namespace
{

constexpr std::int32_t TopLeft = 4;

constexpr auto Table = joinMembers(
    FrameMembers,
    std::to_array<Member>({
        members::property<ctl_Label, String, &ctl_Label::Caption, &ctl_Label::Caption>(u"Caption"),
        members::property<ctl_Label, FontPtr, &ctl_Label::Font, &ctl_Label::Font>(u"Font"),
        members::property<ctl_Label, Colour, &ctl_Label::ForeColor, &ctl_Label::ForeColor>(u"ForeColor"),
        members::property<ctl_Label, std::int32_t, &ctl_Label::Alignment, &ctl_Label::Alignment>(
            u"Alignment"),
        members::property<ctl_Label, bool, &ctl_Label::AutoSize, &ctl_Label::AutoSize>(u"AutoSize"),
        members::property<ctl_Label, bool, &ctl_Label::PlainText, &ctl_Label::PlainText>(u"PlainText"),
        members::property<ctl_Label, bool, &ctl_Label::Raised, &ctl_Label::Raised>(u"Raised"),
        members::property<ctl_Label, bool, &ctl_Label::Flat, &ctl_Label::Flat>(u"Flat"),
    }));

/// Where a text stands for an alignment code; see the class comment.
struct TextPlace {
    TextSide horizontal;
    TextSide vertical;
};

TextPlace placeOf(std::int32_t alignment)
{
    constexpr std::int32_t CodesPerRow = 4;
    constexpr TextSide Sides[] = {TextSide::Near, TextSide::Middle, TextSide::Far};
    constexpr TextSide Rows[] = {TextSide::Middle, TextSide::Near, TextSide::Far};
    const bool known = alignment >= 0 && alignment <= 10 && alignment % CodesPerRow != 3;
    const std::int32_t code = known ? alignment : TopLeft;
    return {Sides[code % CodesPerRow], Rows[code / CodesPerRow]};
}

} // namespace

ctl_Label::ctl_Label() : frame_(*this), surface_(*this), font_(std::make_shared<phial::Font>())
{
    surface_.transparent(true);
    listenToFont();
}

MemberTable ctl_Label::members() const
{
    return Table;
}

void ctl_Label::listenToFont()
{
    fontChanged_ = font_->changed.connect([this] { refresh(); });
}

void ctl_Label::refresh()
{
    fitToText();
    surface_.invalidate();
}

void ctl_Label::fitToText()
{
    if (!autoSize_) {
        return;
    }
    const PixelRectangle place = frame_.pixelRectangle();
    frame_.pixelRectangle({place.left, place.top, place.width, std::ceil(layOut(place.width).size().height)});
}

MarkupLayout ctl_Label::layOut(double width) const
{
    const TextForm form = plain_ ? TextForm::Plain : TextForm::Markup;
    return {caption_, font_->traits(), visualHost().metrics(), width, form};
}

void ctl_Label::Caption(String value)
{
    if (change(caption_, std::move(value))) {
        refresh();
        frame_.report(ControlAspect::Accessibility);
        PropertyChanged.emit(u"Caption");
    }
}

void ctl_Label::Font(FontPtr value)
{
    shareFont(font_, fontChanged_, std::move(value), [this] { refresh(); });
}

void ctl_Label::ForeColor(Colour value)
{
    if (change(foreColor_, value)) {
        surface_.invalidate();
        PropertyChanged.emit(u"ForeColor");
    }
}

void ctl_Label::Alignment(std::int32_t value)
{
    if (change(alignment_, value)) {
        surface_.invalidate();
        PropertyChanged.emit(u"Alignment");
    }
}

void ctl_Label::AutoSize(bool value)
{
    if (change(autoSize_, value)) {
        refresh();
        PropertyChanged.emit(u"AutoSize");
    }
}

void ctl_Label::PlainText(bool value)
{
    if (change(plain_, value)) {
        refresh();
        frame_.report(ControlAspect::Accessibility);
        PropertyChanged.emit(u"PlainText");
    }
}

void ctl_Label::Raised(bool value)
{
    if (change(raised_, value)) {
        surface_.invalidate();
        PropertyChanged.emit(u"Raised");
    }
}

void ctl_Label::Flat(bool value)
{
    if (change(flat_, value)) {
        surface_.invalidate();
        PropertyChanged.emit(u"Flat");
    }
}

String ctl_Label::accessibleText() const
{
    return plain_ ? caption_ : plainMarkup(caption_);
}

void ctl_Label::readProperties(const PropertyBag& bag)
{
    caption_ = bag.ReadProperty(u"text", u"").toText();
    refresh();
}

void ctl_Label::writeProperties(PropertyBag& bag)
{
    bag.WriteProperty(u"text", caption_, u"");
}

void ctl_Label::resized()
{
    surface_.resized();
    fitToText();
}

void ctl_Label::paint()
{
    DrawDevice& device = surface_.device();
    device.Cls();
    const PixelSize size = surface_.size();
    const TextPlace place = placeOf(alignment_);
    const MarkupLayout text = layOut(size.width);
    if (raised_ && !flat_) {
        device.ForeColor(SystemColour::Window);
        text.draw(device, {-1, -1, size.width, size.height}, place.horizontal, place.vertical);
        device.ForeColor(SystemColour::ButtonShadow);
        text.draw(device, {1, 1, size.width, size.height}, place.horizontal, place.vertical);
    }
    device.ForeColor(foreColor_);
    text.draw(device, {0, 0, size.width, size.height}, place.horizontal, place.vertical);
}

} // namespace phial
