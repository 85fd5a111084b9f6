#pragma once

#include "common/Round.h"
#include "visual/Form.h"

namespace learning
{

/// What an app lets be heard: praise and blame for an answer, a hymn behind a round; and the switch
/// `but_Sound` in the footer, on which the user chooses how much of it: all, rewards only, nothing. The
/// choice is the user's and outlives the run.
///
/// Praise is heard and stands in the verdict; it opens no window, so that whoever types goes on typing.
class AppSounds
{
public:
    /// How much is heard.
    enum class Choice { All, RewardsOnly, Off };

    /// Takes up the choice that was made last.
    explicit AppSounds(phial::Form& form);
    AppSounds(const AppSounds&) = delete;
    AppSounds& operator=(const AppSounds&) = delete;

    static Choice choice();

    /// An answer has been judged.
    void judged(Verdict verdict) const;
    /// A round is over; there is a hymn for one with points.
    void roundFinished(int points) const;
    /// Says on the switch what is chosen, in the language in force.
    void TRANSLATE();

private:
    void chooseNext();

    phial::Form& form_;
    phial::Connection pressing_;
};

} // namespace learning
