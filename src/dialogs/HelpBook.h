#pragma once

#include "core/CoreStringList.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace phial
{

/// Where a reader of a help book stands.
struct HelpPlace {
    std::int32_t page = 1; ///< from 1
    std::int32_t pages = 0;
    bool hasMenu = false;      ///< the folder's first page is a menu, or without pages its map
    bool hasMenuAbove = false; ///< the reader came from another folder's menu

    bool isMenuInView() const { return hasMenu && page <= 1; }
    /// Whether there is a menu to go to: from a menu the one above it.
    bool hasMenuToGoTo() const { return isMenuInView() ? hasMenuAbove : hasMenu || hasMenuAbove; }
    bool mayGoBack() const { return page >= 2 || hasMenuToGoTo(); }
    /// Behind the last page lies the menu, but nothing lies behind a menu itself.
    bool mayGoNext() const { return page < pages || (!isMenuInView() && hasMenuToGoTo()); }
};

/// The sub-folder, with its backslash, that a colour ("#RRGGBB") of a menu's map leads to; empty for none.
/// Two of the colours have a twin, for maps that a compression has shifted a little.
StringView helpChapterOf(StringView colour);

/// The folder to read for one that is asked for in a book: in English its folder "en\", or the same place
/// below the book's "en\", whichever exists first; otherwise itself.
String helpFolderFor(const String& book, const String& asked, bool isEnglish,
                     const std::function<bool(const String&)>& exists);

/// A folder of pictures as a book: its pages, the one in view, and the way back through the menus. A folder
/// may have a menu, the file menu_choice.gif, whose colours tell where a tap leads; it is no page of its own.
class HelpBook
{
public:
    static constexpr StringView MapName = u"menu_choice.gif";

    /// Opens a book at its first folder and page; a missing backslash is added. The way back is forgotten.
    void openBook(const String& folder);
    /// Goes to a sub-folder of the present one, as a colour of its map would, if it exists.
    void openChapter(const String& chapter);
    /// Goes to another folder of the book, to its first page.
    void open(const String& folder);
    /// Reads the present folder again and stays on the page, as far as there is one.
    void reload();

    /// As it was asked for, and as it is read in the language in force; both end with a backslash.
    const String& Folder() const { return folder_; }
    const String& shownFolder() const { return shown_; }
    /// The pages, full paths in the order of CoreStringList.
    const CoreStringList& Files() const { return files_; }
    std::int32_t Page() const { return page_; }
    /// Held to what there is; 1 without pages.
    void Page(std::int32_t value);
    bool HasMenu() const { return hasMenu_; }
    /// Of the map; empty without.
    String mapFile() const;
    /// The folder with the menu that the reader came from last, or that is open; empty for none.
    String MenuFolder() const { return menus_.empty() ? String() : menus_.back(); }
    HelpPlace place() const;

    /// The file of a page; empty outside.
    String fileOf(std::int32_t page) const;
    /// What a page says, from the text file beside it; empty without one.
    String textOf(std::int32_t page) const;

    /// Goes to the menu that the place has to go to, if any: the folder's own, or the one above.
    void goToMenu();
    /// Follows a colour of the map; gives whether it leads anywhere.
    bool follow(StringView colour);
    /// Takes a page out, and shows the one before, where there is one.
    void drop(const String& file);

private:
    void read();

    String book_;
    String folder_;
    String shown_;
    CoreStringList files_;
    CoreStringList texts_; ///< the text files among them
    std::int32_t page_ = 1;
    bool hasMenu_ = false;
    std::vector<String> menus_; ///< folders with menus from the book's first on, as they were asked for
};

} // namespace phial
