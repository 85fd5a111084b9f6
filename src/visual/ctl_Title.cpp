#include "visual/ctl_Title.h"

#include "core/CoreTheme.h"
#include "core/Locale.h"
#include "core/SessionState.h"
#include "visual/Change.h"
#include "visual/PropertyRows.h"

#include <algorithm>

namespace phial
{

namespace
{

constexpr double SideMargin = 10;     // left and right, in pixels
constexpr double IconSize = 24;       // greatest edge of the icon
constexpr double CrossSize = 10;      // edge of the sign to close with
constexpr double SideTextShare = 0.8; // of the title's size

} // namespace

struct ctl_Title::Properties {
    static constexpr rows::Table Table{
        rows::property<u"Title">(&ctl_Title::title_).kept().spoken(),
        rows::property<u"TextLeft">(&ctl_Title::textLeft_).kept().spoken(),
        rows::property<u"TextRight">(&ctl_Title::textRight_).kept().spoken(),
        rows::property<u"Icon">(&ctl_Title::icon_),
        rows::property<u"Closable">(&ctl_Title::closable_, true).kept().spoken(),
        rows::font<u"Font">(&ctl_Title::font_, {.size = 11, .bold = true}),
    };
};

ctl_Title::ctl_Title() : frame_(*this), surface_(*this)
{
    frame_.canFocus(true);
    rows::start<Properties>(*this);
}

MemberTable ctl_Title::members() const
{
    return rows::membersOf<Properties>();
}

// One line a setter.
// clang-format off
void ctl_Title::Title(String value) { rows::set<Properties, u"Title">(*this, std::move(value)); }
void ctl_Title::TextLeft(String value) { rows::set<Properties, u"TextLeft">(*this, std::move(value)); }
void ctl_Title::TextRight(String value) { rows::set<Properties, u"TextRight">(*this, std::move(value)); }
void ctl_Title::Icon(PicturePtr value) { rows::set<Properties, u"Icon">(*this, std::move(value)); }
void ctl_Title::Closable(bool value) { rows::set<Properties, u"Closable">(*this, value); }
void ctl_Title::Font(FontPtr value) { rows::set<Properties, u"Font">(*this, std::move(value)); }
// clang-format on

PixelRectangle ctl_Title::closeArea() const
{
    const PixelSize size = surface_.size();
    return {std::max(0.0, size.width - size.height), 0, size.height, size.height};
}

std::vector<NamedPart> ctl_Title::parts() const
{
    if (!closable_) {
        return {};
    }
    return {{.area = closeArea(),
             .role = PartRole::Button,
             .name = currentLocale().language == LanguageEnglish ? u"Close" : u"Schließen",
             .action = u"Press"}};
}

void ctl_Title::activatePart(std::size_t part)
{
    if (closable_ && part == 0) {
        CLOSE.raise();
    }
}

String ctl_Title::accessibleText() const
{
    String text = title_;
    for (const String& further : {textLeft_, textRight_}) {
        text += further.empty() ? String() : u", " + further;
    }
    return text;
}

void ctl_Title::hover(bool value)
{
    if (change(hovered_, value)) {
        surface_.invalidate();
    }
}

void ctl_Title::pointerDown(const PointerEvent& event)
{
    pressed_ = closable_ && event.Button == PointerButton::Left && closeArea().contains({event.X, event.Y});
}

void ctl_Title::pointerMove(const PointerEvent& event)
{
    hover(closable_ && closeArea().contains({event.X, event.Y}));
}

void ctl_Title::pointerUp(const PointerEvent& event)
{
    const bool closing = std::exchange(pressed_, false) && closeArea().contains({event.X, event.Y});
    if (closing) {
        CLOSE.raise();
    }
}

void ctl_Title::pointerLeave()
{
    hover(false);
}

void ctl_Title::readProperties(const PropertyBag& bag)
{
    rows::read<Properties>(*this, bag);
    surface_.invalidate();
}

void ctl_Title::writeProperties(PropertyBag& bag)
{
    rows::write<Properties>(*this, bag);
}

void ctl_Title::paint()
{
    surface_.BackColor(coreTheme().Colour(ThemeSlot::Frame));
    surface_.device().Cls();
    paintTexts(paintIcon());
    if (closable_) {
        paintCross();
    }
}

/// Gives where the texts begin.
double ctl_Title::paintIcon()
{
    if (!icon_) {
        return SideMargin;
    }
    const double height = surface_.size().height;
    const double edge = std::min(IconSize, height);
    surface_.device().PaintPicture(icon_, SideMargin, (height - edge) / 2, edge, edge);
    return SideMargin + edge + SideMargin;
}

void ctl_Title::paintTexts(double left)
{
    DrawDevice& device = surface_.device();
    const PixelSize size = surface_.size();
    device.ForeColor(coreTheme().Colour(ThemeSlot::FrameText));
    const auto print = [&](const String& text, double x) {
        device.CurrentX(x);
        device.CurrentY((size.height - device.TextHeight(text)) / 2);
        device.Print(text);
    };
    FontSpec traits = font_->traits();
    device.font(traits);
    print(title_, left);
    const double behind = left + device.TextWidth(title_) + SideMargin;
    traits.size *= SideTextShare;
    traits.bold = false;
    device.font(traits);
    if (!textLeft_.empty()) {
        print(textLeft_, behind);
    }
    if (!textRight_.empty()) {
        const double right = closable_ ? closeArea().left : size.width - SideMargin;
        print(textRight_, right - device.TextWidth(textRight_));
    }
}

void ctl_Title::paintCross()
{
    DrawDevice& device = surface_.device();
    const PixelRectangle close = closeArea();
    if (hovered_) {
        device.Line(close.left, close.top, close.right() - 1, close.bottom() - 1,
                    coreTheme().Colour(ThemeSlot::Accent), LineShape::Filled);
    }
    const double x = close.left + (close.width - CrossSize) / 2;
    const double y = close.top + (close.height - CrossSize) / 2;
    device.DrawWidth(2);
    device.Line(x, y, x + CrossSize, y + CrossSize);
    device.Line(x, y + CrossSize - 1, x + CrossSize, y - 1);
    device.DrawWidth(1);
}

} // namespace phial
