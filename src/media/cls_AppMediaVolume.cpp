#include "media/cls_AppMediaVolume.h"

#include "app/cls_Language.h"
#include "app/screen/DebugPos.h"
#include "app/sys_Global.h"
#include "core/Arithmetic.h"
#include "core/CoreDialogs.h"
#include "core/CoreRoot.h"
#include "core/RuntimeError.h"
#include "core/SessionState.h"

#include <algorithm>
#include <cmath>

namespace phial
{

namespace
{

constexpr double LoudestPercent = 100;

double heldToPercent(double value)
{
    if (std::isnan(value)) {
        throw RuntimeError(ErrorNumber::InvalidArgument);
    }
    return std::clamp(value, 0.0, LoudestPercent);
}

} // namespace

/// Closes the mixer at its end, also when the object around it could not be made.
class cls_AppMediaVolume::OpenMixer
{
public:
    explicit OpenMixer(std::shared_ptr<CoreMixer> mixer) : mixer_(std::move(mixer)) {}
    ~OpenMixer()
    {
        if (isOpen_) {
            mixer_->Close();
        }
    }
    OpenMixer(const OpenMixer&) = delete;
    OpenMixer& operator=(const OpenMixer&) = delete;

    std::int32_t open()
    {
        const std::int32_t result = mixer_->Open();
        isOpen_ = result == CoreMixer::Done;
        return result;
    }
    bool isOpen() const { return isOpen_; }
    CoreMixer& mixer() const { return *mixer_; }

private:
    std::shared_ptr<CoreMixer> mixer_;
    bool isOpen_ = false;
};

cls_AppMediaVolume::cls_AppMediaVolume()
    : open_(std::make_unique<OpenMixer>(SessionState::current().platform().mixer)), mixer_(open_->mixer())
{
    lastResult_ = open_->open();
    if (!open_->isOpen()) {
        coreRoot().CoreDialogs().Error(
            LNG()->TRANSLATE(u"Es wurde kein Mixer gefunden!", u"No mixer found!"));
        return;
    }
    speakers_ = fetch(MixerLine::Speakers);
    microphone_ = fetch(MixerLine::Microphone);
    std::int32_t value = 0;
    lastResult_ = mixer_.Value(speakers_, value);
    wave_ = checkedDivide(value * LoudestPercent, speakers_.maximum);
}

cls_AppMediaVolume::~cls_AppMediaVolume() = default;

MixerControl cls_AppMediaVolume::fetch(MixerLine line)
{
    MixerControl control;
    lastResult_ = mixer_.VolumeControl(line, control);
    return control;
}

void cls_AppMediaVolume::WAVE(double value)
{
    DebugPos(u"WAVE-1");
    const double held = heldToPercent(value);
    DebugPos(u"WAVE-2");
    wave_ = held;
    DebugPos(u"WAVE-3");
    apply();
    DebugPos(u"WAVE-4");
}

void cls_AppMediaVolume::FADEOUT(double value)
{
    fadeOut_ = heldToPercent(value);
    apply();
}

void cls_AppMediaVolume::FADECLEAR()
{
    if (fadeOut_ != NoFade) {
        fadeOut_ = NoFade;
        apply();
    }
}

/// Errors are ignored; a value that cannot be worked out is not written.
void cls_AppMediaVolume::apply()
{
    DebugPos(u"SETWAVE-1");
    const double level = fadeOut_ == NoFade ? wave_ : fadeOut_;
    DebugPos(u"SETWAVE-2");
    std::int32_t value = 0;
    const bool isKnown = ignoringErrors([&] { value = toWhole(level * speakers_.maximum / LoudestPercent); });
    DebugPos(u"SETWAVE-3");
    if (!isKnown) {
        return;
    }
    DebugPos(u"SETWAVE-4");
    ignoringErrors([&] { write(value); });
    DebugPos(u"SETWAVE-6");
}

void cls_AppMediaVolume::write(std::int32_t value)
{
    const std::int32_t held = std::max(speakers_.minimum, std::min(value, speakers_.maximum));
    if (held > speakers_.minimum) {
        lastLevel_ = held;
    }
    DebugPos(u"SETWAVE-5");
    lastResult_ = mixer_.SetValue(speakers_, held);
}

} // namespace phial
