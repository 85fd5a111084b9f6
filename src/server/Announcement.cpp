#include "server/Announcement.h"

#include "core/RuntimeError.h"

namespace phial
{

namespace
{

// Three letters and the version; what follows is the text.
constexpr std::string_view AnnouncementHead = "QVA\1";

} // namespace

std::string encodeAnnouncement(const Announcement& announcement)
{
    std::string bytes(AnnouncementHead);
    bytes += toUtf8(announcement.settings);
    if (bytes.size() > MaxAnnouncementBytes) {
        throw RuntimeError(ErrorNumber::InvalidArgument, u"The settings are too long to be announced");
    }
    return bytes;
}

std::optional<Announcement> decodeAnnouncement(std::string_view datagram)
{
    if (datagram.size() > MaxAnnouncementBytes || !datagram.starts_with(AnnouncementHead)) {
        return std::nullopt;
    }
    return Announcement{fromUtf8(datagram.substr(AnnouncementHead.size()))};
}

} // namespace phial
