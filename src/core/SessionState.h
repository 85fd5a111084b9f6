#pragma once

#include "core/CoreRoot.h"
#include "core/CoreTheme.h"
#include "core/CurrentFolder.h"
#include "core/KeptRecords.h"
#include "core/Locale.h"
#include "core/Platform.h"

#include <memory>

namespace phial
{

/// The state of the process that is not an object's own: the platform, the core library's root, the language
/// and number format in force, the theme, the current folder, and what became of record files.
///
/// A program or a test opens it with a platform and ends it by letting it go; one is open at a time, and the
/// next starts afresh. Everything else reaches it through `current`.
class SessionState
{
public:
    /// Raises 5 when another one is open.
    explicit SessionState(Platform platform);
    ~SessionState();
    SessionState(const SessionState&) = delete;
    SessionState& operator=(const SessionState&) = delete;

    /// The open one; raises 91 when none is.
    static SessionState& current();
    static bool isOpen();

    /// Completed with what stands in for missing entries.
    const phial::Platform& platform() const { return platform_; }
    CoreRoot& root() { return root_; }
    phial::Locale& locale() { return locale_; }
    CoreTheme& theme() { return theme_; }
    phial::CurrentFolder& currentFolder() { return *currentFolder_; }
    KeptRecords& keptRecords() { return keptRecords_; }

private:
    phial::Platform platform_;
    phial::Locale locale_{platform_.locale};
    LocaleBinding localeBinding_{locale_};
    CoreTheme theme_;
    std::shared_ptr<phial::CurrentFolder> currentFolder_;
    KeptRecords keptRecords_;
    CoreRoot root_;
};

/// The open session's theme; raises 91 when no session is open.
CoreTheme& coreTheme();

} // namespace phial
