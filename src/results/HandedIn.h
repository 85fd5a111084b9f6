#pragma once

#include <cstdint>

namespace phial
{

/// Where a result has been taken in.
enum class ResultPlace : std::uint8_t {
    Master,
    ThisComputer,
    Nowhere, ///< the file of this computer could not be written
};

/// What became of a result.
struct HandedIn {
    std::int32_t rank = 0; ///< as `cls_AppRate.SUBMIT` gives it
    ResultPlace recorded = ResultPlace::Nowhere;
    ResultPlace listed = ResultPlace::Nowhere; ///< in the highscore; as recorded where only that is wanted
    bool wasUnanswered = false;                ///< the master was asked and has not answered

    /// Whether nothing is lost.
    bool isKept() const { return recorded != ResultPlace::Nowhere && listed != ResultPlace::Nowhere; }
};

} // namespace phial
