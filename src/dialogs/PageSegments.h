#pragma once

#include "visual/Label.h"
#include "visual/PaintHints.h"
#include "visual/PaintSurface.h"
#include "visual/UserControl.h"

#include <memory>

namespace phial
{

/// What the strip of a book's progress stands in: labels without a text, of which there is one for each page.
/// It paints their grounds itself, since hundreds of widgets would take longer to open than all the rest of
/// the window. A press on a label is that label's.
class PageSegments final : public UserControl, public PaintHints
{
public:
    PageSegments();

    /// The labels have changed.
    void refresh() { surface_.invalidate(); }

    StringView typeName() const override { return u"PageSegments"; }
    MemberTable members() const override;
    ControlFrame& frame() override { return frame_; }
    PaintSurface& surface() override { return surface_; }
    Container* container() override { return &surface_.children(); }
    PartRole role() const override { return PartRole::StaticText; }
    void paint() override;
    void resized() override { surface_.resized(); }
    void pointerDown(const PointerEvent& event) override;
    void click() override;
    bool coversAll() const override { return false; }
    std::optional<PixelRectangle> currentPartArea() const override { return std::nullopt; }
    bool showsChildren() const override { return true; }

private:
    struct Properties;

    std::shared_ptr<Label> labelAt(PixelPoint point);

    ControlFrame frame_;
    PaintSurface surface_;
    std::weak_ptr<Label> pressed_;
};

} // namespace phial
