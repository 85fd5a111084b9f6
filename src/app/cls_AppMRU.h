#pragma once

#include "core/CoreStringList.h"
#include "core/String.h"

#include <cstdint>
#include <memory>

namespace phial
{

class Form;
class Menu;

/// The files that the program opened last, `QVAPP().MRU()`: kept in the user's settings and shown in the File
/// menu of one of its forms.
///
/// The form has a separator `mnu_FileMRUSep` and a menu array `mnu_FileMRU` whose member 0 stays hidden. A
/// member's Tag is the full path of its file. The program's identifier (CONFIG.IDENT) names the list in the
/// settings, so it is set before this object is first read.
class cls_AppMRU
{
public:
    /// Reads the list.
    cls_AppMRU();

    /// The list, newest first: paths as seen from BASEPATH, file name included. Never null.
    const std::shared_ptr<CoreStringList>& ENTRIES() const { return entries_; }
    /// Null raises 91.
    void ENTRIES(std::shared_ptr<CoreStringList> value);

    /// The folder from which the entries are seen. Moving it makes all entries point to the new place.
    const String& BASEPATH() const { return basePath_; }
    void BASEPATH(String value) { basePath_ = std::move(value); }

    /// The form whose menu shows the list; null for none. Setting it does not show the list, UPDATE does.
    const std::shared_ptr<Form>& DEVICE() const { return device_; }
    void DEVICE(std::shared_ptr<Form> value) { device_ = std::move(value); }

    /// The length that the list is meant to have, default 4. It is only kept: the list grows beyond it and
    /// the menu shows every entry.
    std::int32_t MAX() const { return max_; }
    void MAX(std::int32_t value) { max_ = value; }

    /// Puts a file on top, once, and shows the list. It does not save.
    void ADD(StringView pFile);
    /// Reads the list from the settings and shows it.
    void LOAD();
    /// Writes the list to the settings.
    void SAVE() const;
    /// Makes the menu show the list. Errors, such as those of a form without these menu entries, are ignored.
    void UPDATE();
    /// Removes the entries whose files have gone. It neither saves nor shows the list.
    void CLEAN();

private:
    static String settingsPath();
    String fullPath(StringView entry) const;
    void showEntry(Menu& holder, std::int32_t position) const;

    std::shared_ptr<CoreStringList> entries_ = std::make_shared<CoreStringList>();
    String basePath_;
    std::shared_ptr<Form> device_;
    std::int32_t max_ = 4;
};

} // namespace phial
