#include "core/RecordFiles.h"

#include "core/AtomicFile.h"
#include "core/FileSystem.h"
#include "core/Platform.h"
#include "core/RecordSeal.h"
#include "core/RuntimeError.h"

#include <charconv>
#include <utility>

namespace phial
{

namespace
{

namespace fs = std::filesystem;
using record_format::State;

constexpr std::string_view DamagedMark = ".damaged";
constexpr std::string_view KeptMark = ".kept";

/// Two numbers with a point between them, the form of versions.
std::optional<std::pair<unsigned, unsigned>> versionIn(const Variant& value)
{
    if (!value.isText()) {
        return std::nullopt;
    }
    const std::string text = toUtf8(value.text());
    const char* const end = text.data() + text.size();
    std::pair<unsigned, unsigned> version;
    const auto major = std::from_chars(text.data(), end, version.first);
    if (major.ec != std::errc() || major.ptr == end || *major.ptr != '.') {
        return std::nullopt;
    }
    const auto minor = std::from_chars(major.ptr + 1, end, version.second);
    return minor.ec == std::errc() && minor.ptr == end ? std::optional(version) : std::nullopt;
}

bool isNewer(const Variant& stored, const Variant& written)
{
    const auto storedVersion = versionIn(stored);
    const auto writtenVersion = versionIn(written);
    return storedVersion && writtenVersion && *storedVersion > *writtenVersion;
}

} // namespace

RecordFiles::RecordFiles(const Platform& platform) : files_(*platform.files), seal_(platform.seal.get()) {}

std::vector<Variant> RecordFiles::read(const fs::path& file, StringView password) const
{
    const std::string bytes = bytesOf(file);
    const record_format::Frame frame = record_format::frameOf(bytes);
    if (frame.state != State::Whole) {
        throw RuntimeError(ErrorNumber::InvalidArgument, u"Invalid argument: no whole record file");
    }
    std::optional<std::vector<Variant>> values = fromBody(frame, password, record_format::valuesOf);
    if (!values) {
        throw RuntimeError(ErrorNumber::FileAccess, u"the file was written with another password");
    }
    return *std::move(values);
}

void RecordFiles::write(const fs::path& file, StringView password, const RecordWriter& values,
                        OldFile oldFile) const
{
    const std::string bytes = framed(values.body(), password);
    const auto aside = keepWhatIsNotReplaced(file, password, values, oldFile);
    try {
        replaceFile(files_, file, bytes);
    } catch (const std::exception&) {
        if (aside) {
            ignoringErrors([&] { files_.rename(*aside, file); });
        }
        throw;
    }
}

std::string RecordFiles::bytesOf(const fs::path& file) const
{
    std::error_code error;
    if (fs::file_size(file, error) > record_format::MaxBytes && !error) {
        return {}; // as if damaged
    }
    return files_.read(file);
}

std::string RecordFiles::framed(const std::string& body, StringView password) const
{
    if (password.empty()) {
        return record_format::framed(body, false);
    }
    if (seal_ == nullptr) {
        throw RuntimeError(ErrorNumber::InvalidArgument, u"no program part is there that seals files");
    }
    return record_format::framed(seal_->seal(body, password), true);
}

template <typename Take>
auto RecordFiles::fromBody(const record_format::Frame& frame, StringView password, const Take& take) const
    -> std::optional<decltype(take(frame.body))>
{
    if (frame.isSealed == password.empty()) {
        return std::nullopt;
    }
    if (!frame.isSealed) {
        return take(frame.body);
    }
    const auto body = seal_ == nullptr ? std::nullopt : seal_->open(frame.body, password);
    return body ? std::optional(take(*body)) : std::nullopt;
}

/// The end of the name under which a file's old content is kept; none when it may be replaced.
std::optional<std::string_view> RecordFiles::markToKeep(std::string_view bytes, StringView password,
                                                        const RecordWriter& values) const
{
    const record_format::Frame frame = record_format::frameOf(bytes);
    if (frame.state != State::Whole) {
        return frame.state == State::Newer ? KeptMark : DamagedMark;
    }
    std::optional<Variant> first;
    if (!ignoringErrors([&] { first = fromBody(frame, password, record_format::firstValueOf); })) {
        return DamagedMark;
    }
    return !first || isNewer(*first, values.first()) ? std::optional(KeptMark) : std::nullopt;
}

/// Where the old content has gone; none when it may be replaced or there is none.
std::optional<fs::path> RecordFiles::keepWhatIsNotReplaced(const fs::path& file, StringView password,
                                                           const RecordWriter& values, OldFile oldFile) const
{
    std::error_code error;
    if (!fs::is_regular_file(file, error)) {
        return std::nullopt;
    }
    const auto mark = markToKeep(bytesOf(file), password, values);
    if (!mark && oldFile == OldFile::Replace) {
        return std::nullopt;
    }
    return moveAside(files_, file, mark.value_or(KeptMark));
}

} // namespace phial
