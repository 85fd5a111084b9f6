#include "core/WaveFile.h"

#include "core/AudioOutput.h"
#include "core/FileSystem.h"
#include "core/RuntimeError.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <optional>

namespace phial
{

namespace
{

// Codes of the format chunk; the extensible one has the real code in its first two bytes of the sub-format.
constexpr std::uint64_t WholeNumbers = 1;
constexpr std::uint64_t FloatingPoint = 3;
constexpr std::uint64_t Extensible = 0xFFFE;

constexpr std::size_t PlainFormatBytes = 16;
constexpr std::size_t SubFormatPlace = 24;
constexpr std::size_t ExtensibleFormatBytes = 40;

constexpr std::uint64_t LeastRate = 8'000;
constexpr std::uint64_t HighestRate = 192'000;
constexpr std::size_t MostChannels = 2;

/// The number of 1 to 8 bytes, the lowest first.
std::uint64_t numberOf(std::string_view bytes)
{
    std::uint64_t number = 0;
    for (std::size_t at = bytes.size(); at-- > 0;) {
        number = number << 8U | static_cast<unsigned char>(bytes[at]);
    }
    return number;
}

/// One chunk after the other. The last one may be cut off.
class WaveChunks
{
public:
    explicit WaveChunks(std::string_view chunks) : rest_(chunks) {}

    /// Goes to the next chunk; false when there is none.
    bool next()
    {
        constexpr std::size_t HeadBytes = 8;
        if (rest_.size() < HeadBytes) {
            return false;
        }
        name_ = rest_.substr(0, 4);
        const std::size_t size = numberOf(rest_.substr(4, 4));
        content_ = rest_.substr(HeadBytes, size);
        // A chunk of odd length is followed by a byte that belongs to none.
        rest_.remove_prefix(std::min(rest_.size(), HeadBytes + size + size % 2));
        return true;
    }

    std::string_view name() const { return name_; }
    std::string_view content() const { return content_; }

private:
    std::string_view rest_;
    std::string_view name_;
    std::string_view content_;
};

struct WaveFormat {
    std::size_t channels = 0;
    std::int32_t rate = 0;
    std::size_t sampleBytes = 0;
    bool isFloatingPoint = false;

    std::size_t frameBytes() const { return channels * sampleBytes; }
};

/// None for a format that is not played.
std::optional<WaveFormat> readFormat(std::string_view chunk)
{
    if (chunk.size() < PlainFormatBytes) {
        return std::nullopt;
    }
    const auto field = [&chunk](std::size_t at, std::size_t size) {
        return numberOf(chunk.substr(at, size));
    };
    std::uint64_t code = field(0, 2);
    if (code == Extensible) {
        code = chunk.size() < ExtensibleFormatBytes ? 0 : field(SubFormatPlace, 2);
    }
    const std::uint64_t channels = field(2, 2);
    const std::uint64_t rate = field(4, 4);
    const std::uint64_t frameBytes = field(12, 2);
    const std::uint64_t sampleBytes = (field(14, 2) + 7) / 8; // of fewer bits the lowest ones are 0
    const bool isFloatingPoint = code == FloatingPoint;
    const bool isKnown = isFloatingPoint ? sampleBytes == 4 || sampleBytes == 8
                                         : code == WholeNumbers && sampleBytes >= 1 && sampleBytes <= 4;
    if (!isKnown || channels == 0 || frameBytes != channels * sampleBytes || rate < LeastRate ||
        rate > HighestRate) {
        return std::nullopt;
    }
    return WaveFormat{channels, static_cast<std::int32_t>(rate), sampleBytes, isFloatingPoint};
}

float floatingPointSample(std::string_view bytes)
{
    const std::uint64_t bits = numberOf(bytes);
    const double value = bytes.size() == 4 ? std::bit_cast<float>(static_cast<std::uint32_t>(bits))
                                           : std::bit_cast<double>(bits);
    return std::isnan(value) ? 0.0F : static_cast<float>(std::clamp(value, -1.0, 1.0));
}

float wholeNumberSample(std::string_view bytes)
{
    constexpr float Scale = 1.0F / 2'147'483'648.0F;
    auto bits = static_cast<std::uint32_t>(numberOf(bytes) << 8 * (4 - bytes.size()));
    if (bytes.size() == 1) {
        bits ^= 0x8000'0000U; // eight bits alone have no sign: silence is 128
    }
    return static_cast<float>(static_cast<std::int32_t>(bits)) * Scale;
}

std::shared_ptr<const Sound> readSamples(const WaveFormat& format, std::string_view data)
{
    const std::size_t longest = MaxWaveSeconds * static_cast<std::size_t>(format.rate);
    const std::size_t frames = std::min(data.size() / format.frameBytes(), longest);
    const std::size_t channels = std::min(format.channels, MostChannels);
    auto sound = std::make_shared<Sound>();
    sound->sampleRate = format.rate;
    sound->channels = static_cast<std::int32_t>(channels);
    sound->samples.reserve(frames * channels);
    for (std::size_t frame = 0; frame < frames; ++frame) {
        for (std::size_t channel = 0; channel < channels; ++channel) {
            const std::size_t at = frame * format.frameBytes() + channel * format.sampleBytes;
            const std::string_view bytes = data.substr(at, format.sampleBytes);
            sound->samples.push_back(format.isFloatingPoint ? floatingPointSample(bytes)
                                                            : wholeNumberSample(bytes));
        }
    }
    return sound;
}

} // namespace

std::shared_ptr<const Sound> decodeWave(std::string_view bytes)
{
    constexpr std::size_t HeadBytes = 12; // "RIFF", a length that nobody needs, "WAVE"
    if (bytes.size() > MaxWaveBytes || !bytes.starts_with("RIFF") || bytes.size() < HeadBytes ||
        bytes.substr(8, 4) != "WAVE") {
        return nullptr;
    }
    std::optional<WaveFormat> format;
    for (WaveChunks chunks(bytes.substr(HeadBytes)); chunks.next();) {
        if (chunks.name() == "fmt ") {
            format = readFormat(chunks.content());
        } else if (chunks.name() == "data") {
            return format ? readSamples(*format, chunks.content()) : nullptr;
        }
    }
    return nullptr;
}

std::shared_ptr<const Sound> loadWave(FileSystem& files, const std::filesystem::path& file)
{
    try {
        const FileStatus status = files.status(file);
        const bool isSound = status.kind == FileStatus::Kind::File && status.size <= MaxWaveBytes;
        return isSound ? decodeWave(files.read(file)) : nullptr;
    } catch (const RuntimeError&) {
        return nullptr;
    }
}

} // namespace phial
