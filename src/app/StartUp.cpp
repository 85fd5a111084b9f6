#include "app/StartUp.h"

#include "app/ColourChoice.h"
#include "app/Session.h"
#include "app/Settings.h"
#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/cls_AppURL.h"
#include "app/screen/Avatars.h"
#include "app/screen/Desktop.h"
#include "app/screen/frm_Fade.h"
#include "core/CoreCmdParser.h"
#include "core/CoreDialogs.h"
#include "core/CoreParameters.h"
#include "core/CorePathText.h"
#include "core/CoreRegistry.h"
#include "core/CoreRoot.h"
#include "core/SessionState.h"
#include "server/cls_AppServer.h"
#include "visual/Form.h"
#include "visual/VisualHost.h"

#include <utility>

namespace phial
{

namespace
{

constexpr StringView LargeFonts =
    u"Sie haben in Ihrem System die Verwendung 'Großer Schriftarten' eingestellt. Dadurch werden einige "
    u"Grafiken in QV Phial möglicherweise nicht korrekt dargestellt!";
constexpr StringView LargeFontsAgain =
    u"Möchten Sie diesen Hinweis auch beim nächsten Start von QV Phial sehen?";
/// True means that the warning is switched off.
constexpr StringView LargeFontsOff = u"Config\\LargeFontWarn";

void setThemeColours()
{
    CoreTheme& theme = coreTheme();
    theme.SetColour(ThemeSlot::Accent, QBColor(2));
    theme.SetColour(ThemeSlot::Frame, u"#383838");
    theme.SetColour(ThemeSlot::FrameText, u"#ffffff");
    theme.SetColours(rememberedColours());
}

void addParameters(const CoreTokenList& tokens, CoreParameters& parameters)
{
    for (std::int32_t position = 1; position <= tokens.Count(); ++position) {
        const CoreToken& token = tokens.Item(position);
        parameters.Set(token.Name(), token.Values().Item(1));
    }
}

/// A search that found nothing is made once more, message included.
void resolveFolders(cls_App& root)
{
    root.URL()->INIT();
    if (root.URL()->ROOT().empty()) {
        root.URL()->INIT();
    }
}

/// Without a root this raises to the host.
void goToRoot(const String& root)
{
    CurrentFolder& folder = SessionState::current().currentFolder();
    folder.changeDrive(CorePathText::Drive(root));
    folder.change(root);
}

void warnAboutLargeFonts()
{
    CoreRoot& core = coreRoot();
    CoreRegistry& registry = core.CoreRegistry();
    const String off = settings::path(LargeFontsOff);
    if (IsSmallFonts() || registry.CoreRegistryRead().ReadBool(SettingsHive::CurrentUser, off, false)) {
        return;
    }
    core.CoreDialogs().Info(LargeFonts, u"Info");
    if (core.CoreDialogs().YesNo(LargeFontsAgain) == DialogAnswer::No) {
        registry.CoreRegistryWrite().WriteBool(SettingsHive::CurrentUser, off, true);
    }
}

/// Puts the cover behind the form that was active, which comes back in front of it.
void showCover()
{
    const std::shared_ptr<Form> active = visualHost().screen().ActiveForm();
    Session::current().sharedForm<frm_Fade>()->Show();
    if (active) {
        callMember(*active, u"SHOW");
    }
}

} // namespace

void startUp(cls_App& root, String commandLine, bool serverAllowed)
{
    root.INTERCOM(SessionState::current().platform().newInterCom());
    setThemeColours();

    const std::shared_ptr<cls_AppConfig> config = root.CONFIG();
    const CoreTokenList tokens = CoreCmdParser::Parse(commandLine);
    config->CMDLINE(std::move(commandLine));
    addParameters(tokens, *config->PARAMETERS());
    const bool contactServer = serverAllowed && !config->PARAMETERS()->Exists(u"NONETWORK");

    resolveFolders(root);
    goToRoot(root.URL()->ROOT());
    if (config->PARAMETERS()->Exists(u"NOSOUND")) {
        config->SOUND(false);
    }
    warnAboutLargeFonts();
    if (contactServer) {
        root.SERVER()->INIT();
    }
    AvatarImagesLoad();
    if (tokens.Exists(u"EMBEDDED")) {
        ignoringErrors(showCover);
    }
}

} // namespace phial
