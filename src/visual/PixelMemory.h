#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace phial
{

/// The pixels of a picture. What a large picture had goes to the next one of about that size: fresh memory of
/// the machine takes longer to come than a window takes to be painted. Safe to use in several threads.
class PixelMemory final
{
public:
    /// That many, all 0.
    explicit PixelMemory(std::size_t count);
    ~PixelMemory();
    PixelMemory(const PixelMemory& other);
    PixelMemory& operator=(const PixelMemory& other) = default;

    std::span<const std::uint32_t> pixels() const { return pixels_; }
    std::span<std::uint32_t> pixels() { return pixels_; }

    /// Fewer pixels (256 KiB) are never kept.
    static constexpr std::size_t LeastKept = 64U * 1024U;
    /// No more pixels (16 MiB) are kept in all; the ones given back first go first.
    static constexpr std::size_t MostKept = 4U * 1024U * 1024U;
    /// The pixels kept now.
    static std::size_t kept();

private:
    std::vector<std::uint32_t> pixels_;
};

} // namespace phial
