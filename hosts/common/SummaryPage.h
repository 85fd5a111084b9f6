#pragma once

#include "common/LearningApp.h"
#include "common/ReviewList.h"
#include "common/RoundResult.h"
#include "visual/Form.h"

#include <cstdint>
#include <optional>

namespace learning
{

/// What a round is for.
enum class RoundKind : std::uint8_t {
    Counting, ///< it goes to the lists, the classroom and the certificate
    Practice  ///< of what was missed before: it goes nowhere
};

/// A round that is over.
struct FinishedRound {
    RoundResult result;
    LevelTitle level;
    RoundKind kind = RoundKind::Counting;
    std::optional<int> solvedBefore; ///< in the last round of the level; none that could be compared
};

/// The page behind a round: points, mark and rank, the tasks with their working, and what can be made of
/// them: the list of the best, also as a text file, and a certificate. A round of less than 60 % begins with
/// what was solved.
///
/// The controls are those of the window's design; the page belongs to the window and ends with it.
class SummaryPage
{
public:
    SummaryPage(phial::Form& form, const LearningApp& app);
    SummaryPage(const SummaryPage&) = delete;
    SummaryPage& operator=(const SummaryPage&) = delete;

    /// Shows the result of a round. A certificate is offered for one that counts, and a round of what was
    /// missed behind one that was not wholly solved.
    void show(FinishedRound round, std::vector<ReviewedTask> tasks);
    /// The tasks of the same round in the language that is now in force.
    void showAgain(std::vector<ReviewedTask> tasks) { review_.showAgain(std::move(tasks)); }
    /// What the mascot may say, which stands on the page as well.
    phial::String word() const;
    /// Hands the result in, which tells the pupil the rank in a box, and what else became of the lists.
    /// Events run until the master has answered and the boxes are closed; until then only leaving is offered.
    void submit();
    /// Puts the texts that are not of the design in the language in force.
    void TRANSLATE();

private:
    void submitting(bool value);
    void offer(bool available);
    void offerMissed(bool available);
    void showMark();
    void showPraise();
    phial::String solvedText() const;
    void showRank();
    void showList();
    void printCertificate();
    void exportList();

    phial::Form& form_;
    const AppTexts& texts_;
    phial::StringView highscore_;
    phial::Connections connections_;
    ReviewList review_;
    FinishedRound round_;
    std::int32_t rank_ = 0; ///< 0 and less: none
    bool isSubmitting_ = false;
};

} // namespace learning
