#include "visual/PaintSurface.h"

#include "core/RuntimeError.h"
#include "core/SessionState.h"
#include "visual/UserControl.h"
#include "visual/VisualHost.h"

#include <utility>

namespace phial
{

PaintSurface::PaintSurface(UserControl& control) : control_(control), device_(*this) {}

PixelSize PaintSurface::size() const
{
    const PixelRectangle place = control_.frame().pixelRectangle();
    return {place.width, place.height};
}

PixelRectangle PaintSurface::imagedPart() const
{
    const PixelSize all = size();
    return part_.value_or(PixelRectangle{0, 0, all.width, all.height});
}

void PaintSurface::imagedPart(std::optional<PixelRectangle> value)
{
    if (part_ != value) {
        part_ = value;
        reported_ = false; // what it covers is told whatever has been told of the picture
        invalidate();
    }
}

PixelSize PaintSurface::imageSize() const
{
    const PixelRectangle part = imagedPart();
    return {part.width, part.height};
}

PicturePtr PaintSurface::image(double pixelRatio)
{
    if (!backend_ || ratio_ != pixelRatio || madeFor_ != imageSize()) {
        remake(pixelRatio);
    }
    followTheme();
    if (!painted_ && !painting_) {
        paintControl();
    } else if (later_ && !painting_) {
        paintBy(std::exchange(later_, nullptr));
    }
    reported_ = false;
    return backend_->picture();
}

void PaintSurface::paintsDirectly(bool value)
{
    if (paintsDirectly_ != value) {
        paintsDirectly_ = value;
        forgetImage();
        report();
    }
}

bool PaintSurface::isPaintedDirectly() const
{
    return paintsDirectly_ && !backend_ && !retains_ && !part_;
}

void PaintSurface::paintOn(std::shared_ptr<DrawBackend> shown)
{
    const auto leave = [this] {
        backend_.reset();
        device_.detach();
        painted_ = false;
    };
    device_.detach();
    backend_ = std::move(shown);
    madeFor_ = imageSize();
    try {
        paintControl();
    } catch (...) {
        leave();
        throw;
    }
    leave();
    reported_ = false;
}

void PaintSurface::paintControl()
{
    painted_ = true;
    paintedIn_ = coreTheme().changes();
    isDrawnUpon_ = false;
    later_ = nullptr;
    paintBy([this] { control_.paint(); });
    painted_ = true; // whatever a setter within the painting has asked for is done
}

void PaintSurface::paintBy(const std::function<void()>& drawing)
{
    painting_ = true;
    try {
        drawing();
    } catch (...) {
        painting_ = false;
        throw;
    }
    painting_ = false;
}

/// What a program has drawn on a control that keeps it stays as it is.
void PaintSurface::followTheme()
{
    if (paintedIn_ != coreTheme().changes() && !painting_ && !(retains_ && isDrawnUpon_)) {
        painted_ = false;
        device_.detach();
    }
}

void PaintSurface::remake(double pixelRatio)
{
    const PicturePtr before = retains_ && painted_ && isDrawnUpon_ ? backend_->picture() : nullptr;
    ratio_ = pixelRatio;
    madeFor_ = imageSize();
    painted_ = false;
    device_.detach();
    backend_ = visualHost().createSurface(madeFor_, ratio_);
    if (retains_) {
        paintControl();
    }
    if (before) {
        isDrawnUpon_ = true;
        const PixelRectangle area{0, 0, before->Width(), before->Height()};
        backend_->image(*before, area, area, {});
    }
}

void PaintSurface::invalidate()
{
    painted_ = false;
    device_.detach(); // asks openBackend again, which lays the background first where it is kept
    report();
}

void PaintSurface::drawWithin(const PixelRectangle& area, const std::function<void()>& drawing)
{
    if (isDrawingPart_) {
        drawing(); // the outer area covers it
        return;
    }
    isDrawingPart_ = true;
    hasDrawnPart_ = false;
    try {
        drawing();
    } catch (...) {
        isDrawingPart_ = false;
        report();
        throw;
    }
    isDrawingPart_ = false;
    if (hasDrawnPart_ && !painting_ && !reported_) {
        reportPart(area);
    }
}

void PaintSurface::drawLater(const PixelRectangle& area, std::function<void()> drawing)
{
    later_ = std::move(drawing);
    if (!painting_ && !reported_) {
        reportPart(area);
    }
}

void PaintSurface::reportPart(const PixelRectangle& area)
{
    const PixelRectangle part = imagedPart();
    changed_ = {part.left + area.left, part.top + area.top, area.width, area.height};
    control_.frame().report(ControlAspect::Picture);
    changed_.reset();
}

PixelRectangle PaintSurface::changedPart() const
{
    const PixelSize all = size();
    return changed_.value_or(PixelRectangle{0, 0, all.width, all.height});
}

void PaintSurface::forgetImage()
{
    if (!retains_ && !painting_) {
        painted_ = false;
        device_.detach();
        backend_.reset();
    }
}

void PaintSurface::resized()
{
    device_.detach(); // asks openBackend again, which sees the new size
    if (retains_) {
        report();
    } else {
        invalidate();
    }
}

void PaintSurface::BackColor(Colour value)
{
    if (device_.BackColor() != value) {
        device_.BackColor(value);
        invalidate();
    }
}

void PaintSurface::transparent(bool value)
{
    if (device_.transparent() != value) {
        device_.transparent(value);
        reported_ = false;
        invalidate();
    }
}

void PaintSurface::MaskPicture(PicturePtr value)
{
    if (mask_ != value) {
        mask_ = std::move(value);
        reported_ = false; // another shape is told whatever has been told of the picture
    }
    report();
}

bool PaintSurface::hits(PixelPoint point)
{
    const PixelSize extent = size();
    if (!PixelRectangle{0, 0, extent.width, extent.height}.contains(point)) {
        return false;
    }
    if (mask_ && !painted_ && !painting_ && backend_) {
        ignoringErrors([this] { image(ratio_); });
    }
    return !mask_ || !mask_->isSeeThrough(point);
}

Container& PaintSurface::children()
{
    if (!children_) {
        children_ = std::make_unique<Container>(
            ScaleUnit::Pixels, [this](ControlAspect aspect) { control_.frame().report(aspect); });
        children_->owner(&control_);
    }
    return *children_;
}

Container* UserControl::containerInUse()
{
    return surface().childrenIfAny() ? container() : nullptr;
}

std::shared_ptr<DrawBackend> PaintSurface::openBackend()
{
    if (!backend_ || madeFor_ != imageSize()) {
        remake(ratio_ > 0 ? ratio_ : visualHost().pixelRatio());
    }
    if (retains_ && !painted_ && !painting_) {
        paintControl();
    }
    return backend_;
}

void PaintSurface::drawn()
{
    isDrawnUpon_ = isDrawnUpon_ || !painting_;
    if (isDrawingPart_) {
        hasDrawnPart_ = true;
    } else {
        report();
    }
}

void PaintSurface::report()
{
    if (!painting_ && !reported_) {
        reported_ = true;
        control_.frame().report(ControlAspect::Picture);
    }
}

} // namespace phial
