#pragma once

#include "dialogs/KeyPainter.h"
#include "visual/PaintHints.h"
#include "visual/PaintSurface.h"
#include "visual/UserControl.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace phial
{

struct FormulaName;

/// Formulas that a keyboard for terms offers, each with its name below it: cells of one painted control, each
/// a named part. It never takes the focus, and takes each finger for itself. One is taken by a tap, or by
/// arrows and Enter of a keyboard on the desk.
class ctl_Offers final : public UserControl, public PaintHints
{
public:
    ctl_Offers();

    /// Into how many cells it is divided; one at first.
    void cells(std::size_t columns, std::size_t rows);
    std::size_t most() const { return columns_ * rows_; }
    /// What is offered, `most()` at the most; only what changes is painted again. None of them is chosen.
    void offer(std::vector<const FormulaName*> formulas);
    std::size_t count() const { return formulas_.size(); }

    /// An offer was taken.
    Event<std::size_t> TAKEN;
    /// Something has gone down, it moves, it has gone up again: the press can become a drag of the window.
    Event<const PointerEvent&> PRESSED;
    Event<const PointerEvent&> MOVED;
    Event<std::int32_t> RELEASED;
    /// The press has become a drag.
    void cancelPress();

    /// A key of the keyboard on the desk, before it goes to the field: Down goes to the first offer, arrows
    /// to the others and back, Enter takes one. Such a key has the code 0 afterwards.
    void previewKey(KeyEvent& event);
    /// The one that keys have reached; none at first.
    std::optional<std::size_t> chosen() const { return chosen_; }

    StringView typeName() const override { return u"ctl_Offers"; }
    MemberTable members() const override;
    ControlFrame& frame() override { return frame_; }
    PaintSurface& surface() override { return surface_; }
    PartRole role() const override { return PartRole::Grouping; }
    bool coversAll() const override { return true; }
    std::optional<PixelRectangle> currentPartArea() const override { return std::nullopt; }
    std::vector<NamedPart> parts() const override;
    void activatePart(std::size_t part) override;
    void pointerDown(const PointerEvent& event) override;
    void pointerMove(const PointerEvent& event) override;
    void pointerUp(const PointerEvent& event) override;
    void hidden() override;
    void resized() override;
    void paint() override;

private:
    struct Properties;
    struct Press {
        std::int32_t finger;
        std::size_t cell;
    };

    PixelRectangle cell(std::size_t at) const;
    std::optional<std::size_t> cellAt(PixelPoint point) const;
    void paintOffer(std::size_t at);
    void choose(std::optional<std::size_t> at);
    bool step(const KeyEvent& event);

    ControlFrame frame_;
    PaintSurface surface_;
    std::size_t columns_ = 1;
    std::size_t rows_ = 1;
    std::vector<const FormulaName*> formulas_;
    std::optional<Press> press_;
    std::optional<std::size_t> chosen_;
};

} // namespace phial
