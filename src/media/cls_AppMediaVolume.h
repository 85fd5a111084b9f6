#pragma once

#include "core/CoreMixer.h"

#include <memory>

namespace phial
{

/// The loudness of the program's sounds, in percent, set directly on the speakers' control of the mixer: a
/// normal level, and a temporary one that overrides it until it is cleared.
///
/// A level is a share of the control's maximum; its minimum plays no part in that and only bounds what is
/// written. Without a mixer, of which a box tells at the beginning, levels are kept and nothing is heard of
/// them.
class cls_AppMediaVolume
{
public:
    /// No temporary level is set.
    static constexpr double NoFade = -1;

    /// Takes the normal level from the mixer. Raises 11 when the mixer has no control for the speakers.
    cls_AppMediaVolume();
    ~cls_AppMediaVolume();
    cls_AppMediaVolume(const cls_AppMediaVolume&) = delete;
    cls_AppMediaVolume& operator=(const cls_AppMediaVolume&) = delete;

    /// The normal level, as it was last set: 0 to 100, held to that. Setting it applies the level in force,
    /// which is the temporary one if there is one. Raises 5 for what is no number.
    double WAVE() const { return wave_; }
    void WAVE(double value);

    /// The temporary level, 0 to 100, held to that; `NoFade` when none is set. Raises 5 for what is no
    /// number.
    double FADEOUT() const { return fadeOut_; }
    void FADEOUT(double value);

    /// Goes back to the normal level; writes nothing when no temporary one is set.
    void FADECLEAR();

    /// For inspection: the last value above the minimum that went to the speakers, and the result of the last
    /// call of the mixer.
    std::int32_t lastLevel() const { return lastLevel_; }
    std::int32_t lastResult() const { return lastResult_; }

private:
    class OpenMixer;

    MixerControl fetch(MixerLine line);
    void apply();
    void write(std::int32_t value);

    std::unique_ptr<OpenMixer> open_;
    CoreMixer& mixer_;
    MixerControl speakers_;
    MixerControl microphone_; ///< kept; no level of it is ever set
    double wave_ = 0;
    double fadeOut_ = NoFade;
    std::int32_t lastLevel_ = 0;
    std::int32_t lastResult_ = CoreMixer::Done;
};

} // namespace phial
