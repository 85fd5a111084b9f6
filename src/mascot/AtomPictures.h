#pragma once

#include "visual/DrawDevice.h"
#include "visual/PictureBox.h"

#include <array>
#include <memory>

namespace phial
{

/// The three pictures that mascots are drawn from: head, electron, and the electron's mask. They stand in the
/// boxes 1 to 3 of `pic_DrAtom` on the shared form frm_Resource, where a program can put others; at first
/// those of URL.RESOURCEGFX, and simple ones where these are missing.
///
/// A picture with see-through pixels is drawn smoothly upon what is there. One without any is a bitmap: of a
/// head what has the key colour becomes see-through, and an electron is combined with its mask bit by bit.
class AtomPictures
{
public:
    static constexpr Colour Key = QBColor(13);

    /// The head over the whole area; its key colour must be the device's mask colour.
    void paintHead(DrawDevice& device, PixelSize area);
    /// In whole pixels.
    PixelSize electronSize();
    void paintElectron(DrawDevice& device, PixelPoint corner);

private:
    /// A picture of a box, and whether it is a bitmap without see-through pixels.
    struct Kept {
        PicturePtr shown; ///< of the box
        PicturePtr drawn; ///< null for none
        bool isSolid = false;
    };
    const Kept& kept(std::size_t item);

    std::array<std::weak_ptr<PictureBox>, 3> boxes_; ///< they end with the session
    std::array<Kept, 3> kept_;
};

} // namespace phial
