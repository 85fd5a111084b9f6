#include "headless/MemoryRecordFiles.h"

#include "core/FileSystem.h"
#include "core/RuntimeError.h"

#include <utility>

namespace phial::headless
{

class MemoryRecordFiles::Stream : public CoreDataStream
{
public:
    Stream(std::filesystem::path path, Content content) : path_(std::move(path)), content_(std::move(content))
    {
    }

    void writeValue(const Variant& value) override { content_.values.push_back(value); }

    Variant ReadValue() override
    {
        if (next_ == content_.values.size()) {
            throw RuntimeError(ErrorNumber::InputPastEnd);
        }
        return content_.values[next_++];
    }

    const std::filesystem::path& path() const { return path_; }
    const Content& content() const { return content_; }

private:
    std::filesystem::path path_;
    Content content_;
    std::size_t next_ = 0;
};

const MemoryRecordFiles::Values& MemoryRecordFiles::values(const std::filesystem::path& file) const
{
    static const Values none;
    const auto entry = files_.find(file);
    return entry == files_.end() ? none : entry->second.values;
}

void MemoryRecordFiles::prepare(const std::filesystem::path& file, Values values)
{
    NativeFileSystem().write(file, "record");
    files_.insert_or_assign(file, Content{std::move(values), {}});
}

std::shared_ptr<CoreDataStream> MemoryRecordFiles::openForReading(const std::filesystem::path& file,
                                                                  StringView password)
{
    const auto entry = files_.find(file);
    if (entry == files_.end()) {
        throw RuntimeError(ErrorNumber::FileNotFound);
    }
    if (entry->second.password != password) {
        throw RuntimeError(ErrorNumber::FileAccess, u"wrong password");
    }
    return std::make_shared<Stream>(file, entry->second);
}

std::shared_ptr<CoreDataStream> MemoryRecordFiles::openForWriting(const std::filesystem::path& file,
                                                                  StringView password)
{
    return std::make_shared<Stream>(file, Content{{}, String(password)});
}

void MemoryRecordFiles::commit(CoreDataStream& stream)
{
    const auto& written = dynamic_cast<Stream&>(stream);
    NativeFileSystem().write(written.path(), "record");
    files_.insert_or_assign(written.path(), written.content());
}

} // namespace phial::headless
