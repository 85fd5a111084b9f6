#include "core/CoreDataFile.h"

#include "core/AtomicFile.h"
#include "core/FileSystem.h"
#include "core/NativePath.h"
#include "core/Platform.h"
#include "core/RecordFiles.h"
#include "core/RuntimeError.h"
#include "core/SessionState.h"
#include "core/Utf8Text.h"

#include <utility>
#include <variant>
#include <vector>

namespace phial
{

/// A text being read.
struct CoreDataFile::Lines {
    std::string bytes;
    std::size_t next = 0;
};

/// Values being read.
struct CoreDataFile::Values {
    std::vector<Variant> all;
    std::size_t next = 0;
};

struct CoreDataFile::OpenFile {
    std::filesystem::path path;
    DataFileMode mode = DataFileMode::Read;
    String password;
    OldFile oldFile = OldFile::Replace;
    /// Undecided, a text being read, a text being written, values being read, values being written.
    std::variant<std::monostate, Lines, std::string, Values, RecordWriter> content;

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
    if (pMode == DataFileMode::Read &&
        SessionState::current().platform().files->status(path).kind != FileStatus::Kind::File) {
        throw RuntimeError(ErrorNumber::FileNotFound, u"file not found: " + String(pPath));
    }
    file_ =
        std::make_unique<OpenFile>(OpenFile{std::move(path), pMode, String(pPassword), OldFile::Replace, {}});
}

void CoreDataFile::Close()
{
    const std::unique_ptr<OpenFile> file = std::exchange(file_, nullptr);
    if (!file || file->mode == DataFileMode::Read) {
        return;
    }
    SessionState& session = SessionState::current();
    const Platform& platform = session.platform();
    if (const auto* const values = std::get_if<RecordWriter>(&file->content)) {
        RecordFiles(platform, &session.keptRecords())
            .write(file->path, file->password, *values, file->oldFile);
        return;
    }
    const auto* const text = std::get_if<std::string>(&file->content);
    replaceFile(*platform.files, file->path, text != nullptr ? *text : std::string());
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

void CoreDataFile::keepOldFile()
{
    opened(DataFileMode::Write).oldFile = OldFile::Keep;
}

bool CoreDataFile::AtEnd()
{
    if (const auto* const values = std::get_if<Values>(&opened(DataFileMode::Read).content)) {
        return values->next == values->all.size();
    }
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

void CoreDataFile::writeValue(const Variant& value)
{
    opened(DataFileMode::Write).contentAs<RecordWriter>([] { return RecordWriter(); }).write(value);
}

Variant CoreDataFile::ReadValue()
{
    OpenFile& file = opened(DataFileMode::Read);
    auto& values = file.contentAs<Values>([&] {
        return Values{RecordFiles(SessionState::current().platform()).read(file.path, file.password), 0};
    });
    if (values.next == values.all.size()) {
        throw RuntimeError(ErrorNumber::InputPastEnd);
    }
    return std::move(values.all[values.next++]);
}

} // namespace phial
