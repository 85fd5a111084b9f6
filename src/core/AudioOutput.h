#pragma once

#include <cstdint>
#include <memory>
#include <vector>

namespace phial
{

/// A sound in memory.
struct Sound {
    std::int32_t sampleRate = 0; ///< frames a second, 8,000 to 192,000
    std::int32_t channels = 0;   ///< 1 or 2
    std::vector<float> samples;  ///< -1 to 1, the channels of a frame side by side: frames * channels

    /// How long it is heard.
    double seconds() const
    {
        const double perSecond = static_cast<double>(sampleRate) * channels;
        return perSecond > 0 ? static_cast<double>(samples.size()) / perSecond : 0;
    }
};

/// Where sounds are heard. It is used in the thread of the user interface and raises nothing: without a
/// device, or when it is lost, there is silence.
class AudioOutput
{
public:
    /// A sound that has begun. A number is not used twice in a run.
    enum class Voice : std::int64_t { None = 0 };
    /// So many sounds mix; a further one ends the oldest.
    static constexpr std::int32_t MostVoices = 4;

    virtual ~AudioOutput() = default;

    /// Whether a sound that began now would be heard.
    virtual bool available() const = 0;

    /// Begins a sound and keeps it as long as it plays. None where nothing is heard: without a device, and
    /// for a sound without samples.
    virtual Voice start(std::shared_ptr<const Sound> sound) = 0;

    /// How loud all is that plays and that will play: the factor of the samples, 0 to 1; at first 1. It takes
    /// effect on sounds that are under way.
    virtual void gain(double value) = 0;

    /// Ends a sound before its time. Nothing happens for one that has ended.
    virtual void stop(Voice voice) = 0;

    /// Whether it is being heard. False from its end on, after `stop`, and as soon as the device is lost.
    virtual bool isPlaying(Voice voice) const = 0;

    /// Returns when the voice is not playing any more, at the latest a second after its length. No events run
    /// meanwhile: it sleeps on the platform's clock, piece by piece where samples have to be fed.
    virtual void waitForEnd(Voice voice) = 0;
};

} // namespace phial
