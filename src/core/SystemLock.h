#pragma once

#include <cstdint>
#include <filesystem>

namespace phial
{

/// A file of the system's that one process at a time has for itself, until it lets it go or ends. The file
/// exists while the lock is held and is taken away with it; one that a killed process left behind is taken
/// over.
class SystemLock
{
public:
    enum class Try : std::uint8_t {
        Taken,
        Busy,       ///< another holder has it
        Impossible, ///< the file cannot be made
    };

    SystemLock() = default;
    ~SystemLock() { release(); }
    SystemLock(SystemLock&& other) noexcept;
    SystemLock& operator=(SystemLock&&) = delete;

    /// Asks once, without waiting. Objects of one process keep each other out too.
    Try take(const std::filesystem::path& file);
    /// Nothing happens when nothing is held.
    void release() noexcept;

private:
    /// A file descriptor, or a file handle.
    static constexpr std::intptr_t None = -1;
    std::intptr_t handle_ = None;
    std::filesystem::path file_;
};

} // namespace phial
