#include "common/ctl_RoundDots.h"

#include "common/FrameTexts.h"
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

constexpr StringView Cross = u"\u2715";
constexpr double EdgeWidth = 2;

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
    for (std::size_t dot = 0; dot < dots_.size(); ++dot) {
        paintDot(dot);
    }
}

void ctl_RoundDots::paintDot(std::size_t dot)
{
    const PixelRectangle square = place(dot);
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
        disc(square, Palette::Surface, Palette::Failure);
        print(square, Cross, Palette::Failure);
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
    device.FontSize(0.32 * place.height);
    device.FontBold(true);
    device.ForeColor(ink);
    device.CurrentX(place.left + (place.width - device.TextWidth(text)) / 2);
    device.CurrentY(place.top + (place.height - device.TextHeight(text)) / 2);
    device.Print(text);
}

std::vector<phial::NamedPart> ctl_RoundDots::parts() const
{
    std::vector<phial::NamedPart> parts;
    for (std::size_t dot = 0; dot < dots_.size(); ++dot) {
        phial::NamedPart part;
        part.area = place(dot);
        part.name = spoken(dot);
        parts.push_back(std::move(part));
    }
    return parts;
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
