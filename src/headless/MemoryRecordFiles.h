#pragma once

#include "core/RecordFiles.h"

#include <map>
#include <vector>

namespace phial::headless
{

/// Record files whose values stay in memory; on disk a file of that path stands for each, so that it is seen
/// to exist.
class MemoryRecordFiles : public RecordFiles
{
public:
    using Values = std::vector<Variant>;

    /// The values last written to that path; empty when there are none.
    const Values& values(const std::filesystem::path& file) const;
    /// Puts values there as an earlier run would have left them.
    void prepare(const std::filesystem::path& file, Values values);

    std::shared_ptr<CoreDataStream> openForReading(const std::filesystem::path& file,
                                                   StringView password) override;
    std::shared_ptr<CoreDataStream> openForWriting(const std::filesystem::path& file,
                                                   StringView password) override;
    void commit(CoreDataStream& stream) override;

private:
    struct Content {
        Values values;
        String password;
    };
    class Stream;

    std::map<std::filesystem::path, Content> files_;
};

} // namespace phial::headless
