#include "dialogs/PageSegments.h"

#include "visual/PropertyRows.h"

#include <cmath>

namespace phial
{

struct PageSegments::Properties {
    static constexpr rows::Table Table{
        rows::property<u"BackColor">(&PageSegments::surface_, &PaintSurface::BackColor,
                                     &PaintSurface::BackColor, SystemColour::ButtonFace),
    };
};

PageSegments::PageSegments() : frame_(*this), surface_(*this)
{
    surface_.transparent(true);
    rows::start<Properties>(*this);
}

MemberTable PageSegments::members() const
{
    return rows::membersOf<Properties>();
}

/// Edges are those of the device's pixels, as those of widgets are.
void PageSegments::paint()
{
    DrawDevice& device = surface_.device();
    device.Cls();
    const PicturePtr image = device.Image();
    const double ratio = image ? image->pixelRatio() : 1;
    const auto edge = [ratio](double place) { return std::round(place * ratio) / ratio; };
    for (const ControlPtr& control : surface_.children().controls()) {
        const auto label = std::dynamic_pointer_cast<Label>(control);
        if (label && label->Visible()) {
            const PixelRectangle area = label->frame().pixelRectangle();
            device.Line(edge(area.left), edge(area.top), edge(area.right()) - 1, edge(area.bottom()) - 1,
                        label->BackColor(), LineShape::Filled);
        }
    }
}

/// The one in front, which stands last.
std::shared_ptr<Label> PageSegments::labelAt(PixelPoint point)
{
    const auto& controls = surface_.children().controls();
    for (auto control = controls.rbegin(); control != controls.rend(); ++control) {
        auto label = std::dynamic_pointer_cast<Label>(*control);
        if (label && label->Visible() && label->frame().pixelRectangle().contains(point)) {
            return label;
        }
    }
    return nullptr;
}

void PageSegments::pointerDown(const PointerEvent& event)
{
    pressed_ = labelAt({event.X, event.Y});
}

void PageSegments::click()
{
    if (const auto label = pressed_.lock()) {
        label->click();
    }
}

} // namespace phial
