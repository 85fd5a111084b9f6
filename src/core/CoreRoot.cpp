#include "core/CoreRoot.h"

#include "core/CoreColors.h"
#include "core/CoreCursors.h"
#include "core/CoreDialogs.h"
#include "core/CoreDisplay.h"
#include "core/CoreFiles.h"
#include "core/CoreNumbers.h"
#include "core/CoreRegistry.h"
#include "core/CoreRuntimeOptions.h"
#include "core/CoreSoundFacet.h"
#include "core/CoreSystem.h"
#include "core/CoreText.h"
#include "core/CoreTiming.h"
#include "core/CoreUIFacet.h"
#include "core/CurrentFolder.h"
#include "core/Locale.h"
#include "core/RuntimeError.h"
#include "core/SessionState.h"

namespace phial
{

struct CoreRoot::Facets {
    Facets(const Platform& platform, Locale& sessionLocale,
           const std::shared_ptr<const CurrentFolder>& currentFolder)
        : locale(sessionLocale), timing(platform.clock, platform.pump), ui(platform.textBoxes),
          system(platform.folders, platform.machine, platform.windows, platform.shell, platform.pump),
          registry(platform.settings), files(platform.files, currentFolder),
          sound(platform.audio, platform.files, platform.clock, currentFolder), dialogs(platform.dialogs),
          display(platform.display), cursors(platform.cursors)
    {
    }

    phial::CoreRuntimeOptions runtimeOptions;
    phial::CoreLocale locale;
    phial::CoreTiming timing;
    phial::CoreText text;
    phial::CoreUIFacet ui;
    phial::CoreSystem system;
    phial::CoreNumbers numbers;
    phial::CoreRegistry registry;
    phial::CoreFiles files;
    phial::CoreSoundFacet sound;
    phial::CoreColors colors;
    std::shared_ptr<phial::CoreDialogs> dialogs;
    std::shared_ptr<phial::CoreDisplay> display;
    std::shared_ptr<phial::CoreCursors> cursors;
};

CoreRoot::CoreRoot(const Platform& platform, Locale& locale,
                   const std::shared_ptr<const CurrentFolder>& currentFolder)
    : facets_(std::make_unique<Facets>(platform, locale, currentFolder))
{
}

CoreRoot::~CoreRoot() = default;

phial::CoreRuntimeOptions& CoreRoot::CoreRuntimeOptions()
{
    return facets_->runtimeOptions;
}

phial::CoreSoundFacet& CoreRoot::CoreSoundFacet()
{
    return facets_->sound;
}

phial::CoreLocale& CoreRoot::CoreLocale()
{
    return facets_->locale;
}

phial::CoreTiming& CoreRoot::CoreTiming()
{
    return facets_->timing;
}

phial::CoreText& CoreRoot::CoreText()
{
    return facets_->text;
}

phial::CoreUIFacet& CoreRoot::CoreUIFacet()
{
    return facets_->ui;
}

phial::CoreSystem& CoreRoot::CoreSystem()
{
    return facets_->system;
}

phial::CoreNumbers& CoreRoot::CoreNumbers()
{
    return facets_->numbers;
}

phial::CoreDialogs& CoreRoot::CoreDialogs()
{
    if (!facets_->dialogs) {
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    }
    return *facets_->dialogs;
}

phial::CoreRegistry& CoreRoot::CoreRegistry()
{
    return facets_->registry;
}

phial::CoreDisplay& CoreRoot::CoreDisplay()
{
    return *facets_->display;
}

phial::CoreCursors& CoreRoot::CoreCursors()
{
    return *facets_->cursors;
}

phial::CoreFiles& CoreRoot::CoreFiles()
{
    return facets_->files;
}

phial::CoreColors& CoreRoot::CoreColors()
{
    return facets_->colors;
}

CoreRoot& coreRoot()
{
    return SessionState::current().root();
}

} // namespace phial
