#include "app/cls_AppConfig.h"

#include "app/Settings.h"
#include "core/CoreRegistry.h"
#include "core/CoreRoot.h"
#include "core/CoreRuntimeOptions.h"

namespace phial
{

namespace
{

constexpr StringView TouchModeValue = u"Config\\TouchMode";
constexpr StringView EffectsValue = u"Config\\Effects";
constexpr StringView SoundValue = u"Config\\Sound";

bool readSetting(StringView name, bool defaultValue)
{
    return coreRoot().CoreRegistry().CoreRegistryRead().ReadBool(SettingsHive::CurrentUser,
                                                                 settings::path(name), defaultValue);
}

void writeSetting(StringView name, bool value)
{
    coreRoot().CoreRegistry().CoreRegistryWrite().WriteBool(SettingsHive::CurrentUser, settings::path(name),
                                                            value);
}

} // namespace

cls_AppConfig::cls_AppConfig()
{
    TOUCHMODE(readSetting(TouchModeValue, false));
    EFFECTS(readSetting(EffectsValue, true));
    SOUND(readSetting(SoundValue, true));
}

const std::shared_ptr<CoreParameters>& cls_AppConfig::PARAMETERS()
{
    if (!parameters_) {
        parameters_ = std::make_shared<CoreParameters>();
    }
    return parameters_;
}

void cls_AppConfig::TOUCHMODE(bool value)
{
    touchMode_ = value;
    coreRoot().CoreRuntimeOptions().SetOption(u"TOUCHMODE", value);
}

void cls_AppConfig::SAVE() const
{
    writeSetting(TouchModeValue, touchMode_);
    writeSetting(SoundValue, sound_);
    writeSetting(EffectsValue, effects_);
}

} // namespace phial
