#pragma once

#include "core/Event.h"
#include "visual/PictureBox.h"
#include "visual/ScrollBar.h"
#include "visual/Shape.h"

#include <cstdint>
#include <optional>

namespace phial
{

/// The list of all avatars in a dialog: two columns of cells that scroll within a holder, one of them marked.
/// It is scrolled by its bar, the wheel, by dragging it as on a touch screen, and by the keys, which move the
/// mark.
///
/// Only the cells in view are painted, so that a large store of avatars takes neither time nor memory before
/// it is looked at.
class AvatarPicker
{
public:
    struct Parts {
        std::shared_ptr<PictureBox> holder;
        std::shared_ptr<PictureBox> cells; ///< stands in the holder
        std::shared_ptr<Shape> marker;     ///< stands on the cells
        std::shared_ptr<ScrollBar> bar;
    };

    /// Makes the cells as high as the avatars need and sets the bar's range.
    explicit AvatarPicker(Parts parts);

    /// Marks the avatar of that index and brings it into view. Nothing happens when there is none.
    void select(std::int32_t index);
    /// The marked avatar's index; 0 for none.
    std::int32_t selected() const { return selected_; }

    /// The mark has come to another avatar by the user's hand or by `select`.
    Event<> Selected;

private:
    struct Hold {
        double y = 0; ///< of the pointer, in the holder
        std::int32_t value = 0;
    };

    void connect();
    void layOut();
    void scrollTo(double value);
    void scrolled();
    void showCellsInView();
    void paintCells();
    void bringIntoView();
    void press(double x, double y);
    void move(const PointerEvent& event, double y);
    void click();
    void turn(WheelEvent& event);
    void keyDown(KeyEvent& event);
    void listenToPointer(PictureBox& box);
    double topOf(const PictureBox& box) const;

    Parts parts_;
    Connections connections_;
    std::int32_t count_ = 0;
    std::int32_t selected_ = 0;
    std::optional<Hold> hold_;
    PixelPoint pressedAt_; ///< on the cells
    bool dragged_ = false; ///< the press has become a drag, and is no click
};

} // namespace phial
