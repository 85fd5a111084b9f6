#pragma once

#include "DesktopSession.h"
#include "visual/DrawDevice.h"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <utility>

namespace phial::qt
{

/// Surfaces in memory, drawn on by the toolkit's painter.
class PainterTest : public DesktopSession
{
protected:
    static constexpr std::uint32_t White = 0xFFFFFFFF;
    static constexpr std::uint32_t Black = 0xFF000000;
    static constexpr std::uint32_t Hole = 0;
    static constexpr double Ratios[] = {1, 1.25, 1.5, 2, 3};

    struct Surface {
        PicturePtr picture;
        std::shared_ptr<DrawBackend> backend;
        std::unique_ptr<DrawDevice> device;

        std::uint32_t at(std::size_t column, std::size_t row) const { return picture->at(column, row); }
        std::size_t count(std::uint32_t colour) const
        {
            const auto pixels = std::as_const(*picture).pixels();
            return static_cast<std::size_t>(std::count(pixels.begin(), pixels.end(), colour));
        }
    };

    static Surface white(PixelSize size, double ratio = 1)
    {
        Surface surface = empty(size, ratio);
        surface.backend->clear({QBColor(15)});
        return surface;
    }

    static Surface empty(PixelSize size, double ratio = 1)
    {
        Surface surface;
        surface.backend = visualHost().createSurface(size, ratio);
        surface.picture = surface.backend->picture();
        surface.device = std::make_unique<DrawDevice>(surface.backend);
        return surface;
    }

    static bool same(const Surface& left, const Surface& right)
    {
        const auto one = std::as_const(*left.picture).pixels();
        const auto other = std::as_const(*right.picture).pixels();
        return std::equal(one.begin(), one.end(), other.begin(), other.end());
    }
};

} // namespace phial::qt
