#include "media/MediaControl.h"

#include "core/Arithmetic.h"
#include "core/CoreRoot.h"
#include "core/CoreSoundFacet.h"
#include "core/CoreTiming.h"
#include "core/Members.h"
#include "core/RuntimeError.h"
#include "core/SessionState.h"

#include <algorithm>
#include <utility>

namespace phial
{

namespace
{

constexpr double MillisecondsPerSecond = 1000;

CoreSoundFacet& player()
{
    return coreRoot().CoreSoundFacet();
}

/// What is left of a sound from a position on.
std::shared_ptr<const Sound> restOf(const std::shared_ptr<const Sound>& sound, std::int32_t position)
{
    if (position == 0) {
        return sound;
    }
    const auto frame = static_cast<std::size_t>(position / MillisecondsPerSecond * sound->sampleRate);
    const std::size_t from =
        std::min(sound->samples.size(), frame * static_cast<std::size_t>(sound->channels));
    return std::make_shared<const Sound>(
        Sound{sound->sampleRate,
              sound->channels,
              {sound->samples.begin() + static_cast<std::ptrdiff_t>(from), sound->samples.end()}});
}

} // namespace

MediaControl::~MediaControl()
{
    if (SessionState::isOpen()) {
        stop();
    }
}

MemberTable MediaControl::members() const
{
    using namespace members;
    static constexpr Member Table[] = {
        property<MediaControl, String, &MediaControl::NAME, &MediaControl::NAME>(u"NAME"),
        property<MediaControl, String, &MediaControl::DeviceType, &MediaControl::DeviceType>(u"DeviceType"),
        property<MediaControl, String, &MediaControl::FileName, &MediaControl::FileName>(u"FileName"),
        property<MediaControl, String, &MediaControl::Command, &MediaControl::Command>(u"Command"),
        readOnly<MediaControl, std::int32_t, &MediaControl::Length>(u"Length"),
        readOnly<MediaControl, std::int32_t, &MediaControl::Position>(u"Position"),
    };
    return Table;
}

void MediaControl::Command(String value)
{
    struct Entry {
        StringView name;
        void (MediaControl::*run)();
    };
    constexpr Entry Commands[] = {{u"open", &MediaControl::open},
                                  {u"close", &MediaControl::close},
                                  {u"play", &MediaControl::play},
                                  {u"stop", &MediaControl::stop},
                                  {u"prev", &MediaControl::toBeginning}};
    const auto* const found = std::ranges::find_if(
        Commands, [&](const Entry& entry) { return equalsIgnoringCase(entry.name, value); });
    if (found == std::end(Commands)) {
        throw RuntimeError(ErrorNumber::InvalidPropertyValue);
    }
    command_ = std::move(value);
    (this->*found->run)();
}

std::int32_t MediaControl::Length() const
{
    return sound_ ? toWhole(sound_->seconds() * MillisecondsPerSecond) : 0;
}

std::int32_t MediaControl::Position() const
{
    if (!isPlaying_) {
        return position_;
    }
    if (!player().isPlaying(voice_)) {
        return Length();
    }
    const double played = (coreRoot().CoreTiming().Now() - begin_) * MillisecondsPerSecond;
    return std::min(Length(), position_ + toWhole(played));
}

void MediaControl::open()
{
    close();
    if (deviceType_.empty() || equalsIgnoringCase(deviceType_, u"WaveAudio")) {
        sound_ = player().load(fileName_);
    }
}

void MediaControl::close()
{
    stop();
    sound_.reset();
    position_ = 0;
}

void MediaControl::play()
{
    if (!sound_) {
        return;
    }
    stop();
    begin_ = coreRoot().CoreTiming().Now();
    voice_ = player().start(restOf(sound_, position_));
    isPlaying_ = true;
}

void MediaControl::stop()
{
    position_ = Position();
    player().stop(voice_);
    isPlaying_ = false;
    voice_ = AudioOutput::Voice::None;
}

void MediaControl::toBeginning()
{
    stop();
    position_ = 0;
}

} // namespace phial
