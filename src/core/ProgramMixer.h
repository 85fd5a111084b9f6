#pragma once

#include "core/AudioOutput.h"
#include "core/CoreMixer.h"

#include <memory>

namespace phial
{

/// The mixer of this program alone: its one control, that of the speakers, is the level of the program's own
/// sounds, 0 to 65,535 and loudest at first. What other programs play, and what the user has set on the
/// desktop, stays as it is.
class ProgramMixer final : public CoreMixer
{
public:
    explicit ProgramMixer(std::shared_ptr<AudioOutput> audio);

    std::int32_t Open() override { return Done; }
    void Close() override {}
    std::int32_t VolumeControl(MixerLine line, MixerControl& rControl) override;
    std::int32_t Value(const MixerControl& control, std::int32_t& rValue) override;
    /// A value outside of the bounds fails.
    std::int32_t SetValue(const MixerControl& control, std::int32_t value) override;

private:
    std::shared_ptr<AudioOutput> audio_;
    std::int32_t level_;
};

} // namespace phial
