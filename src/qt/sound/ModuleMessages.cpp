#include "qt/sound/ModuleMessages.h"

#include <QString>

#include <algorithm>
#include <iterator>

namespace phial::qt
{

namespace
{

QtMessageHandler otherMessages = nullptr;

/// The module writes under the common category, so that only the beginnings tell its messages.
bool isOfSoundModule(const QString& message)
{
    constexpr QLatin1String Beginnings[] = {QLatin1String("PulseAudioService:"),
                                            QLatin1String("\"PulseAudioService:"),
                                            QLatin1String("\"Stream error:"),
                                            QLatin1String("QAudioSink(pulseaudio):"),
                                            QLatin1String("Failed to initialize output ALSA device"),
                                            QLatin1String("No audio device detected")};
    return std::any_of(std::begin(Beginnings), std::end(Beginnings),
                       [&message](QLatin1String beginning) { return message.startsWith(beginning); });
}

void passOn(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (type != QtWarningMsg || !isOfSoundModule(message)) {
        otherMessages(type, context, message);
    }
}

} // namespace

void silenceSoundModule()
{
    if (otherMessages == nullptr) {
        otherMessages = qInstallMessageHandler(passOn);
    }
}

} // namespace phial::qt
