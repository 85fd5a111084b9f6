#pragma once

#include "core/CoreFolders.h"

namespace phial::qt
{

/// The special folders. The environment has the first word, so that a school can place them:
///
/// | role | variables | else |
/// |---|---|---|
/// | ProgramFiles | PROGRAMFILES | /opt |
/// | UserDocuments | USERPROFILE, below it Documents | the desktop's documents |
/// | UserAppData | APPDATA | the desktop's place for the user's program data |
/// | CommonAppData | PROGRAMDATA, ALLUSERSPROFILE | /var/lib |
/// | Temp | TEMP, TMP | the desktop's temporary folder |
class QtFolders final : public CoreFolders
{
public:
    String ProgramFiles() const override;
    String UserDocuments() const override;
    String UserAppData() const override;
    String CommonAppData() const override;
    String Temp() const override;
};

} // namespace phial::qt
