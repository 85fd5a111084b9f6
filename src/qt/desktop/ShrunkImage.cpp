#include "qt/desktop/ShrunkImage.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <vector>

namespace phial::qt
{

namespace
{

constexpr int Whole = 256; // the sum of a pixel's shares
constexpr int Half = Whole / 2;
constexpr std::size_t BytesInPixel = 4;
constexpr std::size_t UsualCount = 3; // of shares, where an image is up to twice as large

/// The four bytes of a pixel side by side, with room above each for 256 times as much.
using WidePixel = std::uint64_t;
constexpr WidePixel WideHalves = 0x0080008000800080U;
constexpr WidePixel WideBytes = 0x00FF00FF00FF00FFU;

/// The pixels of a line that the pixels of a shorter line cover: from where on, and with which shares, in
/// 256ths, of which each pixel has as many as any.
struct Covers {
    std::vector<std::size_t> first;
    std::vector<std::uint16_t> shares;
    std::size_t count = 0; ///< of the shares of one
};

Covers coversOf(int from, int to)
{
    const double step = static_cast<double>(from) / to;
    Covers covers;
    covers.count = std::min(static_cast<std::size_t>(from), static_cast<std::size_t>(std::ceil(step)) + 1);
    for (int at = 0; at < to; ++at) {
        const double begin = at * step;
        const double end = begin + step;
        const int first = std::min(static_cast<int>(begin), from - static_cast<int>(covers.count));
        const std::size_t start = covers.shares.size();
        int rest = Whole;
        for (int pixel = first; pixel < first + static_cast<int>(covers.count); ++pixel) {
            const double part = std::min(end, pixel + 1.0) - std::max(begin, double{1} * pixel);
            const int share =
                std::min(rest, static_cast<int>(std::lround(std::max(part, 0.0) / step * Whole)));
            covers.shares.push_back(static_cast<std::uint16_t>(share));
            rest -= share;
        }
        *std::max_element(covers.shares.begin() + static_cast<std::ptrdiff_t>(start), covers.shares.end()) +=
            static_cast<std::uint16_t>(rest);
        covers.first.push_back(static_cast<std::size_t>(first));
    }
    return covers;
}

/// The average of three rows, byte by byte, several at a time as the compiler finds them.
void averageThreeRows(const QImage& image, const Covers& covers, std::size_t at,
                      std::span<std::uint16_t> average)
{
    const auto first = static_cast<int>(covers.first[at]);
    const uchar* above = image.constScanLine(first);
    const uchar* middle = image.constScanLine(first + 1);
    const uchar* below = image.constScanLine(first + 2);
    const std::uint16_t* shares = covers.shares.data() + at * UsualCount;
    const std::uint16_t ofAbove = shares[0];
    const std::uint16_t ofMiddle = shares[1];
    const std::uint16_t ofBelow = shares[2];
    for (std::size_t byte = 0; byte < average.size(); ++byte) {
        const auto sum = static_cast<std::uint16_t>(above[byte] * ofAbove + middle[byte] * ofMiddle +
                                                    below[byte] * ofBelow + Half);
        average[byte] = static_cast<std::uint16_t>(sum / Whole);
    }
}

/// The same of any number of rows.
void averageRows(const QImage& image, const Covers& covers, std::size_t at, std::span<std::uint16_t> average)
{
    std::ranges::fill(average, std::uint16_t{Half});
    for (std::size_t line = 0; line < covers.count; ++line) {
        const std::uint16_t share = covers.shares[at * covers.count + line];
        if (share == 0) {
            continue;
        }
        const uchar* bytes = image.constScanLine(static_cast<int>(covers.first[at] + line));
        for (std::size_t byte = 0; byte < average.size(); ++byte) {
            average[byte] = static_cast<std::uint16_t>(average[byte] + bytes[byte] * share);
        }
    }
    for (std::uint16_t& byte : average) {
        byte = static_cast<std::uint16_t>(byte / Whole);
    }
}

/// Four bytes in one sum.
std::uint32_t averageOf(const std::uint16_t* bytes, const std::uint16_t* shares, std::size_t count)
{
    WidePixel sum = WideHalves;
    for (std::size_t at = 0; at < count; ++at) {
        WidePixel pixel = 0;
        std::memcpy(&pixel, bytes + at * BytesInPixel, sizeof pixel);
        sum += pixel * shares[at];
    }
    sum = (sum / Whole) & WideBytes;
    sum |= sum >> 8U;
    return static_cast<std::uint32_t>(sum & 0xFFFFU) | static_cast<std::uint32_t>((sum >> 16U) & 0xFFFF0000U);
}

template <std::size_t Count>
void averageColumns(std::span<const std::uint16_t> row, const Covers& covers, std::uint32_t* to)
{
    const std::uint16_t* shares = covers.shares.data();
    const std::size_t count = Count == 0 ? covers.count : Count;
    for (const std::size_t first : covers.first) {
        *to++ = averageOf(row.data() + first * BytesInPixel, shares, count);
        shares += count;
    }
}

} // namespace

void shrinkInto(QImage& smaller, const QImage& image)
{
    const bool hasAlpha = image.hasAlphaChannel();
    const QImage source =
        image.convertToFormat(hasAlpha ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    const Covers columns = coversOf(source.width(), smaller.width());
    const Covers rows = coversOf(source.height(), smaller.height());
    const auto averageDown = rows.count == UsualCount ? averageThreeRows : averageRows;
    const auto averageAlong = columns.count == UsualCount ? averageColumns<UsualCount> : averageColumns<0>;
    std::vector<std::uint16_t> row(static_cast<std::size_t>(source.width()) * BytesInPixel);
    for (int y = 0; y < smaller.height(); ++y) {
        averageDown(source, rows, static_cast<std::size_t>(y), row);
        averageAlong(row, columns, reinterpret_cast<std::uint32_t*>(smaller.scanLine(y)));
    }
}

} // namespace phial::qt
