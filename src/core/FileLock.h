#pragma once

#include "core/String.h"

#include <chrono>
#include <memory>

namespace phial
{

/// Holds a file for this program, from the constructor to the end of the object, by a lock file beside it.
/// Waits while another living program holds it, for a bounded time, and takes over the lock of one that has
/// ended. A second holder within this program gets in at once.
class FileLock
{
public:
    static constexpr std::chrono::milliseconds MaxWait{3000};

    /// `file` as the system writes it. Nothing is raised.
    explicit FileLock(StringView file);
    ~FileLock();
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

    /// False when the time ran out or no lock file can be made; the caller then goes on without.
    bool held() const;

private:
    class Impl;
    std::unique_ptr<Impl> impl_;
};

} // namespace phial
