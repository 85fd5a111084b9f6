#include "headless/PictureHead.h"

#include "core/RuntimeError.h"

#include <array>
#include <cstdint>
#include <fstream>
#include <string_view>

namespace phial::headless
{

namespace
{

constexpr std::size_t HeadSize = 26; // up to the height in a BMP file's head

using Head = std::array<char, HeadSize>;

bool startsWith(const Head& head, std::string_view magic)
{
    return std::string_view(head.data(), head.size()).starts_with(magic);
}

std::uint32_t byteAt(const Head& head, std::size_t at)
{
    return static_cast<unsigned char>(head.at(at));
}

std::uint32_t littleEndian(const Head& head, std::size_t at, std::size_t bytes)
{
    std::uint32_t value = 0;
    for (std::size_t index = bytes; index-- > 0;) {
        value = (value << 8U) | byteAt(head, at + index);
    }
    return value;
}

std::uint32_t bigEndian(const Head& head, std::size_t at)
{
    return (byteAt(head, at) << 24U) | (byteAt(head, at + 1) << 16U) | (byteAt(head, at + 2) << 8U) |
           byteAt(head, at + 3);
}

PixelSize sizeOf(const Head& head)
{
    if (startsWith(head, "\x89PNG\r\n\x1a\n")) {
        return {static_cast<double>(bigEndian(head, 16)), static_cast<double>(bigEndian(head, 20))};
    }
    if (startsWith(head, "GIF8")) {
        return {static_cast<double>(littleEndian(head, 6, 2)), static_cast<double>(littleEndian(head, 8, 2))};
    }
    if (startsWith(head, "BM")) {
        return {static_cast<double>(littleEndian(head, 18, 4)),
                static_cast<double>(littleEndian(head, 22, 4))};
    }
    throw RuntimeError(481, u"Invalid picture");
}

} // namespace

PixelSize pictureSize(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    if (!stream) {
        throw RuntimeError(ErrorNumber::FileNotFound);
    }
    Head head{};
    stream.read(head.data(), head.size());
    return sizeOf(head);
}

} // namespace phial::headless
