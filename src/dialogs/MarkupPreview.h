#pragma once

#include "core/Event.h"
#include "visual/PictureBox.h"
#include "visual/ScrollBar.h"
#include "visual/ctl_Label.h"

#include <memory>
#include <optional>

namespace phial
{

/// The look of a text with markup that is being written: a label as high as the text, in a holder that shows
/// what is being changed. A longer text is scrolled by its bar, the wheel, and by dragging it as on a touch
/// screen; the bar of a shorter one is hidden.
class MarkupPreview
{
public:
    struct Parts {
        std::shared_ptr<PictureBox> holder;
        std::shared_ptr<ctl_Label> label; ///< stands in the holder and fits itself to its text
        std::shared_ptr<ScrollBar> bar;
    };

    explicit MarkupPreview(Parts parts);

    /// Shows the text, with the line into view in which that place of it is.
    void show(const String& text, std::size_t place);

private:
    struct Hold {
        double y = 0; ///< of the pointer, in the holder
        std::int32_t value = 0;
    };

    void listenToPointer();
    void fitBar();
    void bringIntoView(StringView before);
    void scrollTo(double value);
    void press(const PointerEvent& event, double y);
    void move(double y);
    void turn(WheelEvent& event);

    Parts parts_;
    std::optional<Hold> hold_;
    Connections connections_;
};

} // namespace phial
