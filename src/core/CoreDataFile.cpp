#include "core/CoreDataFile.h"

#include "core/AtomicFile.h"
#include "core/FileSystem.h"
#include "core/NativePath.h"
#include "core/RecordFiles.h"
#include "core/RuntimeError.h"
#include "core/SessionState.h"
#include "core/Utf8Text.h"

#include <utility>
#include <variant>

namespace phial
{

namespace
{

RecordFiles& recordFiles()
{
    const auto& records = SessionState::current().platform().records;
    if (!records) {
        throw RuntimeError(ErrorNumber::InvalidArgument, u"record files are not available");
    }
    return *records;
}

} // namespace

/// A text being read.
struct CoreDataFile::Lines {
    std::string bytes;
    std::size_t next = 0;
};

struct CoreDataFile::OpenFile {
    std::filesystem::path path;
    DataFileMode mode = DataFileMode::Read;
    String password;
    /// Undecided, a text being read, a text being written, or values.
    std::variant<std::monostate, Lines, std::string, std::shared_ptr<CoreDataStream>> content;

    /// The content as that kind, begun by `begin` when this is the first call; raises 5 for another kind.
    template <typename Kind, typename Begin>
    Kind& contentAs(const Begin& begin)
    {
        if (std::holds_alternative<std::monostate>(content)) {
            content.emplace<Kind>(begin());
        }
        if (auto* const kind = std::get_if<Kind>(&content)) {
            return *kind;
        }
        throw RuntimeError(ErrorNumber::InvalidArgument, u"a data file holds either text or values");
    }
};

CoreDataFile::CoreDataFile() = default;
CoreDataFile::~CoreDataFile() = default;

void CoreDataFile::Open(StringView pPath, DataFileMode pMode, StringView pPassword, bool /*pExclusive*/,
                        bool /*pBinary*/, const void* /*pMore*/)
{
    Close();
    auto path = nativePath(pPath);
    std::error_code error;
    if (pMode == DataFileMode::Read && !std::filesystem::is_regular_file(path, error)) {
        throw RuntimeError(ErrorNumber::FileNotFound, u"file not found: " + String(pPath));
    }
    file_ = std::make_unique<OpenFile>(OpenFile{std::move(path), pMode, String(pPassword), {}});
}

void CoreDataFile::Close()
{
    const std::unique_ptr<OpenFile> file = std::exchange(file_, nullptr);
    if (!file || file->mode == DataFileMode::Read) {
        return;
    }
    if (const auto* const values = std::get_if<std::shared_ptr<CoreDataStream>>(&file->content)) {
        recordFiles().commit(**values);
        return;
    }
    const auto* const text = std::get_if<std::string>(&file->content);
    replaceFile(*SessionState::current().platform().files, file->path,
                text != nullptr ? *text : std::string());
}

CoreDataFile::OpenFile& CoreDataFile::opened(DataFileMode mode)
{
    if (!file_ || file_->mode != mode) {
        throw RuntimeError(ErrorNumber::InvalidArgument, u"the data file is not open for this");
    }
    return *file_;
}

CoreDataFile::Lines& CoreDataFile::lines()
{
    OpenFile& file = opened(DataFileMode::Read);
    return file.contentAs<Lines>([&] {
        return Lines{withoutMark(SessionState::current().platform().files->read(file.path)), 0};
    });
}

bool CoreDataFile::AtEnd()
{
    const Lines& text = lines();
    return text.next >= text.bytes.size();
}

String CoreDataFile::ReadLine()
{
    Lines& text = lines();
    if (text.next >= text.bytes.size()) {
        throw RuntimeError(ErrorNumber::InputPastEnd);
    }
    const std::string_view rest = std::string_view(text.bytes).substr(text.next);
    const std::size_t end = rest.find('\n');
    std::string_view line = rest.substr(0, end);
    text.next += end == std::string_view::npos ? rest.size() : end + 1;
    if (line.ends_with('\r')) {
        line.remove_suffix(1);
    }
    return fromUtf8(line);
}

void CoreDataFile::WriteText(StringView pText)
{
    opened(DataFileMode::Write).contentAs<std::string>([] { return std::string(); }) += toUtf8(pText);
}

CoreDataStream& CoreDataFile::values(DataFileMode mode)
{
    OpenFile& file = opened(mode);
    return *file.contentAs<std::shared_ptr<CoreDataStream>>([&] {
        return mode == DataFileMode::Read ? recordFiles().openForReading(file.path, file.password)
                                          : recordFiles().openForWriting(file.path, file.password);
    });
}

void CoreDataFile::writeValue(const Variant& value)
{
    values(DataFileMode::Write).writeValue(value);
}

Variant CoreDataFile::ReadValue()
{
    return values(DataFileMode::Read).ReadValue();
}

} // namespace phial
