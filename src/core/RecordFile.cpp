#include "core/RecordFile.h"

#include "core/CoreDataFile.h"
#include "core/DATA.h"
#include "core/FileSystem.h"
#include "core/NativePath.h"
#include "core/RuntimeError.h"
#include "core/SessionState.h"

namespace phial
{

namespace
{

using State = LoadedFile::State;

FileSystem& fileSystem()
{
    return *SessionState::current().platform().files;
}

/// What a load begins with. Raises 53 where there is no file, 75 where that cannot be told.
void find(LoadedFile& rLoaded)
{
    rLoaded.status = fileSystem().status(rLoaded.path);
    if (rLoaded.status.kind == FileStatus::Kind::File) {
        keptRecords().saw(rLoaded.path);
        return;
    }
    rLoaded.state = keptRecords().missed(rLoaded.path) ? State::Gone : State::Absent;
    throw RuntimeError(ErrorNumber::FileNotFound);
}

/// Whether the record was loaded under that name. A file that was away meanwhile may have come back in
/// another spelling than the one in which it was looked for.
bool isLoadedFrom(const LoadedFile& loaded, const std::filesystem::path& path)
{
    return loaded.path == path || equalsIgnoringCase(systemPath(loaded.path), systemPath(path));
}

/// Whether the record holds what is in that file now; of a file that has gone there is nothing to hold.
bool isAllRead(const LoadedFile& loaded, const std::filesystem::path& path)
{
    if (loaded.state != State::Whole || loaded.path != path) {
        return false;
    }
    const FileStatus now = fileSystem().status(loaded.path);
    return now == loaded.status || now.kind == FileStatus::Kind::Absent;
}

} // namespace

bool loadRecord(DATA& data, StringView file, StringView password)
{
    LoadedFile loaded{State::Partly, nativePath(file), {}};
    const bool done = ignoringErrors([&] {
        find(loaded);
        CoreDataFile stream;
        stream.Open(file, DataFileMode::Read, password);
        data.Read(stream);
        loaded.state = stream.AtEnd() ? State::Whole : State::Partly;
        stream.Close();
    });
    data.loadedFile(std::move(loaded));
    return done;
}

bool saveRecord(DATA& data, StringView file, StringView password)
{
    return ignoringErrors([&] {
        CoreDataFile stream;
        stream.Open(file, DataFileMode::Write, password);
        data.Store(stream);
        const auto path = nativePath(file);
        if (isLoadedFrom(data.loadedFile(), path) && !isAllRead(data.loadedFile(), path)) {
            stream.keepOldFile();
        }
        stream.Close();
        LoadedFile saved{State::Whole, path, {}};
        if (!ignoringErrors([&] { saved.status = fileSystem().status(path); })) {
            saved = {};
        }
        keptRecords().saw(path);
        data.loadedFile(std::move(saved));
    });
}

} // namespace phial
