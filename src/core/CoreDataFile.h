#pragma once

#include "core/CoreDataStream.h"
#include "core/String.h"

#include <cstdint>
#include <memory>

namespace phial
{

/// What a data file is opened for.
enum class DataFileMode : std::int32_t { Read = 1, Write = 2 };

/// A data file: lines of text, or a record's values. The first call after opening decides which of the two; a
/// later call of the other kind, one for the other mode, and one on a file that is not open raise 5.
///
/// Text is UTF-8, with or without its mark, with line ends CR LF or LF. A file open for writing replaces the
/// target in one step when it is closed; until then, and when the object goes without having been closed, the
/// old file stays. Values are read and written as `RecordFiles` tells; a file that it does not read raises at
/// the first value.
class CoreDataFile : public CoreDataStream
{
public:
    CoreDataFile();
    ~CoreDataFile() override;
    CoreDataFile(const CoreDataFile&) = delete;
    CoreDataFile& operator=(const CoreDataFile&) = delete;

    /// Opens a file of the open session; one that is open is closed first. To be read it must exist (53), and
    /// 75 is raised where that cannot be told. The two flags are always true, the object is always null. The
    /// password concerns values only.
    void Open(StringView pPath, DataFileMode pMode, StringView pPassword = {}, bool pExclusive = true,
              bool pBinary = true, const void* pMore = nullptr);

    /// Ends the work on the file; a file open for writing is written now, which raises 75 when it fails.
    /// Nothing happens when none is open.
    void Close();

    /// Keeps the values of a file that is open for writing aside when they are replaced, as `RecordFiles`
    /// does with what it cannot read.
    void keepOldFile();

    /// Whether all lines, or all values, are read. A line end at the end of the file begins no further line.
    bool AtEnd();
    /// The next line without its end; raises 62 behind the last one.
    String ReadLine();
    /// Appends text as it stands.
    void WriteText(StringView pText);

    void writeValue(const Variant& value) override;
    Variant ReadValue() override;

private:
    struct OpenFile;
    struct Lines;
    struct Values;
    OpenFile& opened(DataFileMode mode);
    Lines& lines();

    std::unique_ptr<OpenFile> file_;
};

} // namespace phial
