#include "dialogs/HelpPages.h"

#include "core/CoreColors.h"
#include "core/RuntimeError.h"
#include "visual/ScaledPicture.h"
#include "visual/VisualHost.h"

#include <algorithm>
#include <cmath>

namespace phial
{

namespace
{

/// The colour of a premultiplied pixel; none where it is see-through.
std::optional<Colour> colourOf(std::uint32_t pixel)
{
    constexpr std::uint32_t Opaque = 0xFF;
    const std::uint32_t alpha = pixel >> 24U;
    if (alpha == 0) {
        return std::nullopt;
    }
    const auto part = [&](std::uint32_t shift) {
        return static_cast<int>(std::min(Opaque, ((pixel >> shift) & Opaque) * Opaque / alpha));
    };
    return RGB(part(16), part(8), part(0));
}

/// The index of the pixel, of so many, at a share of their length.
std::size_t pixelAt(double share, std::size_t count)
{
    const auto last = static_cast<double>(count - 1);
    return static_cast<std::size_t>(std::clamp(std::floor(share * static_cast<double>(count)), 0.0, last));
}

} // namespace

HelpPages::HelpPages(Form& form, StringView boxes, StringView view)
    : form_(form), view_(form.control<PictureBox>(view)), boxes_(form, String(boxes)),
      reading_(u"tmr_Read", ReadInterval)
{
    boxes_.adopt();
    connections_ += reading_.Tick.connect([this] {
        awaitCurrent();
        readNeighbours();
        lay(0);
    });
    connections_ += boxes_(Current)->Paint.connect([this] { paintCurrent(); });
}

PixelSize HelpPages::viewSize() const
{
    const PixelRectangle place = view_->frame().pixelRectangle();
    return {place.width, place.height};
}

double HelpPages::density() const
{
    return visualHost().pixelRatio() * form_.Zoom();
}

/// With its picture, if that is held.
HelpPages::Held HelpPages::known(const String& file) const
{
    const auto found =
        std::ranges::find_if(held_, [&](const Held& each) { return each.picture && each.file == file; });
    return found == held_.end() ? Held{file, nullptr} : *found;
}

void HelpPages::read(Held& page) const
{
    if (!page.picture && !page.file.empty()) {
        ignoringErrors([&] { page.picture = LoadPictureWithin(page.file, viewSize(), density()); });
    }
}

/// As long as there is no window: making it takes about as long.
void HelpPages::beginCurrent()
{
    const Held& page = held_[Current];
    if (!page.picture && !page.file.empty() && !form_.Visible()) {
        ignoringErrors([&] { coming_ = BeginPictureWithin(page.file, viewSize(), density()); });
    }
}

void HelpPages::takeCurrent()
{
    std::future<PicturePtr> picture = std::move(coming_->picture);
    coming_.reset();
    ignoringErrors([&] { held_[Current].picture = picture.get(); });
}

/// From here on the picture is there, or its place is empty.
void HelpPages::awaitCurrent()
{
    if (coming_) {
        takeCurrent();
        showBox(Current);
    } else if (held_[Current].picture || !boxes_(Current)->Visible()) {
        return;
    }
    if (!held_[Current].picture) {
        showBox(Current);
        FAILED.raise();
    }
}

PixelSize HelpPages::sizeOf(std::int32_t index) const
{
    if (index == Current && coming_) {
        return coming_->size;
    }
    const auto& picture = held_.at(static_cast<std::size_t>(index)).picture;
    return picture ? picture->size() : PixelSize{};
}

void HelpPages::dropUnfitting()
{
    if (heldFor_ != viewSize() || heldDensity_ != density()) {
        held_ = {};
        coming_.reset();
        heldFor_ = viewSize();
        heldDensity_ = density();
    }
}

void HelpPages::expect(const String& current)
{
    dropUnfitting();
    if (!isComing(current)) {
        coming_.reset();
        held_[Current] = known(current);
        beginCurrent();
    }
}

void HelpPages::show(const String& before, const String& current, const String& next)
{
    dropUnfitting();
    const bool goesOn = isComing(current);
    held_ = {known(before), known(current), known(next)};
    if (!goesOn) {
        coming_.reset();
        beginCurrent();
    }
    if (!coming_) {
        read(held_[Current]);
    }
    reading_.Enabled(true);
    fine_ = nullptr;
    for (std::int32_t index = Before; index <= Next; ++index) {
        showBox(index);
    }
    showWhole();
}

void HelpPages::readNeighbours()
{
    reading_.Enabled(false);
    for (const std::int32_t index : {Before, Next}) {
        read(held_.at(static_cast<std::size_t>(index)));
        showBox(index);
    }
}

void HelpPages::showBox(std::int32_t index)
{
    const auto& picture = held_.at(static_cast<std::size_t>(index)).picture;
    boxes_(index)->PaintedPart(std::nullopt);
    boxes_(index)->Picture(picture);
    boxes_(index)->Visible(picture != nullptr || (index == Current && coming_));
}

void HelpPages::showMap(const String& file)
{
    if (map_.file == file && map_.picture) {
        return;
    }
    map_ = {file, nullptr};
    if (!file.empty()) {
        ignoringErrors([&] { map_.picture = LoadPicture(file); });
    }
    boxes_(Map)->Picture(map_.picture);
}

void HelpPages::forget()
{
    held_ = {};
    coming_.reset();
    reading_.Enabled(false);
    map_ = {};
    fine_ = nullptr;
}

void HelpPages::place(std::int32_t index, double offset)
{
    const PixelSize size = sizeOf(index);
    if (!size.isEmpty()) {
        const PixelSize view = viewSize();
        boxes_(index)->frame().pixelRectangle({std::floor((view.width - size.width) / 2) + std::round(offset),
                                               std::floor((view.height - size.height) / 2), size.width,
                                               size.height});
    }
}

void HelpPages::lay(double offset)
{
    if (offset != 0 && reading_.Enabled()) {
        readNeighbours();
    }
    const double width = viewSize().width;
    place(Before, offset - width);
    if (!zoom_.isEnlarged()) {
        place(Current, offset);
    }
    place(Next, offset + width);
}

void HelpPages::showWhole()
{
    const bool wasEnlarged = zoom_.isEnlarged();
    zoom_.reset(sizeOf(Current), viewSize());
    if (wasEnlarged) {
        layZoom();
    }
    lay(0);
}

void HelpPages::enlarge(double by, PixelPoint at)
{
    awaitCurrent();
    if (hasPicture()) {
        zoom_.enlarge(by, at);
    }
}

void HelpPages::move(double x, double y)
{
    if (zoom_.isEnlarged()) {
        zoom_.move(x, y);
    }
}

/// An enlarged page is drawn as far as it is seen, from its finest picture.
void HelpPages::layZoom()
{
    PictureBox& box = *boxes_(Current);
    if (!zoom_.isEnlarged()) {
        fine_ = nullptr;
        box.PaintedPart(std::nullopt);
        box.Picture(held_[Current].picture);
        lay(0);
        return;
    }
    if (!fine_) {
        fine_ = held_[Current].picture;
        ignoringErrors(
            [&] { fine_ = LoadPictureWithin(held_[Current].file, viewSize(), density() * PageZoom::Most); });
    }
    box.Picture(nullptr);
    box.frame().pixelRectangle(zoom_.place());
    box.PaintedPart(zoom_.seenPart());
    box.Refresh();
}

/// The box has laid its ground already when a picture that was on its way comes. One that has failed leaves
/// the place empty until the neighbours are read: a box cannot go while it is being painted.
void HelpPages::paintCurrent()
{
    if (coming_) {
        takeCurrent();
        if (const PicturePtr picture = held_[Current].picture) {
            boxes_(Current)->Picture(picture);
            boxes_(Current)->device().PaintPicture(picture, 0, 0);
        }
    }
    if (zoom_.isEnlarged() && fine_) {
        PictureBox& box = *boxes_(Current);
        const PixelRectangle part = box.PaintedPart();
        const PixelRectangle place = zoom_.place();
        box.device().PaintPicture(fine_, -part.left, -part.top, place.width, place.height);
    }
}

String HelpPages::mapColourAt(PixelPoint point) const
{
    const PixelRectangle page = zoom_.place();
    if (!map_.picture || !hasPicture() || !page.contains(point)) {
        return {};
    }
    const Picture& map = *map_.picture;
    const auto colour = colourOf(map.at(pixelAt((point.x - page.left) / page.width, map.columns()),
                                        pixelAt((point.y - page.top) / page.height, map.rows())));
    return colour ? CoreColors::ToHtml(*colour) : String();
}

PixelPoint HelpPages::inView(PictureBox& page, const PointerEvent& event)
{
    const PixelRectangle place = page.frame().pixelRectangle();
    return {place.left + event.X, place.top + event.Y};
}

} // namespace phial
