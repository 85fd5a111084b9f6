#include "visual/PixelMemory.h"

#include <algorithm>
#include <mutex>
#include <new>
#include <utility>

namespace phial
{

namespace
{

using Pixels = std::vector<std::uint32_t>;

/// What has been given back, the oldest first.
class KeptPixels
{
public:
    /// Memory for that many, which holds whatever stood there; empty where there is none that fits.
    Pixels take(std::size_t count)
    {
        if (count < PixelMemory::LeastKept) {
            return {};
        }
        const std::scoped_lock lock(mutex_);
        // A quarter may lie idle, so that a window that is made a little smaller finds its memory again.
        const auto fits = [count](const Pixels& each) {
            return each.capacity() >= count && each.capacity() <= count + count / 4;
        };
        const auto found = std::ranges::find_if(pixels_, fits);
        if (found == pixels_.end()) {
            return {};
        }
        Pixels taken = std::move(*found);
        pixels_.erase(found);
        return taken;
    }

    void give(Pixels&& pixels)
    {
        const std::scoped_lock lock(mutex_);
        pixels_.push_back(std::move(pixels));
        while (count() > PixelMemory::MostKept) {
            pixels_.erase(pixels_.begin());
        }
    }

    std::size_t kept()
    {
        const std::scoped_lock lock(mutex_);
        return count();
    }

private:
    std::size_t count() const
    {
        std::size_t all = 0;
        for (const Pixels& each : pixels_) {
            all += each.capacity();
        }
        return all;
    }

    std::mutex mutex_;
    std::vector<Pixels> pixels_;
};

/// Made by the first PixelMemory, so that it outlives them all.
KeptPixels& keptPixels()
{
    static KeptPixels kept;
    return kept;
}

} // namespace

PixelMemory::PixelMemory(std::size_t count) : pixels_(keptPixels().take(count))
{
    pixels_.assign(count, 0);
}

PixelMemory::PixelMemory(const PixelMemory& other) : pixels_(keptPixels().take(other.pixels_.size()))
{
    pixels_.assign(other.pixels_.begin(), other.pixels_.end());
}

PixelMemory::~PixelMemory()
{
    if (pixels_.capacity() >= LeastKept && pixels_.capacity() <= MostKept) {
        try {
            keptPixels().give(std::move(pixels_));
        } catch (const std::bad_alloc&) { // no room in the list: the memory goes
        }
    }
}

std::size_t PixelMemory::kept()
{
    return keptPixels().kept();
}

} // namespace phial
