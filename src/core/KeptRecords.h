#pragma once

#include "core/String.h"

#include <cstdint>
#include <filesystem>
#include <set>
#include <vector>

namespace phial
{

/// A record file that a save has not simply replaced, or that has gone, which people should be told.
struct KeptRecord {
    enum class Reason : std::uint8_t {
        Damaged, ///< it was damaged or no record file, and is kept
        NotRead, ///< it was whole, but this program had not read all that is in it; it is kept
        Gone,    ///< it was there in this session and is not found any more; nothing is kept
    };

    Reason reason = Reason::Damaged;
    String file;   ///< as the system writes paths
    String keptAs; ///< where its content is now; empty for one that has gone

    friend bool operator==(const KeptRecord&, const KeptRecord&) = default;
};

/// What became of record files in a session, so that nothing is set aside without a word.
class KeptRecords
{
public:
    /// So many are remembered; later ones push out the oldest.
    static constexpr std::size_t Most = 100;

    /// Everything so far, in order.
    const std::vector<KeptRecord>& all() const { return all_; }
    /// What has come since this was called last: for whoever tells people, once.
    std::vector<KeptRecord> takeUntold();

    void add(KeptRecord record);

    /// A record file was read or written there.
    void saw(const std::filesystem::path& file);
    /// A record file is not there. Gives whether it was seen in this session, and not again since; the first
    /// time it is added as gone.
    bool missed(const std::filesystem::path& file);

private:
    std::vector<KeptRecord> all_;
    std::size_t untold_ = 0; // at the end of the list
    std::set<std::filesystem::path> seen_;
    std::set<std::filesystem::path> gone_;
};

/// Those of the open session; raises 91 when none is open.
KeptRecords& keptRecords();

} // namespace phial
