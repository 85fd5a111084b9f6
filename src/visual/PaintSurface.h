#pragma once

#include "visual/Container.h"
#include "visual/DrawDevice.h"

#include <functional>
#include <optional>

namespace phial
{

class UserControl;

/// The persistent image of a painted control and the device that draws in it. The image is made at the first
/// use, in the size of the control and at the screen's pixel ratio; it is remade, and the control painted
/// again, when either changes, and when the theme's colours have. What is drawn stays until the next Cls.
class PaintSurface final : private DrawTarget
{
public:
    explicit PaintSurface(UserControl& control);

    /// Draws in pixels unless the control sets another unit.
    DrawDevice& device() { return device_; }
    const DrawDevice& device() const { return device_; }

    /// For an adapter: the painted picture at that ratio, made or remade if needed. Never null.
    PicturePtr image(double pixelRatio);

    /// Whether an adapter may let `paint` draw on what it shows, so that the control needs no image: for one
    /// that is painted fast and only paints (no holes, no bitwise ink, nothing read back). False at first.
    void paintsDirectly(bool value);
    bool paintsDirectly() const { return paintsDirectly_; }
    /// For an adapter: whether that is so now. Where the control keeps what is drawn, or has got an image by
    /// being drawn upon or asked for it, that is shown.
    bool isPaintedDirectly() const;
    /// For such a control: paints on a surface that lies where the control does.
    void paintOn(std::shared_ptr<DrawBackend> shown);

    /// The control's size in pixels.
    PixelSize size() const;
    /// The part of the control (in its pixels) that has an image, for a control much larger than what is seen
    /// of it. The device then draws from that part's corner, and elsewhere the control shows what lies below.
    /// Another part is painted anew. Everything at first, and for none.
    PixelRectangle imagedPart() const;
    void imagedPart(std::optional<PixelRectangle> value);
    /// The control is painted anew when its image is next needed.
    void invalidate();
    /// Draws what changes nothing outside of that area (in pixels of the image), so that no more of the
    /// control need be shown anew.
    void drawWithin(const PixelRectangle& area, const std::function<void()>& drawing);
    /// Likewise, once the image is next needed; then one drawing does for several changes. The last one given
    /// draws, and all of it is left out where the control is painted anew by then.
    void drawLater(const PixelRectangle& area, std::function<void()> drawing);
    /// For an adapter that is told of another picture: what of the control (in its pixels) has changed.
    PixelRectangle changedPart() const;
    /// Gives the image's memory back while the control is not seen; a control that keeps what is drawn keeps
    /// it.
    void forgetImage();
    /// Called by the frame's owner when the size may have changed.
    void resized();

    /// The background that Cls leaves; the mask colour makes it see-through.
    Colour BackColor() const { return device_.BackColor(); }
    void BackColor(Colour value);
    /// Background see-through as a whole, whatever BackColor says.
    bool transparent() const { return device_.transparent(); }
    void transparent(bool value);
    /// What is drawn survives when the image is remade: `paint` lays the background, and what was there comes
    /// upon it. False at first: `paint` alone makes the image.
    bool retains() const { return retains_; }
    void retains(bool value) { retains_ = value; }
    /// For `paint` called by a program: what was drawn is gone.
    void nothingDrawn() { isDrawnUpon_ = false; }
    /// Marks the control as shaped by the holes of a picture, usually Image(): a click on a hole goes to what
    /// lies below. Null: the control is its rectangle.
    PicturePtr MaskPicture() const { return mask_; }
    void MaskPicture(PicturePtr value);
    /// Whether a point (in pixels) is the control's own and not let through, by the shape that it has now: a
    /// shaped control whose image is no longer right is painted first.
    bool hits(PixelPoint point);

    /// Controls within this one; made at first use, in pixels.
    Container& children();
    Container* childrenIfAny() { return children_.get(); }

private:
    std::shared_ptr<DrawBackend> openBackend() override;
    void drawn() override;
    void report();
    void reportPart(const PixelRectangle& area);
    PixelSize imageSize() const;
    void remake(double pixelRatio);
    void followTheme();
    void paintControl();
    void paintBy(const std::function<void()>& drawing);

    UserControl& control_;
    DrawDevice device_;
    std::shared_ptr<DrawBackend> backend_;
    std::optional<PixelRectangle> part_; ///< none: everything
    PixelSize madeFor_;
    double ratio_ = 0;                      ///< 0: not known yet
    std::function<void()> later_;           ///< set while a part is to be drawn when the image is needed
    std::optional<PixelRectangle> changed_; ///< set while a change of this part alone is told
    bool painting_ = false;
    bool painted_ = false;
    bool reported_ = false; ///< that everything has changed
    bool isDrawingPart_ = false;
    bool hasDrawnPart_ = false;
    bool retains_ = false;
    bool paintsDirectly_ = false;
    bool isDrawnUpon_ = false;    ///< by others than `paint`
    std::uint32_t paintedIn_ = 0; ///< the theme's count of changes then
    PicturePtr mask_;
    std::unique_ptr<Container> children_;
};

} // namespace phial
