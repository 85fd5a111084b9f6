#pragma once

#include <cstddef>
#include <filesystem>

namespace phial::test
{

/// Makes a folder poor for as long as it lives: little room, or no writing. Where the system does not let
/// this process do so, `isInForce` is false, and the test injects the fault instead.
class LimitedDisk
{
public:
    /// An empty disk of that many bytes in place of the folder, seen by this process only.
    static LimitedDisk withRoom(const std::filesystem::path& folder, std::size_t bytes);
    /// The folder, read-only.
    static LimitedDisk readOnly(const std::filesystem::path& folder);

    LimitedDisk(const LimitedDisk&) = delete;
    LimitedDisk& operator=(const LimitedDisk&) = delete;
    ~LimitedDisk();

    bool isInForce() const { return mounted_ || protected_; }

private:
    LimitedDisk(std::filesystem::path folder, bool mounted, bool isProtected);

    std::filesystem::path folder_;
    bool mounted_;
    bool protected_;
};

} // namespace phial::test
