#include "dialogs/HelpBook.h"

#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "core/CoreFiles.h"
#include "core/CorePathText.h"
#include "core/CoreRoot.h"
#include "core/FolderListing.h"
#include "core/RuntimeError.h"

#include <algorithm>

namespace phial
{

namespace
{

constexpr StringView EnglishFolder = u"en\\";
constexpr StringView PagePatterns[] = {u"*.gif", u"*.jpg", u"*.bmp"};
constexpr StringView TextPattern = u"*.txt";
constexpr std::uintmax_t LongestPageText = 65536; // bytes

struct ChapterColour {
    StringView colour;
    StringView folder;
};
constexpr ChapterColour ChapterColours[] = {
    {u"#0000FF", u"K1\\"}, {u"#00FFFF", u"K2\\"}, {u"#00FFFD", u"K2\\"}, {u"#00FF00", u"K3\\"},
    {u"#02FF00", u"K3\\"}, {u"#FFFF00", u"K4\\"}, {u"#FF0000", u"K5\\"}, {u"#FF00FF", u"K6\\"},
};

bool isPage(StringView path)
{
    return std::ranges::any_of(PagePatterns,
                               [path](StringView pattern) { return matchesPattern(path, pattern); });
}

bool startsIgnoringCase(const String& text, const String& beginning)
{
    return equalsIgnoringCase(StringView(text).substr(0, beginning.size()), beginning);
}

String inLanguage(const String& book, const String& asked)
{
    const CoreFiles& files = coreRoot().CoreFiles();
    return helpFolderFor(book, asked, LNG()->EFFECTIVE() == ID_Language_English,
                         [&files](const String& folder) { return files.FolderExists(folder); });
}

} // namespace

StringView helpChapterOf(StringView colour)
{
    const auto* found = std::ranges::find(ChapterColours, colour, &ChapterColour::colour);
    return found == std::end(ChapterColours) ? StringView() : found->folder;
}

String helpFolderFor(const String& book, const String& asked, bool isEnglish,
                     const std::function<bool(const String&)>& exists)
{
    if (isEnglish) {
        if (String own = asked + String(EnglishFolder); exists(own)) {
            return own;
        }
        const String english = book + String(EnglishFolder);
        const bool isBelow = asked.size() > book.size() && startsIgnoringCase(asked, book);
        if (isBelow && !startsIgnoringCase(asked, english)) {
            if (String twin = english + asked.substr(book.size()); exists(twin)) {
                return twin;
            }
        }
    }
    return asked;
}

void HelpBook::openBook(const String& folder)
{
    book_ = CorePathText::WithBackslash(folder);
    menus_.clear();
    open(book_);
}

void HelpBook::openChapter(const String& chapter)
{
    const String folder = CorePathText::WithBackslash(folder_ + chapter);
    if (coreRoot().CoreFiles().FolderExists(folder)) {
        open(folder);
    }
}

void HelpBook::open(const String& folder)
{
    folder_ = CorePathText::WithBackslash(folder);
    page_ = 1;
    read();
    if (hasMenu_) {
        const auto known = std::ranges::find(menus_, folder_);
        menus_.erase(known, menus_.end());
        menus_.push_back(folder_);
    }
}

void HelpBook::reload()
{
    read();
    Page(page_);
}

void HelpBook::read()
{
    shown_ = inLanguage(book_, folder_);
    files_.Clear();
    texts_.Clear();
    for (const String& path : coreRoot().CoreFiles().List(shown_, false, true, true)) { // in their order
        if (isPage(path)) {
            files_.Add(path);
        } else if (matchesPattern(path, TextPattern)) {
            texts_.Add(path);
        }
    }
    const String map = shown_ + String(MapName);
    hasMenu_ = files_.Exists(map);
    if (hasMenu_) {
        files_.Remove(map);
    }
}

void HelpBook::Page(std::int32_t value)
{
    page_ = std::max(1, std::min(value, files_.Count()));
}

String HelpBook::mapFile() const
{
    return hasMenu_ ? shown_ + String(MapName) : String();
}

HelpPlace HelpBook::place() const
{
    const bool isOwn = hasMenu_ && !menus_.empty() && menus_.back() == folder_;
    return {.page = page_,
            .pages = files_.Count(),
            .hasMenu = hasMenu_,
            .hasMenuAbove = menus_.size() > (isOwn ? 1U : 0U)};
}

String HelpBook::fileOf(std::int32_t page) const
{
    return page >= 1 && page <= files_.Count() ? files_.Item(page) : String();
}

String HelpBook::textOf(std::int32_t page) const
{
    const String file = fileOf(page);
    if (file.empty()) {
        return {};
    }
    const CoreFiles& files = coreRoot().CoreFiles();
    const String beside = CorePathText::WithoutExtension(file) + u".txt";
    if (!texts_.Exists(beside)) {
        return {};
    }
    String text;
    ignoringErrors([&] {
        const FileStamp stamp = files.Changed(beside);
        if (stamp.exists && stamp.size <= LongestPageText) {
            text = files.ReadText(beside);
        }
    });
    const auto last = text.find_last_not_of(StringView(u" \t\r\n"));
    return last == String::npos ? String() : text.substr(0, last + 1);
}

void HelpBook::goToMenu()
{
    const HelpPlace at = place();
    if (!at.hasMenuToGoTo()) {
        return;
    }
    if (at.isMenuInView()) {
        menus_.pop_back();
    }
    open(String(menus_.back()));
}

bool HelpBook::follow(StringView colour)
{
    const StringView chapter = helpChapterOf(colour);
    if (chapter.empty()) {
        return false;
    }
    open(folder_ + String(chapter));
    return true;
}

void HelpBook::drop(const String& file)
{
    files_.Remove(file);
    if (page_ > 1) {
        --page_;
    }
}

} // namespace phial
