#pragma once

#include "core/CoreDataStream.h"
#include "core/String.h"

#include <filesystem>
#include <memory>

namespace phial
{

/// What `CoreDataFile` needs of the format of record files. An error while opening or closing is raised.
class RecordFiles
{
public:
    virtual ~RecordFiles() = default;

    /// A stream over the whole, checked content of a file. Raises 53 when there is none.
    virtual std::shared_ptr<CoreDataStream> openForReading(const std::filesystem::path& file,
                                                           StringView password) = 0;

    /// A stream whose values replace the file in one step at `commit`; without it the old file stays.
    virtual std::shared_ptr<CoreDataStream> openForWriting(const std::filesystem::path& file,
                                                           StringView password) = 0;

    /// Ends writing: the file holds the stream's values from now on.
    virtual void commit(CoreDataStream& stream) = 0;
};

} // namespace phial
