#include "core/NativePath.h"

#include "core/CurrentFolder.h"
#include "core/SessionState.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace phial
{

namespace
{

namespace fs = std::filesystem;

constexpr bool NativeIsBackslash = fs::path::preferred_separator == static_cast<fs::path::value_type>('\\');

bool isAbsolute(StringView path)
{
    return !path.empty() && isPathSeparator(path.front());
}

/// A drive letter or a network share: neither exists where paths begin with a slash.
bool namesAnotherRoot(StringView path)
{
    const bool drive = path.size() >= 2 && path[1] == u':';
    const bool share = path.size() >= 2 && isPathSeparator(path[0]) && isPathSeparator(path[1]);
    return drive || share;
}

/// Appends a path's components, with "." and ".." resolved; ".." at the root stays there.
void appendComponents(std::vector<String>& components, StringView path)
{
    std::size_t begin = 0;
    while (begin <= path.size()) {
        const std::size_t end = static_cast<std::size_t>(
            std::find_if(path.begin() + static_cast<std::ptrdiff_t>(begin), path.end(), isPathSeparator) -
            path.begin());
        const StringView component = path.substr(begin, end - begin);
        if (component == u"..") {
            if (!components.empty()) {
                components.pop_back();
            }
        } else if (!component.empty() && component != u".") {
            components.emplace_back(component);
        }
        begin = end + 1;
    }
}

/// What cannot be asked for counts as there, so that its name stays as it was written.
bool isThere(const fs::path& path)
{
    std::error_code ignored;
    return fs::symlink_status(path, ignored).type() != fs::file_type::not_found;
}

/// The entry of a folder whose name differs from the given one in case only.
std::optional<fs::path> entryIgnoringCase(const fs::path& folder, StringView name)
{
    constexpr std::size_t MostBytes = 3; // that a 16-bit unit takes in UTF-8
    std::optional<fs::path> found;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error); !error && entry != fs::directory_iterator();
         entry.increment(error)) {
        const fs::path& path = entry->path();
        const auto& native = path.native();
        const std::size_t length = native.size() - (native.rfind(fs::path::preferred_separator) + 1);
        if (length < name.size() || length > MostBytes * name.size()) {
            continue; // most entries of a large folder, without a look at their signs
        }
        fs::path candidate = path.filename();
        if (equalsIgnoringCase(fromUtf8(candidate.string()), name) && (!found || candidate < *found)) {
            found = std::move(candidate);
        }
    }
    return found;
}

fs::path joined(const std::vector<String>& components)
{
    std::string text;
    for (const String& component : components) {
        text += '/';
        text += toUtf8(component);
    }
    return text.empty() ? fs::path("/") : fs::path(text);
}

fs::path existingCase(const std::vector<String>& components)
{
    fs::path path("/");
    bool searching = true;
    for (const String& component : components) {
        fs::path name(toUtf8(component));
        if (searching && !isThere(path / name)) {
            if (auto entry = entryIgnoringCase(path, component)) {
                name = std::move(*entry);
            } else {
                searching = false;
            }
        }
        path /= name;
    }
    return path;
}

} // namespace

fs::path nativePath(StringView path, StringView currentFolder)
{
    if (path.find(u'\0') != StringView::npos) {
        return {};
    }
    if constexpr (NativeIsBackslash) {
        return (fs::path(String(currentFolder)) / fs::path(String(path))).lexically_normal();
    }
    if (namesAnotherRoot(path)) {
        return {};
    }
    std::vector<String> components;
    if (!isAbsolute(path)) {
        appendComponents(components, currentFolder);
    }
    appendComponents(components, path);
    fs::path exact = joined(components);
    return isThere(exact) ? exact : existingCase(components);
}

fs::path nativePath(StringView path)
{
    return nativePath(path, SessionState::current().currentFolder().path());
}

String systemPath(const fs::path& path)
{
    if constexpr (NativeIsBackslash) {
        return path.u16string();
    }
    String text = fromUtf8(path.string());
    std::replace(text.begin(), text.end(), u'/', u'\\');
    return text;
}

} // namespace phial
