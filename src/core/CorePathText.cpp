#include "core/CorePathText.h"

#include "core/NativePath.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace phial
{

namespace
{

constexpr char16_t Backslash = u'\\';
constexpr StringView Separators = u"\\/";

String withBackslashes(StringView path)
{
    String text(path);
    std::ranges::replace_if(text, isPathSeparator, Backslash);
    return text;
}

/// Where the last component begins.
std::size_t nameBegin(StringView path)
{
    const std::size_t separator = path.find_last_of(Separators);
    return separator == StringView::npos ? 0 : separator + 1;
}

bool isDrive(StringView path)
{
    return path.size() >= 2 && path[1] == u':' && !isPathSeparator(path[0]);
}

/// The length of the drive or share at a path's beginning, without a separator behind it.
std::size_t driveLength(StringView path)
{
    if (isDrive(path)) {
        return 2;
    }
    if (path.size() < 2 || !isPathSeparator(path[0]) || !isPathSeparator(path[1])) {
        return 0;
    }
    const std::size_t server = path.find_first_of(Separators, 2);
    if (server == StringView::npos) {
        return path.size();
    }
    return std::min(path.find_first_of(Separators, server + 1), path.size());
}

/// The length of a path's root: drive or share and the separator behind them, each as far as it is there.
std::size_t rootLength(StringView path)
{
    const std::size_t drive = driveLength(path);
    return drive < path.size() && isPathSeparator(path[drive]) ? drive + 1 : drive;
}

/// A folder taken apart, "." and ".." carried out.
struct FolderParts {
    String root;
    std::vector<String> parts;

    String text() const
    {
        String result = root;
        for (const String& part : parts) {
            result += part;
            result += Backslash;
        }
        return result;
    }
};

FolderParts takenApart(StringView folder)
{
    const std::size_t root = rootLength(folder);
    FolderParts result{withBackslashes(folder.substr(0, root)), {}};
    const String rest = withBackslashes(folder.substr(root));
    for (const StringView part : split(rest, u"\\")) {
        if (part.empty() || part == u".") {
            continue;
        }
        const bool climbs = part == u"..";
        if (climbs && !result.parts.empty() && result.parts.back() != u"..") {
            result.parts.pop_back();
        } else if (!climbs || root == 0) {
            result.parts.emplace_back(part);
        }
    }
    return result;
}

/// The place of the point before the extension; the path's length when there is none.
std::size_t extensionPoint(StringView path)
{
    const std::size_t name = nameBegin(path);
    const std::size_t point = path.rfind(u'.');
    const bool isExtension = point != StringView::npos && point > name && path.substr(name) != u"..";
    return isExtension ? point : path.size();
}

} // namespace

String CorePathText::WithBackslash(StringView pText)
{
    const std::size_t last = pText.find_last_not_of(Separators);
    return String(pText.substr(0, last == StringView::npos ? 0 : last + 1)) + Backslash;
}

String CorePathText::Drive(StringView pPath)
{
    return String(pPath.substr(0, driveLength(pPath)));
}

String CorePathText::Folder(StringView pPath)
{
    return withBackslashes(pPath.substr(0, nameBegin(pPath)));
}

String CorePathText::FileName(StringView pPath)
{
    return String(pPath.substr(nameBegin(pPath)));
}

String CorePathText::BaseName(StringView pPath)
{
    return WithoutExtension(FileName(pPath));
}

String CorePathText::WithoutExtension(StringView pPath)
{
    return String(pPath.substr(0, extensionPoint(pPath)));
}

String CorePathText::Extension(StringView pPath)
{
    const std::size_t point = extensionPoint(pPath);
    return point < pPath.size() ? String(pPath.substr(point + 1)) : String();
}

String CorePathText::Relative(StringView pPath, StringView pBase)
{
    const String folder = Folder(pPath);
    const FolderParts target = takenApart(folder);
    const FolderParts base = takenApart(pBase);
    if (target.root.empty() || !equalsIgnoringCase(WithBackslash(target.root), WithBackslash(base.root))) {
        return folder;
    }
    const auto [targetRest, baseRest] =
        std::mismatch(target.parts.begin(), target.parts.end(), base.parts.begin(), base.parts.end(),
                      [](StringView left, StringView right) { return equalsIgnoringCase(left, right); });
    String relative;
    for (auto part = baseRest; part != base.parts.end(); ++part) {
        relative += u"..\\";
    }
    for (auto part = targetRest; part != target.parts.end(); ++part) {
        relative += *part;
        relative += Backslash;
    }
    return relative;
}

String CorePathText::Absolute(StringView pBase, StringView pRelative)
{
    if (driveLength(pRelative) > 0) {
        return takenApart(pRelative).text();
    }
    if (!pRelative.empty() && isPathSeparator(pRelative.front())) {
        return takenApart(Drive(pBase) + String(pRelative)).text();
    }
    const String base = pBase.empty() ? String() : WithBackslash(pBase);
    return takenApart(base + String(pRelative)).text();
}

} // namespace phial
