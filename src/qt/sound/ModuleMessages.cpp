#include "qt/sound/ModuleMessages.h"

#include <QString>

#include <algorithm>
#include <iterator>

namespace phial::qt
{

namespace
{

QtMessageHandler otherMessages = nullptr;

constexpr QLatin1String ModuleCategories("qt.multimedia.");

/// The module writes most under the common category, where only the beginnings tell its messages.
bool isOfSoundModule(const QMessageLogContext& context, const QString& message)
{
    if (QLatin1String(context.category).startsWith(ModuleCategories)) {
        return true;
    }
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
    if (type != QtWarningMsg || !isOfSoundModule(context, message)) {
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
