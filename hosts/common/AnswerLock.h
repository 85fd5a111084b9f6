#pragma once

#include "visual/Form.h"

namespace learning
{

/// The sign of a decided answer, a padlock at the right end of the answer's place: colours alone do not tell
/// that it can no longer be changed.
class AnswerLock
{
public:
    /// What an answer leaves free for it at the end of its place, in pixels.
    static constexpr double Width = 24;

    /// Puts the sign, unseen, on the page of tasks.
    explicit AnswerLock(phial::Form& form);

    void Visible(bool value);

private:
    phial::Form& form_;
};

} // namespace learning
