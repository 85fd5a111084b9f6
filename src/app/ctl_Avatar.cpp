#include "app/ctl_Avatar.h"

#include "app/RecentNames.h"
#include "app/screen/Avatars.h"
#include "core/Palette.h"
#include "visual/OneLine.h"
#include "visual/PropertyRows.h"

#include <algorithm>

namespace phial
{

namespace
{

constexpr Colour AvatarGround = Palette::HeaderDeep;
constexpr double Margin = 4; ///< between the frame and the picture
constexpr double Gap = 8;    ///< between picture and name
constexpr double LargestIcon = 96;
constexpr double TextPoints = 12;
constexpr int WhiteSlot = 15; // of the classic table of colours
constexpr int LightGreySlot = 7;
constexpr int DarkGrey = 8;

} // namespace

struct ctl_Avatar::Properties {
    static constexpr rows::Table Table{
        rows::property<u"TEXTCOLOR">(&ctl_Avatar::textColour_, QBColor(WhiteSlot)).kept(),
        rows::property<u"CENTER">(&ctl_Avatar::centre_).kept(),
        rows::operation<u"UPDATE">(&ctl_Avatar::UPDATE),
    };
    static constexpr bool Always = true;
    static constexpr auto Effect = &ctl_Avatar::UPDATE;
};

ctl_Avatar::ctl_Avatar() : frame_(*this), surface_(*this)
{
    frame_.canFocus(true);
    surface_.BackColor(AvatarGround);
    rows::start<Properties>(*this);
}

MemberTable ctl_Avatar::members() const
{
    return rows::membersOf<Properties>();
}

// One line a setter.
// clang-format off
void ctl_Avatar::TEXTCOLOR(Colour value) { rows::set<Properties, u"TEXTCOLOR">(*this, value); }
void ctl_Avatar::CENTER(bool value) { rows::set<Properties, u"CENTER">(*this, value); }
// clang-format on

void ctl_Avatar::readProperties(const PropertyBag& bag)
{
    rows::read<Properties>(*this, bag);
    UPDATE();
}

void ctl_Avatar::writeProperties(PropertyBag& bag)
{
    rows::write<Properties>(*this, bag);
}

void ctl_Avatar::resized()
{
    surface_.resized();
    UPDATE();
}

void ctl_Avatar::UPDATE()
{
    readName();
    surface_.device().Cls();
    paintFrame();
    paintUser();
}

void ctl_Avatar::readName()
{
    const std::vector<RecentName> names = recentNames();
    const RecentName latest = names.empty() ? RecentName{} : names.front();
    avatar_ = latest.avatar;
    if (name_ != latest.name) {
        name_ = latest.name;
        frame_.report(ControlAspect::Accessibility);
    }
}

/// A sunken edge.
void ctl_Avatar::paintFrame()
{
    DrawDevice& device = surface_.device();
    const double right = device.ScaleWidth() - 1;
    const double bottom = device.ScaleHeight() - 1;
    device.Line(0, 0, right, 0, QBColor(DarkGrey));
    device.Line(0, 0, 0, bottom, QBColor(DarkGrey));
    device.Line(right, 0, right, bottom + 1, QBColor(LightGreySlot));
    device.Line(0, bottom, right, bottom, QBColor(LightGreySlot));
}

void ctl_Avatar::paintUser()
{
    DrawDevice& device = surface_.device();
    const double width = device.ScaleWidth();
    const double height = device.ScaleHeight();
    const double side = std::min(LargestIcon, std::min(width, height) - 2 * Margin);
    if (side <= 0) {
        return;
    }
    device.font({.name = u"Tahoma", .size = TextPoints});
    device.ForeColor(textColour_);
    const String text = fittedLine(device, oneLine(name_), width - 2 * Margin - side - Gap);
    const double taken = text.empty() ? side : side + Gap + device.TextWidth(text);
    const double left = centre_ ? std::max(Margin, (width - taken) / 2) : Margin;
    paintAvatar(device, AvatarImageGet(avatar_), {left, (height - side) / 2, side, side});
    device.CurrentX(left + side + Gap);
    device.CurrentY((height - device.TextHeight(u"A")) / 2);
    device.Print(text);
}

void ctl_Avatar::click()
{
    const auto self = shared_from_this(); // a handler may close the window
    CLICK.raise();
    UPDATE();
}

void ctl_Avatar::keyDown(KeyEvent& event)
{
    if (event.is(Key::Space) || event.is(Key::Return)) {
        event.KeyCode = 0;
        if (!event.isRepeat) {
            click();
        }
    }
}

} // namespace phial
