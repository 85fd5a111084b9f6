#pragma once

#include "visual/PaintSurface.h"
#include "visual/UserControl.h"

#include <vector>

namespace phial::qt
{

/// A control of so many parts in rows of three, which counts how often it is asked for them.
class Board final : public UserControl
{
public:
    StringView typeName() const override { return u"ctl_Board"; }
    MemberTable members() const override { return {}; }
    ControlFrame& frame() override { return frame_; }
    PaintSurface& surface() override { return surface_; }
    PartRole role() const override { return PartRole::Table; }
    std::vector<NamedPart> parts() const override
    {
        ++asked;
        return shown;
    }
    void activatePart(std::size_t part) override { activated.push_back(part); }
    void paint() override {}

    void add(String name, std::int32_t row, std::int32_t column)
    {
        shown.push_back({.area = {column * 20.0, row * 20.0, 20, 20},
                         .role = PartRole::Cell,
                         .name = std::move(name),
                         .action = u"Press",
                         .row = row,
                         .column = column});
    }
    void tell() { frame_.report(ControlAspect::Accessibility); }

    mutable int asked = 0;
    std::vector<NamedPart> shown;
    std::vector<std::size_t> activated;

private:
    ControlFrame frame_{*this};
    PaintSurface surface_{*this};
};

} // namespace phial::qt
