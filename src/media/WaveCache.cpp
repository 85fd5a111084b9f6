#include "media/WaveCache.h"

#include "app/cls_App.h"
#include "app/cls_AppURL.h"
#include "app/sys_Global.h"
#include "core/CoreFiles.h"
#include "core/CorePathText.h"
#include "core/CoreRoot.h"
#include "core/CoreStringOps.h"
#include "core/NativePath.h"
#include "core/RuntimeError.h"

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <filesystem>

namespace phial
{

namespace
{

constexpr StringView AnyWave = u"*.wav";

/// The entry whose file name is that one, without regard to case.
std::optional<String> entryNamed(const CoreStringList& paths, StringView name)
{
    const auto found = std::ranges::find_if(
        paths, [&](const String& path) { return equalsIgnoringCase(CorePathText::FileName(path), name); });
    return found == paths.end() ? std::nullopt : std::optional(*found);
}

/// The place of a file within the cache; empty for one that has none, since it does not lie below a folder of
/// sounds or data, or leads out of it.
String placeInCache(StringView source)
{
    const String path = upperCase(source);
    const StringView folder = path.find(u"SFX") != String::npos ? u"SFX\\" : u"DATA\\";
    String place = CoreStringOps::After(path, folder, true);
    const bool leadsOut = (u"\\" + place).find(u"\\..\\") != String::npos;
    return leadsOut ? String() : place;
}

/// The coarsest unit in which file systems keep times, up to two seconds, that a time is a multiple of.
std::int64_t unitOf(std::int64_t time)
{
    using Period = std::filesystem::file_time_type::period;
    constexpr std::int64_t Second = Period::den / Period::num;
    for (const std::int64_t unit : {2 * Second, Second, Second / 100, Second / 1000}) {
        if (time % unit == 0) {
            return unit;
        }
    }
    return 1;
}

/// A file system may keep the time of a copy more coarsely than that of its original.
bool isCopyOf(const FileStamp& copy, const FileStamp& original)
{
    const std::int64_t difference =
        copy.time < original.time ? original.time - copy.time : copy.time - original.time;
    return copy.exists && copy.size == original.size && difference < unitOf(copy.time);
}

/// Sees to it that the copy is there and like its source; gives whether it is.
bool bringToCache(const String& source, const String& copy)
{
    CoreFiles& files = coreRoot().CoreFiles();
    if (files.Exists(copy)) {
        return isCopyOf(files.Changed(copy), files.Changed(source)) ||
               ignoringErrors([&] { files.Copy(source, copy); });
    }
    const String cache = QVAPP()->URL()->RESOURCECACHE();
    ignoringErrors([&] { files.CreateFolder(cache); });
    ignoringErrors([&] { files.CreateFolder(cache + u"sfx\\"); });
    ignoringErrors([&] { files.CreateFolder(CorePathText::Folder(copy)); });
    return ignoringErrors([&] { files.Copy(source, copy); });
}

} // namespace

void WaveCache::take(StringView file)
{
    const String key = upperCase(file);
    if (paths_.Exists(key)) {
        return;
    }
    const bool hasExtension = !CorePathText::Extension(file).empty();
    const std::optional<String> source = find(hasExtension ? String(file) : String(file) + u".wav");
    if (!source) {
        return;
    }
    const String place = placeInCache(*source);
    const String copy = QVAPP()->URL()->RESOURCECACHE() + u"sfx\\" + place;
    const bool isCopied = !place.empty() && bringToCache(*source, copy);
    // As it lies now, since the current folder may be another one when it is played.
    paths_.Add(key, {isCopied ? copy : systemPath(coreRoot().CoreFiles().native(*source))});
}

String WaveCache::path(StringView file) const
{
    const String key = upperCase(file);
    return paths_.Exists(key) ? paths_.Item(key).Values().Item(1).toText() : String();
}

std::optional<String> WaveCache::find(const String& file)
{
    const CoreFiles& files = coreRoot().CoreFiles();
    const auto url = QVAPP()->URL();
    if (files.Exists(file)) {
        return file;
    }
    if (const String common = url->RESOURCESFX() + file; files.Exists(common)) {
        return common;
    }
    if (const auto common = entryNamed(commonSounds(), file)) {
        return common;
    }
    return entryNamed(files.List(url->DATAAPP() + String(AnyWave), false, true, true), file);
}

/// Listed once.
const CoreStringList& WaveCache::commonSounds()
{
    if (!commonSounds_) {
        commonSounds_ =
            coreRoot().CoreFiles().List(QVAPP()->URL()->RESOURCESFX() + String(AnyWave), false, true, true);
    }
    return *commonSounds_;
}

} // namespace phial
