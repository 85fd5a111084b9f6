// Frames in pieces of any size: what is read is what would be read in one piece, memory stays bounded, a
// problem stays, and whatever was read can be encoded and read again.

#include "FuzzInput.h"
#include "server/Frame.h"

#include <algorithm>
#include <vector>

namespace
{

using namespace phial;

constexpr std::size_t MaxText = 4096;

std::vector<Frame> framesIn(FrameReader& reader)
{
    std::vector<Frame> frames;
    while (auto frame = reader.next()) {
        frames.push_back(*std::move(frame));
    }
    return frames;
}

void checkBound(const FrameReader& reader)
{
    fuzz::require(reader.pendingBytes() < FrameHeadBytes + MaxText);
    fuzz::require(reader.problem() == FrameProblem::None || reader.pendingBytes() == 0);
}

void readAgain(const std::vector<Frame>& frames)
{
    std::string bytes;
    for (const Frame& frame : frames) {
        bytes += encodeFrame(frame);
    }
    FrameReader reader;
    reader.feed(bytes);
    fuzz::require(framesIn(reader) == frames);
    fuzz::require(reader.problem() == FrameProblem::None && reader.pendingBytes() == 0);
}

} // namespace

// The first byte tells the size of the pieces.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0) {
        return 0;
    }
    const std::size_t piece = std::size_t{1} + data[0];
    const std::string_view bytes(reinterpret_cast<const char*>(data + 1), size - 1);

    FrameReader inPieces(MaxText);
    std::vector<Frame> frames;
    for (std::size_t place = 0; place < bytes.size(); place += piece) {
        inPieces.feed(bytes.substr(place, piece));
        std::ranges::move(framesIn(inPieces), std::back_inserter(frames));
        checkBound(inPieces);
    }

    FrameReader atOnce(MaxText);
    atOnce.feed(bytes);
    fuzz::require(framesIn(atOnce) == frames);
    fuzz::require(atOnce.problem() == inPieces.problem());
    readAgain(frames);
    return 0;
}
