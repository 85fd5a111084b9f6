#include "core/RecordFiles.h"

#include "core/AtomicFile.h"
#include "core/FileSystem.h"
#include "core/NativePath.h"
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

std::string_view endingFor(KeptRecord::Reason reason)
{
    return reason == KeptRecord::Reason::Damaged ? ".damaged" : ".kept";
}

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

RecordFiles::RecordFiles(const Platform& platform, KeptRecords* kept)
    : files_(*platform.files), seal_(platform.seal.get()), kept_(kept)
{
}

std::vector<Variant> RecordFiles::read(const fs::path& file, StringView password) const
{
    const std::string bytes = bytesOf(file, files_.status(file).size);
    const record_format::Frame frame = record_format::frameOf(bytes);
    if (frame.state != record_format::State::Whole) {
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
    const auto reason = reasonToKeep(file, password, values, oldFile);
    std::optional<fs::path> aside;
    const auto note = [&] {
        if (aside && kept_ != nullptr) {
            kept_->add({*reason, systemPath(file), systemPath(*aside)});
        }
    };
    try {
        const std::string_view mark = reason ? endingFor(*reason) : std::string_view();
        replaceFile(files_, file, bytes, {.keepOldAs = mark}, aside);
    } catch (const std::exception&) {
        note();
        throw;
    }
    note();
}

std::string RecordFiles::bytesOf(const fs::path& file, std::uintmax_t size) const
{
    if (size > record_format::MaxBytes) {
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

/// Why old content is not simply replaced; none when it may be, or there is none.
std::optional<KeptRecord::Reason> RecordFiles::reasonToKeep(const fs::path& file, StringView password,
                                                            const RecordWriter& values, OldFile oldFile) const
{
    const FileStatus found = files_.status(file);
    if (found.kind != FileStatus::Kind::File) {
        return std::nullopt;
    }
    const auto reason = reasonToKeep(bytesOf(file, found.size), password, values);
    return reason || oldFile == OldFile::Replace ? reason : std::optional(KeptRecord::Reason::NotRead);
}

std::optional<KeptRecord::Reason> RecordFiles::reasonToKeep(std::string_view bytes, StringView password,
                                                            const RecordWriter& values) const
{
    using enum KeptRecord::Reason;
    const record_format::Frame frame = record_format::frameOf(bytes);
    if (frame.state != record_format::State::Whole) {
        return frame.state == record_format::State::Newer ? NotRead : Damaged;
    }
    std::optional<Variant> first;
    if (!ignoringErrors([&] { first = fromBody(frame, password, record_format::firstValueOf); })) {
        return Damaged;
    }
    return !first || isNewer(*first, values.first()) ? std::optional(NotRead) : std::nullopt;
}

} // namespace phial
