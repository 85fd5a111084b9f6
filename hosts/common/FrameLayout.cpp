#include "common/FrameLayout.h"

#include "common/FrameDesign.h"

#include <algorithm>

namespace learning
{

using phial::PixelRectangle;
using phial::PixelSize;

namespace
{

/// Of what is zoomed in a window that is too low.
constexpr double LowestHeight = frame_design::PageHeight + frame_design::LeastHeader;
/// Left of this a piece of a bar keeps its distance from the left edge.
constexpr double LeftBound = 200;
constexpr double HeaderEdge = 4; // above and below a piece together
constexpr double FooterEdge = 0;

PixelSize leastInside()
{
    return {frame_design::Width * frame_design::LeastZoom,
            LowestHeight * frame_design::LeastZoom + frame_design::LeastFooter};
}

} // namespace

Arrangement arrange(PixelSize inside)
{
    const double byWidth = inside.width / frame_design::Width;
    const double byHeight = inside.height / frame_design::Height;
    const double lowByHeight = std::min((inside.height - frame_design::LeastFooter) / LowestHeight, 1.0);
    const double zoom = std::clamp(std::min(byWidth, std::max(byHeight, lowByHeight)),
                                   frame_design::LeastZoom, frame_design::MostZoom);
    const PixelSize area{inside.width / zoom, inside.height / zoom};
    const double leastFooter = std::max(frame_design::LeastFooter, frame_design::LeastTarget / zoom);
    const double mostFooter = std::max(frame_design::Footer, leastFooter);
    const double most = frame_design::PageHeight + frame_design::Header + mostFooter;
    const double lacking = std::clamp((most - area.height) / (most - LowestHeight - leastFooter), 0.0, 1.0);
    const double header = frame_design::Header - lacking * (frame_design::Header - frame_design::LeastHeader);
    const double footer = mostFooter - lacking * (mostFooter - leastFooter);
    const double room = area.height - header - footer;
    return {.zoom = zoom,
            .area = area,
            .header = header,
            .footer = footer,
            .page = {std::max(0.0, (area.width - frame_design::Width) / 2),
                     header + std::max(0.0, (room - frame_design::PageHeight) / 2)}};
}

FrameLayout::FrameLayout(phial::Form& form) : form_(form)
{
    header_ = piecesIn(*form.control<phial::ctl_Gradient>(u"bar_Header")->container());
    footer_ = piecesIn(*form.control<phial::ctl_Pannel>(u"pan_Footer")->container());
    for (const auto* page : {u"pan_Start", u"pan_Task", u"pan_Summary", u"pan_Waiting", u"pan_Missing"}) {
        pages_.push_back(form.control<phial::ctl_Pannel>(page));
    }
    form.leastSize(leastInside());
}

std::vector<FrameLayout::Piece> FrameLayout::piecesIn(const phial::Container& container)
{
    std::vector<Piece> pieces;
    for (const phial::ControlPtr& control : container.controls()) {
        pieces.push_back({control, control->frame().pixelRectangle()});
    }
    return pieces;
}

void FrameLayout::follow()
{
    const PixelSize inner = form_.innerSize();
    const Arrangement now = arrange({inner.width * form_.Zoom(), inner.height * form_.Zoom()});
    form_.Zoom(now.zoom);
    form_.control<phial::ctl_Gradient>(u"bar_Header")
        ->frame()
        .pixelRectangle({0, 0, now.area.width, now.header});
    form_.control<phial::ctl_Pannel>(u"pan_Footer")
        ->frame()
        .pixelRectangle({0, now.area.height - now.footer, now.area.width, now.footer});
    placeBar(header_, now.area.width, now.header, frame_design::Header, HeaderEdge);
    placeBar(footer_, now.area.width, now.footer, frame_design::Footer, FooterEdge);
    for (const phial::ControlPtr& page : pages_) {
        page->frame().Move(now.page.x, now.page.y);
    }
}

// A piece as high as the bar stays so; any other one keeps its height, if the bar has it, and its middle. A
// button is never too low for a finger.
void FrameLayout::placeBar(const std::vector<Piece>& pieces, double width, double height, double designHeight,
                           double edge)
{
    for (const Piece& piece : pieces) {
        const PixelRectangle& design = piece.place;
        const double left =
            design.left < LeftBound ? design.left : width - (frame_design::Width - design.left);
        const bool isButton = dynamic_cast<const phial::ctl_Button*>(piece.control.get()) != nullptr;
        const double wanted =
            std::max(design.height, isButton ? frame_design::LeastTarget / form_.Zoom() : 0);
        const double most = design.height >= designHeight ? height : std::min(wanted, height - edge);
        piece.control->frame().pixelRectangle({left, (height - most) / 2, design.width, most});
    }
}

} // namespace learning
