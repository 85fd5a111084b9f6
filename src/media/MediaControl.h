#pragma once

#include "core/AudioOutput.h"
#include "core/Object.h"

#include <cstdint>
#include <memory>

namespace phial
{

/// The media control `mci` (`MCI.MMControl`): one wave file at a time that is opened, played, stopped and set
/// back by commands. All fails in silence: without an open file length and position are 0, and a sound that
/// cannot be heard, or is lost on the way, stands at its end.
class MediaControl final : public Object
{
public:
    explicit MediaControl(String name = {}) : name_(std::move(name)) {}
    ~MediaControl() override;
    MediaControl(const MediaControl&) = delete;
    MediaControl& operator=(const MediaControl&) = delete;

    String NAME() const { return name_; }
    void NAME(String value) { name_ = std::move(value); }

    /// "WaveAudio" or empty; nothing can be opened with another one.
    String DeviceType() const { return deviceType_; }
    void DeviceType(String value) { deviceType_ = std::move(value); }

    /// The file that "open" opens. A file that is open stays so.
    String FileName() const { return fileName_; }
    void FileName(String value) { fileName_ = std::move(value); }

    /// Runs a command, whatever its case, and keeps it: "open", "close", "play" (from the position on),
    /// "stop", "prev" (back to the beginning). Raises 380 for another one.
    String Command() const { return command_; }
    void Command(String value);

    /// Milliseconds.
    std::int32_t Length() const;
    /// Whether it was told to play and not to stop; the sound may have ended since.
    bool isPlaying() const { return isPlaying_; }
    /// Milliseconds from the beginning; as the clock says while it plays.
    std::int32_t Position() const;

    StringView typeName() const override { return u"MMControl"; }
    MemberTable members() const override;

private:
    void open();
    void close();
    void play();
    void stop();
    void toBeginning();

    String name_;
    String deviceType_;
    String fileName_;
    String command_;
    std::shared_ptr<const Sound> sound_; ///< null: nothing is open
    std::int32_t position_ = 0;          ///< where it stands or began to play
    bool isPlaying_ = false;
    AudioOutput::Voice voice_ = AudioOutput::Voice::None;
    double begin_ = 0; ///< by the clock
};

} // namespace phial
