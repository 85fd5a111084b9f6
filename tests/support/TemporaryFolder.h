#pragma once

#include "core/String.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace phial::test
{

/// A folder of its own for one test, gone with the object, whatever was put into it.
class TemporaryFolder
{
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& native() const { return path_; }
    /// As the system writes it, with a backslash at its end.
    const String& path() const { return text_; }

    /// Puts a file there, with the folders it needs; the path is relative and native.
    void write(const std::filesystem::path& file, std::string_view bytes) const;
    std::string read(const std::filesystem::path& file) const;
    bool has(const std::filesystem::path& entry) const;
    /// The names of all entries of a folder within this one, sorted.
    std::vector<std::string> names(const std::filesystem::path& folder = {}) const;

private:
    std::filesystem::path path_;
    String text_;
};

} // namespace phial::test
