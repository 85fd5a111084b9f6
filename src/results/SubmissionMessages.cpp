#include "results/SubmissionMessages.h"

#include "core/CoreDialogs.h"
#include "core/CoreRoot.h"

namespace phial
{

std::optional<SubmissionMessage> messageForAnswer(const String& answer)
{
    if (answer == u"OK") {
        return std::nullopt;
    }
    if (answer == u"-1") {
        return SubmissionMessage{u"Info",
                                 u"Leider war das nichts! \rFür die Bestenliste hat DAS nicht gereicht!"};
    }
    if (answer.empty()) {
        return SubmissionMessage{u"Info", u"Leider war das nichts! \rDu warst schon besser!"};
    }
    return SubmissionMessage{u"Herzlichen Glückwunsch!",
                             u"Du hast es auf den " + answer + u". Platz der Bestenliste geschafft!"};
}

std::optional<SubmissionMessage> messageForRank(const Variant& rank, std::int32_t limit, std::int32_t count)
{
    const std::int32_t place = rank.toWhole();
    const String text = rank.toText();
    if (place == -1) {
        return SubmissionMessage{u"Info",
                                 u"Leider war das nichts! Für die Bestenliste hat DAS nicht gereicht!"};
    }
    if (place > limit) {
        return std::nullopt;
    }
    if (place == count && count < 2) {
        return SubmissionMessage{u"Kunststück!", u"Herzlichen Glückwunsch! \rDu hast es auf den " + text +
                                                     u". Platz der Bestenliste geschafft! \r"
                                                     u"Ein Kunststück, wo die Liste doch leer ist..."};
    }
    if (place == count) {
        return SubmissionMessage{u"Naja...", u"Du hast es auf den " + text +
                                                 u". Platz der Bestenliste geschafft. \r"
                                                 u"Leider bist Du damit allerdings LETZTER!"};
    }
    return SubmissionMessage{u"Herzlichen Glückwunsch!", u"Herzlichen Glückwunsch! \rDu hast es auf den " +
                                                             text + u". Platz der Bestenliste geschafft!"};
}

void show(const std::optional<SubmissionMessage>& message)
{
    if (message) {
        coreRoot().CoreDialogs().Info(message->text, message->title);
    }
}

} // namespace phial
