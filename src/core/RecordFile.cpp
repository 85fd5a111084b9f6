#include "core/RecordFile.h"

#include "core/CoreDataFile.h"
#include "core/DATA.h"
#include "core/NativePath.h"
#include "core/RuntimeError.h"

namespace phial
{

bool loadRecord(DATA& data, StringView file, StringView password)
{
    return ignoringErrors([&] {
        CoreDataFile stream;
        stream.Open(file, DataFileMode::Read, password);
        data.halfReadFile(nativePath(file));
        data.Read(stream);
        if (stream.AtEnd()) {
            data.halfReadFile({});
        }
        stream.Close();
    });
}

bool saveRecord(DATA& data, StringView file, StringView password)
{
    return ignoringErrors([&] {
        CoreDataFile stream;
        stream.Open(file, DataFileMode::Write, password);
        data.Store(stream);
        if (data.halfReadFile() == nativePath(file)) {
            stream.keepOldFile();
        }
        stream.Close();
        data.halfReadFile({});
    });
}

} // namespace phial
