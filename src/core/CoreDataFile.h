#pragma once

#include "core/CoreDataStream.h"
#include "core/String.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>

namespace phial
{

/// What a data file is opened for.
enum class DataFileMode : std::int32_t { Read = 1, Write = 2 };

/// A data file: lines of text, or a record's values. The first call after opening decides which of the two.
///
/// Text is UTF-8, with or without its mark, with line ends CR LF or LF. A file written as text replaces the
/// target in one step when it is closed, and so does a record; until then, and when the object goes without
/// having been closed, the old file stays. Records need the platform's `RecordFiles`; without them their
/// calls raise 5.
class CoreDataFile : public CoreDataStream
{
public:
    CoreDataFile();
    ~CoreDataFile() override;
    CoreDataFile(const CoreDataFile&) = delete;
    CoreDataFile& operator=(const CoreDataFile&) = delete;

    /// Opens a file, closing the one open before. To read, it must exist (53). The two flags are always true,
    /// the object is always null. A password concerns records only.
    void Open(StringView pPath, DataFileMode pMode, StringView pPassword = {}, bool pExclusive = true,
              bool pBinary = true, const void* pMore = nullptr);

    /// Ends the work on the file; a file open for writing is written now and raises 75 when that fails.
    /// Nothing happens when none is open.
    void Close();

    /// Whether all lines are read.
    bool AtEnd();
    /// The next line without its end; raises 62 behind the last one.
    String ReadLine();
    /// Appends text to a file open for writing.
    void WriteText(StringView pText);

    void writeValue(const Variant& value) override;
    Variant ReadValue() override;

private:
    struct OpenFile;
    OpenFile& open(DataFileMode mode);

    std::unique_ptr<OpenFile> file_;
};

} // namespace phial
