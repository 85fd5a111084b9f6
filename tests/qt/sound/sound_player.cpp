// Plays a steady level on the desktop's loudspeakers and tells how it goes: sound_player SECONDS [wait]. With
// `wait` it waits without running events.

#include "qt/base/QtClock.h"
#include "qt/sound/QtAudioOutput.h"

#include <QCoreApplication>

#include <cstdio>
#include <cstdlib>
#include <memory>

int main(int argc, char** argv)
{
    using phial::AudioOutput;
    const QCoreApplication application(argc, argv);
    constexpr std::int32_t Rate = 44'100;
    const double seconds = std::atof(QCoreApplication::arguments().at(1).toUtf8());
    const bool waits = QCoreApplication::arguments().contains(QLatin1String("wait"));

    const auto clock = std::make_shared<phial::qt::QtClock>();
    phial::qt::QtAudioOutput output(clock);
    const auto tell = [](const char* what, bool holds) {
        std::printf("%s: %s\n", what, holds ? "yes" : "no");
        std::fflush(stdout);
    };
    for (int time = 0; time < 100 && !output.available(); ++time) {
        clock->sleep(0.01); // a busy computer comes to look later
    }
    tell("available", output.available());
    const double begin = clock->seconds();
    const auto voice = output.start(std::make_shared<const phial::Sound>(
        phial::Sound{Rate, 1, std::vector<float>(static_cast<std::size_t>(seconds * Rate), 0.25F)}));
    tell("playing", output.isPlaying(voice));
    if (waits) {
        output.waitForEnd(voice);
    }
    while (output.isPlaying(voice)) {
        QCoreApplication::processEvents();
        clock->sleep(0.005);
    }
    const double took = clock->seconds() - begin;
    tell("whole length", took >= seconds);
    tell("longer than a second beyond", took > seconds + 1);
    tell("available", output.available());
    tell("another one plays", output.start(std::make_shared<const phial::Sound>(
                                  phial::Sound{Rate, 1, {0.25F}})) != AudioOutput::Voice::None);
    return 0;
}
