#include "core/RecordFile.h"

#include "core/CoreDataFile.h"
#include "core/DATA.h"
#include "core/RuntimeError.h"

namespace phial
{

bool loadRecord(const DATA& data, StringView file, StringView password)
{
    return ignoringErrors([&] {
        CoreDataFile stream;
        stream.Open(file, DataFileMode::Read, password);
        data.Read(stream);
        stream.Close();
    });
}

bool saveRecord(const DATA& data, StringView file, StringView password)
{
    return ignoringErrors([&] {
        CoreDataFile stream;
        stream.Open(file, DataFileMode::Write, password);
        data.Store(stream);
        stream.Close();
    });
}

} // namespace phial
