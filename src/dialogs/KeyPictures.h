#pragma once

#include "dialogs/KeyPainter.h"
#include "visual/Picture.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace phial
{

/// The pictures of which keyboards are painted, kept by the session, so that a keyboard that opens again
/// finds them made: its ground and its caps. They are those of the colours in force; where there are too many
/// the ones that were drawn first go.
class KeyPictures
{
public:
    /// The open session's.
    static std::shared_ptr<KeyPictures> current();

    /// The ground of a keyboard (see KeyboardGround.h) for the screen. Only for reading.
    PicturePtr ground(PixelSize size, double scale);
    /// A key without its face, at that ratio. Only for reading.
    PicturePtr cap(const KeyLook& look, double pixelRatio);

    /// No more pixels (4 MiB) are kept in all.
    static constexpr std::size_t MostKept = 1024U * 1024U;
    /// The pixels kept now.
    std::size_t kept() const;

private:
    struct Kept {
        KeyLook look; ///< of a cap: without face, at the corner; of a ground: its size and scale
        double ratio = 0;
        bool isGround = false;
        PicturePtr picture;
    };

    template <typename Draw>
    PicturePtr kept(const Kept& wanted, Draw draw);
    void followColours();
    void makeRoom();

    std::vector<Kept> pictures_; ///< the one drawn last stands last
    std::uint32_t colours_ = 0;  ///< the theme's count of changes when they were drawn
};

} // namespace phial
