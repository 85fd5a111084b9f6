#include "core/Checksum.h"

#include <array>
#include <cstddef>

namespace phial
{

namespace
{

constexpr std::uint32_t Polynomial = 0x82F63B78;
constexpr std::size_t Slices = 8;

using Remainders = std::array<std::uint32_t, 256>;

/// Table 0 is the step for one byte; table n is that byte followed by n zero bytes, so that eight bytes take
/// eight look-ups that do not wait for each other.
constexpr std::array<Remainders, Slices> makeTables()
{
    std::array<Remainders, Slices> tables = {};
    for (std::uint32_t byte = 0; byte < 256; ++byte) {
        std::uint32_t value = byte;
        for (int bit = 0; bit < 8; ++bit) {
            value = (value >> 1) ^ ((value & 1) != 0 ? Polynomial : 0);
        }
        tables[0][byte] = value;
    }
    for (std::size_t slice = 1; slice < Slices; ++slice) {
        for (std::size_t byte = 0; byte < 256; ++byte) {
            const std::uint32_t value = tables[slice - 1][byte];
            tables[slice][byte] = (value >> 8) ^ tables[0][value & 0xFF];
        }
    }
    return tables;
}

constexpr std::array<Remainders, Slices> Tables = makeTables();

std::uint32_t afterEight(const char* bytes, std::uint32_t value)
{
    std::uint32_t result = 0;
    for (std::size_t at = 0; at < Slices; ++at) {
        const std::uint32_t mixed = at < 4 ? value >> (8 * at) : 0;
        result ^= Tables[Slices - 1 - at][(static_cast<unsigned char>(bytes[at]) ^ mixed) & 0xFF];
    }
    return result;
}

} // namespace

std::uint32_t crc32c(std::string_view bytes, std::uint32_t before) noexcept
{
    std::uint32_t value = ~before;
    while (bytes.size() >= Slices) {
        value = afterEight(bytes.data(), value);
        bytes.remove_prefix(Slices);
    }
    for (const char byte : bytes) {
        value = (value >> 8) ^ Tables[0][(static_cast<unsigned char>(byte) ^ value) & 0xFF];
    }
    return ~value;
}

} // namespace phial
