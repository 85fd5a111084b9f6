#pragma once

#include "media/DialogSoundDesign.h"
#include "visual/DesignedForm.h"

#include <memory>

namespace phial
{

class MediaControl;

/// The praise window: a word on a green ground with a tick, or on a red one with a cross, in front of the
/// program, with or without a sound. Made anew for each time it is shown.
///
/// There is nothing to press. It closes when its sound has ended, or without one when the word has stood long
/// enough to be read; a sound that cannot be heard closes it at the first look. Escape and a press outside
/// close it before, and the sound goes on to its end.
class frm_DialogSound
{
public:
    frm_DialogSound();

    // Set before it is shown.

    /// Red instead of green.
    bool SoundWrong() const { return soundWrong_; }
    void SoundWrong(bool value) { soundWrong_ = value; }
    /// The word. Of a wave file's name the extension is not shown.
    const String& SoundText() const { return soundText_; }
    void SoundText(String value) { soundText_ = std::move(value); }
    /// Path of the sound; empty for none.
    const String& SoundFile() const { return soundFile_; }
    void SoundFile(String value) { soundFile_ = std::move(value); }

    /// Shows it modally; returns when it has closed.
    void Show();
    /// Puts what is not the word in the language in force.
    void TRANSLATE();

    Form& form() { return *form_; }

private:
    void load();
    void showGround();
    void showWord();
    void fitHeight(double wordHeight);
    void paintSign();
    void playSound();
    bool runEvents();
    void tick();
    bool isOver() const;

    bool soundWrong_ = false;
    String soundText_;
    String soundFile_;
    std::int32_t ticks_ = 0;
    std::shared_ptr<Timer> startup_;
    DesignedForm form_;
};

} // namespace phial
