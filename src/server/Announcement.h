#pragma once

#include "core/String.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace phial
{

/// A datagram by which masters are found: a client asks whoever is there, a master announces itself.
struct Announcement {
    /// The settings that the master hands out (`PACK` of its settings); empty in a client's question.
    String settings;

    bool isQuestion() const { return settings.empty(); }

    friend bool operator==(const Announcement&, const Announcement&) = default;
};

/// A datagram is no longer than this.
inline constexpr std::size_t MaxAnnouncementBytes = 4096;

/// The datagram's bytes. Settings that do not fit raise 5.
std::string encodeAnnouncement(const Announcement& announcement);

/// Reads one datagram; no value for whatever else may come in on the port.
std::optional<Announcement> decodeAnnouncement(std::string_view datagram);

} // namespace phial
