#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace phial::test
{

/// The bytes of a number, the lowest first.
inline std::string littleEndian(std::uint64_t number, int bytes)
{
    std::string text;
    for (int at = 0; at < bytes; ++at) {
        text += static_cast<char>(number >> 8 * at & 0xFFU);
    }
    return text;
}

/// A chunk of a wave file, with the byte that follows one of odd length.
inline std::string chunk(std::string_view name, const std::string& content)
{
    return std::string(name) + littleEndian(content.size(), 4) + content +
           std::string(content.size() % 2, '\0');
}

inline std::string waveFile(const std::string& chunks)
{
    return "RIFF" + littleEndian(4 + chunks.size(), 4) + "WAVE" + chunks;
}

/// What the format chunk tells.
struct WaveHeader {
    std::uint16_t code = 1; ///< 1: whole numbers, 3: floating point
    std::uint16_t channels = 1;
    std::uint32_t rate = 44'100;
    std::uint16_t bits = 16;
};

inline std::string formatContent(const WaveHeader& header)
{
    const std::uint32_t frameBytes = header.channels * ((header.bits + 7U) / 8U);
    return littleEndian(header.code, 2) + littleEndian(header.channels, 2) + littleEndian(header.rate, 4) +
           littleEndian(header.rate * frameBytes, 4) + littleEndian(frameBytes, 2) +
           littleEndian(header.bits, 2);
}

/// The same with the extensible header: the code stands in the sub-format.
inline std::string extensibleContent(const WaveHeader& header)
{
    const std::string plain = formatContent(header);
    const std::string tail("\0\0\0\0\x10\0\x80\0\0\xAA\0\x38\x9B\x71", 14);
    return littleEndian(0xFFFE, 2) + plain.substr(2) + littleEndian(22, 2) + littleEndian(header.bits, 2) +
           littleEndian(3, 4) + littleEndian(header.code, 2) + tail;
}

/// A whole file with a plain header.
inline std::string waveFile(const WaveHeader& header, const std::string& data)
{
    return waveFile(chunk("fmt ", formatContent(header)) + chunk("data", data));
}

} // namespace phial::test
