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

constexpr double SideMargin = 10; // left and right, in pixels
constexpr double IconSize = 24;   // greatest edge of the icon
constexpr double CrossSize = 10;  // edge of the sign to close with

} // namespace

struct ctl_Title::Properties {
    static constexpr rows::Table Table{
        rows::property<u"Title">(&ctl_Title::title_).kept().spoken(),
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
        CLOSE.emit();
    }
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
        CLOSE.emit();
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
    DrawDevice& device = surface_.device();
    const CoreTheme& theme = coreTheme();
    const PixelSize size = surface_.size();
    surface_.BackColor(theme.Colour(ThemeSlot::Frame));
    device.Cls();
    double left = SideMargin;
    if (icon_) {
        const double edge = std::min(IconSize, size.height);
        device.PaintPicture(icon_, left, (size.height - edge) / 2, edge, edge);
        left += edge + SideMargin;
    }
    device.font(font_->traits());
    device.ForeColor(theme.Colour(ThemeSlot::FrameText));
    device.CurrentX(left);
    device.CurrentY((size.height - device.TextHeight(title_)) / 2);
    device.Print(title_);
    if (!closable_) {
        return;
    }
    const PixelRectangle close = closeArea();
    if (hovered_) {
        device.Line(close.left, close.top, close.right() - 1, close.bottom() - 1,
                    theme.Colour(ThemeSlot::Accent), LineShape::Filled);
    }
    const double x = close.left + (close.width - CrossSize) / 2;
    const double y = close.top + (close.height - CrossSize) / 2;
    device.DrawWidth(2);
    device.Line(x, y, x + CrossSize, y + CrossSize);
    device.Line(x, y + CrossSize - 1, x + CrossSize, y - 1);
    device.DrawWidth(1);
}

} // namespace phial
