#pragma once

#include "common/LearningApp.h"

namespace learning
{

/// How much of an app is pictured.
enum class PictureTour : std::uint8_t {
    Whole, ///< each state, the frame's own pages among them, in each set of colours and several sizes
    Round, ///< what differs from app to app: the main states of a round, in German as on a screen of 1024 by
           ///< 600
};

/// Leads the app through its states in both languages, on the open session with INIT behind it, and
/// shows each to `take` with a name such as "molmasse-task-de", which begins with the app's own in small
/// letters.
void showEachState(const MakeApp& makeApp, PictureTour tour,
                   const std::function<void(phial::StringView name, const phial::Form& form)>& take);

} // namespace learning
