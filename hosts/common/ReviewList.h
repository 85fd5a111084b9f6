#pragma once

#include "common/Round.h"
#include "core/Event.h"
#include "visual/Form.h"
#include "visual/ListView.h"

#include <vector>

namespace learning
{

/// A task of a round that is over.
struct ReviewedTask {
    phial::String title;   ///< one line of plain text
    phial::String working; ///< how its solution is come by; empty where the app does not tell
    Outcome outcome = Outcome::Open;
    int points = 0;
};

/// The tasks of a round in the summary: each with a sign, a word and a colour for how it went, and the
/// working of the one that is chosen. The toolkit's list scrolls, and is used by mouse, keys and touch.
///
/// The controls are those of the window's design.
class ReviewList
{
public:
    explicit ReviewList(phial::Form& form);
    ReviewList(const ReviewList&) = delete;
    ReviewList& operator=(const ReviewList&) = delete;

    /// Shows the tasks of another round, none of them chosen.
    void show(std::vector<ReviewedTask> tasks);
    /// Shows the same tasks in the language that is now in force.
    void showAgain(std::vector<ReviewedTask> tasks);

private:
    void fill();
    void showWorking();
    phial::String workingText() const;

    phial::Form& form_;
    std::shared_ptr<phial::ListView> list_;
    phial::Connections connections_;
    std::vector<ReviewedTask> tasks_;
};

} // namespace learning
