#include "visual/Label.h"

#include "visual/Markup.h"
#include "visual/OneLine.h"
#include "visual/PropertyRows.h"
#include "visual/VisualHost.h"

#include <cmath>

namespace phial
{

struct Label::Properties {
    static constexpr rows::Table Table{
        rows::property<u"Caption">(&Label::caption_).then(&Label::refresh).spoken(),
        rows::font<u"Font">(&Label::font_).then(&Label::refresh),
        rows::property<u"ForeColor">(&Label::foreColor_),
        rows::property<u"BackColor">(&Label::surface_, &PaintSurface::BackColor, &PaintSurface::BackColor,
                                     SystemColour::ButtonFace),
        rows::property<u"BackStyle">(&Label::backStyle_).then(&Label::showGround),
        rows::property<u"Alignment">(&Label::alignment_),
        rows::property<u"AutoSize">(&Label::autoSize_).then(&Label::refresh),
        rows::property<u"WordWrap">(&Label::wordWrap_).then(&Label::refresh),
        rows::property<u"SingleLine">(&Label::singleLine_).then(&Label::refresh).spoken(),
    };
};

Label::Label() : frame_(*this), surface_(*this)
{
    surface_.transparent(true);
    surface_.paintsDirectly(true);
    rows::start<Properties>(*this);
}

MemberTable Label::members() const
{
    return rows::membersOf<Properties>();
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

void Label::showGround()
{
    surface_.transparent(backStyle_ == phial::BackStyle::Transparent);
}

// One line a setter.
// clang-format off
void Label::Caption(String value) { rows::set<Properties, u"Caption">(*this, std::move(value)); }
void Label::Font(FontPtr value) { rows::set<Properties, u"Font">(*this, std::move(value)); }
void Label::ForeColor(Colour value) { rows::set<Properties, u"ForeColor">(*this, value); }
void Label::BackColor(Colour value) { rows::set<Properties, u"BackColor">(*this, value); }
void Label::BackStyle(phial::BackStyle value) { rows::set<Properties, u"BackStyle">(*this, value); }
void Label::Alignment(phial::Alignment value) { rows::set<Properties, u"Alignment">(*this, value); }
void Label::AutoSize(bool value) { rows::set<Properties, u"AutoSize">(*this, value); }
void Label::WordWrap(bool value) { rows::set<Properties, u"WordWrap">(*this, value); }
void Label::SingleLine(bool value) { rows::set<Properties, u"SingleLine">(*this, value); }
// clang-format on

String Label::accessibleText() const
{
    return singleLine_ ? oneLine(caption_) : plainMarkup(caption_);
}

PixelSize Label::contentSize(std::optional<double> width) const
{
    TextMetrics& metrics = visualHost().metrics();
    if (singleLine_) {
        const auto face = metrics.face(font_->traits());
        return {std::ceil(face->width(oneLine(caption_))), std::ceil(face->height())};
    }
    const PixelSize text =
        MarkupLayout(caption_, font_->traits(), metrics, wordWrap_ ? width : std::nullopt).size();
    return {std::ceil(text.width), std::ceil(text.height)};
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
        if (!event.isRepeat) {
            click();
        }
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
    device.CurrentX(along(spare, sideOf(alignment_)));
    device.CurrentY((size.height - device.TextHeight(text)) / 2);
    device.Print(text);
}

} // namespace phial
