#include "core/FolderListing.h"

#include <algorithm>
#include <optional>

namespace phial
{

namespace
{

namespace fs = std::filesystem;

/// An entry's name as the system writes it; none when it cannot be written so.
std::optional<String> systemName(const fs::path& entry)
{
    const std::string native = entry.filename().string();
    String name = fromUtf8(native);
    const bool reversible = toUtf8(name) == native && name.find(u'\\') == String::npos;
    return reversible ? std::optional(std::move(name)) : std::nullopt;
}

template <typename Visitor>
void forEachEntry(const fs::path& folder, const Visitor& visit)
{
    std::error_code error;
    for (fs::directory_iterator entry(folder, error); !error && entry != fs::directory_iterator();
         entry.increment(error)) {
        if (const auto name = systemName(entry->path())) {
            visit(*entry, *name);
        }
    }
}

CoreStringList sorted(std::vector<String> texts)
{
    std::sort(texts.begin(), texts.end(), [](const String& left, const String& right) {
        const int order = compareIgnoringCase(left, right);
        return order != 0 ? order < 0 : left < right;
    });
    CoreStringList list;
    for (String& text : texts) {
        list.Add(std::move(text));
    }
    return list;
}

} // namespace

bool matchesPattern(StringView name, StringView pattern)
{
    if (pattern.empty() || pattern == u"*.*") {
        return true;
    }
    std::size_t at = 0;
    std::size_t wanted = 0;
    std::size_t star = StringView::npos; // the last star seen, and where the text behind it was tried last
    std::size_t retry = 0;
    while (at < name.size()) {
        if (wanted < pattern.size() && pattern[wanted] == u'*') {
            star = wanted++;
            retry = at;
        } else if (wanted < pattern.size() &&
                   (pattern[wanted] == u'?' || upperCase(pattern[wanted]) == upperCase(name[at]))) {
            ++wanted;
            ++at;
        } else if (star != StringView::npos) {
            wanted = star + 1;
            at = ++retry;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of(u'*', wanted) == StringView::npos;
}

FolderListing::FolderListing(fs::path folder, StringView pattern)
    : folder_(std::move(folder)), pattern_(pattern)
{
}

CoreStringList FolderListing::subfolders() const
{
    std::vector<String> names;
    forEachEntry(folder_, [&](const fs::directory_entry& entry, const String& name) {
        std::error_code error;
        if (entry.is_directory(error) && matchesPattern(name, pattern_)) {
            names.push_back(name + u'\\');
        }
    });
    return sorted(std::move(names));
}

CoreStringList FolderListing::names(Depth depth) const
{
    std::vector<String> names;
    for (const File& file : files(depth)) {
        names.push_back(file.name);
    }
    return sorted(std::move(names));
}

CoreStringList FolderListing::paths(Depth depth, StringView prefix) const
{
    std::vector<String> paths;
    for (const File& file : files(depth)) {
        paths.push_back(String(prefix) + file.folder + file.name);
    }
    return sorted(std::move(paths));
}

std::vector<FolderListing::File> FolderListing::files(Depth depth) const
{
    struct Folder {
        fs::path native;
        String relative;
    };
    std::vector<File> found;
    std::vector<Folder> pending{{folder_, String()}};
    while (!pending.empty()) {
        const Folder folder = std::move(pending.back());
        pending.pop_back();
        forEachEntry(folder.native, [&](const fs::directory_entry& entry, const String& name) {
            std::error_code error;
            if (entry.is_directory(error)) {
                // A link to a folder could lead back to a folder above it.
                if (depth == Depth::Subfolders && !entry.is_symlink(error)) {
                    pending.push_back({entry.path(), folder.relative + name + u'\\'});
                }
            } else if (entry.is_regular_file(error) && matchesPattern(name, pattern_)) {
                found.push_back({folder.relative, name});
            }
        });
    }
    return found;
}

} // namespace phial
