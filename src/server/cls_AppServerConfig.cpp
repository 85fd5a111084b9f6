#include "server/cls_AppServerConfig.h"

#include "app/Settings.h"
#include "core/Arithmetic.h"
#include "core/CoreRegistry.h"
#include "core/CoreRoot.h"
#include "core/NumberText.h"
#include "core/RuntimeError.h"

#include <cstddef>
#include <vector>

namespace phial
{

namespace
{

constexpr StringView SettingsValue = u"Config\\ServerSettings";
constexpr StringView AddressValue = u"Config\\ServerIP";
constexpr StringView TimeoutValue = u"Config\\TimeOut";

constexpr StringView DefaultAddress = u"127.0.0.1";
constexpr std::int32_t DefaultPort = 10049;
constexpr std::int32_t DefaultUdpPort = 10050;
constexpr std::int32_t DefaultClientPort = 10051;
constexpr std::int32_t DefaultTimeout = 30;

constexpr StringView SettingsHead = u"QV_PHIAL_MASTER";
constexpr StringView PackVersion = u"1.0";

/// The fields of a packed text, which raise 9 where there are none.
class PackFields
{
public:
    explicit PackFields(StringView text) : fields_(split(text, u"|")) {}

    bool isEmpty() const { return fields_.empty(); }

    StringView text(std::size_t index) const
    {
        if (index >= fields_.size()) {
            throw RuntimeError(ErrorNumber::IndexOutOfBounds);
        }
        return fields_[index];
    }

    /// 0 for a field that does not begin with a number.
    std::int32_t number(std::size_t index) const { return toWhole(numberAtStart(text(index)).value); }

private:
    std::vector<StringView> fields_;
};

/// A text that was cut on its way loads nothing.
void loadSettings(CoreParameters& settings, StringView text)
{
    ignoringErrors([&] { settings.Unpack(text); });
}

} // namespace

cls_AppServerConfig::cls_AppServerConfig()
{
    DEFAULTS();
    LOAD();
}

const std::shared_ptr<CoreParameters>& cls_AppServerConfig::SETTINGS()
{
    if (!settings_) {
        settings_ = std::make_shared<CoreParameters>();
    }
    return settings_;
}

void cls_AppServerConfig::DEFAULTS()
{
    serverIp_ = DefaultAddress;
    serverUdp_ = DefaultUdpPort;
    serverPort_ = DefaultPort;
    clientPort_ = DefaultClientPort;
    timeout_ = DefaultTimeout;
    autoEvents_ = true;
}

void cls_AppServerConfig::LOAD()
{
    const CoreRegistryRead& registry = coreRoot().CoreRegistry().CoreRegistryRead();
    constexpr auto Hive = SettingsHive::CurrentUser;
    loadSettings(*SETTINGS(),
                 registry.ReadString(Hive, settings::path(SettingsValue), {}, settings::TextLimit));
    serverIp_ = registry.ReadString(Hive, settings::path(AddressValue), serverIp_, settings::TextLimit);
    timeout_ = registry.ReadLong(Hive, settings::path(TimeoutValue), timeout_);
    // The ports are not stored: one that a master has told lasts until here.
    serverPort_ = DefaultPort;
    serverUdp_ = DefaultUdpPort;
    clientPort_ = DefaultClientPort;
}

void cls_AppServerConfig::SAVE()
{
    CoreRegistryWrite& registry = coreRoot().CoreRegistry().CoreRegistryWrite();
    constexpr auto Hive = SettingsHive::CurrentUser;
    registry.WriteString(Hive, settings::path(SettingsValue), SETTINGS()->Pack());
    registry.WriteString(Hive, settings::path(AddressValue), serverIp_);
    registry.WriteLong(Hive, settings::path(TimeoutValue), timeout_);
}

String cls_AppServerConfig::PACK()
{
    String text(SettingsHead);
    text.append(u"|").append(PackVersion).append(u"|").append(serverIp_);
    for (const std::int32_t number : {serverPort_, serverUdp_, clientPort_, timeout_}) {
        text.append(u"|").append(plainText(number));
    }
    return text.append(u"|").append(SETTINGS()->Pack());
}

void cls_AppServerConfig::PACK(StringView value)
{
    const PackFields fields(value);
    if (fields.isEmpty() || fields.text(0) != SettingsHead || fields.text(1) != PackVersion) {
        return;
    }
    serverIp_ = fields.text(2);
    serverPort_ = fields.number(3);
    serverUdp_ = fields.number(4);
    clientPort_ = fields.number(5);
    timeout_ = fields.number(6);
    loadSettings(*SETTINGS(), fields.text(7));
}

} // namespace phial
