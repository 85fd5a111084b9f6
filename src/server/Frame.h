#pragma once

#include "core/String.h"

#include <compare>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace phial
{

/// What tells one text on the wire from every other: a number that its sender has drawn at random when it
/// began, and the sender's count. An answer bears the id of its request. A request that is sent again because
/// its answer did not come bears the id of the first try, so that the receiver can tell it from an equal new
/// one.
struct FrameId {
    std::uint64_t sender = 0;
    std::uint64_t number = 0;

    // The check takes the 0 of the comparison behind it for a pointer.
    // NOLINTNEXTLINE(modernize-use-nullptr)
    friend auto operator<=>(const FrameId&, const FrameId&) = default;
};

/// What a frame is for; the values stand on the wire.
enum class FrameKind : std::uint8_t {
    /// Wants an answer.
    Request = 1,
    Answer = 2,
    /// Comes unasked and is not answered.
    Message = 3,
};

/// One text with its envelope.
struct Frame {
    FrameKind kind = FrameKind::Message;
    FrameId id;
    String text;
    /// Of a request: nobody waits for the answer, which may be left out.
    bool unawaited = false;

    friend bool operator==(const Frame&, const Frame&) = default;
};

/// Bytes in front of the text of each frame.
inline constexpr std::size_t FrameHeadBytes = 26;
/// What the text of a frame may take in UTF-8; a receiver may set itself a lower bound.
inline constexpr std::size_t MaxFrameTextBytes = std::size_t{16} << 20;

/// The frame as it goes over the wire. A text beyond MaxFrameTextBytes raises 5.
std::string encodeFrame(const Frame& frame);

/// Why no more frames can be read.
enum class FrameProblem {
    None,
    /// The bytes are of no frame.
    Foreign,
    /// A frame of a version that is not known here.
    OtherVersion,
    /// A kind or a flag that is not known here.
    UnknownKind,
    /// A text beyond the bound.
    TooLong,
};

/// Reads frames from a stream of bytes that comes in pieces of any size.
///
/// Each head is checked as soon as its bytes are there, and a length is never taken for a reason to reserve
/// memory: what is kept are the bytes that have come and are not read yet. Whoever takes out all frames after
/// each piece holds at most one unfinished frame and one piece. A problem stays: where the next frame begins
/// is not known any more, so the connection is to be closed.
class FrameReader
{
public:
    explicit FrameReader(std::size_t maxTextBytes = MaxFrameTextBytes);

    /// Adds bytes behind those that have come. After a problem nothing is added.
    void feed(std::string_view bytes);

    /// Takes the next whole frame; no value when it has not come entirely, or after a problem. Ill-formed
    /// UTF-8 in the text becomes U+FFFD.
    std::optional<Frame> next();

    /// The problem of what has been fed; frames in front of it can still be taken before it shows.
    FrameProblem problem() const { return problem_; }

    /// Bytes that have come and are not taken yet; above 0 when all frames are taken: the beginning of one.
    std::size_t pendingBytes() const { return bytes_.size() - taken_; }

private:
    std::string_view pending() const { return std::string_view(bytes_).substr(taken_); }
    void checkHead();
    void drop(std::size_t count);

    std::size_t maxTextBytes_;
    std::string bytes_;
    std::size_t taken_ = 0; // bytes at the front that are read already
    FrameProblem problem_ = FrameProblem::None;
};

} // namespace phial
