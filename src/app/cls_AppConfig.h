#pragma once

#include "core/CoreParameters.h"
#include "core/String.h"

#include <cstdint>
#include <memory>

namespace phial
{

/// Which sounds are allowed in this run. It is never saved.
enum enm_SoundMode : std::int32_t {
    ID_SoundMode_User = 0,       ///< what the user has chosen in SOUND
    ID_SoundMode_OnlyReward = 1, ///< praise and reward only
    ID_SoundMode_AllOff = 2,
    ID_SoundMode_AllOn = 3,
};

/// What the program says about itself, the command line of this run, and the three settings of the user that
/// outlive the run.
///
/// The settings are read once, when the object is made; writing a property changes this run only, SAVE makes
/// it last. SOUND and SOUNDMODE are not connected here: the player of sounds looks at both.
class cls_AppConfig
{
public:
    /// Reads the three settings; a value that is missing or unreadable has its default. TOUCHMODE is passed
    /// on as by its writer.
    cls_AppConfig();

    /// The command line as it was given to INIT, unparsed.
    const String& CMDLINE() const { return commandLine_; }
    void CMDLINE(String value) { commandLine_ = std::move(value); }

    /// The command line, parsed: one entry a token. Created on first read.
    const std::shared_ptr<CoreParameters>& PARAMETERS();
    void PARAMETERS(std::shared_ptr<CoreParameters> value) { parameters_ = std::move(value); }

    /// The program's identifier: names its folders and its list of recent files. The host sets it before
    /// INIT. Default: empty.
    const String& IDENT() const { return ident_; }
    void IDENT(String value) { ident_ = std::move(value); }

    /// The program's name as users see it. Default: "QV Phial".
    const String& NAME() const { return name_; }
    void NAME(String value) { name_ = std::move(value); }

    /// The program's version as users see it. Default: "5.0".
    const String& VERSION() const { return version_; }
    void VERSION(String value) { version_ = std::move(value); }

    /// One line for the window that tells about the program.
    const String& COPYRIGHT() const { return copyright_; }
    void COPYRIGHT(String value) { copyright_ = std::move(value); }

    /// Web addresses of who makes the program and of the product, to which the same window leads. It shows no
    /// link for one that is empty. Default: empty.
    const String& makerAddress() const { return makerAddress_; }
    void makerAddress(String value) { makerAddress_ = std::move(value); }
    const String& productAddress() const { return productAddress_; }
    void productAddress(String value) { productAddress_ = std::move(value); }

    /// Default: ID_SoundMode_User.
    enm_SoundMode SOUNDMODE() const { return soundMode_; }
    void SOUNDMODE(enm_SoundMode value) { soundMode_ = value; }

    /// Whether sound is on. Saved; default: true.
    bool SOUND() const { return sound_; }
    void SOUND(bool value) { sound_ = value; }

    /// Whether the program is operated by touch. Saved; default: false. Every assignment, also of the value
    /// it has, is passed on to the core's option "TOUCHMODE".
    bool TOUCHMODE() const { return touchMode_; }
    void TOUCHMODE(bool value);

    /// Whether visual effects are shown. Saved; default: true.
    bool EFFECTS() const { return effects_; }
    void EFFECTS(bool value) { effects_ = value; }

    /// Writes TOUCHMODE, SOUND and EFFECTS to the user's settings, and nothing else.
    void SAVE() const;

private:
    String commandLine_;
    std::shared_ptr<CoreParameters> parameters_;
    String ident_;
    String name_ = u"QV Phial";
    String version_ = u"5.0";
    String copyright_ = u"Copyright (c) the QV Phial contributors";
    String makerAddress_;
    String productAddress_;
    enm_SoundMode soundMode_ = ID_SoundMode_User;
    bool sound_ = true;
    bool touchMode_ = false;
    bool effects_ = true;
};

} // namespace phial
