// Datagrams: one that is read comes back from its own encoded form.

#include "FuzzInput.h"
#include "server/Announcement.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace phial;
    const auto read = decodeAnnouncement({reinterpret_cast<const char*>(data), size});
    if (!read) {
        return 0;
    }
    fuzz::require(size <= MaxAnnouncementBytes);
    fuzz::require(read->isQuestion() == read->settings.empty());
    // Bytes that are no UTF-8 take more room when they are written again.
    if (toUtf8(read->settings).size() + 4 <= MaxAnnouncementBytes) {
        fuzz::require(decodeAnnouncement(encodeAnnouncement(*read)) == *read);
    }
    return 0;
}
