#include "common/ctl_RoundDots.h"

#include "common/FrameTexts.h"
#include "common/OutcomeSigns.h"
#include "core/Palette.h"

#include <algorithm>

namespace learning
{

using phial::Colour;
using phial::PixelRectangle;
using phial::StringView;
namespace Palette = phial::Palette;

namespace
{

constexpr double EdgeWidth = 2;
constexpr double LeastDisc = 26;     // pixels, so that its points can be read
constexpr double LeastPoints = 9.75; // size of the points, in points: 13 pixels
constexpr double BarHeight = 14;
constexpr double BarGap = 12; // between the present disc and the bar

} // namespace

void ctl_RoundDots::show(const Round& round)
{
    dots_.clear();
    for (int position = 1; position <= round.count(); ++position) {
        dots_.push_back({round.outcome(position), round.pointsOf(position)});
    }
    present_ = static_cast<std::size_t>(round.position() - 1);
    triesLeft_ = round.triesLeft();
    surface_.invalidate();
}

bool ctl_RoundDots::hasRoomForAll() const
{
    return surface_.size().width >= LeastDisc * static_cast<double>(dots_.size());
}

/// The square of the present task's disc where it is the only one.
PixelRectangle ctl_RoundDots::presentPlace() const
{
    const double side = surface_.size().height;
    return {0, 0, side, side};
}

PixelRectangle ctl_RoundDots::bar() const
{
    const auto [width, height] = surface_.size();
    const double left = presentPlace().right() + BarGap;
    return {left, (height - BarHeight) / 2, std::max(0.0, width - left), BarHeight};
}

/// The square of a disc: as large as the row is high, or as its share of the width.
PixelRectangle ctl_RoundDots::place(std::size_t dot) const
{
    const auto [width, height] = surface_.size();
    const auto count = static_cast<double>(dots_.size());
    const double side = std::min<double>(height, width / count);
    const double step = dots_.size() > 1 ? std::min((width - side) / (count - 1), 2 * side) : 0;
    return {step * static_cast<double>(dot), (height - side) / 2, side, side};
}

void ctl_RoundDots::paint()
{
    surface_.BackColor(Palette::Ground);
    surface_.device().Cls();
    if (!hasRoomForAll()) {
        paintDot(present_, presentPlace());
        paintBar();
        return;
    }
    for (std::size_t dot = 0; dot < dots_.size(); ++dot) {
        paintDot(dot, place(dot));
    }
}

void ctl_RoundDots::paintBar()
{
    const PixelRectangle area = bar();
    phial::DrawDevice& device = surface_.device();
    device.Line(area.left, area.top, area.right() - 1, area.bottom() - 1, Palette::Surface,
                phial::LineShape::Filled);
    for (std::size_t dot = 0; dot < dots_.size(); ++dot) {
        paintShare(dot);
    }
    device.Line(area.left, area.top, area.right() - 1, area.bottom() - 1, Palette::ControlBorder,
                phial::LineShape::Box);
}

/// The part of the bar that belongs to a task.
void ctl_RoundDots::paintShare(std::size_t dot)
{
    const Outcome outcome = dots_[dot].outcome;
    if (outcome == Outcome::Open) {
        return;
    }
    const PixelRectangle area = bar();
    const bool missed = outcome == Outcome::Missed;
    const double share = area.width / static_cast<double>(dots_.size());
    const double left = area.left + share * static_cast<double>(dot);
    const double top = area.bottom() - (missed ? area.height / 3 : area.height);
    surface_.device().Line(left, top, left + share - 1, area.bottom() - 1,
                           missed ? Palette::Failure : Palette::Right, phial::LineShape::Filled);
}

void ctl_RoundDots::paintDot(std::size_t dot, const PixelRectangle& square)
{
    const phial::String points = number(dots_[dot].points);
    switch (dots_[dot].outcome) {
    case Outcome::AtOnce:
        disc(square, Palette::Right, Palette::Right);
        print(square, points, Palette::OnAccent);
        return;
    case Outcome::Later:
        disc(square, Palette::Surface, Palette::Right);
        print(square, points, Palette::Right);
        return;
    case Outcome::Missed:
        disc(square, Palette::Surface, MissedSign.colour);
        print(square, MissedSign.sign, MissedSign.colour);
        return;
    case Outcome::Open:
        break;
    }
    if (dot == present_) {
        disc(square, Palette::Accent, Palette::Accent);
        paintTries(square);
    } else {
        disc(square, Palette::Ground, Palette::ControlBorder);
    }
}

void ctl_RoundDots::paintTries(const PixelRectangle& place)
{
    phial::DrawDevice& device = surface_.device();
    device.FillStyle(phial::FillStyle::Solid);
    device.FillColor(Palette::OnAccent);
    const double step = place.width / (Round::Tries + 1.0);
    for (int mark = 0; mark < triesLeft_; ++mark) {
        const double middle = place.width / 2 + (mark - (triesLeft_ - 1) / 2.0) * step;
        device.Circle(place.left + middle, place.top + place.height / 2, step / 4, Palette::OnAccent);
    }
}

void ctl_RoundDots::disc(const PixelRectangle& place, Colour fill, Colour edge)
{
    phial::DrawDevice& device = surface_.device();
    device.FillStyle(phial::FillStyle::Solid);
    device.FillColor(fill);
    device.DrawWidth(EdgeWidth);
    device.Circle(place.left + place.width / 2, place.top + place.height / 2,
                  (place.width - EdgeWidth) / 2 - 1, edge);
    device.DrawWidth(1);
}

void ctl_RoundDots::print(const PixelRectangle& place, StringView text, Colour ink)
{
    phial::DrawDevice& device = surface_.device();
    device.FontSize(std::max(LeastPoints, 0.32 * place.height));
    device.FontBold(true);
    device.ForeColor(ink);
    device.CurrentX(place.left + (place.width - device.TextWidth(text)) / 2);
    device.CurrentY(place.top + (place.height - device.TextHeight(text)) / 2);
    device.Print(text);
}

std::vector<phial::NamedPart> ctl_RoundDots::parts() const
{
    std::vector<phial::NamedPart> parts;
    const auto add = [&parts](const PixelRectangle& area, phial::String name) {
        phial::NamedPart& part = parts.emplace_back();
        part.area = area;
        part.name = std::move(name);
    };
    if (!hasRoomForAll()) {
        add(presentPlace(), spoken(present_));
        add(bar(), spokenBar());
        return parts;
    }
    for (std::size_t dot = 0; dot < dots_.size(); ++dot) {
        add(place(dot), spoken(dot));
    }
    return parts;
}

phial::String ctl_RoundDots::spokenBar() const
{
    const auto open = std::ranges::count(dots_, Outcome::Open, &Dot::outcome);
    const auto missed = std::ranges::count(dots_, Outcome::Missed, &Dot::outcome);
    const auto all = static_cast<std::ptrdiff_t>(dots_.size());
    return translate(u"{1} gelöst, {2} nicht gelöst, {3} kommen noch",
                     u"{1} solved, {2} not solved, {3} to come",
                     {number(static_cast<int>(all - open - missed)), number(static_cast<int>(missed)),
                      number(static_cast<int>(open))});
}

phial::String ctl_RoundDots::spoken(std::size_t dot) const
{
    const phial::Variant task = static_cast<std::int32_t>(dot + 1);
    switch (dots_[dot].outcome) {
    case Outcome::AtOnce:
    case Outcome::Later:
        return translate(u"Aufgabe {1}: {2} Punkte", u"Task {1}: {2} points",
                         {task, number(dots_[dot].points)});
    case Outcome::Missed:
        return translate(u"Aufgabe {1}: nicht gelöst", u"Task {1}: not solved", {task});
    case Outcome::Open:
        break;
    }
    return dot == present_ ? translate(u"Aufgabe {1}: noch {2} Versuche", u"Task {1}: {2} tries left",
                                       {task, number(triesLeft_)})
                           : translate(u"Aufgabe {1}: kommt noch", u"Task {1}: to come", {task});
}

} // namespace learning
