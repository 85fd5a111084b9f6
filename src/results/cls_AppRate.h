#pragma once

#include "core/String.h"
#include "results/HandedIn.h"

#include <cstdint>
#include <memory>
#include <optional>

namespace phial
{

class CoreParameters;
class cls_DataScores;

/// Turns points into marks, and takes a finished exercise into the result lists: to the classroom's master
/// when it can be reached, to files of this computer when not. Prints the certificate. Every call stands by
/// itself.
///
/// `pUEBM` is the label of the exercise; marks do not depend on it.
class cls_AppRate
{
public:
    /// The mark in words and as points of the upper-school scale (0 to 15).
    void MARK(double pPoints, double pPointsMax, StringView pUEBM, String& rMarkText,
              std::int32_t& rMarkNumeric) const;
    String MARKTEXT(double pPoints, double pPointsMax, StringView pUEBM) const;
    std::int32_t MARKPOINTS(double pPoints, double pPointsMax, StringView pUEBM) const;
    /// Such as "2+".
    String MARKSCHOOL(double pPoints, double pPointsMax, StringView pUEBM) const;

    /// Points less their share for the errors made, rounded, halves to even. Raises 11 for no possible error.
    std::int32_t POINTS(std::int32_t pPoints, std::int32_t pErrorsMax, std::int32_t pErrorsMade) const;

    /// The highscore of a module, from the master or from this computer; empty when there is none, or when
    /// the master says nothing.
    std::shared_ptr<cls_DataScores> HIGHSCORE(StringView pModule = u"HIGHSCORE") const;
    /// Shows it with a rank stressed. A list of this computer can be reset there. It is saved afterwards when
    /// it was reset, or when it was loaded whole and its file is still the same. `pFlags` has no effect.
    void HIGHSCORELIST(StringView pTitle = {}, std::int32_t pRank = -1, StringView pModule = u"HIGHSCORE",
                       const void* pFlags = nullptr) const;

    /// Records the result and enters it into the module's highscore; gives the rank, 0 without one, -1 when
    /// the list does not take it. With `pShowInfo` the pupil is told. The modules "RESULT" and "RESULTS"
    /// stand for the record alone. What a master does not take in, because it does not answer or refuses it,
    /// goes into the lists of this computer. Raises 5 for points that are no finite number.
    std::int32_t SUBMIT(double pPoints, double pPointsMax, StringView pUEBM = {},
                        const CoreParameters* pAdditional = nullptr, StringView pHSModule = u"HIGHSCORE",
                        bool pShowInfo = true, std::int32_t pLocalMax = 10) const;
    /// `SUBMIT` for programs that have been logged on for a while: looks first whether the master is still
    /// there, and leaves the client offline where it has gone, so that whatever follows is at once about the
    /// lists of this computer. Takes about a minute at most.
    HandedIn handIn(double points, double pointsMax, StringView exercise = {},
                    const CoreParameters* additional = nullptr, StringView module = u"HIGHSCORE",
                    bool showInfo = true, std::int32_t localMax = 10) const;
    /// Records a finished exercise, good or bad.
    void RESULT(double pPoints, double pPointsMax, StringView pUEBM,
                const CoreParameters* pAdditionalData = nullptr) const;

    /// Prints the certificate form with the text; placeholders are told in docs/certificates.md, and `pMore`
    /// adds to them or replaces them. False when the form is missing, which the user is told, or when it is
    /// not printed.
    bool PRINTCERTIFICATE(StringView pText, const CoreParameters* pMore = nullptr) const;
};

} // namespace phial
