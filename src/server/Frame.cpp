#include "server/Frame.h"

#include "core/RuntimeError.h"

#include <algorithm>

namespace phial
{

namespace
{

// The head: three letters and the version, kind, flags, the id's two numbers, the length of the text. Numbers
// stand with the highest byte first.
constexpr std::string_view Mark = "QVF";
constexpr char Version = 1;
constexpr std::size_t VersionPlace = Mark.size();
constexpr std::size_t KindPlace = VersionPlace + 1;
constexpr std::size_t FlagsPlace = KindPlace + 1;
constexpr std::size_t SenderPlace = FlagsPlace + 1;
constexpr std::size_t NumberPlace = SenderPlace + sizeof(std::uint64_t);
constexpr std::size_t LengthPlace = NumberPlace + sizeof(std::uint64_t);
static_assert(LengthPlace + sizeof(std::uint32_t) == FrameHeadBytes);

constexpr std::uint8_t UnawaitedFlag = 1;

template <typename Number>
void append(std::string& rBytes, Number number)
{
    for (std::size_t left = sizeof(Number); left > 0; --left) {
        rBytes += static_cast<char>(static_cast<std::uint8_t>(number >> (8 * (left - 1))));
    }
}

std::uint8_t byteAt(std::string_view bytes, std::size_t place)
{
    return static_cast<std::uint8_t>(bytes[place]);
}

template <typename Number>
Number numberAt(std::string_view bytes, std::size_t place)
{
    Number number = 0;
    for (std::size_t next = 0; next < sizeof(Number); ++next) {
        number = static_cast<Number>(number << 8) | byteAt(bytes, place + next);
    }
    return number;
}

bool isKind(std::uint8_t value)
{
    switch (static_cast<FrameKind>(value)) {
    case FrameKind::Request:
    case FrameKind::Answer:
    case FrameKind::Message:
        return true;
    }
    return false;
}

bool flagsFit(std::uint8_t kind, std::uint8_t flags)
{
    return flags == 0 || (flags == UnawaitedFlag && kind == static_cast<std::uint8_t>(FrameKind::Request));
}

// As much of the head as is there already.
FrameProblem problemOfHead(std::string_view bytes, std::size_t maxTextBytes)
{
    if (!Mark.starts_with(bytes.substr(0, Mark.size()))) {
        return FrameProblem::Foreign;
    }
    if (bytes.size() > VersionPlace && bytes[VersionPlace] != Version) {
        return FrameProblem::OtherVersion;
    }
    if (bytes.size() > KindPlace && !isKind(byteAt(bytes, KindPlace))) {
        return FrameProblem::UnknownKind;
    }
    if (bytes.size() > FlagsPlace && !flagsFit(byteAt(bytes, KindPlace), byteAt(bytes, FlagsPlace))) {
        return FrameProblem::UnknownKind;
    }
    if (bytes.size() >= FrameHeadBytes && numberAt<std::uint32_t>(bytes, LengthPlace) > maxTextBytes) {
        return FrameProblem::TooLong;
    }
    return FrameProblem::None;
}

} // namespace

std::string encodeFrame(const Frame& frame)
{
    const std::string text = toUtf8(frame.text);
    if (text.size() > MaxFrameTextBytes) {
        throw RuntimeError(ErrorNumber::InvalidArgument, u"The text is too long to be sent");
    }
    std::string bytes;
    bytes.reserve(FrameHeadBytes + text.size());
    bytes += Mark;
    bytes += Version;
    append(bytes, static_cast<std::uint8_t>(frame.kind));
    append(bytes, frame.unawaited ? UnawaitedFlag : std::uint8_t{0});
    append(bytes, frame.id.sender);
    append(bytes, frame.id.number);
    append(bytes, static_cast<std::uint32_t>(text.size()));
    bytes += text;
    return bytes;
}

FrameReader::FrameReader(std::size_t maxTextBytes) : maxTextBytes_(std::min(maxTextBytes, MaxFrameTextBytes))
{
}

void FrameReader::feed(std::string_view bytes)
{
    if (problem_ != FrameProblem::None) {
        return;
    }
    bytes_ += bytes;
    checkHead();
}

std::optional<Frame> FrameReader::next()
{
    const std::string_view bytes = pending();
    if (problem_ != FrameProblem::None || bytes.size() < FrameHeadBytes) {
        return std::nullopt;
    }
    const std::size_t length = numberAt<std::uint32_t>(bytes, LengthPlace);
    if (bytes.size() - FrameHeadBytes < length) {
        return std::nullopt;
    }
    Frame frame;
    frame.kind = static_cast<FrameKind>(byteAt(bytes, KindPlace));
    frame.unawaited = byteAt(bytes, FlagsPlace) == UnawaitedFlag;
    frame.id = {numberAt<std::uint64_t>(bytes, SenderPlace), numberAt<std::uint64_t>(bytes, NumberPlace)};
    frame.text = fromUtf8(bytes.substr(FrameHeadBytes, length));
    drop(FrameHeadBytes + length);
    checkHead();
    return frame;
}

void FrameReader::checkHead()
{
    problem_ = problemOfHead(pending(), maxTextBytes_);
    if (problem_ != FrameProblem::None) {
        bytes_ = {};
        taken_ = 0;
    }
}

// The front is cut off when it outweighs what is left, so that many small frames in one piece are not moved
// each time; a buffer that was large once is given back when it is empty.
void FrameReader::drop(std::size_t count)
{
    constexpr std::size_t Kept = 64 * 1024;
    taken_ += count;
    if (taken_ == bytes_.size()) {
        bytes_.clear();
        if (bytes_.capacity() > Kept) {
            bytes_.shrink_to_fit();
        }
        taken_ = 0;
    } else if (taken_ > bytes_.size() / 2) {
        bytes_.erase(0, taken_);
        taken_ = 0;
    }
}

} // namespace phial
