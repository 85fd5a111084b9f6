#pragma once

#include "core/Platform.h"

#include <memory>

namespace phial
{

class CoreColors;
class CoreFiles;
class CoreLocale;
class CoreNumbers;
class CoreRegistry;
class CoreRuntimeOptions;
class CoreSoundFacet;
class CoreSystem;
class CoreText;
class CoreTiming;
class CoreUIFacet;
class CurrentFolder;
struct Locale;

/// The global object that hands out one facet a family. It belongs to the session; the facets live as long.
class CoreRoot
{
public:
    /// `platform` is complete (see `withDefaults`); `locale` outlives this object.
    CoreRoot(const Platform& platform, Locale& locale,
             const std::shared_ptr<const CurrentFolder>& currentFolder);
    ~CoreRoot();
    CoreRoot(const CoreRoot&) = delete;
    CoreRoot& operator=(const CoreRoot&) = delete;

    phial::CoreRuntimeOptions& CoreRuntimeOptions();
    phial::CoreSoundFacet& CoreSoundFacet();
    phial::CoreLocale& CoreLocale();
    phial::CoreTiming& CoreTiming();
    phial::CoreText& CoreText();
    phial::CoreUIFacet& CoreUIFacet();
    phial::CoreSystem& CoreSystem();
    phial::CoreNumbers& CoreNumbers();
    /// Raises 91 when the platform has none.
    phial::CoreDialogs& CoreDialogs();
    phial::CoreRegistry& CoreRegistry();
    phial::CoreDisplay& CoreDisplay();
    phial::CoreCursors& CoreCursors();
    phial::CoreFiles& CoreFiles();
    phial::CoreColors& CoreColors();

private:
    struct Facets;
    std::unique_ptr<Facets> facets_;
};

/// The open session's root; raises 91 when no session is open.
CoreRoot& coreRoot();

} // namespace phial
