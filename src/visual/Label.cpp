#include "visual/Label.h"

#include "visual/Change.h"
#include "visual/FrameMembers.h"
#include "visual/Markup.h"
#include "visual/OneLine.h"
#include "visual/VisualHost.h"

#include <cmath>

namespace phial
{

namespace
{

constexpr auto Table = joinMembers(
    FrameMembers, std::to_array<Member>({
                      members::property<Label, String, &Label::Caption, &Label::Caption>(u"Caption"),
                      members::property<Label, FontPtr, &Label::Font, &Label::Font>(u"Font"),
                      members::property<Label, Colour, &Label::ForeColor, &Label::ForeColor>(u"ForeColor"),
                      members::property<Label, Colour, &Label::BackColor, &Label::BackColor>(u"BackColor"),
                      members::property<Label, BackStyle, &Label::BackStyle, &Label::BackStyle>(u"BackStyle"),
                      members::property<Label, Alignment, &Label::Alignment, &Label::Alignment>(u"Alignment"),
                      members::property<Label, bool, &Label::AutoSize, &Label::AutoSize>(u"AutoSize"),
                      members::property<Label, bool, &Label::WordWrap, &Label::WordWrap>(u"WordWrap"),
                      members::property<Label, bool, &Label::SingleLine, &Label::SingleLine>(u"SingleLine"),
                  }));

TextSide sideOf(Alignment alignment)
{
    switch (alignment) {
    case Alignment::Right:
        return TextSide::Far;
    case Alignment::Centre:
        return TextSide::Middle;
    case Alignment::Left:
        break;
    }
    return TextSide::Near;
}

} // namespace

Label::Label() : frame_(*this), surface_(*this), font_(std::make_shared<phial::Font>())
{
    surface_.transparent(true);
    fontChanged_ = font_->changed.connect([this] { refresh(); });
}

MemberTable Label::members() const
{
    return Table;
}

void Label::refresh()
{
    fitToText();
    surface_.invalidate();
}

void Label::fitToText()
{
    if (!autoSize_ || singleLine_) {
        return;
    }
    const PixelRectangle place = frame_.pixelRectangle();
    const auto wrap = wordWrap_ ? std::optional(place.width) : std::nullopt;
    const PixelSize text = MarkupLayout(caption_, font_->traits(), visualHost().metrics(), wrap).size();
    frame_.pixelRectangle(
        {place.left, place.top, wordWrap_ ? place.width : std::ceil(text.width), std::ceil(text.height)});
}

void Label::Caption(String value)
{
    if (change(caption_, std::move(value))) {
        refresh();
        frame_.report(ControlAspect::Accessibility);
        PropertyChanged.emit(u"Caption");
    }
}

void Label::Font(FontPtr value)
{
    shareFont(font_, fontChanged_, std::move(value), [this] { refresh(); });
}

void Label::ForeColor(Colour value)
{
    if (change(foreColor_, value)) {
        surface_.invalidate();
    }
}

void Label::BackColor(Colour value)
{
    if (change(backColor_, value)) {
        surface_.BackColor(value);
        surface_.invalidate();
    }
}

void Label::BackStyle(phial::BackStyle value)
{
    if (change(backStyle_, value)) {
        surface_.BackColor(backColor_);
        surface_.transparent(value == phial::BackStyle::Transparent);
        surface_.invalidate();
    }
}

void Label::Alignment(phial::Alignment value)
{
    if (change(alignment_, value)) {
        surface_.invalidate();
    }
}

void Label::AutoSize(bool value)
{
    if (change(autoSize_, value)) {
        refresh();
    }
}

void Label::WordWrap(bool value)
{
    if (change(wordWrap_, value)) {
        refresh();
    }
}

void Label::SingleLine(bool value)
{
    if (change(singleLine_, value)) {
        refresh();
        frame_.report(ControlAspect::Accessibility);
    }
}

String Label::accessibleText() const
{
    return singleLine_ ? oneLine(caption_) : plainMarkup(caption_);
}

void Label::resized()
{
    surface_.resized();
    fitToText();
}

std::vector<NamedPart> Label::parts() const
{
    if (!frame_.canFocus()) {
        return {};
    }
    const PixelSize size = surface_.size();
    return {{.area = {0, 0, size.width, size.height},
             .role = PartRole::Button,
             .name = accessibleText(),
             .action = u"Press"}};
}

void Label::activatePart(std::size_t /*part*/)
{
    click();
}

void Label::keyDown(KeyEvent& event)
{
    if (event.is(Key::Return) || event.is(Key::Space)) {
        event.KeyCode = 0;
        click();
    }
}

void Label::paint()
{
    DrawDevice& device = surface_.device();
    device.Cls();
    device.ForeColor(foreColor_);
    if (singleLine_) {
        paintLine(device);
    } else {
        paintMarkup(device);
    }
    if (frame_.hasFocus()) {
        const PixelSize size = surface_.size();
        device.Line(0, 0, size.width - 1, size.height - 1, foreColor_, LineShape::Box);
    }
}

void Label::paintMarkup(DrawDevice& device)
{
    const PixelSize size = surface_.size();
    const auto wrap = wordWrap_ ? std::optional(size.width) : std::nullopt;
    MarkupLayout(caption_, font_->traits(), visualHost().metrics(), wrap)
        .draw(device, {0, 0, size.width, size.height}, sideOf(alignment_), TextSide::Near);
}

void Label::paintLine(DrawDevice& device)
{
    const PixelSize size = surface_.size();
    device.font(font_->traits());
    const String text = fittedLine(device, oneLine(caption_), size.width);
    const double spare = size.width - device.TextWidth(text);
    const TextSide side = sideOf(alignment_);
    device.CurrentX(side == TextSide::Far ? spare : side == TextSide::Middle ? spare / 2 : 0);
    device.CurrentY((size.height - device.TextHeight(text)) / 2);
    device.Print(text);
}

} // namespace phial
