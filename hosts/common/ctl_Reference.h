#pragma once

#include "visual/PaintSurface.h"
#include "visual/UserControl.h"

#include <optional>
#include <vector>

namespace learning
{

/// Something that may be looked up while a task is worked on, such as an element and its mass.
struct ReferenceEntry {
    phial::String sign;   ///< "Cl"
    phial::String value;  ///< "35,5"
    phial::String spoken; ///< "Chlor: 35,5 g/mol"
};

/// A drawer with entries in rows and columns, as large as they fit; those that do not fit stand on further
/// pages.
class ctl_Reference final : public phial::UserControl
{
public:
    ctl_Reference() : frame_(*this), surface_(*this) {}

    /// Shows the first of the pages, or, of as many entries as before, the same page again.
    void show(std::vector<ReferenceEntry> entries);
    bool isEmpty() const { return entries_.empty(); }
    void firstPage();
    /// Goes on to the next page; false behind the last one.
    bool nextPage();

    phial::Event<> CLICK;

    phial::StringView typeName() const override { return u"ctl_Reference"; }
    phial::MemberTable members() const override { return {}; }
    phial::ControlFrame& frame() override { return frame_; }
    phial::PaintSurface& surface() override { return surface_; }
    phial::PartRole role() const override { return phial::PartRole::Grouping; }
    void resized() override;
    void paint() override;
    void click() override { CLICK.raise(); }
    /// One for each entry of the page.
    std::vector<phial::NamedPart> parts() const override;

private:
    /// How a page is divided.
    struct Grid {
        double size = 0; ///< of the font, in points
        std::size_t columns = 1;
        std::size_t rows = 1;

        std::size_t cells() const { return columns * rows; }
    };

    const Grid& grid() const;
    Grid gridOf(double size) const;
    phial::PixelRectangle cell(std::size_t place) const;
    std::size_t entriesOnPage() const;
    void paintEntry(const ReferenceEntry& entry, const phial::PixelRectangle& place);

    phial::ControlFrame frame_;
    phial::PaintSurface surface_;
    std::vector<ReferenceEntry> entries_;
    mutable std::optional<Grid> grid_; ///< worked out when first needed
    std::size_t page_ = 0;             ///< counted from 0
};

} // namespace learning
