#include "dialogs/KeyPictures.h"

#include "app/Session.h"
#include "core/CoreTheme.h"
#include "core/SessionState.h"
#include "dialogs/KeyboardGround.h"
#include "visual/VisualHost.h"

#include <algorithm>

namespace phial
{

std::shared_ptr<KeyPictures> KeyPictures::current()
{
    return Session::current().sharedForm<KeyPictures>();
}

PicturePtr KeyPictures::ground(PixelSize size, double scale)
{
    Kept wanted;
    wanted.isGround = true;
    wanted.ratio = visualHost().pixelRatio();
    wanted.look.area = {0, 0, size.width, size.height};
    wanted.look.scale = scale;
    return kept(wanted, [&] { return keyboardGround(size, scale); });
}

PicturePtr KeyPictures::cap(const KeyLook& look, double pixelRatio)
{
    Kept wanted;
    wanted.ratio = pixelRatio;
    wanted.look = look;
    wanted.look.area.left = wanted.look.area.top = 0;
    wanted.look.face = {};
    return kept(wanted, [&] {
        DrawDevice device(visualHost().createSurface({look.area.width, look.area.height}, pixelRatio));
        paintCap(device, wanted.look);
        return device.Image();
    });
}

std::size_t KeyPictures::kept() const
{
    std::size_t pixels = 0;
    for (const Kept& each : pictures_) {
        pixels += each.picture->pixels().size();
    }
    return pixels;
}

template <typename Draw>
PicturePtr KeyPictures::kept(const Kept& wanted, Draw draw)
{
    followColours();
    const auto known = std::ranges::find_if(pictures_, [&](const Kept& each) {
        return each.isGround == wanted.isGround && each.ratio == wanted.ratio && each.look == wanted.look;
    });
    if (known != pictures_.end()) {
        return known->picture;
    }
    const PicturePtr picture = draw();
    pictures_.push_back(wanted);
    pictures_.back().picture = picture;
    makeRoom();
    return picture;
}

void KeyPictures::followColours()
{
    if (colours_ != coreTheme().changes()) {
        pictures_.clear();
        colours_ = coreTheme().changes();
    }
}

void KeyPictures::makeRoom()
{
    while (kept() > MostKept) {
        pictures_.erase(pictures_.begin());
    }
}

} // namespace phial
