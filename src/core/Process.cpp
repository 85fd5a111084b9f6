#include "core/Process.h"

#if __has_include(<unistd.h>)
#include <cerrno>
#include <csignal>
#include <unistd.h>
#elif __has_include(<process.h>)
#include <process.h>
#endif

namespace phial
{

#if __has_include(<unistd.h>)

std::int64_t currentProcess()
{
    return ::getpid();
}

bool isRunningProcess(std::int64_t process)
{
    // Signal 0 is not sent, only checked; being refused to send it means that somebody else's process is
    // there.
    return process > 0 && (::kill(static_cast<pid_t>(process), 0) == 0 || errno == EPERM);
}

#else

std::int64_t currentProcess()
{
    return _getpid();
}

bool isRunningProcess(std::int64_t process)
{
    return process == currentProcess();
}

#endif

} // namespace phial
