#pragma once

#include "core/CoreParameters.h"
#include "core/String.h"

namespace learning
{

/// What a round came to, as it goes to the lists, the classroom and the certificate.
struct RoundResult {
    phial::String exercise; ///< the level's German title in either language, since lists compare by it
    int points = 0;
    int maximum = 0;
    int solved = 0;
    int tasks = 0;

    double share() const { return maximum > 0 ? static_cast<double>(points) / maximum : 0; }
};

/// What a list keeps besides points and exercise.
phial::CoreParameters additionalValues(const RoundResult& result);

/// What the certificate says of the round, in the language in force: the app's sentence with its figures.
/// `exercise` is the level's title in that language.
phial::String certificateText(phial::StringView sentence, const RoundResult& result,
                              phial::StringView exercise);

/// The mark as a sign and in the words of the scale, in the language in force, such as "2+ (Gut plus)".
phial::String markText(const RoundResult& result);

} // namespace learning
